#include "frmEreignisse.h"

#include "einstellungen.h"
#include "ereignisanbieter.h"
#include "ereignisse.h"
#include "ereignisworte.h"
#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "messanbieter.h"
#include "tabellenform.h"
#include "texte.h"
#include "textmitwerten.h"
#include "ui_frmEreignisse.h"
#include "umgebung.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextTitel = 6600, TextAlle = 6609, TextSpeichernUnter = 6666, TextMitschrift = 6671,
                       TextMitschriftfehler = 6672, TextOrdner = 6674, TextStand = 6675,
                       TextStandVergessen = 6676, TextDurchgesehen = 6677, TextTitelWiedergabe = 6678,
                       TextNichtGefunden = 8484, TextDateifilter = 8489, TextGespeichert = 8492,
                       TextKopiert = 8496;

constexpr const char* Abschnitt = "frmEreignisse";
constexpr const char* SchluesselArt = "Art";
constexpr const char* SchluesselFolgen = "Folgen";
constexpr const char* Dateiname = "ereignisse";
constexpr QSize Anfangsgroesse(1000, 560);
constexpr int Spaltenbreiten[] = {165, 115, 380, 95, 120}; // at 96 dpi

constexpr int TaktMs = 500;
// What is done at one go, so that the next request never waits for it.
constexpr std::size_t EreignisseJeBlick = 32;
constexpr std::size_t PaketeJeBlick = 1;
constexpr Zeit LaengsterSchritt = std::chrono::milliseconds(3);

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// Does pieces of work until it is finished or its time is up.
template<class Arbeit>
void EineWeile(Arbeit arbeit) {
    const Zeit ende = DieUmgebung().Uhr() + LaengsterSchritt;
    while (arbeit() && DieUmgebung().Uhr() < ende) {
    }
}

} // namespace

frmEreignisse::frmEreignisse(Messanbieter& woher, Ereignisanbieter& derAnbieter)
    : ui(std::make_unique<Ui::frmEreignisse>()), messungen(woher), anbieter(derAnbieter),
      modell(new Ereignismodell(this)) {
    ui->setupUi(this);
    RichteTabelleEin();
    StelleFensterHer(*this, Abschnitt, Anfangsgroesse);
    FuelleArten();
    StelleAuswahlHer();
    VerbindeFilter();
    VerbindeKnoepfe();
    VerbindeTasten();
    takt.setInterval(TaktMs);
    connect(&takt, &QTimer::timeout, this, &frmEreignisse::BlickeNach);
    BrichAb();
    Lokalisiere();
    ui->tblEreignisse->setFocus();
}

frmEreignisse::~frmEreignisse() = default;

void frmEreignisse::RichteTabelleEin() {
    ui->tblEreignisse->setModel(modell);
    GibTabelleForm(*ui->tblEreignisse, Spaltenbreiten);
    ui->tblEreignisse->horizontalHeader()->setSectionResizeMode(Ereignismodell::Was, QHeaderView::Stretch);
}

void frmEreignisse::FuelleArten() {
    const QSignalBlocker stumm(ui->cboArt);
    const int gewaehlte = std::max(ui->cboArt->currentIndex(), 0);
    ui->cboArt->clear();
    ui->cboArt->addItem(Q(LadeText(TextAlle)));
    for (int gruppe = 0; gruppe < AnzahlEreignisgruppen; ++gruppe)
        ui->cboArt->addItem(Q(Gruppentext(static_cast<Ereignisgruppe>(gruppe))));
    ui->cboArt->setCurrentIndex(gewaehlte);
}

void frmEreignisse::StelleAuswahlHer() {
    Einstellungen& einstellungen = DieEinstellungen();
    ui->cboArt->setCurrentIndex(
        std::clamp(einstellungen.LiesZahl(Abschnitt, SchluesselArt, 0), 0, AnzahlEreignisgruppen));
    ui->chkFolgen->setChecked(einstellungen.LiesZahl(Abschnitt, SchluesselFolgen, 1) != 0);
}

void frmEreignisse::BewahreAuswahl() const {
    Einstellungen& einstellungen = DieEinstellungen();
    einstellungen.SchreibText(Abschnitt, SchluesselArt, std::to_string(ui->cboArt->currentIndex()));
    einstellungen.SchreibText(Abschnitt, SchluesselFolgen, ui->chkFolgen->isChecked() ? "1" : "0");
}

