#include "frmBusprotokoll.h"

#include "busregisterliste.h"
#include "busworte.h"
#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "passwortschutz.h"
#include "protokollanbieter.h"
#include "tabellenform.h"
#include "texte.h"
#include "textmitwerten.h"
#include "ui_frmBusprotokoll.h"
#include "umgebung.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextStand = 8470, TextDurchsucht = 8482, TextNichtGefunden = 8484,
                       TextGeschrieben = 8485, TextSupportfrage = 8486, TextSpeichernUnter = 8488,
                       TextDateifilter = 8489, TextSupportUnter = 8490, TextTextfilter = 8491,
                       TextGespeichert = 8492, TextNurDiesesRegister = 8495, TextKopieren = 9584,
                       TextKopiert = 8496;
constexpr std::int16_t Artentexte[] = {8471, 8415, 8416, 8417, 8473, 8474, 8419}; // in the order of Busart

constexpr const char* Abschnitt = "frmBusprotokoll";
constexpr const char* Protokollname = "busprotokoll";
constexpr const char* Supportname = "support";
constexpr QSize Anfangsgroesse(1080, 680);
constexpr int Spaltenbreiten[] = {92, 102, 122, 180, 300, 74, 120}; // at 96 dpi

// Painting takes longer than a short exchange: more often would slow polling down, and nobody reads faster.
constexpr int TaktMs = 1000;
// What is done at one go, so that the next request never waits for it.
constexpr std::size_t BetrachteteJeSchritt = 4000;
constexpr std::size_t ZeilenJeSchritt = 2000;
constexpr std::size_t ZeilenJeBlick = 16;
constexpr Zeit LaengsterSchritt = std::chrono::milliseconds(2);

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// Does pieces of work until it is finished or its time is up.
template<class Arbeit>
void EineWeile(Arbeit arbeit) {
    const Zeit ende = DieUmgebung().Uhr() + LaengsterSchritt;
    for (std::size_t getan = 0; getan < ZeilenJeSchritt && DieUmgebung().Uhr() < ende; getan += ZeilenJeBlick)
        if (!arbeit())
            return;
}

} // namespace

frmBusprotokoll::frmBusprotokoll(Protokollanbieter& derAnbieter)
    : ui(std::make_unique<Ui::frmBusprotokoll>()), anbieter(derAnbieter),
      modell(new Busmodell(protokoll, this)) {
    ui->setupUi(this);
    RichteTabelleEin();
    StelleFensterHer(*this, Abschnitt, Anfangsgroesse);
    VerbindeFilter();
    VerbindeAnzeige();
    VerbindeKnoepfe();
    VerbindeTasten();
    takt.setInterval(TaktMs);
    connect(&takt, &QTimer::timeout, this, &frmBusprotokoll::BlickeNach);
    BrichAb();
    Lokalisiere();
    ui->tblProtokoll->setFocus();
}

frmBusprotokoll::~frmBusprotokoll() = default;

void frmBusprotokoll::RichteTabelleEin() {
    constexpr int Einzelheitenzeilen = 11;
    ui->tblProtokoll->setModel(modell);
    GibTabelleForm(*ui->tblProtokoll, Spaltenbreiten);
    ui->tblProtokoll->horizontalHeader()->setSectionResizeMode(Busmodell::Inhalt, QHeaderView::Stretch);
    ui->trennung->setStretchFactor(0, 1);
    ui->trennung->setSizes({Anfangsgroesse.height(), fontMetrics().height() * Einzelheitenzeilen});
}

void frmBusprotokoll::VerbindeFilter() {
    connect(ui->cboArt, &QComboBox::currentIndexChanged, this, &frmBusprotokoll::Filtere);
    connect(ui->cboRegister, &QComboBox::currentIndexChanged, this, &frmBusprotokoll::Filtere);
    connect(ui->chkNurFehler, &QCheckBox::toggled, this, &frmBusprotokoll::Filtere);
}

void frmBusprotokoll::VerbindeAnzeige() {
    connect(ui->chkWorte, &QCheckBox::toggled, modell, &Busmodell::ZeigeWorte);
    connect(ui->chkWorte, &QCheckBox::toggled, this, &frmBusprotokoll::ZeigeStand);
    connect(ui->chkAnhalten, &QCheckBox::toggled, this, &frmBusprotokoll::Plane);
    connect(ui->chkFolgen, &QCheckBox::toggled, this, &frmBusprotokoll::Plane);
    connect(ui->tblProtokoll->verticalScrollBar(), &QScrollBar::valueChanged, this, &frmBusprotokoll::Rolle);
    connect(ui->tblProtokoll->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &frmBusprotokoll::ZeigeEinzelheiten);
    connect(ui->tblProtokoll->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmBusprotokoll::ZeigeEinzelheiten);
    connect(ui->tblProtokoll, &QWidget::customContextMenuRequested, this, &frmBusprotokoll::BieteMenue);
}

