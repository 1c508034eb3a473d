#include "frmKonfigurationEdit.h"

#include "aenderungsworte.h"
#include "eingabestand.h"
#include "frmBlankingmuster.h"
#include "frmReihenfolge.h"
#include "geraetesuche.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "ui_frmKonfigurationEdit.h"
#include "verlauf.h"
#include "vorgabemarken.h"
#include "zykluszeiten.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include <tuple>
#include <utility>
#include <vector>

namespace varnoth {

namespace {

constexpr int ErsteOptikseite = 1;

bool WechseltSeite(const QKeyEvent& taste) {
    return (taste.key() == Qt::Key_Tab || taste.key() == Qt::Key_Backtab) &&
           taste.modifiers().testFlag(Qt::ControlModifier);
}

constexpr std::int16_t TextEingabe = 9864;

/// A parameter that a sub-editor edits.
struct Nebenregister {
    QString name;
    Speicherbereich bereich;
    std::int16_t adresse;
    int optikteil;
};

std::vector<Nebenregister> Nebenregisterliste() {
    std::vector<Nebenregister> alle{
        {"datenblock", Speicherbereich::Kommunikationsdaten, kommunikation::Datenblock, 0}};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        alle.push_back({QStringLiteral("muster_%1").arg(teil), Speicherbereich::SpezifischeGeraetedaten,
                        spezifisch::Blankingmuster, teil});
    return alle;
}

QVariantList AlsListe(const Werte& werte) {
    return {werte.begin(), werte.end()};
}

Werte AusListe(const QVariantList& liste) {
    Werte werte;
    for (const QVariant& wert : liste)
        werte.push_back(wert.toInt());
    return werte;
}

void OeffneBlankingmuster(QWidget* eltern, int optikteil, const std::optional<Werte>& vorschlag) {
    frmBlankingmuster dialog(eltern);
    dialog.InitFormBlankingmuster(optikteil);
    if (vorschlag)
        dialog.SchlageVor(*vorschlag);
    dialog.exec();
}

void OeffneReihenfolge(QWidget* eltern) {
    frmReihenfolge(eltern).exec();
}

} // namespace

frmKonfigurationEdit::frmKonfigurationEdit(QWidget* parent)
    : Eingabedialog(parent), ui(std::make_unique<Ui::frmKonfigurationEdit>()) {
    ui->setupUi(this);
    optikseiten = {ui->picOptions_1, ui->picOptions_2, ui->picOptions_3, ui->picOptions_4};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        optikseiten.at(static_cast<std::size_t>(teil))->SetzeOptikteil(teil);
    NimmVorgabenWeg();
    VerbindeKnoepfe();
    verlauf = new Verlauf(*this, *ui->knoepfe,
                          {.stand = [this] { return Stand(); },
                           .zeige = [this](const QVariantMap& stand) { StelleHer(stand); },
                           .worte = [this] { return Aenderung(); }});
    LokalisiereForm(*this);
}

frmKonfigurationEdit::~frmKonfigurationEdit() {
    hide(); // the focus leaves its field while there is still somebody to hear of it
    GibPortFrei();
}

void frmKonfigurationEdit::VerbindeKnoepfe() {
    connect(ui->cmdUebernehmen, &QPushButton::clicked, this, [this] { Uebernimm(False); });
    connect(ui->cmdDownLoad, &QPushButton::clicked, this, [this] { Uebernimm(True); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    for (Optikseite* const seite : optikseiten)
        connect(seite, &Optikseite::BlankingmusterVerlangt, this, [this](int teil) { OeffneBlanking(teil); });
    connect(ui->picOptions_5, &Kommunikationsseite::ReihenfolgeVerlangt, this, [this] {
        OeffneReihenfolge(this);
        ui->picOptions_5->AktualisiereMarken();
        verlauf->Merke();
    });
    connect(ui->picOptions_5, &Kommunikationsseite::AutosendStartbar, this, [this](bool startbar) {
        if (umfeld.autosendStartbar)
            umfeld.autosendStartbar(startbar);
    });
}

void frmKonfigurationEdit::InitKonfiguration(Editorumfeld neues) {
    umfeld = std::move(neues);
    EntferneFehlendeTeile();
    if (umfeld.zeigeUebertrageneWerte) {
        for (Optikseite* const seite : optikseiten)
            seite->ZeigeUebertrageneWerte();
        ui->picOptions_5->ZeigeUebertrageneWerte();
    }
    SeitenFuellen();
    anfangsstand = EingabestandVon(*this);
    gemerktes = Geschriebenes();
    verlauf->Beginne();
    VerfolgeAenderungen();
}

/// What follows from a change by itself belongs to the same step: of a group's button the page hears first.
void frmKonfigurationEdit::VerfolgeAenderungen() {
    const auto merke = [this] { verlauf->Merke(); };
    for (const QComboBox* const box : findChildren<QComboBox*>())
        connect(box, &QComboBox::currentIndexChanged, verlauf, merke);
    for (const QButtonGroup* const gruppe : findChildren<QButtonGroup*>())
        connect(gruppe, &QButtonGroup::idClicked, verlauf, merke);
    for (const QAbstractButton* const knopf : findChildren<QAbstractButton*>())
        if (knopf->isCheckable() && knopf->group() == nullptr)
            connect(knopf, &QAbstractButton::clicked, verlauf, merke);
    for (const QLineEdit* const feld : findChildren<QLineEdit*>())
        connect(feld, &QLineEdit::editingFinished, verlauf, merke);
    for (const Vorgabemarken* const marken : findChildren<Vorgabemarken*>())
        connect(marken, &Vorgabemarken::Zurueckgestellt, verlauf, merke);
}

/// The image as it would be if the dialog were applied now. The one in use is put back as it was.
Abbild frmKonfigurationEdit::Geschriebenes() {
    const Abbild vorher = modDaten::DasAbbild();
    const bool geaendert = modDaten::IstGeaendert() != False;
    SeitenZurueckschreiben();
    const Abbild geschrieben = modDaten::DasAbbild();
    modDaten::ErsetzeAbbild(vorher);
    if (!geaendert)
        modDaten::LoescheGeaendert();
    return geschrieben;
}

/// The controls, and what the sub-editors have stored.
QVariantMap frmKonfigurationEdit::Stand() const {
    QVariantMap stand = EingabestandVon(*this);
    for (const Nebenregister& neben : Nebenregisterliste())
        stand[neben.name] = AlsListe(modDaten::HoleParameter(neben.bereich, neben.adresse, neben.optikteil));
    return stand;
}

void frmKonfigurationEdit::StelleHer(const QVariantMap& stand) {
    for (const Nebenregister& neben : Nebenregisterliste()) {
        const Werte werte = AusListe(stand.value(neben.name).toList());
        if (werte != modDaten::HoleParameter(neben.bereich, neben.adresse, neben.optikteil))
            std::ignore = modDaten::SetzeParameter(neben.bereich, neben.adresse, werte, neben.optikteil);
    }
    StelleEingabestandHer(*this, stand);
    ui->picOptions_5->FolgeArt();
    for (Vorgabemarken* const marken : findChildren<Vorgabemarken*>())
        marken->Aktualisiere();
    gemerktes = Geschriebenes();
}

QString frmKonfigurationEdit::Aenderung() {
    const Abbild jetzt = Geschriebenes();
    std::string worte = Aenderungsworte(gemerktes, jetzt);
    gemerktes = jetzt;
    return QString::fromStdString(worte.empty() ? LadeText(TextEingabe) : worte);
}

bool frmKonfigurationEdit::IstGeaendert() const {
    return !schliesseMit && EingabestandVon(*this) != anfangsstand;
}

void frmKonfigurationEdit::EntferneFehlendeTeile() {
    for (int teil = AnzahlOptikteile - 1; teil >= 0; --teil)
        if (modHilfsFunktionen::GetZykluszeit(teil) == 0)
            ui->tbsOptions->removeTab(ErsteOptikseite + teil);
}

void frmKonfigurationEdit::SeitenFuellen() {
    const std::int32_t bustyp =
        modDaten::HoleRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Bustyp);
    ui->picOptions_0->Fuelle();
    for (Optikseite* const seite : optikseiten)
        seite->Fuelle();
    ui->picOptions_5->Fuelle(bustyp);
}

void frmKonfigurationEdit::SeitenZurueckschreiben() {
    ui->picOptions_0->SchreibeZurueck();
    for (const Optikseite* const seite : optikseiten)
        seite->SchreibeZurueck();
    ui->picOptions_5->SchreibeZurueck();
}

void frmKonfigurationEdit::Uebernimm(Boolean mitDownload) {
    SeitenZurueckschreiben();
    DownloadAngefordert = mitDownload;
    accept();
}

void frmKonfigurationEdit::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    if (angestossen)
        return;
    angestossen = true;
    QMetaObject::invokeMethod(
        this, [this] { SucheGeraet(); }, Qt::QueuedConnection);
}

void frmKonfigurationEdit::SucheGeraet() {
    if (!isVisible())
        return;
    ui->cmdUebernehmen->setEnabled(true);
    sucht = portBelegt = true;
    modSchnittstelle::OpenCommPort();
    const bool gefunden = FindeGeraet([this] { return schliesseMit.has_value(); });
    sucht = false;
    if (schliesseMit)
        done(*schliesseMit);
    else if (gefunden)
        ErlaubeDownload();
    if (!schliesseMit && umfeld.blankingvorschlag)
        ZeigeBlankingvorschlag();
}

void frmKonfigurationEdit::OeffneBlanking(int teil, const std::optional<Werte>& vorschlag) {
    OeffneBlankingmuster(this, teil, vorschlag);
    optikseiten.at(static_cast<std::size_t>(teil))->AktualisiereMarken();
    verlauf->Merke();
}

/// On the page of its part; a part that is not there has none.
void frmKonfigurationEdit::ZeigeBlankingvorschlag() {
    const auto vorschlag = std::exchange(umfeld.blankingvorschlag, {});
    QWidget* const seite = optikseiten.at(static_cast<std::size_t>(vorschlag->teil));
    if (ui->tbsOptions->indexOf(seite) < 0)
        return;
    ui->tbsOptions->setCurrentWidget(seite);
    OeffneBlanking(vorschlag->teil, vorschlag->muster);
}

void frmKonfigurationEdit::ErlaubeDownload() {
    ui->cmdDownLoad->setEnabled(true);
    if (ui->cmdUebernehmen->hasFocus())
        ui->cmdDownLoad->setFocus();
    ui->cmdUebernehmen->setEnabled(false);
}

void frmKonfigurationEdit::GibPortFrei() {
    if (portBelegt)
        modSchnittstelle::CloseCommPort();
    portBelegt = false;
}

void frmKonfigurationEdit::done(int ergebnis) {
    if (!sucht) {
        GibPortFrei();
        QDialog::done(ergebnis);
        return;
    }
    if (!schliesseMit)
        schliesseMit = ergebnis;
    setEnabled(false);
}

void frmKonfigurationEdit::keyPressEvent(QKeyEvent* ereignis) {
    if (WechseltSeite(*ereignis))
        QCoreApplication::sendEvent(ui->tbsOptions, ereignis);
    else
        Eingabedialog::keyPressEvent(ereignis);
}

} // namespace varnoth