void frmEreignisse::VerbindeFilter() {
    connect(ui->cboArt, &QComboBox::currentIndexChanged, this, &frmEreignisse::BeginneNeu);
    connect(ui->txtFilter, &QLineEdit::textChanged, this, &frmEreignisse::BeginneNeu);
    connect(ui->chkFolgen, &QCheckBox::toggled, this, &frmEreignisse::Plane);
    connect(ui->tblEreignisse->verticalScrollBar(), &QScrollBar::valueChanged, this, &frmEreignisse::Rolle);
    connect(ui->tblEreignisse, &QTableView::doubleClicked, this, &frmEreignisse::Springe);
}

void frmEreignisse::VerbindeKnoepfe() {
    const std::pair<QPushButton*, std::function<void()>> knoepfe[] = {
        {ui->cmdVoriger, [this] { Suche(-1); }},     {ui->cmdNaechster, [this] { Suche(1); }},
        {ui->cmdLeeren, [this] { Leere(); }},        {ui->cmdKopieren, [this] { Kopiere(); }},
        {ui->cmdSpeichern, [this] { Speichere(); }}, {ui->cmdOrdner, [this] { WaehleOrdner(); }},
        {ui->cmdCancel, [this] { BrichAb(); }},      {ui->cmdSchliessen, [this] { close(); }},
    };
    for (const auto& [knopf, tat] : knoepfe)
        connect(knopf, &QPushButton::clicked, this, tat);
    connect(ui->txtSuchen, &QLineEdit::returnPressed, this, [this] { Suche(1); });
    connect(ui->chkMitschrift, &QCheckBox::clicked, this, &frmEreignisse::SchalteMitschrift);
}

void frmEreignisse::VerbindeTasten() {
    const std::pair<QKeySequence, std::function<void()>> tasten[] = {
        {Qt::Key_F3, [this] { Suche(1); }},
        {Qt::SHIFT | Qt::Key_F3, [this] { Suche(-1); }},
        {QKeySequence::Find, [this] { ui->txtSuchen->setFocus(), ui->txtSuchen->selectAll(); }},
        {QKeySequence::Save, [this] { ui->cmdSpeichern->click(); }},
        {Qt::Key_Escape, [this] { auftrag || suche.offen > 0 ? BrichAb() : static_cast<void>(close()); }},
    };
    for (const auto& [taste, tat] : tasten)
        connect(new QShortcut(taste, this), &QShortcut::activated, this, tat);
    const std::pair<QKeySequence, std::function<void()>> tabellentasten[] = {
        {QKeySequence::Copy, [this] { Kopiere(); }},
        {Qt::Key_Return, [this] { Springe(ui->tblEreignisse->currentIndex()); }},
    };
    for (const auto& [taste, tat] : tabellentasten)
        connect(new QShortcut(taste, ui->tblEreignisse, nullptr, nullptr, Qt::WidgetShortcut),
                &QShortcut::activated, this, tat);
}

void frmEreignisse::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VerfolgePlatz(*this);
    ab = 0;
    quellenzahl = -1;
    takt.start();
    BlickeNach();
}

void frmEreignisse::closeEvent(QCloseEvent* ereignis) {
    takt.stop();
    BrichAb();
    BewahreAuswahl();
    BewahreFensterplatz(*this, Abschnitt);
    QWidget::closeEvent(ereignis);
}

void frmEreignisse::ZeigeVor() {
    HoleNachVorn(*this);
}

void frmEreignisse::Lokalisiere() {
    LokalisiereForm(*this);
    FuelleArten();
    setWindowTitle(Q(LadeText(lauf ? TextTitelWiedergabe : TextTitel)));
    modell->Lokalisiere();
    ui->lblMeldung->clear();
    if (!modell->Filter().text.empty())
        BeginneNeu();
    ZeigeMitschrift();
    ZeigeStand();
}

const Ereignisspeicher& frmEreignisse::Speicher() const {
    return lauf ? lauf->Ereignisse() : modEreignisse::Alle();
}

/// What has not changed needs no looking at.
void frmEreignisse::BlickeNach() {
    BlickeAufQuelle();
    ZeigeMitschrift();
    if ((lauf && !lauf->IstFertig()) ||
        std::exchange(gesehen, Speicher().Aenderungen()) != Speicher().Aenderungen())
        Plane();
}

/// The events of a replay are those of its record; otherwise those of this run are shown.
void frmEreignisse::BlickeAufQuelle() {
    if (std::exchange(quellenzahl, messungen.Quellenzahl()) == messungen.Quellenzahl())
        return;
    BrichAb();
    lauf.reset();
    if (messungen.IstWiedergabe())
        lauf.emplace(messungen.Quelle());
    ab = 0;
    setWindowTitle(Q(LadeText(lauf ? TextTitelWiedergabe : TextTitel)));
    BeginneNeu();
}

void frmEreignisse::Plane() {
    if (!std::exchange(geplant, true))
        DieUmgebung().FuerWartezeit([fenster = QPointer(this)] {
            if (fenster != nullptr)
                fenster->Arbeite();
        });
}

