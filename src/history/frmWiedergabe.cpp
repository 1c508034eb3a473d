#include "frmWiedergabe.h"

#include "lokalisiereform.h"
#include "symbolbild.h"
#include "texte.h"
#include "textmitwerten.h"
#include "ui_frmWiedergabe.h"
#include "umgebung.h"
#include "wiedergabeworte.h"
#include "zeiteingabe.h"

#include <QEvent>
#include <QMenu>
#include <QSignalBlocker>

#include <algorithm>
#include <chrono>
#include <functional>
#include <iterator>
#include <tuple>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextKeineZeit = 6756;
constexpr std::int16_t TextAbspielen = 6504, TextAnhalten = 6505, TextSucht = 6530, TextKeines = 6531;
constexpr std::chrono::milliseconds Bildtakt(40);
constexpr int PaketeJeTakt = 12; // to read and look through them takes a few milliseconds
constexpr int UebergangeneJeTakt = 20000;
constexpr int Meldungszeilen = 2;

constexpr double Tempi[] = {0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, 100};
constexpr int EinfachesTempo = 3;

/// What can be chosen to jump to; none of them stands for every kind.
struct Wahl {
    std::int16_t textId;
    std::optional<Sprungart> art;
};
constexpr Wahl DieWahl[] = {{6512, std::nullopt},       {6513, Sprungart::Verbindung},
                            {6514, Sprungart::Ausgang}, {6515, Sprungart::Zustand},
                            {6516, Sprungart::Teil},    {6517, Sprungart::Notiz}};

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

Zeit Jetzt() {
    return DieUmgebung().Uhr();
}

/// The beginning of what was typed, which can be seen whole where it was typed.
std::string Kurz(const std::string& text) {
    constexpr int LaengsteZeit = 24;
    const QString ganz = Q(text);
    return ganz.size() <= LaengsteZeit ? text : (ganz.left(LaengsteZeit - 1) + u'…').toStdString();
}

} // namespace

frmWiedergabe::frmWiedergabe(Wiedergabesteuerung& die, QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::frmWiedergabe>()), steuerung(die) {
    ui->setupUi(this);
    RichteMeldungEin();
    VerbindeKnoepfe();
    VerbindeZeitleiste();
    FuelleTempi();
    uhrwerk.setInterval(Bildtakt);
    connect(&uhrwerk, &QTimer::timeout, this, &frmWiedergabe::Takt);
    Lokalisiere();
}

frmWiedergabe::~frmWiedergabe() = default;

/// A sentence has two lines, so that in a narrow window too it can be read without anything moving.
void frmWiedergabe::RichteMeldungEin() {
    ui->lblMeldung->setWordWrap(true);
    ui->lblMeldung->setFixedHeight(Meldungszeilen * ui->lblMeldung->fontMetrics().lineSpacing());
}

void frmWiedergabe::VerbindeKnoepfe() {
    const std::pair<QPushButton*, std::function<void()>> knoepfe[] = {
        {ui->cmdEreignisZurueck, [this] { Springe(false); }},
        {ui->cmdDurchgangZurueck, [this] { Schreite(false); }},
        {ui->cmdAbspielen, [this] { SchalteUm(); }},
        {ui->cmdDurchgangVor, [this] { Schreite(true); }},
        {ui->cmdEreignisVor, [this] { Springe(true); }},
        {ui->cmdVerlassen, [this] { steuerung.Verlasse(); }},
    };
    for (const auto& [knopf, tat] : knoepfe)
        connect(knopf, &QPushButton::clicked, this, tat);
    connect(ui->cboTempo, &QComboBox::currentIndexChanged, this, [this](int platz) {
        if (platz >= 0)
            steuerung.Stand().SetzeTempo(Tempi[platz], Jetzt());
    });
    connect(ui->txtZeit, &QLineEdit::returnPressed, this, &frmWiedergabe::GeheZurEingabe);
    connect(ui->txtZeit, &QLineEdit::textEdited, this, [this] {
        if (eingabeFalsch)
            Melde({});
    });
    auto* const menue = new QMenu(this);
    menue->setObjectName(QStringLiteral("mnuAufzeichnungKonfiguration"));
    ui->cmdAufzeichnungKonfiguration->setMenu(menue);
}

void frmWiedergabe::VerbindeZeitleiste() {
    connect(ui->zltAufzeichnung, &Zeitleiste::Gezogen, this, &frmWiedergabe::GeheZu);
    connect(ui->zltAufzeichnung, &Zeitleiste::Umschalten, this, &frmWiedergabe::SchalteUm);
    connect(ui->zltAufzeichnung, &Zeitleiste::Schritt, this, &frmWiedergabe::Schreite);
    connect(ui->zltAufzeichnung, &Zeitleiste::Sprung, this, &frmWiedergabe::Springe);
    connect(ui->zltAufzeichnung, &Zeitleiste::Tempo, this, &frmWiedergabe::AendereTempo);
}

