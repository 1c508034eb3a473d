#include "frmDocument.h"

#include "ui_frmDocument.h"

#include "lokalisiereform.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "strahlbits.h"
#include "texte.h"

#include <QButtonGroup>

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextGeblankte = 4019;
constexpr std::int16_t Blankingregister = 32;
constexpr int StrahlenJeRegister = 16;

QString AlsText(std::int32_t wert) {
    return QString::number(wert);
}

QString AlsText(const std::string& text) {
    return QString::fromStdString(text);
}

std::int16_t Strahlregister(int strahlen) {
    const int anzahl = (strahlen + StrahlenJeRegister - 1) / StrahlenJeRegister;
    return static_cast<std::int16_t>(std::min<int>(anzahl, modDaten::MaxStrahlregister));
}

} // namespace

frmDocument::frmDocument(int optikteil, QWidget* eltern)
    : QWidget(eltern), m_ui(std::make_unique<Ui::frmDocument>()),
      m_optikteil(static_cast<std::int16_t>(optikteil)) {
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("frmDocument_%1").arg(optikteil));
    setProperty("Tag", AlsText(optikteil));
    m_felder = {m_ui->lblInhaltTU,  m_ui->lblInhaltHU,  m_ui->lblInhaltZU,
                m_ui->lblInhaltTNU, m_ui->lblInhaltHNU, m_ui->lblInhaltZNU};
    m_gezeigteWerte.fill(-1);
    for (int auswahl = 0; auswahl < m_ui->Option1->buttons().size(); ++auswahl)
        m_ui->Option1->setId(m_ui->Option1->buttons().at(auswahl), auswahl);
    PasseZiffernAn();
    Verbinde();
    Lokalisiere();
}

frmDocument::~frmDocument() = default;

void frmDocument::Verbinde() {
    connect(m_ui->Option1, &QButtonGroup::idClicked, this, [this] { SetAktuellMinMaxStatus(); });
    connect(m_ui->BeamBar1, &BeamBarControl::StrahlUnterMaus, this, &frmDocument::ZeigeStrahltext);
    connect(this, &QWidget::windowTitleChanged, m_ui->BeamBar1, &QWidget::setAccessibleName);
}

void frmDocument::SetAktuellMinMaxStatus() {
    const int versatz = Blockversatz(m_ui->Option1->checkedId());
    if (versatz != m_versatz)
        m_gezeigteWerte.fill(-1);
    m_versatz = versatz;
    Werte werte(Messwertregister);
    modDaten::HoleSpezifischeDaten(spezifisch::Messwerte, Messwertregister, m_optikteil, werte);
    for (std::size_t k = 0; k < m_felder.size(); ++k) {
        const std::int32_t wert = werte[static_cast<std::size_t>(versatz) + k];
        if (wert != m_gezeigteWerte[k])
            m_felder[k]->setText(AlsText(wert));
        m_gezeigteWerte[k] = wert;
    }
    if (m_anzeige.Geblankte() != m_gezeigteGeblankte)
        m_ui->lblInhaltBlankingStrahlenMax->setText(AlsText(m_anzeige.Geblankte()));
    m_gezeigteGeblankte = m_anzeige.Geblankte();
}

void frmDocument::SetBeamIndexState(std::int16_t Index, std::int32_t state, std::int32_t blanking) {
    if (Index < 0 || Index >= std::min(m_ui->BeamBar1->Strahlanzahl(), Strahlanzeige::Hoechstzahl))
        return;
    if (const auto zustand = m_anzeige.Nimm(Index, state, blanking))
        ZeigeZustand(Index, *zustand);
}

void frmDocument::StartBeamRefresh() {
    m_ui->BeamBar1->SetzeAutomatischesZeichnen(false);
}

void frmDocument::EndeBeamRefresh() {
    m_ui->BeamBar1->SetzeAutomatischesZeichnen(true);
}

void frmDocument::InitfrmDocument() {
    StartBeamRefresh();
    m_ui->BeamBar1->SetzeStrahlanzahl(Register(spezifisch::Strahlenzahl));
    for (int strahl = 0; strahl < m_ui->BeamBar1->Strahlanzahl(); ++strahl)
        ZeigeZustand(strahl, Strahlzustand::Unterbrochen);
    m_anzeige.Vergiss();
    VergissAnzeige();
    emit Eingerichtet();
    m_ui->BeamBar1->SetzeStrahlabstand(Register(spezifisch::Aufloesung));
    EndeBeamRefresh();
}

void frmDocument::SetStatusSubgerät() {
    const std::int16_t bits = Statusbits(Register(spezifisch::Optikteilstatus));
    if (bits == m_gezeigterStatus)
        return;
    const QString text = AlsText(Statustext(bits));
    m_ui->sbStatusBar_1->setText(text);
    m_ui->BeamBar1->setAccessibleDescription(text);
    m_gezeigterStatus = bits;
    OrdneStatuszeile();
}

void frmDocument::Lokalisiere() {
    LokalisiereForm(*this);
    const QString geblankte = AlsText(LadeText(TextGeblankte));
    m_ui->lblBlankingStrahlenMax->setToolTip(geblankte);
    m_ui->lblInhaltBlankingStrahlenMax->setToolTip(geblankte);
    for (QLabel* feld : m_felder)
        feld->setAccessibleName(
            findChild<QLabel*>(feld->objectName().remove(QStringLiteral("Inhalt")))->text());
    m_ui->lblInhaltBlankingStrahlenMax->setAccessibleName(geblankte);
    VergissAnzeige();
    SetAktuellMinMaxStatus();
    SetStatusSubgerät();
    ZeigeStrahltext(m_strahlUnterMaus);
    PasseBreiteAn();
}

void frmDocument::NeuerDatensatz() {
    m_strahlen.clear();
}

void frmDocument::StrahlzustaendeLiegenVor() {
    const std::int16_t anzahl = Strahlregister(m_ui->BeamBar1->Strahlanzahl());
    if (anzahl > 0)
        modDaten::HoleStrahlzustaende(anzahl, m_optikteil, m_strahlen);
}

void frmDocument::BlankingBekannt() {
    if (m_strahlen.empty())
        return;
    Werte blanking(Blankingregister);
    modDaten::HoleSpezifischeDaten(spezifisch::Blankingmuster, Blankingregister, m_optikteil, blanking);
    StartBeamRefresh();
    for (int strahl = 0; strahl < m_ui->BeamBar1->Strahlanzahl(); ++strahl)
        SetBeamIndexState(static_cast<std::int16_t>(strahl), StrahlBit(m_strahlen, strahl),
                          StrahlBit(blanking, strahl));
    EndeBeamRefresh();
}

void frmDocument::MesswerteLiegenVor() {
    SetAktuellMinMaxStatus();
    SetStatusSubgerät();
}

std::int32_t frmDocument::Register(std::int16_t adresse) const {
    Werte wert(1);
    modDaten::HoleSpezifischeDaten(adresse, 1, m_optikteil, wert);
    return wert[0];
}

void frmDocument::VergissAnzeige() {
    m_gezeigteWerte.fill(-1);
    m_gezeigterStatus = -1;
    m_gezeigteGeblankte = -1;
}

void frmDocument::ZeigeStrahltext(int index) {
    m_strahlUnterMaus = index;
    m_ui->sbStatusBar_2->setText(AlsText(Strahltext(index, Register(spezifisch::Aufloesung))));
}

void frmDocument::ZeigeZustand(int index, Strahlzustand zustand) {
    m_ui->BeamBar1->WaehleStrahl(index);
    m_ui->BeamBar1->SetzeZustand(zustand);
}

} // namespace varnoth