void frmBusprotokoll::VerbindeKnoepfe() {
    const std::pair<QPushButton*, std::function<void()>> knoepfe[] = {
        {ui->cmdVoriger, [this] { Suche(true); }},   {ui->cmdNaechster, [this] { Suche(false); }},
        {ui->cmdLeeren, [this] { Leere(); }},        {ui->cmdKopieren, [this] { Kopiere(); }},
        {ui->cmdSpeichern, [this] { Speichere(); }}, {ui->cmdSupport, [this] { StelleZusammen(); }},
        {ui->cmdCancel, [this] { BrichAb(); }},      {ui->cmdSchliessen, [this] { close(); }},
    };
    for (const auto& [knopf, tat] : knoepfe)
        connect(knopf, &QPushButton::clicked, this, tat);
    connect(ui->txtSuchen, &QLineEdit::returnPressed, this, [this] { Suche(false); });
}

void frmBusprotokoll::VerbindeTasten() {
    const std::pair<QKeySequence, std::function<void()>> tasten[] = {
        {Qt::Key_F3, [this] { Suche(false); }},
        {Qt::SHIFT | Qt::Key_F3, [this] { Suche(true); }},
        {QKeySequence::Find, [this] { ui->txtSuchen->setFocus(), ui->txtSuchen->selectAll(); }},
        {QKeySequence::Save, [this] { ui->cmdSpeichern->click(); }},
        {Qt::Key_Escape, [this] { auftrag || suche.Sucht() ? BrichAb() : static_cast<void>(close()); }},
    };
    for (const auto& [taste, tat] : tasten)
        connect(new QShortcut(taste, this), &QShortcut::activated, this, tat);
    auto* const kopieren =
        new QShortcut(QKeySequence::Copy, ui->tblProtokoll, nullptr, nullptr, Qt::WidgetShortcut);
    connect(kopieren, &QShortcut::activated, this, [this] { Kopiere(); });
}

void frmBusprotokoll::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VerfolgePlatz(*this);
    protokoll.Beginne(anbieter.Jetzt());
    takt.start();
    ZeigeStand();
}

void frmBusprotokoll::closeEvent(QCloseEvent* ereignis) {
    protokoll.Beende();
    takt.stop();
    BrichAb();
    BewahreFensterplatz(*this, Abschnitt);
    QWidget::closeEvent(ereignis);
}

/// The colours of the results follow the palette.
void frmBusprotokoll::changeEvent(QEvent* ereignis) {
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        ui->tblProtokoll->viewport()->update();
}

void frmBusprotokoll::ZeigeVor() {
    HoleNachVorn(*this);
}

void frmBusprotokoll::Lokalisiere() {
    LokalisiereForm(*this);
    FuelleArten();
    FuelleRegisterliste(*ui->cboRegister);
    modell->Lokalisiere();
    ui->lblMeldung->clear();
    ZeigeEinzelheiten();
    ZeigeStand();
}

void frmBusprotokoll::FuelleArten() {
    const QSignalBlocker stumm(ui->cboArt);
    const int gewaehlte = std::max(ui->cboArt->currentIndex(), 0);
    ui->cboArt->clear();
    for (const std::int16_t text : Artentexte)
        ui->cboArt->addItem(Q(LadeText(text)));
    ui->cboArt->setCurrentIndex(gewaehlte);
}

/// What nobody has heard needs no looking at.
void frmBusprotokoll::BlickeNach() {
    if (std::exchange(gesehen, protokoll.Letzter()) != protokoll.Letzter())
        Plane();
}

void frmBusprotokoll::Plane() {
    if (!std::exchange(geplant, true))
        DieUmgebung().FuerWartezeit([fenster = QPointer(this)] {
            if (fenster != nullptr)
                fenster->Arbeite();
        });
}

void frmBusprotokoll::Arbeite() {
    geplant = false;
    if (!ui->chkAnhalten->isChecked() || nachzuholen > 0)
        Folge();
    SucheWeiter();
    SchreibeWeiter();
    ZeigeStand();
    if (Rueckstand() > 0 || suche.Sucht() || auftrag)
        Plane();
}

/// Takes over what the log has heard and forgotten. Rows in view stay where they are unless the end is
/// followed.
void frmBusprotokoll::Folge() {
    QScrollBar& rollbalken = *ui->tblProtokoll->verticalScrollBar();
    const int vorher = rollbalken.value();
    rolltSelbst = true;
    const int vergessene = modell->Vergiss();
    suche.Verschiebe(static_cast<std::size_t>(vergessene));
    const std::size_t betrachtete = std::min(Rueckstand(), BetrachteteJeSchritt);
    modell->Hole(betrachtete);
    nachzuholen -= std::min(nachzuholen, betrachtete);
    if (ui->chkFolgen->isChecked())
        ui->tblProtokoll->scrollToBottom();
    else if (vergessene > 0)
        rollbalken.setValue(std::max(vorher - vergessene, 0));
    rolltSelbst = false;
}