void frmWiedergabe::FuelleTempi() {
    const QSignalBlocker stumm(ui->cboTempo);
    const int gewaehltes = std::max(ui->cboTempo->currentIndex(), 0);
    const bool erstmals = ui->cboTempo->count() == 0;
    ui->cboTempo->clear();
    for (const double tempo : Tempi)
        ui->cboTempo->addItem(Q(Tempotext(tempo)));
    ui->cboTempo->setCurrentIndex(erstmals ? EinfachesTempo : gewaehltes);
}

void frmWiedergabe::FuelleArten() {
    const int gewaehlte = std::max(ui->cboEreignis->currentIndex(), 0);
    ui->cboEreignis->clear();
    for (const Wahl& wahl : DieWahl)
        ui->cboEreignis->addItem(Q(LadeText(wahl.textId)));
    ui->cboEreignis->setCurrentIndex(gewaehlte);
}

void frmWiedergabe::BaueMenue() {
    QMenu& menue = *ui->cmdAufzeichnungKonfiguration->menu();
    menue.clear();
    const std::tuple<std::int16_t, const char*, void (Wiedergabesteuerung::*)()> punkte[] = {
        {6520, "mnuAufzeichnungBericht", &Wiedergabesteuerung::BerichteKonfiguration},
        {6521, "mnuAufzeichnungVergleich", &Wiedergabesteuerung::VergleicheKonfiguration},
        {6522, "mnuAufzeichnungSpeichern", &Wiedergabesteuerung::SpeichereKonfiguration}};
    for (const auto& [text, name, tat] : punkte) {
        QAction* const punkt = menue.addAction(Q(LadeText(text)));
        punkt->setObjectName(QLatin1String(name));
        connect(punkt, &QAction::triggered, this, [this, tat = tat] { (steuerung.*tat)(); });
    }
}

void frmWiedergabe::Lokalisiere() {
    LokalisiereForm(*this);
    FuelleArten();
    FuelleTempi();
    BaueMenue();
    ui->zltAufzeichnung->Lokalisiere();
    const std::pair<QWidget*, std::int16_t> namen[] = {
        {ui->cmdEreignisZurueck, 6508}, {ui->cmdDurchgangZurueck, 6506}, {ui->cmdDurchgangVor, 6507},
        {ui->cmdEreignisVor, 6509},     {ui->cboEreignis, 6518},         {ui->cboTempo, 6510}};
    for (const auto& [element, text] : namen)
        element->setAccessibleName(Q(LadeText(text)));
    Melde({});
    ZeigeKnopf();
}

void frmWiedergabe::Beginne() {
    suche.reset();
    naechstesPaket = steuerung.Quelle().Erstes();
    ui->zltAufzeichnung->SetzeQuelle(&steuerung.Quelle());
    ui->cboTempo->setCurrentIndex(EinfachesTempo);
    Melde({});
    Zeige();
    ui->zltAufzeichnung->setFocus();
}

void frmWiedergabe::Beende() {
    uhrwerk.stop();
    suche.reset();
    ui->zltAufzeichnung->SetzeQuelle(nullptr);
    setEnabled(false);
}

/// Looks as long as there is something to do.
void frmWiedergabe::PlaneTakt() {
    const bool noetig = steuerung.Stand().Laeuft() || suche || naechstesPaket < steuerung.Quelle().Ende();
    if (noetig && !uhrwerk.isActive())
        uhrwerk.start();
    if (!noetig)
        uhrwerk.stop();
}

void frmWiedergabe::Takt() {
    steuerung.Stand().Ruecke(Jetzt());
    if (suche)
        SucheWeiter();
    else
        SucheNotizen();
    Zeige();
}

/// A few packets at a time, beside playing.
void frmWiedergabe::SucheNotizen() {
    const Messquelle& quelle = steuerung.Quelle();
    int gelesene = 0;
    for (int i = 0; i < UebergangeneJeTakt && gelesene < PaketeJeTakt && naechstesPaket < quelle.Ende();
         ++i, ++naechstesPaket) {
        if (!quelle.HatEreignisse(naechstesPaket))
            continue;
        ++gelesene;
        const auto paket = quelle.Lies(naechstesPaket);
        if (paket == nullptr)
            continue;
        for (const Messereignis& ereignis : paket->ereignisse)
            if (ereignis.art == Messereignisart::Notiz)
                ui->zltAufzeichnung->NimmNotiz(
                    {.laufzeit = ereignis.laufzeit, .art = Sprungart::Notiz, .text = ereignis.text});
    }
}

void frmWiedergabe::SucheWeiter() {
    if (suche->Weiter(PaketeJeTakt))
        return;
    const auto fund = suche->Fund();
    suche.reset();
    if (fund) {
        steuerung.Stand().GeheZu(fund->laufzeit, Jetzt());
        Melde(Fundtext(*fund));
    } else {
        Melde(LadeText(TextKeines));
    }
}

