#include "frmKonfigurationSchreibenInHardware.h"

#include "einstellungen.h"
#include "frmRegisterliste.h"
#include "leitungswarnung.h"
#include "registerabbild.h"
#include "sicherungen.h"
#include "texte.h"
#include "textmitwerten.h"
#include "transferansicht.h"
#include "ui_frmKonfigurationSchreibenInHardware.h"
#include "umgebung.h"
#include "zeittext.h"

#include <QTime>

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextLeseversuch = 7004;
constexpr std::int16_t TextSicherungMisslungen = 9763;
constexpr std::int16_t TextWirdGesichert = 9764;
constexpr std::int16_t TextNichtsZuSichern = 9765;

constexpr const char* Abschnitt = "frmKonfigurationSchreibenInHardware";
constexpr const char* Schluessel = "chkPruefen";

/// The status bar says what was written, and when: the dialog closes by itself.
void MeldeErfolg(const Schreibergebnis& ergebnis, Ablage ablage) {
    const std::string wann = QTime::currentTime().toString(QStringLiteral("hh:mm")).toStdString();
    DieUmgebung().ZeigeStatustext(FeldMeldungen, Schreibsatz(ergebnis, ablage == Ablage::Dauerhaft, wann));
}

bool WillTrotzdemSchreiben(const std::string& fehlertext) {
    return DieUmgebung().ZeigeMeldung({.text = LadeTextMit(TextSicherungMisslungen, {fehlertext}),
                                       .titel = LadeText(TextAchtung),
                                       .symbol = Symbol::Warnung,
                                       .knoepfe = Knoepfe::OkAbbrechen,
                                       .abbrechenVorgegeben = true}) == Antwort::Ok;
}

std::string StandInWorten(const std::optional<Geraetestand>& stand) {
    return stand ? Zeittext(stand->zeit).toStdString() : std::string();
}

void ZeigeHinweis(QLabel& label, const std::string& text) {
    label.setText(QString::fromStdString(text));
    label.setVisible(!text.empty());
}

std::string Sicherungshinweis() {
    if (DieSicherungen() == nullptr)
        return {};
    if (!IstGeraetestandSicherbar())
        return LadeText(TextNichtsZuSichern);
    return LadeTextMit(TextWirdGesichert, {StandInWorten(modGeraetestand::HoleGeraetestand())});
}

} // namespace

frmKonfigurationSchreibenInHardware::frmKonfigurationSchreibenInHardware(
    QWidget* parent, std::optional<Schreibauftrag> auftrag)
    : Ablaufdialog(Beginn::AufKnopfdruck, parent),
      ui(std::make_unique<Ui::frmKonfigurationSchreibenInHardware>()), vorgegebener(std::move(auftrag)) {
    ui->setupUi(this);
    ui->chkPruefen->setChecked(DieEinstellungen().LiesZahl(Abschnitt, Schluessel, 0) != 0);
    connect(ui->cmdStart, &QPushButton::clicked, this, [this] { cmdStart_Click(); });
    connect(ui->cmdAenderungen, &QPushButton::clicked, this, [this] { ZeigeAenderungen(); });
    connect(ui->chkSpeichern, &QCheckBox::toggled, this, [this] { ZeigeVorausschau(); });
    connect(ui->chkPruefen, &QCheckBox::clicked, this, [](bool gewaehlt) {
        DieEinstellungen().SchreibText(Abschnitt, Schluessel, gewaehlt ? "1" : "0");
    });
    SetWeiter(True);
    Lade(*ui->cmdCancel);
    ZeigeVorausschau();
}

frmKonfigurationSchreibenInHardware::~frmKonfigurationSchreibenInHardware() = default;

Schreibauftrag frmKonfigurationSchreibenInHardware::Auftrag() const {
    return vorgegebener ? *vorgegebener : Schreibauftrag{.abbild = modDaten::DasAbbild()};
}

/// What is put aside first, and what a stored write does to the line.
void frmKonfigurationSchreibenInHardware::ZeigeVorausschau() {
    ZeigeHinweis(*ui->lblSicherung, Sicherungshinweis());
    ZeigeHinweis(*ui->lblLeitung, ui->chkSpeichern->isChecked()
                                      ? Leitungswarnung(Auftrag(), modGeraetestand::HoleGeraetestand())
                                      : std::string());
}

void frmKonfigurationSchreibenInHardware::ZeigeAenderungen() {
    const auto stand = modGeraetestand::HoleGeraetestand();
    frmRegisterliste(BefundVorDemSchreiben(Auftrag(), stand, StandInWorten(stand)), this).exec();
}

/// The backup comes before the first request.
void frmKonfigurationSchreibenInHardware::cmdStart_Click() {
    const std::string fehler = SichereGeraetestand();
    if (fehler.empty() || WillTrotzdemSchreiben(fehler))
        FuehreAus();
}

bool frmKonfigurationSchreibenInHardware::Ablauf() {
    ui->cmdCancel->setFocus();
    for (QWidget* const element :
         std::initializer_list<QWidget*>{ui->cmdStart, ui->chkSpeichern, ui->chkPruefen, ui->cmdAenderungen})
        element->setEnabled(false);
    Transferansicht ansicht(*this, {ui->txtSpeicherbereich, ui->txtAktuellesRegister, ui->txtRegisteranzahl,
                                    ui->txtSchreibversuch, ui->pbFortschritt});
    const Ablage ablage = ui->chkSpeichern->isChecked() ? Ablage::Dauerhaft : Ablage::Fluechtig;
    ergebnis = {.auftrag = Auftrag()};
    ergebnis.vollstaendig = SchreibeKonfiguration(ansicht, ablage, ergebnis.auftrag, ergebnis.spur);
    if (!ergebnis.vollstaendig)
        return false;
    const bool geprueft = !ui->chkPruefen->isChecked() || Pruefe(ansicht);
    MeldeErfolg(ergebnis, ablage);
    return geprueft;
}

/// False when the user cancelled; then not everything was compared.
bool frmKonfigurationSchreibenInHardware::Pruefe(Transferansicht& ansicht) {
    ui->lblSchreibversuch->setText(QString::fromStdString(LadeText(TextLeseversuch)));
    const Schreibauftrag& auftrag = ergebnis.auftrag;
    const bool alles = LiesZurueck(ansicht, auftrag.stellen, ergebnis.ruecklesung);
    ergebnis.pruefung = PruefeRuecklesung(auftrag.abbild, auftrag.stellen, ergebnis.ruecklesung);
    return alles;
}

} // namespace varnoth
