#include "strahlengruppe.h"

#include "feldtext.h"
#include "sicherungen.h"
#include "symbolbild.h"
#include "texte.h"
#include "ui_strahlengruppe.h"
#include "umgebung.h"

#include <QStyle>

#include <algorithm>

namespace varnoth {

namespace {

void SetzeTag(QLabel& beschriftung, int id) {
    beschriftung.setProperty("Tag", QString::number(id));
}

QStringList Listeneintraege(int optikteil) {
    QStringList eintraege;
    for (int zahl = KleinsteStrahlenzahl(optikteil); zahl <= MaxStrahlen; ++zahl)
        eintraege += QString::number(zahl);
    return eintraege;
}

} // namespace

Strahlengruppe::Strahlengruppe(QWidget* eltern)
    : QWidget(eltern), ui(std::make_unique<Ui::Strahlengruppe>()) {
    ui->setupUi(this);
    Combo1 = {ui->Combo1_0, ui->Combo1_1, ui->Combo1_2, ui->Combo1_3};
    Option1 = {ui->Option1_0, ui->Option1_1, ui->Option1_2, ui->Option1_3};
    const int mass = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    ui->imgZuVieleStrahlen->setPixmap(
        Symbolbild(QStringLiteral("warnung")).pixmap(QSize(mass, mass), devicePixelRatio()));
    BehaltePlatz(*ui->imgZuVieleStrahlen);
    FuelleListen();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        connect(Option1.at(static_cast<std::size_t>(teil)), &QRadioButton::toggled, this,
                [this, teil](bool gewaehlt) {
                    if (gewaehlt)
                        NimmOptikteile(teil + 1);
                });
    ZeigeSumme();
}

Strahlengruppe::~Strahlengruppe() = default;

void Strahlengruppe::FuelleListen() {
    int teil = 0;
    for (QComboBox* const liste : Combo1) {
        liste->addItems(Listeneintraege(teil));
        liste->setCurrentIndex(IndexZuStrahlenzahl(teil++, AnfaenglicheStrahlenzahl));
        connect(liste, &QComboBox::currentIndexChanged, this, [this] { ZeigeSumme(); });
    }
}

void Strahlengruppe::SetzeTexte(const Strahlentexte& neue) {
    texte = neue;
    SetzeTag(*ui->lblAnzahlDerOptikteile, texte.anzahlDerOptikteile);
    int id = texte.strahlenanzahlL1;
    for (QLabel* const beschriftung :
         {ui->lblStrahlenanzahlL1, ui->lblStrahlenanzahlL2, ui->lblStrahlenanzahlL3, ui->lblStrahlenanzahlL4})
        SetzeTag(*beschriftung, id++);
}

void Strahlengruppe::NimmFokus() {
    for (QRadioButton* const option : Option1)
        if (option->isChecked())
            option->setFocus();
}

void Strahlengruppe::NimmOptikteile(int anzahl) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        const auto stelle = static_cast<std::size_t>(teil);
        QComboBox& liste = *Combo1.at(stelle);
        const bool dabei = GehoertDazu(teil, anzahl);
        if (dabei == liste.isEnabledTo(this))
            continue;
        if (!dabei)
            gemerkt.at(stelle) = liste.currentIndex();
        liste.setEnabled(dabei);
        liste.setCurrentIndex(dabei ? gemerkt.at(stelle) : 0);
    }
}

void Strahlengruppe::ZeigeSumme() {
    const int summe = Strahlensumme(Eingabe());
    ui->lblStrahlensumme->setText(QStringLiteral("%1 / %2").arg(summe).arg(MaxStrahlen));
    ui->imgZuVieleStrahlen->setVisible(!IstZulaessigeStrahlensumme(summe));
    ui->imgZuVieleStrahlen->setToolTip(QString::fromStdString(LadeText(texte.zuVieleStrahlen)));
}

Strahlenzahlen Strahlengruppe::Eingabe() const {
    Strahlenzahlen eingabe{};
    for (std::size_t teil = 0; teil < eingabe.size(); ++teil)
        eingabe.at(teil) = StrahlenzahlZuIndex(static_cast<int>(teil), Combo1.at(teil)->currentIndex());
    return eingabe;
}

bool Strahlengruppe::Uebernimm() {
    if (!DarfErsetzen(Sicherungsanlass::VorNeuer))
        return false;
    const bool gelungen = ErstelleKonfiguration(Eingabe());
    if (!gelungen)
        ZeigeWarnung(LadeText(texte.zuVieleStrahlen));
    return gelungen;
}

} // namespace varnoth
