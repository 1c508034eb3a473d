#include "hilfe.h"

#include "frmHilfe.h"
#include "hilfedatei.h"
#include "hilfeziel.h"
#include "texte.h"
#include "umgebung.h"

#include <QDir>
#include <QMessageBox>

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextNichtGefunden = 1715;

} // namespace

Hilfe::Hilfe(std::function<QString()> pfadquelle) : dateipfad(std::move(pfadquelle)) {}

Hilfe::~Hilfe() = default;

void Hilfe::ZeigeThemen(QWidget* davor) {
    if (!Oeffne()) {
        ZeigeWarnung(Fehlertext(), LadeText(TextAchtung));
        return;
    }
    fenster->ZeigeSeite(datei->Inhalt().constFirst().name);
    ZeigeVor(davor);
}

void Hilfe::ZeigeSeiteZu(QWidget* stelle) {
    if (!Oeffne()) {
        MeldeOhneZuWarten();
        return;
    }
    const Hilfeziel ziel = ZielZu(*datei, stelle);
    fenster->ZeigeSeite(ziel.seite, ziel.anker);
    ZeigeVor(stelle);
}

/// Has the file of the current language in the window. The old file goes last: the window shows it until
/// then.
bool Hilfe::Oeffne() {
    const QString pfad = dateipfad();
    if (datei && pfad == offenerPfad)
        return true;
    std::unique_ptr<Hilfedatei> neue = Hilfedatei::Oeffne(pfad);
    if (!neue)
        return false;
    if (!fenster)
        fenster = std::make_unique<frmHilfe>();
    fenster->NimmDatei(*neue);
    datei = std::move(neue);
    offenerPfad = pfad;
    return true;
}

std::string Hilfe::Fehlertext() const {
    return LadeText(TextNichtGefunden) + QDir::toNativeSeparators(dateipfad()).toStdString();
}

void Hilfe::ZeigeVor(const QWidget* davor) {
    fenster->ZeigeVor(davor != nullptr ? davor->window() : nullptr);
}

/// The key may be pressed in the middle of an exchange with the controller, which must not wait until
/// somebody has read a box.
void Hilfe::MeldeOhneZuWarten() {
    if (warnung && warnung->isVisible())
        return;
    warnung =
        std::make_unique<QMessageBox>(QMessageBox::Warning, QString::fromStdString(LadeText(TextAchtung)),
                                      QString::fromStdString(Fehlertext()), QMessageBox::Ok);
    warnung->setTextFormat(Qt::PlainText);
    warnung->setModal(true);
    warnung->show();
}

} // namespace varnoth
