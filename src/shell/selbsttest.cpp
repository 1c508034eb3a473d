#include "selbsttest.h"

#include "bitsunddatum.h"
#include "frmDocument.h"
#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "terminal.h"
#include "transaktionen.h"
#include "zeichensatz.h"

#include <QDir>
#include <QMdiSubWindow>
#include <QPixmap>
#include <QTextStream>

namespace varnoth {

namespace {

constexpr int TaktMs = 100;
constexpr int LaengsteWartezeitMs = 60000;
constexpr int LiveZeitMs = 2000;
constexpr QSize Bildgroesse(1280, 800);
constexpr const char* Bildname = "varnoth.png";

QString Text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString Geraetetext(std::int16_t adresse) {
    std::string text;
    for (const auto wert : modDaten::HoleParameter(Global, adresse))
        text += RegisterAlsUtf8(wert);
    return Text(text).trimmed();
}

int ZaehleLesbare(Speicherbereich bereich) {
    int anzahl = 0;
    for (const Parameter& parameter : ParameterMit(bereich, IstLesbar))
        anzahl += parameter.beschreibung.Laenge * Exemplare(bereich);
    return anzahl;
}

void BerichteIdentifikation(QTextStream& aus) {
    aus << "identified: slave " << modModbus::GetSlaveAdresse() << ", " << Text(modModbus::GetIdentText1())
        << ", serial number " << Text(modModbus::GetIdentText2()) << "\n";
}

void BerichteKonfiguration(QTextStream& aus) {
    int gelesene = 0;
    for (const auto bereich : AlleSpeicherbereiche)
        gelesene += ZaehleLesbare(bereich);
    const Werte datum = modDaten::HoleParameter(Global, global::Herstelldatum);
    aus << "read: " << gelesene << " registers; serial number " << Geraetetext(global::Seriennummer)
        << ", made " << Text(modDaten::KonvertDatenToDatum(datum)) << "\n";
}

void BerichteMesswerte(QTextStream& aus, int optikteil) {
    constexpr const char* namen[] = {"TU", "HU", "ZU", "TNU", "HNU", "ZNU"};
    const Werte werte =
        modDaten::HoleParameter(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Messwerte, optikteil);
    aus << "measured: part " << optikteil + 1 << ", " << modDaten::Strahlenzahl(optikteil) << " beams";
    for (std::size_t i = 0; i < std::size(namen); ++i)
        aus << ", " << namen[i] << " " << werte.at(i);
    aus << "\n";
}

} // namespace

Selbsttest::Selbsttest(Fensterumgebung& fensterumgebung, const QString& ordner)
    : umgebung(fensterumgebung), bildordner(ordner) {
    NimmTerminalDesAufrufers();
    umgebung.SetzeMeldungsweg([this](const Meldung& meldung) {
        Scheitere(Text(meldung.text));
        return meldung.knoepfe == Knoepfe::Ok ? Antwort::Ok : Antwort::Abbrechen;
    });
    QObject::connect(&takt, &QTimer::timeout, &takt, [this] { Pruefe(); });
}

Selbsttest::~Selbsttest() {
    umgebung.SetzeMeldungsweg({});
}

void Selbsttest::Beobachte(frmMain& hauptfenster) {
    fenster = &hauptfenster;
    if (beendet) {
        fenster->close();
        return;
    }
    fenster->resize(Bildgroesse);
    takt.start(TaktMs);
    seitStart.start();
}

/// Live data flows when a whole pass has brought the values of every present part.
bool Selbsttest::LiveDatenFliessen() const {
    if (modPolling::GetPollingAktiv() == False || modPolling::GetDurchgaenge() == 0)
        return false;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (modPolling::GetOptikteilStatus(teil) == modPolling::Vorhanden &&
            !fenster->Fenster(teil).ZeigtLiveDaten())
            return false;
    return modPolling::GetAnzahlOptikteile() > 0;
}

void Selbsttest::Pruefe() {
    if (LiveDatenFliessen() && !seitLiveDaten.isValid()) {
        seitLiveDaten.start();
        fenster->Ordne(Anordnung::Nebeneinander);
    }
    if (seitLiveDaten.isValid() && seitLiveDaten.elapsed() >= LiveZeitMs)
        Berichte();
    else if (seitStart.elapsed() > LaengsteWartezeitMs)
        Scheitere(QStringLiteral("no live data within %1 seconds").arg(LaengsteWartezeitMs / 1000));
}

void Selbsttest::Berichte() {
    const QString bild = QDir(bildordner).filePath(QLatin1String(Bildname));
    if (!QDir().mkpath(bildordner) || !fenster->grab().save(bild)) {
        Scheitere(QStringLiteral("the picture %1 cannot be written").arg(bild));
        return;
    }
    QString bericht;
    QTextStream aus(&bericht);
    BerichteIdentifikation(aus);
    BerichteKonfiguration(aus);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (modPolling::GetOptikteilStatus(teil) == modPolling::Vorhanden)
            BerichteMesswerte(aus, teil);
    aus << "passes: " << modPolling::GetDurchgaenge() << " in " << seitLiveDaten.elapsed() << " ms\n";
    aus << "picture: " << bild << "\n";
    SchreibeInStrom(Strom::Ausgabe, bericht.toStdString());
    gelungen = true;
    Beende();
}

void Selbsttest::Scheitere(const QString& grund) {
    SchreibeInStrom(Strom::Fehler, "failed: " + grund.toStdString() + "\n");
    Beende();
}

void Selbsttest::Beende() {
    beendet = true;
    takt.stop();
    modDaten::LoescheGeaendert();
    if (fenster != nullptr)
        fenster->close();
}

} // namespace varnoth
