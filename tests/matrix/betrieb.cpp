#include "betrieb.h"

#include "frmDocument.h"
#include "polling.h"
#include "texte.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMdiSubWindow>

#include <stdexcept>
#include <utility>

namespace varnoth::pruefung {

namespace {

constexpr std::int16_t TextOnline = 4000;
constexpr std::int16_t TextOffline = 4002;
constexpr const char* Speicherdatei = "store";

void Schreibe(const QString& pfad, const QByteArray& inhalt) {
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly) || datei.write(inhalt) != inhalt.size())
        throw std::runtime_error(pfad.toStdString() + " cannot be written");
}

QStringList MitSpeicher(const QTemporaryDir& ordner, const QByteArray& inhalt, const QStringList& optionen) {
    const QString pfad = ordner.filePath(Speicherdatei);
    Schreibe(pfad, inhalt);
    return QStringList{"--store", pfad} + optionen;
}

/// Every port leads to the controller: choosing another one changes nothing but the number.
Startbedingungen Bedingungen(const QTemporaryDir& ordner, const QString& geraet, const QStringList& worte) {
    QByteArray einstellungen = "[Settings]\n";
    for (const char* nummer : {"1", "2", "3", "4"})
        einstellungen += QByteArray("ComGeraet") + nummer + "=" + geraet.toUtf8() + "\n";
    Schreibe(ordner.filePath("varnoth.ini"), einstellungen);
    return {.worte = worte,
            .programmordner = ordner.path(),
            .programmname = "varnoth",
            .sperrordner = ordner.path(),
            .datenordner = ordner.filePath(QStringLiteral("daten")),
            .splashSekunden = 0};
}

} // namespace

Betrieb::Betrieb(const QByteArray& speicher, const QStringList& simulatoroptionen, const QStringList& worte)
    : geraet(ordner.path(), MitSpeicher(ordner, speicher, simulatoroptionen)),
      programm(Bedingungen(ordner, geraet.Geraet(), worte)) {
    if (!programm.Starte())
        throw std::runtime_error("the program does not start");
    QApplication::instance()->installEventFilter(this);
}

Betrieb::~Betrieb() = default;

void Betrieb::LaufeBis(const std::function<bool()>& bedingung) {
    while (!bedingung()) {
        arbeitet = true;
        if (const auto jetzt = std::exchange(auftrag, {}))
            jetzt();
        arbeitet = false;
        if (!programm.Runde())
            return;
    }
}

bool Betrieb::HatRuhe() {
    return !arbeitet && !auftrag && !Hauptfenster().BefehlWartet() &&
           QApplication::activeModalWidget() == nullptr;
}

void Betrieb::Waehle(const QString& aktion) {
    auto* const posten = Hauptfenster().findChild<QAction*>(aktion);
    if (posten == nullptr)
        throw std::runtime_error("no menu item " + aktion.toStdString());
    posten->trigger();
}

QString Betrieb::Text(const QString& fenster, const QString& element) const {
    const QWidget* const sichtbares = SichtbaresFenster(fenster);
    const auto* const gesuchtes = sichtbares == nullptr ? nullptr : sichtbares->findChild<QWidget*>(element);
    return gesuchtes == nullptr ? QString() : gesuchtes->property("text").toString();
}

qint64 Betrieb::SeitGezeigt(const QString& fenster) const {
    const auto eintrag = gezeigt.find(fenster);
    return eintrag == gezeigt.end() || SichtbaresFenster(fenster) == nullptr ? 0 : eintrag->second.elapsed();
}

void Betrieb::BeiFenster(const QString& name, std::function<void()> was) {
    ausloeser = name;
    ausgeloest = std::move(was);
}

bool Betrieb::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() != QEvent::Show || !ziel->isWidgetType() || ziel->objectName().isEmpty())
        return false;
    gezeigt[ziel->objectName()].start();
    if (ziel->objectName() == ausloeser) {
        ausloeser.clear();
        std::exchange(ausgeloest, {})();
    }
    return false;
}

bool Betrieb::IstLive() {
    return modPolling::GetPollingAktiv() != False && modPolling::GetDurchgaenge() > 0 &&
           !modPolling::VerbindungVerloren();
}

bool Betrieb::ZeigtAlleOnline() {
    const QString ende = QString::fromStdString(LadeText(TextOnline));
    for (int teil = 0; teil < modPolling::GetAnzahlOptikteile(); ++teil)
        if (!Hauptfenster().Fenster(teil).windowTitle().endsWith(ende))
            return false;
    return true;
}

bool Betrieb::ZeigtAlleOffline() {
    const QString ende = QString::fromStdString(LadeText(TextOffline));
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (!Hauptfenster().Fenster(teil).windowTitle().endsWith(ende))
            return false;
    return true;
}

void Klicke(const QString& fenster, const QString& knopf) {
    const QWidget* const sichtbares = SichtbaresFenster(fenster);
    auto* const gesuchter = sichtbares == nullptr ? nullptr : sichtbares->findChild<QAbstractButton*>(knopf);
    if (gesuchter != nullptr)
        QMetaObject::invokeMethod(gesuchter, &QAbstractButton::click, Qt::QueuedConnection);
}

} // namespace varnoth::pruefung
