// What the values of the optical part view are worth: measured now, some time ago, or not at all.

#include "frmDocument.h"

#include "ui_frmDocument.h"

#include "strahlhinweis.h"
#include "texte.h"
#include "verblassen.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextKeineWerte = 9000;

} // namespace

void frmDocument::VerwirfWerte() {
    alter.Vergiss();
    SetzeStand(Datenstand::Ungueltig);
    VergissAnzeige();
    for (QLabel* feld : felder)
        feld->setText(QString::fromUtf8(KeinWert));
    ui->lblInhaltBlankingStrahlenMax->setText(QString::fromUtf8(KeinWert));
    ZeigeStatus({});
}

void frmDocument::WerteSindDa() {
    alter.Erneuert(DieUmgebung().Uhr());
    SetzeStand(Datenstand::Gueltig);
}

void frmDocument::PruefeAlter() {
    if (stand == Datenstand::Ungueltig)
        return;
    SetzeStand(alter.IstAlt(DieUmgebung().Uhr()) ? Datenstand::Veraltet : Datenstand::Gueltig);
    ZeigeHinweis();
}

void frmDocument::SetzeStand(Datenstand neuer) {
    if (neuer == stand)
        return;
    stand = neuer;
    ui->BeamBar1->SetzeDatenstand(stand);
    FaerbeTexte();
    ZeigeHinweis();
    if (stand == Datenstand::Ungueltig)
        uhrwerk.stop();
    else if (!uhrwerk.isActive())
        uhrwerk.start();
}

void frmDocument::FaerbeTexte() {
    const bool blass = stand == Datenstand::Veraltet;
    for (QLabel* feld : felder)
        Verblasse(*feld, blass, palette());
    Verblasse(*ui->lblInhaltBlankingStrahlenMax, blass, palette());
    Verblasse(*ui->sbStatusBar_1, blass, palette());
}

void frmDocument::ZeigeHinweis() {
    std::string text;
    if (stand == Datenstand::Ungueltig)
        text = LadeText(TextKeineWerte);
    else if (stand == Datenstand::Veraltet)
        text = Alterstext(alter.Alter(DieUmgebung().Uhr()));
    hinweis->Zeige(QString::fromStdString(text));
}

} // namespace varnoth