void frmWiedergabe::SchalteUm() {
    Wiedergabe& stand = steuerung.Stand();
    suche.reset();
    Melde({});
    if (stand.Laeuft())
        stand.HalteAn(Jetzt());
    else
        stand.Spiele(Jetzt());
    Zeige();
}

void frmWiedergabe::GeheZu(Zeit laufzeit) {
    suche.reset();
    Melde({});
    steuerung.Stand().GeheZu(laufzeit, Jetzt());
    Zeige();
}

/// What was typed stays, so that it can be corrected or typed over.
void frmWiedergabe::GeheZurEingabe() {
    const std::string text = ui->txtZeit->text().toStdString();
    const Messquelle& quelle = steuerung.Quelle();
    const Zeitspanne spanne = quelle.Spanne();
    ui->txtZeit->selectAll();
    const auto eingabe = LiesZeiteingabe(text);
    if (!eingabe)
        return MeldeEingabefehler(LadeTextMit(TextKeineZeit, {Kurz(text)}));
    const auto wohin = GemeinteLaufzeit(*eingabe, quelle.Angaben(), spanne, steuerung.Stand().Position());
    if (!wohin)
        return MeldeEingabefehler(Spannentext(quelle.Angaben(), spanne));
    GeheZu(*wohin);
}

void frmWiedergabe::Schreite(bool vorwaerts) {
    suche.reset();
    Melde({});
    steuerung.Stand().Schritt(vorwaerts, Jetzt());
    Zeige();
}

/// A replay that is led to an event stands there, so that it can be looked at.
void frmWiedergabe::Springe(bool vorwaerts) {
    const Wahl& wahl = DieWahl[std::max(ui->cboEreignis->currentIndex(), 0)];
    steuerung.Stand().HalteAn(Jetzt());
    suche.emplace(steuerung.Quelle(), steuerung.Stand().Position(), vorwaerts,
                  wahl.art ? std::vector{*wahl.art} : std::vector<Sprungart>());
    Melde(LadeText(TextSucht));
    SucheWeiter();
    Zeige();
}

void frmWiedergabe::AendereTempo(bool schneller) {
    const int platz = ui->cboTempo->currentIndex() + (schneller ? 1 : -1);
    ui->cboTempo->setCurrentIndex(std::clamp(platz, 0, static_cast<int>(std::size(Tempi)) - 1));
}

void frmWiedergabe::Folge() {
    Zeige();
}

void frmWiedergabe::Zeige() {
    const Zeit wo = steuerung.Stand().Position();
    const Messquelle& quelle = steuerung.Quelle();
    const Wiedergabelage lage = steuerung.Zeige();
    ui->zltAufzeichnung->SetzePosition(wo);
    ui->lblPosition->setText(Q(Positionstext(quelle.Angaben(), quelle.Spanne(), wo)));
    const bool nenntLage = lage != Wiedergabelage::Messwert && !suche && !eingabeFalsch;
    if (nenntLage || lageGenannt)
        Melde(nenntLage ? Lagetext(lage) : std::string());
    lageGenannt = nenntLage;
    if (spielt != steuerung.Stand().Laeuft())
        ZeigeKnopf();
    PlaneTakt();
}

void frmWiedergabe::ZeigeKnopf() {
    spielt = steuerung.Stand().Laeuft();
    const QString text = Q(LadeText(spielt ? TextAnhalten : TextAbspielen));
    ui->cmdAbspielen->setIcon(Symbolbild(spielt ? QStringLiteral("pause") : QStringLiteral("abspielen")));
    ui->cmdAbspielen->setToolTip(text);
    ui->cmdAbspielen->setAccessibleName(text);
}

void frmWiedergabe::MeldeEingabefehler(const std::string& text) {
    suche.reset();
    Melde(text);
    eingabeFalsch = true;
    lageGenannt = false;
}

void frmWiedergabe::Melde(const std::string& text) {
    eingabeFalsch = false;
    ui->lblMeldung->setToolTip(Q(text));
    ZeigeMeldung();
}

/// What is longer than its room, as a note may be, ends with an ellipsis; the tool tip has all of it.
void frmWiedergabe::ZeigeMeldung() {
    const int platz =
        ui->lblMeldung->width() * Meldungszeilen - ui->lblMeldung->width() / 4; // lines end early
    ui->lblMeldung->setText(
        ui->lblMeldung->fontMetrics().elidedText(ui->lblMeldung->toolTip(), Qt::ElideRight, platz));
}

void frmWiedergabe::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    ZeigeMeldung();
}

/// The pictures have the colours of the palette; the one that changes is made anew.
void frmWiedergabe::changeEvent(QEvent* ereignis) {
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        ZeigeKnopf();
    if (ereignis->type() == QEvent::FontChange)
        RichteMeldungEin();
}

} // namespace varnoth