void frmEreignisse::Arbeite() {
    geplant = false;
    if (!isVisible())
        return;
    BlickeAufQuelle();
    SiehWeiterDurch();
    Folge();
    SucheWeiter();
    SchreibeWeiter();
    ZeigeStand();
    if ((lauf && !lauf->IstFertig()) || modell->Ausstehend() > 0 || suche.offen > 0 || auftrag)
        Plane();
}

void frmEreignisse::SiehWeiterDurch() {
    if (lauf && !lauf->IstFertig())
        EineWeile([this] {
            lauf->Weiter(PaketeJeBlick);
            return !lauf->IstFertig();
        });
}

/// Takes over what the store has got and forgotten. Rows in view stay where they are unless the end is
/// followed.
void frmEreignisse::Folge() {
    QScrollBar& rollbalken = *ui->tblEreignisse->verticalScrollBar();
    const int vorher = rollbalken.value();
    rolltSelbst = true;
    const int vergessene = modell->Vergiss();
    suche.zeile -= vergessene;
    modell->Erneuere();
    EineWeile([this] {
        modell->Hole(EreignisseJeBlick);
        return modell->Ausstehend() > 0;
    });
    if (ui->chkFolgen->isChecked())
        ui->tblEreignisse->scrollToBottom();
    else if (vergessene > 0)
        rollbalken.setValue(std::max(vorher - vergessene, 0));
    rolltSelbst = false;
}

/// Who scrolls away from the end wants to read; who goes back to it wants to see what comes.
void frmEreignisse::Rolle(int wert) {
    if (!rolltSelbst)
        ui->chkFolgen->setChecked(wert == ui->tblEreignisse->verticalScrollBar()->maximum());
}

Ereignisfilter frmEreignisse::GewaehlterFilter() const {
    Ereignisfilter filter{.text = ui->txtFilter->text().trimmed().toStdString()};
    if (const int art = ui->cboArt->currentIndex(); art > 0)
        filter.gruppe = static_cast<Ereignisgruppe>(art - 1);
    return filter;
}

void frmEreignisse::BeginneNeu() {
    suche.offen = 0;
    rolltSelbst = true;
    modell->Setze(&Speicher(), ab, GewaehlterFilter());
    rolltSelbst = false;
    Folge();
    ZeigeStand();
    Plane();
}

void frmEreignisse::Leere() {
    BrichAb();
    ab = Speicher().Ende();
    ui->lblMeldung->clear();
    ui->chkFolgen->setChecked(true);
    BeginneNeu();
}

void frmEreignisse::Springe(const QModelIndex& stelle) {
    const Ereignis* const ereignis = stelle.isValid() ? modell->Hinter(stelle.row()) : nullptr;
    if (lauf && ereignis != nullptr)
        messungen.SpringeZu(ereignis->laufzeit);
}

void frmEreignisse::ZeigeMeldung(const std::string& text) {
    ui->lblMeldung->setText(Q(text));
}

void frmEreignisse::ZeigeStand() {
    const Ereignisspeicher& speicher = Speicher();
    const std::string alle = std::to_string(speicher.Ende() - speicher.Erstes());
    const std::string gezeigte = std::to_string(modell->rowCount());
    std::string text = LadeTextMit(TextStand, {alle, gezeigte});
    if (lauf && !lauf->IstFertig())
        text = LadeTextMit(TextDurchgesehen, {std::to_string(static_cast<int>(lauf->Anteil() * 100))});
    else if (speicher.Erstes() > 0)
        text = LadeTextMit(TextStandVergessen, {alle, gezeigte, std::to_string(speicher.Erstes())});
    if (const QString neu = Q(text); ui->lblStand->text() != neu)
        ui->lblStand->setText(neu);
}

void frmEreignisse::ZeigeMitschrift() {
    const Mitschriftstand stand = anbieter.Mitschrift();
    ui->chkMitschrift->setChecked(stand.laeuft);
    std::string text = stand.ordner;
    if (stand.laeuft && !stand.fehler.empty())
        text = LadeTextMit(TextMitschriftfehler, {stand.fehler});
    else if (stand.laeuft && !stand.datei.empty())
        text = LadeTextMit(TextMitschrift, {stand.datei});
    if (const QString neu = Q(text); ui->lblMitschrift->text() != neu)
        ui->lblMitschrift->setText(neu);
}

void frmEreignisse::SchalteMitschrift(bool an) {
    const std::string ordner = anbieter.Mitschrift().ordner;
    if (an && ordner.empty())
        return WaehleOrdner();
    anbieter.SetzeMitschrift(an, ordner);
    ZeigeMitschrift();
}

