// What the values of the optical part view are worth: measured now, some time ago, or not at all.

#include "frmDocument.h"

#include "ui_frmDocument.h"

#include "strahlhinweis.h"
#include "texte.h"
#include "verblassen.h"
#include "wertfeld.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextKeineWerte = 9000;

} // namespace

void frmDocument::VerwirfWerte() {
    faellig = false;
    alter.Vergiss();
    SetzeStand(Datenstand::Ungueltig);
    VergissAnzeige();
    for (Wertfeld* feld : felder)
        feld->setText(QString::fromUtf8(KeinWert));
    for (Zahlfeld* position : positionen)
        if (position != nullptr)
            position->clear();
    ui->lblInhaltBlankingStrahlenMax->setText(QString::fromUtf8(KeinWert));
    ZeigeStatus({});
}

void frmDocument::SetzeZeitlos(bool ob) {
    zeitlos = ob;
    PruefeAlter();
}

void frmDocument::WerteSindDa() {
    alter.Erneuert(DieUmgebung().Uhr());
    SetzeStand(Datenstand::Gueltig);
}

void frmDocument::PruefeAlter() {
    if (stand == Datenstand::Ungueltig)
        return;
    const bool alt = !zeitlos && alter.IstAlt(DieUmgebung().Uhr());
    SetzeStand(alt ? Datenstand::Veraltet : Datenstand::Gueltig);
    ZeigeHinweis();
}

void frmDocument::SetzeStand(Datenstand neuer) {
    if (neuer == stand)
        return;
    stand = neuer;
    ui->BeamBar1->SetzeDatenstand(stand);
    FaerbeTexte();
    ZeigeHinweis();
    if (stand != Datenstand::Ungueltig && !uhrwerk.isActive())
        uhrwerk.start();
}

void frmDocument::FaerbeTexte() {
    const bool blass = stand == Datenstand::Veraltet;
    for (Wertfeld* feld : felder)
        Verblasse(*feld, blass, palette());
    for (Zahlfeld* position : positionen)
        if (position != nullptr)
            Verblasse(*position, blass, palette());
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
    for (std::size_t k = 0; k < felder.size(); ++k)
        ErgaenzeAnsage(k);
}

// Behind a number its position and, of an old one, its age.
void frmDocument::ErgaenzeAnsage(std::size_t k) {
    QStringList zusaetze;
    if (positionen[k] != nullptr && !positionen[k]->text().isEmpty())
        zusaetze.append(positionen[k]->text());
    if (stand == Datenstand::Veraltet)
        zusaetze.append(hinweis->text());
    felder[k]->SetzeZusatz(zusaetze.join(QStringLiteral(", ")));
}

void frmDocument::RichteAnsagenEin() {
    for (Wertfeld* feld : findChildren<Wertfeld*>())
        ansager.Beobachte(*feld, QAccessible::NameChanged, [feld] { return feld->Ansage(); });
    BeamBarControl& balken = *ui->BeamBar1;
    ansager.Beobachte(balken, QAccessible::DescriptionChanged,
                      [&balken] { return balken.accessibleDescription() + balken.Ansage(); });
}

// Goes on until the last change has been told.
void frmDocument::Takt() {
    PruefeAlter();
    const bool allesGesagt = ansager.Melde(DieUmgebung().Uhr());
    if (stand == Datenstand::Ungueltig && allesGesagt)
        uhrwerk.stop();
}

} // namespace varnoth