/// Who scrolls away from the end wants to read; who goes back to it wants to see what comes.
void frmBusprotokoll::Rolle(int wert) {
    if (!rolltSelbst)
        ui->chkFolgen->setChecked(wert == ui->tblProtokoll->verticalScrollBar()->maximum());
}

void frmBusprotokoll::Filtere() {
    suche.Ende();
    BeginneNeu({.art = AlleBusarten[std::max(ui->cboArt->currentIndex(), 0)],
                .bezug = GewaehlterBezug(*ui->cboRegister),
                .nurFehler = ui->chkNurFehler->isChecked()});
    Folge();
    ZeigeStand();
    Plane();
}

void frmBusprotokoll::BeginneNeu(const Busfilter& filter) {
    rolltSelbst = true;
    modell->Setze(filter);
    rolltSelbst = false;
    nachzuholen = modell->Ausstehend();
    ZeigeEinzelheiten();
}

/// How many exchanges are to be looked at. A view that stands still knows those of the time when its filter
/// was chosen.
std::size_t frmBusprotokoll::Rueckstand() const {
    return ui->chkAnhalten->isChecked() ? nachzuholen : modell->Ausstehend();
}

/// A table that gets the focus makes its first row the current one: nobody has chosen that.
std::optional<std::size_t> frmBusprotokoll::GewaehlteZeile() const {
    const QModelIndex stelle = ui->tblProtokoll->currentIndex();
    const bool gewaehlt = ui->tblProtokoll->selectionModel()->isSelected(stelle);
    return gewaehlt ? std::optional(static_cast<std::size_t>(stelle.row())) : std::nullopt;
}

void frmBusprotokoll::Suche(bool aufwaerts) {
    gesucht = ui->txtSuchen->text().trimmed().toStdString();
    ui->lblMeldung->clear();
    if (gesucht.empty())
        return ui->txtSuchen->setFocus();
    const auto gewaehlte = GewaehlteZeile();
    suche.Beginne(static_cast<std::size_t>(modell->rowCount()),
                  gewaehlte ? static_cast<std::ptrdiff_t>(*gewaehlte) : -1, aufwaerts);
    if (!suche.Sucht())
        return ZeigeMeldung(LadeTextMit(TextNichtGefunden, {gesucht}));
    Plane();
}

void frmBusprotokoll::SucheWeiter() {
    if (!suche.Sucht())
        return;
    std::optional<std::size_t> fund;
    EineWeile([&] {
        fund = suche.Weiter(ZeilenJeBlick, [&](std::size_t zeile) {
            const auto austausch = modell->Austausch(static_cast<int>(zeile));
            return austausch && Enthaelt(*austausch, gesucht);
        });
        return suche.Sucht();
    });
    if (fund) {
        ui->chkFolgen->setChecked(false);
        const QModelIndex stelle = modell->index(static_cast<int>(*fund), 0);
        ui->tblProtokoll->setCurrentIndex(stelle);
        ui->tblProtokoll->scrollTo(stelle);
    } else if (!suche.Sucht()) {
        ZeigeMeldung(LadeTextMit(TextNichtGefunden, {gesucht}));
    }
}

void frmBusprotokoll::Beginne(Busschreiber schreiber, std::function<void(const std::string& text)> fertig) {
    BrichAb();
    ui->lblMeldung->clear();
    auftrag.emplace(Auftrag{std::move(schreiber), std::move(fertig)});
    ui->cmdCancel->show();
    Plane();
}

void frmBusprotokoll::SchreibeWeiter() {
    if (!auftrag)
        return;
    EineWeile([this] {
        auftrag->schreiber.Weiter(ZeilenJeBlick);
        return !auftrag->schreiber.IstFertig();
    });
    if (!auftrag->schreiber.IstFertig())
        return;
    const Auftrag fertiger = std::move(*auftrag);
    BrichAb();
    fertiger.fertig(fertiger.schreiber.Text());
}

void frmBusprotokoll::BrichAb() {
    suche.Ende();
    auftrag.reset();
    ui->cmdCancel->hide();
}

void frmBusprotokoll::Leere() {
    BrichAb();
    protokoll.Leere(anbieter.Jetzt());
    ui->lblMeldung->clear();
    BeginneNeu(modell->Filter());
    ui->chkFolgen->setChecked(true);
    ZeigeStand();
}