/// Who chooses a folder wants the files there.
void frmEreignisse::WaehleOrdner() {
    if (const auto ordner = anbieter.FrageNachOrdner(LadeText(TextOrdner), anbieter.Mitschrift().ordner))
        anbieter.SetzeMitschrift(true, *ordner);
    ZeigeMitschrift();
}

void frmEreignisse::Suche(int schritt) {
    gesucht = ui->txtSuchen->text().trimmed().toStdString();
    ui->lblMeldung->clear();
    if (gesucht.empty())
        return ui->txtSuchen->setFocus();
    const QModelIndex stelle = ui->tblEreignisse->currentIndex();
    const bool gewaehlt = ui->tblEreignisse->selectionModel()->isSelected(stelle);
    const int anfang = schritt > 0 ? -1 : modell->rowCount();
    suche = {.zeile = gewaehlt ? stelle.row() : anfang, .offen = modell->rowCount(), .schritt = schritt};
    if (suche.offen == 0)
        return ZeigeMeldung(LadeTextMit(TextNichtGefunden, {gesucht}));
    Plane();
}

/// Around the end and until it is back where it began.
void frmEreignisse::SucheWeiter() {
    if (suche.offen == 0)
        return;
    std::optional<int> fund;
    EineWeile([&] {
        for (std::size_t i = 0; i < EreignisseJeBlick && suche.offen > 0 && !fund; ++i, --suche.offen) {
            suche.zeile = (suche.zeile + suche.schritt + modell->rowCount()) % modell->rowCount();
            const Ereignis* const ereignis = modell->Hinter(suche.zeile);
            if (ereignis != nullptr && Passt(*ereignis, {.text = gesucht}))
                fund = suche.zeile;
        }
        return suche.offen > 0 && !fund;
    });
    if (fund) {
        suche.offen = 0;
        ui->chkFolgen->setChecked(false);
        ui->tblEreignisse->setCurrentIndex(modell->index(*fund, 0));
        ui->tblEreignisse->scrollTo(modell->index(*fund, 0));
    } else if (suche.offen == 0) {
        ZeigeMeldung(LadeTextMit(TextNichtGefunden, {gesucht}));
    }
}

std::vector<std::uint64_t> frmEreignisse::GezeigteNummern() const {
    std::vector<std::uint64_t> nummern;
    for (int zeile = 0; zeile < modell->rowCount(); ++zeile)
        nummern.push_back(modell->Nummer(zeile));
    return nummern;
}

/// The rows that are selected, all that are shown where none is.
void frmEreignisse::Kopiere() {
    std::vector<std::uint64_t> nummern;
    for (const QModelIndex& stelle : ui->tblEreignisse->selectionModel()->selectedRows())
        nummern.push_back(modell->Nummer(stelle.row()));
    std::ranges::sort(nummern);
    if (nummern.empty())
        nummern = GezeigteNummern();
    const std::string anzahl = std::to_string(nummern.size());
    Beginne({std::move(nummern), EreignisAlsText, {}, [this, anzahl](const std::string& text) {
                 QGuiApplication::clipboard()->setText(Q(text));
                 ZeigeMeldung(LadeTextMit(TextKopiert, {anzahl}));
             }});
}

void frmEreignisse::Speichere() {
    const auto pfad =
        messungen.FrageNachDatei(LadeText(TextSpeichernUnter), LadeText(TextDateifilter), Dateiname);
    if (!pfad)
        return;
    const bool csv = Q(*pfad).endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    Beginne({GezeigteNummern(), csv ? EreignisAlsCsv : EreignisAlsText, csv ? Ereigniskopf() : std::string(),
             [this, pfad](const std::string& text) {
                 if (messungen.Schreibe(*pfad, text))
                     ZeigeMeldung(LadeTextMit(TextGespeichert, {*pfad}));
             }});
}

void frmEreignisse::Beginne(Ereignisauftrag neuer) {
    BrichAb();
    ui->lblMeldung->clear();
    auftrag.emplace(std::move(neuer));
    ui->cmdCancel->show();
    Plane();
}

void frmEreignisse::SchreibeWeiter() {
    if (!auftrag)
        return;
    bool fertig = false;
    EineWeile([&] {
        fertig = auftrag->Weiter(Speicher(), EreignisseJeBlick);
        return !fertig;
    });
    if (!fertig)
        return;
    const Ereignisauftrag fertiger = std::move(*auftrag);
    BrichAb();
    fertiger.MeldeFertig();
}

void frmEreignisse::BrichAb() {
    suche.offen = 0;
    auftrag.reset();
    ui->cmdCancel->hide();
}

} // namespace varnoth
