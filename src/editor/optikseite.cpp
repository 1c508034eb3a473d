#include "optikseite.h"

#include "gruppenzaehler.h"
#include "listenbindung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "ui_optikseite.h"
#include "vorgabemarken.h"
#include "zykluszeiten.h"

#include <tuple>

namespace varnoth {

Optikseite::Optikseite(QWidget* eltern)
    : QWidget(eltern), ui(std::make_unique<Ui::Optikseite>()), marken(new Vorgabemarken(this)) {
    ui->setupUi(this);
    boxen = {ui->cboAuflösung,       ui->cboReichweite, ui->cboAnzahlDurchlaeufeFilter, ui->cboGruppenzähler,
             ui->cboMinMaxHaltezeit, ui->cboLochgröße,  ui->cboMittentoleranz};
    connect(ui->cmdBlankingmuster, &QPushButton::clicked, this,
            [this] { emit BlankingmusterVerlangt(optikteil); });
}

Optikseite::~Optikseite() = default;

void Optikseite::SetzeOptikteil(int teil) {
    optikteil = teil;
    for (QObject* const kind : findChildren<QObject*>())
        if (const QString name = kind->objectName(); !name.isEmpty() && !name.startsWith("qt_"))
            kind->setObjectName(QStringLiteral("%1_%2").arg(name).arg(teil));
    BaueMarken();
}

void Optikseite::BaueMarken() {
    constexpr int Und = 0;
    constexpr int Oder = 1;
    for (std::size_t i = 0; i < boxen.size(); ++i)
        marken->Fuege(VorgabeVon(*boxen[i], [i] {
            const Auswahlliste& liste = AlleTeillisten()[i];
            return AuswahlFuer(liste, Vorgabewert({Spezifisch, liste.adresse}));
        }));
    ui->optGruppenzähler->setId(ui->optGruppenzählerUnd, Und);
    ui->optGruppenzähler->setId(ui->optGruppenzählerOder, Oder);
    marken->Fuege(VorgabeVon(*ui->optGruppenzähler, [] {
        return GruppenzaehlerOder(Vorgabewert({Spezifisch, spezifisch::Gruppenzaehler})) ? Oder : Und;
    }));
    marken->Fuege(VorgabeVon(*ui->cmdBlankingmuster, {Spezifisch, spezifisch::Blankingmuster, optikteil}));
}

void Optikseite::AktualisiereMarken() {
    marken->Aktualisiere();
}

void Optikseite::ZeigeUebertrageneWerte() {
    const std::tuple<Teilliste, QLabel*> zeilen[] = {
        {Teilliste::Reichweite, ui->lblReichweiteUebertragenerWert},
        {Teilliste::Filterdurchlaeufe, ui->lblAnzahlDurchlaeufeFilterUebertragenerWert},
        {Teilliste::MinMaxHaltezeit, ui->lblMinMaxHaltezeitUebertragenerWert},
    };
    for (const auto& [liste, zeile] : zeilen)
        VerbindeUebertragenenWert(*boxen[static_cast<std::size_t>(liste)], Beschreibung(liste), *zeile);
}

void Optikseite::Fuelle() {
    const std::int32_t zyklus = modHilfsFunktionen::GetZykluszeit(optikteil);
    const std::int32_t strahlen = modDaten::HoleRegister(Spezifisch, spezifisch::Strahlenzahl, optikteil);
    ui->lblInhaltAnzahlStrahlenSegmente->setText(QString::number(strahlen));
    for (std::size_t i = 0; i < boxen.size(); ++i) {
        const Auswahlliste& liste = AlleTeillisten()[i];
        ZeigeListe(*boxen[i], liste, zyklus, modDaten::HoleRegister(Spezifisch, liste.adresse, optikteil));
    }
    const bool oder =
        GruppenzaehlerOder(modDaten::HoleRegister(Spezifisch, spezifisch::Gruppenzaehler, optikteil));
    (oder ? ui->optGruppenzählerOder : ui->optGruppenzählerUnd)->setChecked(true);
    AktualisiereMarken();
}

std::int32_t Optikseite::Wert(const QComboBox& box, const Auswahlliste& liste) const {
    const std::int32_t wert = GewaehlterWert(box, liste);
    if (liste.adresse == spezifisch::Gruppenzaehler)
        return Gruppenzaehlerwert(wert, ui->optGruppenzählerOder->isChecked());
    return wert;
}

void Optikseite::SchreibeZurueck() const {
    // Each list is a parameter of one register, which cannot be refused.
    for (std::size_t i = 0; i < boxen.size(); ++i) {
        const Auswahlliste& liste = AlleTeillisten()[i];
        std::ignore = modDaten::SetzeRegister(Spezifisch, liste.adresse, Wert(*boxen[i], liste), optikteil);
    }
}

} // namespace varnoth