/// The rows that are selected, all that are shown where none is.
void frmBusprotokoll::Kopiere() {
    std::vector<std::uint64_t> nummern;
    for (const QModelIndex& stelle : ui->tblProtokoll->selectionModel()->selectedRows())
        nummern.push_back(modell->Nummer(stelle.row()));
    std::ranges::sort(nummern);
    if (nummern.empty())
        nummern = modell->Nummern();
    Beginne({protokoll, Busformat::Text, nummern}, [this, anzahl = nummern.size()](const std::string& text) {
        QGuiApplication::clipboard()->setText(Q(text));
        ZeigeMeldung(LadeTextMit(TextKopiert, {std::to_string(anzahl)}));
    });
}

void frmBusprotokoll::Speichere() {
    const auto pfad =
        anbieter.FrageNachDatei(LadeText(TextSpeichernUnter), LadeText(TextDateifilter), Protokollname);
    if (!pfad)
        return;
    const bool csv = Q(*pfad).endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    Beginne({protokoll, csv ? Busformat::Csv : Busformat::Text, modell->Nummern()},
            [this, pfad](const std::string& text) {
                if (anbieter.Schreibe(*pfad, text))
                    ZeigeMeldung(LadeTextMit(TextGespeichert, {*pfad}));
            });
}

/// Says what will be in the file before it asks where to put it.
void frmBusprotokoll::StelleZusammen() {
    const std::string kopf = Supportkopf(anbieter.Angaben(), anbieter.Jetzt());
    if (DieUmgebung().ZeigeMeldung({.text = LadeText(TextSupportfrage),
                                    .symbol = Symbol::Frage,
                                    .knoepfe = Knoepfe::OkAbbrechen,
                                    .details = kopf}) != Antwort::Ok)
        return;
    const auto pfad =
        anbieter.FrageNachDatei(LadeText(TextSupportUnter), LadeText(TextTextfilter), Supportname);
    if (!pfad)
        return;
    std::vector<std::uint64_t> nummern;
    for (std::uint64_t nummer = protokoll.Erster(); nummer <= protokoll.Letzter(); ++nummer)
        nummern.push_back(nummer);
    Beginne({protokoll, Busformat::Text, std::move(nummern), kopf}, [this, pfad](const std::string& text) {
        if (anbieter.Schreibe(*pfad, text))
            ZeigeMeldung(LadeTextMit(TextGespeichert, {*pfad}));
    });
}

void frmBusprotokoll::BieteMenue(const QPoint& stelle) {
    const QModelIndex zeile = ui->tblProtokoll->indexAt(stelle);
    const auto austausch = zeile.isValid() ? modell->Austausch(zeile.row()) : std::nullopt;
    const auto bezug = austausch ? RegisterbezugVon(austausch->anforderung) : std::nullopt;
    auto* const menue = new QMenu(ui->tblProtokoll);
    menue->setObjectName(QStringLiteral("mnuProtokollzeile"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const nurDieses = menue->addAction(Q(LadeText(TextNurDiesesRegister)));
    nurDieses->setEnabled(bezug.has_value());
    if (bezug)
        connect(nurDieses, &QAction::triggered, this,
                [this, bezug] { WaehleBezug(*ui->cboRegister, *bezug); });
    connect(menue->addAction(Q(LadeText(TextKopieren))), &QAction::triggered, this, [this] { Kopiere(); });
    menue->popup(ui->tblProtokoll->viewport()->mapToGlobal(stelle));
}

/// Who looks at an exchange does not want it to be moved away.
void frmBusprotokoll::ZeigeEinzelheiten() {
    const auto zeile = GewaehlteZeile();
    const auto austausch = zeile ? modell->Austausch(static_cast<int>(*zeile)) : std::nullopt;
    ui->txtEinzelheiten->setPlainText(
        austausch ? Q(Einzelheiten(*austausch, protokoll.Uhrzeit(austausch->gesendet))) : QString());
    if (zeile && static_cast<int>(*zeile) + 1 < modell->rowCount())
        ui->chkFolgen->setChecked(false);
}

void frmBusprotokoll::ZeigeMeldung(const std::string& text) {
    ui->lblMeldung->setText(Q(text));
}

void frmBusprotokoll::ZeigeStand() {
    const std::size_t gezeigte = static_cast<std::size_t>(modell->rowCount());
    std::string text = LadeTextMit(TextStand, {std::to_string(protokoll.Anzahl()), std::to_string(gezeigte)});
    if (auftrag)
        text = LadeTextMit(TextGeschrieben, {std::to_string(auftrag->schreiber.Geschrieben()),
                                             std::to_string(auftrag->schreiber.Anzahl())});
    else if (Rueckstand() > BetrachteteJeSchritt)
        text = LadeTextMit(TextDurchsucht, {std::to_string(protokoll.Anzahl() - modell->Ausstehend()),
                                            std::to_string(protokoll.Anzahl())});
    if (const QString neu = Q(text); ui->lblStand->text() != neu)
        ui->lblStand->setText(neu);
}

} // namespace varnoth
