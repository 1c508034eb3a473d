#include "frmDocument.h"

#include "strahlposition.h"
#include "ui_frmDocument.h"

#include "gezeigtesabbild.h"
#include "lokalisiereform.h"
#include "registeradressen.h"
#include "strahlbits.h"
#include "strahlhinweis.h"
#include "texte.h"
#include "wertfeld.h"
#include "zeigerschild.h"
#include "zoomkopf.h"

#include <QButtonGroup>
#include <QPointer>

#include <algorithm>
#include <array>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextGeblankte = 4019;
constexpr std::int16_t ErsteErklaerung = 9020;
constexpr int StrahlenJeRegister = 16;
constexpr int AlterstaktMs = 250;

QString AlsText(std::int32_t wert) {
    return QString::number(wert);
}

QString AlsText(const std::string& text) {
    return QString::fromStdString(text);
}

std::int16_t GezeigteStrahlregister(int strahlen) {
    const int anzahl = (strahlen + StrahlenJeRegister - 1) / StrahlenJeRegister;
    return static_cast<std::int16_t>(std::min<int>(anzahl, MaxStrahlregister));
}

} // namespace

frmDocument::frmDocument(int teil, QWidget* eltern)
    : QWidget(eltern), ui(std::make_unique<Ui::frmDocument>()), optikteil(static_cast<std::int16_t>(teil)) {
    ui->setupUi(this);
    setObjectName(QStringLiteral("frmDocument_%1").arg(teil));
    setProperty("Tag", AlsText(teil));
    RichteWerteEin();
    for (int auswahl = 0; auswahl < ui->Option1->buttons().size(); ++auswahl)
        ui->Option1->setId(ui->Option1->buttons().at(auswahl), auswahl);
    ui->BeamBar1->SetzeBeobachtung(true);
    hinweis = new Strahlhinweis(*ui->BeamBar1);
    zeigerschild = new Zeigerschild(*this);
    zoomkopf = new Zoomkopf(*ui->BeamBar1);
    PasseZiffernAn();
    Verbinde();
    VerwirfWerte();
    Lokalisiere();
    RichteAnsagenEin();
}

frmDocument::~frmDocument() = default;

void frmDocument::RichteWerteEin() {
    felder = {ui->lblInhaltTU,  ui->lblInhaltHU,  ui->lblInhaltZU,
              ui->lblInhaltTNU, ui->lblInhaltHNU, ui->lblInhaltZNU};
    positionen = {ui->lblPositionTU,  ui->lblPositionHU,  nullptr,
                  ui->lblPositionTNU, ui->lblPositionHNU, nullptr};
    for (Wertfeld* feld : ui->Frame1->findChildren<Wertfeld*>())
        feld->TeileVorrat(*felder[0]);
    for (Zahlfeld* position : positionen)
        if (position != nullptr)
            position->TeileVorrat(*positionen[0]);
    gezeigteWerte.fill(-1);
    ui->Frame1->installEventFilter(this);
    for (QLabel* element : ui->Frame1->findChildren<QLabel*>())
        element->installEventFilter(this);
}

void frmDocument::Verbinde() {
    connect(ui->Option1, &QButtonGroup::idClicked, this, [this] { ZeigeWerte(); });
    connect(ui->BeamBar1, &BeamBarControl::StrahlUnterMaus, this, &frmDocument::ZeigeStrahltext);
    uhrwerk.setInterval(AlterstaktMs);
    connect(&uhrwerk, &QTimer::timeout, this, &frmDocument::Takt);
    connect(this, &QWidget::windowTitleChanged, ui->BeamBar1, &QWidget::setAccessibleName);
}

void frmDocument::SetAktuellMinMaxStatus() {
    WerteSindDa();
    ZeigeWerte();
}

void frmDocument::ZeigeWerte() {
    if (stand == Datenstand::Ungueltig)
        return;
    const int gewaehlt = Blockversatz(ui->Option1->checkedId());
    if (gewaehlt != versatz)
        gezeigteWerte.fill(-1);
    versatz = gewaehlt;
    const Werte werte =
        modDaten::GezeigtesAbbild().HoleParameter(Spezifisch, spezifisch::Messwerte, optikteil);
    for (std::size_t k = 0; k < felder.size(); ++k) {
        const std::int32_t wert = werte[static_cast<std::size_t>(versatz) + k];
        if (wert != gezeigteWerte[k]) {
            felder[k]->setText(AlsText(wert));
            ZeigePosition(k, wert);
        }
        gezeigteWerte[k] = wert;
    }
    if (anzeige.Geblankte() != gezeigteGeblankte)
        ui->lblInhaltBlankingStrahlenMax->setText(AlsText(anzeige.Geblankte()));
    gezeigteGeblankte = anzeige.Geblankte();
}

void frmDocument::SetBeamIndexState(std::int16_t Index, std::int32_t state, std::int32_t blanking) {
    if (Index < 0 || Index >= std::min(ui->BeamBar1->Strahlanzahl(), Strahlanzeige::Hoechstzahl))
        return;
    if (const auto zustand = anzeige.Nimm(Index, state, blanking))
        ZeigeZustand(Index, *zustand);
}

void frmDocument::StartBeamRefresh() {
    ui->BeamBar1->SetzeAutomatischesZeichnen(false);
}

void frmDocument::EndeBeamRefresh() {
    ui->BeamBar1->SetzeAutomatischesZeichnen(true);
}

