#include "kommunikationsseite.h"

#include "bustyp.h"
#include "geraetetexte.h"
#include "leitungsformat.h"
#include "listenbindung.h"
#include "pausenzeit.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "texte.h"
#include "ui_kommunikationsseite.h"
#include "vorgabemarken.h"
#include "zykluszeiten.h"

#include <algorithm>
#include <tuple>

namespace varnoth {

namespace {

constexpr std::int16_t TextDatenupdaterate = 5604;

/// Gives each option the number of the enumerator it stands for.
template<class Art>
void Nummeriere(QButtonGroup& gruppe, std::initializer_list<std::pair<QAbstractButton*, Art>> optionen) {
    for (const auto& [option, art] : optionen)
        gruppe.setId(option, static_cast<int>(art));
}

/// Checks the option of an enumerator, or none of the group's.
template<class Art>
void Waehle(QButtonGroup& gruppe, std::optional<Art> art) {
    gruppe.setExclusive(false);
    for (QAbstractButton* const option : gruppe.buttons())
        option->setChecked(art && gruppe.id(option) == static_cast<int>(*art));
    gruppe.setExclusive(true);
}

/// The number that an option of a group has; -1 for none.
template<class Art>
int Knopfnummer(std::optional<Art> art) {
    return art ? static_cast<int>(*art) : -1;
}

template<class Art>
std::optional<Art> Gewaehlt(const QButtonGroup& gruppe) {
    if (gruppe.checkedButton() == nullptr)
        return std::nullopt;
    return static_cast<Art>(gruppe.checkedId());
}

} // namespace

Kommunikationsseite::Kommunikationsseite(QWidget* eltern)
    : QWidget(eltern), ui(std::make_unique<Ui::Kommunikationsseite>()), marken(new Vorgabemarken(this)) {
    ui->setupUi(this);
    Nummeriere<Autosendart>(*ui->optAutosend,
                            {{ui->optkeinAutosend, Autosendart::Keines},
                             {ui->optAutosendohneTrigger, Autosendart::OhneTrigger},
                             {ui->optAutosendohneTriggerModbus, Autosendart::OhneTriggerModbus},
                             {ui->optAutosendmitTriggerModbus, Autosendart::MitTriggerModbus}});
    Nummeriere<Triggerstart>(
        *ui->optTrigger,
        {{ui->optTriggerStartetDatenübertragungSofort, Triggerstart::Sofort},
         {ui->optTriggerStartetDatenübertragungNachVollständigenScan, Triggerstart::NachVollstaendigemScan}});
    Nummeriere<Byteformat>(*ui->optByteformat,
                           {{ui->opt2StopbitsohneParität, Byteformat::ZweiStopbitsOhneParitaet},
                            {ui->opt1StopbitParitätungerade, Byteformat::EinStopbitUngerade},
                            {ui->opt1StopbitParitätgerade, Byteformat::EinStopbitGerade}});
    Verbinde();
    BaueMarken();
    BaueAutosendmarken();
}

Kommunikationsseite::~Kommunikationsseite() = default;

void Kommunikationsseite::Verbinde() {
    connect(ui->optAutosend, &QButtonGroup::idClicked, this, &Kommunikationsseite::WaehleArt);
    connect(ui->cmdReihenfolge, &QPushButton::clicked, this, &Kommunikationsseite::ReihenfolgeVerlangt);
    connect(ui->txtPausenzeit, &QLineEdit::editingFinished, this, [this] {
        const std::string text = ui->txtPausenzeit->text().toStdString();
        ui->txtPausenzeit->setText(QString::fromStdString(PausenzeitBeimVerlassen(text)));
    });
}

void Kommunikationsseite::BaueMarken() {
    const auto format = [] { return Vorgabewert({Kommunikation, kommunikation::Autosendformat}); };
    marken->Fuege(VorgabeVon(*ui->cboStationsAdresse, [this] {
        return AuswahlFuer(Stationsadressen(MaxStationsadresse(derBustyp)),
                           Vorgabewert({Kommunikation, kommunikation::Stationsadresse}));
    }));
    marken->Fuege(VorgabeVon(*ui->txtPausenzeit,
                             QString::number(Vorgabewert({Kommunikation, kommunikation::Pausenzeit}))));
    marken->Fuege(
        VorgabeVon(*ui->cboBaudrate, [format] { return AuswahlFuer(Autosendbaudraten(), format()); }));
    marken->Fuege(VorgabeVon(*ui->optByteformat, [format] { return Knopfnummer(ByteformatAus(format())); }));
    marken->Fuege(VorgabeVon(*ui->cmdReihenfolge, {Kommunikation, kommunikation::Datenblock}));
}

void Kommunikationsseite::BaueAutosendmarken() {
    const auto vorgabe = [this] {
        return AutosendAus(Vorgabewert({Kommunikation, kommunikation::Autosend}), MaxAutosendrate(derBustyp));
    };
    marken->Fuege(VorgabeVon(*ui->optAutosend, [vorgabe] { return Knopfnummer(vorgabe().art); }));
    marken->Fuege(VorgabeVon(*ui->optTrigger, [vorgabe] { return Knopfnummer(vorgabe().trigger); }));
    marken->Fuege(VorgabeVon(*ui->chkStrahldatenMerken, vorgabe().strahldatenMerken));
    marken->Fuege(VorgabeVon(*ui->cbolOhneTriggerAutosendrate, [this, vorgabe] {
        return AuswahlFuer(Autosendraten(MaxAutosendrate(derBustyp)), vorgabe().rate);
    }));
}

void Kommunikationsseite::AktualisiereMarken() {
    marken->Aktualisiere();
}

void Kommunikationsseite::ZeigeUebertrageneWerte() {
    VerbindeUebertragenenWert(*ui->cbolOhneTriggerAutosendrate, Autosendraten(MaxAutosendrate(derBustyp)),
                              *ui->lblOhneTriggerAutosendrateUebertragenerWert);
}

void Kommunikationsseite::Fuelle(std::int32_t typ) {
    derBustyp = typ;
    ui->lblInhaltBusTyp->setText(QString::fromStdString(Bustyptext(derBustyp)));
    ui->lblFormatZwischenMasterSlave->setText(
        QString::fromStdString(Formattext(modDaten::HoleRegister(Kommunikation, kommunikation::Format))));
    FuelleStationsadresse();
    ui->txtPausenzeit->setText(
        QString::number(modDaten::HoleRegister(Kommunikation, kommunikation::Pausenzeit)));
    FuelleAutosend();
    FuelleAutosendformat();
    PasseAnBusAn();
    FolgeArt();
}

void Kommunikationsseite::FolgeArt() {
    Sperre(BedienungFuer(AutosendKlasse(Art()), derBustyp));
    AktualisiereMarken();
}

void Kommunikationsseite::FuelleStationsadresse() {
    const int groesste = MaxStationsadresse(derBustyp);
    const std::int32_t adresse = modDaten::HoleRegister(Kommunikation, kommunikation::Stationsadresse);
    ZeigeListe(*ui->cboStationsAdresse, Stationsadressen(groesste), 0, std::min(adresse, groesste));
}

void Kommunikationsseite::FuelleAutosend() {
    const int maxRate = MaxAutosendrate(derBustyp);
    const Autosendeinstellung autosend =
        AutosendAus(modDaten::HoleRegister(Kommunikation, kommunikation::Autosend), maxRate);
    Waehle(*ui->optAutosend, autosend.art);
    Waehle(*ui->optTrigger, autosend.trigger);
    ui->chkStrahldatenMerken->setChecked(autosend.strahldatenMerken);
    ZeigeListe(*ui->cbolOhneTriggerAutosendrate, Autosendraten(maxRate),
               modHilfsFunktionen::GetGesamtzykluszeit(), autosend.rate);
    emit AutosendStartbar(IstStartbar(autosend.art));
}

void Kommunikationsseite::FuelleAutosendformat() {
    const std::int32_t format = modDaten::HoleRegister(Kommunikation, kommunikation::Autosendformat);
    ZeigeListe(*ui->cboBaudrate, Autosendbaudraten(), 0, format);
    Waehle(*ui->optByteformat, ByteformatAus(format));
}

void Kommunikationsseite::PasseAnBusAn() {
    if (derBustyp != bustyp::Profibus)
        return;
    ui->feldBus->addWidget(ui->lblOhneTriggerAutosendrate, 3, 0);
    ui->feldBus->addWidget(ui->cbolOhneTriggerAutosendrate, 3, 1);
    ui->feldBus->addWidget(ui->lblOhneTriggerAutosendrateUebertragenerWert, 3, 2);
    ui->lblOhneTriggerAutosendrate->setText(QString::fromStdString(LadeText(TextDatenupdaterate)));
}

void Kommunikationsseite::WaehleArt() {
    const Autosendbedienung bedienung = BedienungFuer(AutosendKlasse(Art()), derBustyp);
    Sperre(bedienung);
    if (bedienung.rate && ui->cbolOhneTriggerAutosendrate->currentIndex() == KeineAuswahl)
        ui->cbolOhneTriggerAutosendrate->setCurrentIndex(0);
}

void Kommunikationsseite::Sperre(const Autosendbedienung& bedienung) {
    for (QAbstractButton* const option : ui->optTrigger->buttons())
        option->setEnabled(bedienung.trigger);
    ui->cbolOhneTriggerAutosendrate->setEnabled(bedienung.rate);
    ui->lblOhneTriggerAutosendrate->setEnabled(bedienung.rate);
    ui->lblOhneTriggerAutosendrateUebertragenerWert->setEnabled(bedienung.rate);
    ui->chkStrahldatenMerken->setEnabled(bedienung.strahldatenMerken);
    const std::initializer_list<QWidget*> nurModbus = {
        ui->lblFormatZwischenMasterSlave,
        ui->lblPausenzeit,
        ui->txtPausenzeit,
        ui->lblPausenzeitEinheit,
        ui->optkeinAutosend,
        ui->optAutosendohneTrigger,
        ui->optAutosendohneTriggerModbus,
        ui->optAutosendmitTriggerModbus,
        ui->optTriggerStartetDatenübertragungSofort,
        ui->optTriggerStartetDatenübertragungNachVollständigenScan,
        ui->fraBaudrate,
        ui->lblBaudrate,
        ui->cboBaudrate,
        ui->lblByteformat,
        ui->opt2StopbitsohneParität,
        ui->opt1StopbitParitätungerade,
        ui->opt1StopbitParitätgerade,
    };
    for (QWidget* const element : nurModbus)
        element->setVisible(bedienung.nurModbus);
}

std::optional<Autosendart> Kommunikationsseite::Art() const {
    return Gewaehlt<Autosendart>(*ui->optAutosend);
}

std::int32_t Kommunikationsseite::Autosendwert() const {
    const std::int32_t rate = GewaehlterWert(*ui->cbolOhneTriggerAutosendrate, Autosendraten(0));
    if (derBustyp == bustyp::Profibus)
        return RegisterwertProfibus(modDaten::HoleRegister(Kommunikation, kommunikation::Autosend), rate);
    return Registerwert(Autosendeinstellung{Art(), ui->chkStrahldatenMerken->isChecked(), rate,
                                            Gewaehlt<Triggerstart>(*ui->optTrigger)});
}

void Kommunikationsseite::SchreibeZurueck() const {
    // Each of these addresses is a parameter of one register, which cannot be refused.
    const auto schreibe = [](std::int16_t adresse, std::int32_t wert) {
        std::ignore = modDaten::SetzeRegister(Kommunikation, adresse, wert);
    };
    schreibe(kommunikation::Stationsadresse, GewaehlterWert(*ui->cboStationsAdresse, Stationsadressen(0)));
    schreibe(kommunikation::Pausenzeit, Pausenzeitwert(ui->txtPausenzeit->text().toStdString()));
    schreibe(kommunikation::Autosend, Autosendwert());
    schreibe(kommunikation::Autosendformat,
             Autosendformatwert(GewaehlterWert(*ui->cboBaudrate, Autosendbaudraten()),
                                Gewaehlt<Byteformat>(*ui->optByteformat)));
}

} // namespace varnoth
