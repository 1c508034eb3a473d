#include "frmDocument.h"

#include "ui_frmDocument.h"

#include "einstellungen.h"
#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "strahlbits.h"
#include "texte.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QScrollBar>

#include <algorithm>

namespace varnoth {

namespace {

constexpr int MindestBreiteTwips = 3400;
constexpr int MindestHoeheTwips = 3440;
constexpr std::int16_t TextGeblankte = 4019;
constexpr std::int16_t Blankingregister = 32;
constexpr int StrahlenJeRegister = 16;
constexpr double Ziffernvergroesserung = 1.35;
constexpr int BreitesteZahl = 65535;
constexpr int BreitesterStrahl = 511;
constexpr int BreitesterAbstand = 40;
constexpr double SchmalUnter = 2.4;

QString AlsText(std::int32_t wert) {
    return QString::number(wert);
}

QString AlsText(const std::string& text) {
    return QString::fromStdString(text);
}

QSize Mindestgroesse() {
    return {(MindestBreiteTwips + TwipsAusPixel(1) - 1) / TwipsAusPixel(1),
            (MindestHoeheTwips + TwipsAusPixel(1) - 1) / TwipsAusPixel(1)};
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

void frmDocument::InitForm() {
    Fensterplatz standard;
    standard.zustand = ZustandNichtGespeichert;
    const Fensterplatz platz = LiesFensterplatz(DieEinstellungen(), Abschnitt(), standard);
    if (platz.zustand != ZustandNichtGespeichert)
        WendeAn(platz, *this);
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
    VergissAnzeige();
    SetAktuellMinMaxStatus();
    SetStatusSubgerät();
    ZeigeStrahltext(m_strahlUnterMaus);
    PasseBreiteAn();
}

void frmDocument::Zeige() {
    show();
    auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (!rahmen)
        return;
    if (rahmen->isMinimized())
        rahmen->showNormal();
    rahmen->show();
    rahmen->mdiArea()->setActiveSubWindow(rahmen);
}

void frmDocument::SpeicherePlatz() const {
    const auto platz = PlatzVon(*this);
    if (m_warSichtbar && platz)
        SchreibFensterplatz(DieEinstellungen(), Abschnitt(), *platz);
}

bool frmDocument::ZeigtLiveDaten() const {
    for (const QWidget* fenster = this; fenster; fenster = fenster->parentWidget())
        if (fenster->isMinimized())
            return false;
    return isVisible();
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

void frmDocument::changeEvent(QEvent* ereignis) {
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::FontChange || ereignis->type() == QEvent::StyleChange) {
        PasseZiffernAn();
        PasseBreiteAn();
    }
}

void frmDocument::closeEvent(QCloseEvent* ereignis) {
    SpeicherePlatz();
    ereignis->accept();
    emit Geschlossen();
}

void frmDocument::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    OrdneStatuszeile();
}

void frmDocument::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    m_warSichtbar = true;
    VerfolgePlatz(*this);
    if (auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget()))
        rahmen->setMinimumSize(Mindestgroesse());
    PasseBreiteAn();
}

std::int32_t frmDocument::Register(std::int16_t adresse) const {
    Werte wert(1);
    modDaten::HoleSpezifischeDaten(adresse, 1, m_optikteil, wert);
    return wert[0];
}

std::string frmDocument::Abschnitt() const {
    return std::to_string(m_optikteil) + "Form";
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

// Values are read from some way off: larger than the rest, and as wide as the widest number so that nothing
// moves when they change.
void frmDocument::PasseZiffernAn() {
    QFont ziffern = font();
    ziffern.setPointSizeF(font().pointSizeF() * Ziffernvergroesserung);
    const int breite = QFontMetrics(ziffern).horizontalAdvance(AlsText(BreitesteZahl));
    for (QLabel* feld : m_ui->Frame1->findChildren<QLabel*>(QRegularExpression("^lblInhalt"))) {
        feld->setFont(ziffern);
        feld->setMinimumWidth(breite);
    }
}

// The values take the width they need and no more; the beams get the rest.
void frmDocument::PasseBreiteAn() {
    const int rollbalken = m_ui->Rollbereich->verticalScrollBar()->sizeHint().width();
    m_ui->Rollbereich->setFixedWidth(m_ui->Frame1->minimumSizeHint().width() + rollbalken);
    const QString strahl = AlsText(Strahltext(BreitesterStrahl, BreitesterAbstand));
    m_ui->sbStatusBar_2->setMinimumWidth(fontMetrics().horizontalAdvance(strahl));
    OrdneStatuszeile();
}

// The panels of the status bar stand side by side, in a narrow view one above the other; the bar is as high
// as the status text needs.
void frmDocument::OrdneStatuszeile() {
    QLabel& status = *m_ui->sbStatusBar_1;
    QLabel& strahl = *m_ui->sbStatusBar_2;
    const bool schmal = width() < SchmalUnter * strahl.minimumWidth();
    const QMargins rand = m_ui->Felder->contentsMargins();
    const int abstand = m_ui->Felder->spacing();
    const int zeile = fontMetrics().height();
    const int platz = width() - rand.left() - rand.right() - (schmal ? 0 : strahl.minimumWidth() + abstand);
    const int hoehe = std::max(zeile, status.heightForWidth(std::max(1, platz)));
    m_ui->Felder->setDirection(schmal ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    strahl.setAlignment((schmal ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    m_ui->sbStatusBar->setFixedHeight(rand.top() + hoehe + (schmal ? abstand + zeile : 0) + rand.bottom());
}

} // namespace varnoth