void frmDocument::InitfrmDocument() {
    StartBeamRefresh();
    ui->BeamBar1->SetzeStrahlanzahl(Register(spezifisch::Strahlenzahl));
    for (int strahl = 0; strahl < ui->BeamBar1->Strahlanzahl(); ++strahl)
        ZeigeZustand(strahl, Strahlzustand::Unterbrochen);
    anzeige.Vergiss();
    VerwirfWerte();
    emit Eingerichtet();
    ui->BeamBar1->SetzeStrahlabstand(Register(spezifisch::Aufloesung));
    EndeBeamRefresh();
    PasseZiffernAn();
    PasseBreiteAn();
}

void frmDocument::SetStatusSubgerät() {
    const std::int16_t bits = Statusbits(Register(spezifisch::Optikteilstatus));
    if (bits == gezeigterStatus)
        return;
    ZeigeStatus(AlsText(Statustext(bits)));
    gezeigterStatus = bits;
}

void frmDocument::Lokalisiere() {
    LokalisiereForm(*this);
    BenenneWerte();
    zoomkopf->Lokalisiere();
    VergissAnzeige();
    ZeigeWerte();
    if (stand != Datenstand::Ungueltig)
        SetStatusSubgerät();
    ZeigeHinweis();
    ZeigeStrahltext(strahlUnterMaus);
    PasseBreiteAn();
}

void frmDocument::BenenneWerte() {
    const QString geblankte = AlsText(LadeText(TextGeblankte));
    ui->lblBlankingStrahlenMax->setToolTip(geblankte);
    ui->lblInhaltBlankingStrahlenMax->setToolTip(geblankte);
    ui->lblInhaltBlankingStrahlenMax->setAccessibleName(geblankte);
    const std::array namen{ui->lblTU, ui->lblHU, ui->lblZU, ui->lblTNU, ui->lblHNU, ui->lblZNU};
    for (std::size_t k = 0; k < felder.size(); ++k) {
        const QString erklaerung = AlsText(LadeText(static_cast<std::int16_t>(ErsteErklaerung + k)));
        namen[k]->setToolTip(erklaerung);
        felder[k]->setToolTip(erklaerung);
        felder[k]->setAccessibleName(namen[k]->text());
    }
}

void frmDocument::NeuerDatensatz() {
    scanBekannt = false;
}

// They are drawn when the blanking pattern is known as well.
void frmDocument::StrahlzustaendeLiegenVor() {}

void frmDocument::BlankingBekannt() {
    scanBekannt = true;
}

// Shown while the line is busy, beams and values with one paint. What was taken back or discarded by then is
// not shown.
void frmDocument::MesswerteLiegenVor() {
    if (std::exchange(faellig, true))
        return;
    DieUmgebung().FuerWartezeit([sicht = QPointer<frmDocument>(this)] {
        if (sicht != nullptr)
            sicht->ZeigeFaelliges();
    });
}

void frmDocument::ZeigeFaelliges() {
    if (!std::exchange(faellig, false))
        return;
    if (std::exchange(scanBekannt, false))
        ZeigeScan();
    SetAktuellMinMaxStatus();
    SetStatusSubgerät();
}

void frmDocument::ZeigeScan() {
    const std::int16_t anzahl = GezeigteStrahlregister(ui->BeamBar1->Strahlanzahl());
    if (anzahl == 0)
        return;
    const Abbild& abbild = modDaten::GezeigtesAbbild();
    const Werte strahlen = abbild.HoleStrahlzustaende(anzahl, optikteil);
    const Werte blanking = abbild.HoleParameter(Spezifisch, spezifisch::Blankingmuster, optikteil);
    StartBeamRefresh();
    for (int strahl = 0; strahl < ui->BeamBar1->Strahlanzahl(); ++strahl)
        SetBeamIndexState(static_cast<std::int16_t>(strahl), StrahlBit(strahlen, strahl),
                          StrahlBit(blanking, strahl));
    EndeBeamRefresh();
}

std::int32_t frmDocument::Register(std::int16_t adresse) const {
    return modDaten::GezeigtesAbbild().HoleRegister(Spezifisch, adresse, optikteil);
}

void frmDocument::VergissAnzeige() {
    gezeigteWerte.fill(-1);
    gezeigterStatus = -1;
    gezeigteGeblankte = -1;
}

void frmDocument::ZeigePosition(std::size_t k, std::int32_t wert) {
    if (positionen[k] != nullptr)
        positionen[k]->setText(AlsText(Positionstext(Strahlposition(wert, ui->BeamBar1->Strahlabstand()))));
    ErgaenzeAnsage(k);
}

void frmDocument::ZeigeStatus(const QString& text) {
    ui->sbStatusBar_1->setText(text);
    ui->BeamBar1->setAccessibleDescription(text);
    OrdneStatuszeile();
}

void frmDocument::ZeigeStrahltext(int index) {
    strahlUnterMaus = index;
    const QString text = AlsText(Strahltext(index, Register(spezifisch::Aufloesung)));
    ui->sbStatusBar_2->setText(text);
    zeigerschild->Zeige(text, ui->BeamBar1->mapTo(this, ui->BeamBar1->Zeigerstelle().toPoint()));
}

void frmDocument::ZeigeZustand(int index, Strahlzustand zustand) {
    ui->BeamBar1->WaehleStrahl(index);
    ui->BeamBar1->SetzeZustand(zustand);
}

} // namespace varnoth
