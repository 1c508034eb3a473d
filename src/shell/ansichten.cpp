#include "ansichten.h"

#include "ansichtstitel.h"
#include "einstellungen.h"
#include "fensterplatz.h"
#include "frmDocument.h"
#include "gezeigtesabbild.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace varnoth {

namespace {

constexpr const char* Abschnitt = "Ansichten"; // of the settings file
constexpr const char* Schluessel = "Anordnung";

struct Anordnungsname {
    Anordnung art;
    const char* name;
};

constexpr Anordnungsname DieNamen[] = {{Anordnung::Nebeneinander, "Nebeneinander"},
                                       {Anordnung::Untereinander, "Untereinander"}};

std::optional<Anordnung> GespeicherteKachelung() {
    const std::string name = DieEinstellungen().LiesText(Abschnitt, Schluessel, "");
    const auto* const da = std::ranges::find(DieNamen, name, &Anordnungsname::name);
    return da == std::ranges::end(DieNamen) ? std::nullopt : std::optional(da->art);
}

void SpeichereKachelung(std::optional<Anordnung> kachelung) {
    if (kachelung == GespeicherteKachelung())
        return;
    const auto* const da =
        std::ranges::find_if(DieNamen, [&](const auto& name) { return name.art == kachelung; });
    DieEinstellungen().SchreibText(Abschnitt, Schluessel, da == std::ranges::end(DieNamen) ? "" : da->name);
}

/// Sets a mark for as long as it lives.
class Waehrend {
public:
    explicit Waehrend(bool& gesetzte) : marke(gesetzte), vorher(std::exchange(gesetzte, true)) {}
    Waehrend(const Waehrend&) = delete;
    Waehrend& operator=(const Waehrend&) = delete;
    ~Waehrend() { marke = vorher; }

private:
    bool& marke;
    bool vorher;
};

} // namespace

Ansichten::Ansichten(QMdiArea& mdiBereich)
    : bereich(mdiBereich), kachelung(GespeicherteKachelung()), vonFrueher(true) {
    titeltexte.fill(TextOffline);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        hatPlatz[static_cast<std::size_t>(teil)] =
            LiesFensterplatz(DieEinstellungen(), std::to_string(teil) + "Form",
                             {.zustand = ZustandNichtGespeichert})
                .zustand != ZustandNichtGespeichert;
    bereich.viewport()->installEventFilter(this);
}

bool Ansichten::SindGeladen() const {
    return ansichten.front() != nullptr;
}

/// All at once, the first one last, so that it lies above the others.
void Ansichten::LadeAlle() {
    for (int teil = AnzahlOptikteile - 1; !SindGeladen(); --teil)
        Lade(teil);
}

void Ansichten::Lade(int optikteil) {
    const auto platz = static_cast<std::size_t>(optikteil);
    auto* ansicht = new frmDocument(optikteil);
    ansichten[platz] = ansicht;
    rahmen[platz] = bereich.addSubWindow(ansicht);
    rahmen[platz]->setAttribute(Qt::WA_DeleteOnClose, false);
    rahmen[platz]->hide();
    connect(ansicht, &frmDocument::Eingerichtet, this,
            [this, optikteil] { emit Gewechselt(optikteil, true); });
    connect(ansicht, &frmDocument::Geschlossen, this,
            [this, optikteil] { emit Gewechselt(optikteil, false); });
    SetzeTitel(optikteil, titeltexte.at(platz));
    ansicht->InitForm();
    rahmen[platz]->installEventFilter(this);
}

frmDocument& Ansichten::Ansicht(int optikteil) {
    LadeAlle();
    return *ansichten.at(static_cast<std::size_t>(optikteil));
}

bool Ansichten::BaueAuf() {
    const auto ohnePlatz = [this](int teil) {
        return modDaten::GezeigteStrahlenzahl(teil) > 0 && !hatPlatz[static_cast<std::size_t>(teil)];
    };
    const auto mitPlatz = [this](int teil) {
        return modDaten::GezeigteStrahlenzahl(teil) > 0 && hatPlatz[static_cast<std::size_t>(teil)];
    };
    constexpr std::array teile{0, 1, 2, 3};
    const bool neue = std::ranges::any_of(teile, ohnePlatz);
    const bool gekachelt = kachelung && !vonFrueher;
    const bool eigene = !gekachelt && std::ranges::any_of(teile, mitPlatz);
    if (neue && eigene)
        kachelung.reset();
    ZeigeGebaute();
    if (!neue && kachelung)
        FolgeFlaeche();
    return neue && !eigene;
}

void Ansichten::ZeigeGebaute() {
    const Waehrend marke(ordnet);
    for (int teil = AnzahlOptikteile - 1; teil >= 0; --teil) {
        const auto platz = static_cast<std::size_t>(teil);
        if (modDaten::GezeigteStrahlenzahl(teil) > 0) {
            hatPlatz[platz] = true;
            Ansicht(teil).InitfrmDocument();
            Ansicht(teil).Zeige();
        } else if (SindGeladen() && rahmen[platz]->isVisible()) {
            rahmen[platz]->close();
        }
    }
}

void Ansichten::Zeige(int optikteil, bool live) {
    const Waehrend marke(ordnet);
    Ansicht(optikteil).InitfrmDocument();
    SetzeTitel(optikteil, Titeltext(modPolling::GetOptikteilStatus(optikteil), live));
    Ansicht(optikteil).Zeige();
}

std::vector<QMdiSubWindow*> Ansichten::Gezeigte() const {
    std::vector<QMdiSubWindow*> gezeigte;
    if (SindGeladen())
        std::ranges::copy_if(rahmen, std::back_inserter(gezeigte),
                             [](const QMdiSubWindow* fenster) { return !fenster->isHidden(); });
    return gezeigte;
}

int Ansichten::AnzahlGezeigter() const {
    return static_cast<int>(Gezeigte().size());
}

void Ansichten::SetzeTitel(int optikteil, std::int16_t textId) {
    const auto platz = static_cast<std::size_t>(optikteil);
    const QString titel = wiedergabe ? Wiedergabetitel(optikteil, textId) : Ansichtstitel(optikteil, textId);
    titeltexte.at(platz) = textId;
    if (ansichten.at(platz) == nullptr)
        return;
    ansichten.at(platz)->setWindowTitle(titel);
    rahmen.at(platz)->setWindowTitle(titel);
    if (textId != TextOnline)
        ansichten.at(platz)->VerwirfWerte();
}

void Ansichten::ZeigeZustaende(bool live) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, Titeltext(modPolling::GetOptikteilStatus(teil), live));
}

void Ansichten::ZeigeAlleOffline() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, TextOffline);
}

void Ansichten::SetzeWiedergabe(bool ob) {
    wiedergabe = ob;
    LadeAlle();
    for (frmDocument* ansicht : ansichten)
        ansicht->SetzeZeitlos(ob);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, titeltexte.at(static_cast<std::size_t>(teil)));
}

void Ansichten::ZeigeDurchgang(int optikteil) {
    frmDocument& ansicht = Ansicht(optikteil);
    ansicht.NeuerDatensatz();
    ansicht.StrahlzustaendeLiegenVor();
    ansicht.BlankingBekannt();
    ansicht.MesswerteLiegenVor();
}

void Ansichten::VerwirfWerte(int optikteil) {
    Ansicht(optikteil).VerwirfWerte();
}

Ansichten::Stand Ansichten::HoleStand() const {
    Stand stand{.titeltexte = titeltexte};
    for (std::size_t teil = 0; SindGeladen() && teil < rahmen.size(); ++teil)
        stand.gezeigt[teil] = !rahmen[teil]->isHidden();
    return stand;
}

void Ansichten::StelleHer(const Stand& stand) {
    {
        const Waehrend marke(ordnet);
        for (int teil = AnzahlOptikteile - 1; SindGeladen() && teil >= 0; --teil)
            StelleTeilHer(teil, stand.gezeigt.at(static_cast<std::size_t>(teil)));
    }
    FolgeFlaeche();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, stand.titeltexte.at(static_cast<std::size_t>(teil)));
}

void Ansichten::StelleTeilHer(int optikteil, bool gezeigt) {
    const auto platz = static_cast<std::size_t>(optikteil);
    if (gezeigt) {
        Ansicht(optikteil).InitfrmDocument();
        Ansicht(optikteil).Zeige();
    } else if (rahmen[platz]->isVisible()) {
        rahmen[platz]->close();
    }
}

void Ansichten::Lokalisiere() {
    const Waehrend marke(ordnet);
    if (!SindGeladen())
        return;
    for (frmDocument* ansicht : ansichten)
        ansicht->Lokalisiere();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, titeltexte.at(static_cast<std::size_t>(teil)));
}

QSize Ansichten::KleinsterRahmen() {
    LadeAlle();
    return rahmen[0]
        ->minimumSizeHint()
        .expandedTo(rahmen[0]->minimumSize())
        .expandedTo(ansichten[0]->minimumSize() + rahmen[0]->size() - ansichten[0]->size());
}

void Ansichten::Ordne(Anordnung art) {
    const Waehrend marke(ordnet);
    auto gezeigte = Gezeigte();
    std::erase_if(gezeigte, [](const QMdiSubWindow* fenster) { return fenster->isMinimized(); });
    const auto plaetze =
        OrdneAn(art, static_cast<int>(gezeigte.size()), bereich.viewport()->size(), KleinsterRahmen());
    for (std::size_t i = 0; i < plaetze.size(); ++i) {
        gezeigte[i]->showNormal();
        gezeigte[i]->setGeometry(plaetze[i]);
    }
    kachelung = art;
    vonFrueher = false;
}

void Ansichten::OrdneWieZuvor() {
    Ordne(kachelung.value_or(Anordnung::Nebeneinander));
}

void Ansichten::Staffle() {
    bereich.cascadeSubWindows();
    kachelung.reset();
}

void Ansichten::SchalteGrossanzeige() {
    if (!SindGeladen())
        return;
    const QMdiSubWindow* vorn = bereich.currentSubWindow();
    auto gemeint = std::ranges::find(rahmen, vorn);
    if (vorn == nullptr || !vorn->isVisible())
        gemeint = std::ranges::find_if(rahmen, [](const QMdiSubWindow* einer) { return einer->isVisible(); });
    if (gemeint != rahmen.end())
        Ansicht(static_cast<int>(gemeint - rahmen.begin())).SchalteGrossanzeige();
}

bool Ansichten::EineMaximiert() const {
    return std::ranges::any_of(Gezeigte(), &QMdiSubWindow::isMaximized);
}

/// A tiling fills the area anew; one that lies under a maximised view waits until that is gone.
void Ansichten::FolgeFlaeche() {
    if (!kachelung || ordnet || AnzahlGezeigter() == 0)
        return;
    nachzuholen = wechselt || EineMaximiert();
    if (!nachzuholen)
        Ordne(*kachelung);
}

bool Ansichten::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (const auto* const fenster = qobject_cast<QMdiSubWindow*>(objekt))
        BemerkeRahmen(ereignis->type(), *fenster);
    else if (ereignis->type() == QEvent::Resize)
        FolgeFlaeche();
    return false;
}

/// Qt moves a view that is maximised, minimised or restored; that is no arrangement of the user's.
void Ansichten::BemerkeWechsel() {
    wechselt = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            wechselt = false;
            if (nachzuholen)
                FolgeFlaeche();
        },
        Qt::QueuedConnection);
}

void Ansichten::BemerkeRahmen(QEvent::Type ereignis, const QMdiSubWindow& fenster) {
    const bool bewegt = ereignis == QEvent::Move || ereignis == QEvent::Resize;
    if (ereignis == QEvent::ShowToParent || ereignis == QEvent::HideToParent)
        emit ZahlGewechselt();
    else if (ereignis == QEvent::WindowStateChange)
        BemerkeWechsel();
    else if (bewegt && !ordnet && !wechselt && fenster.isVisible() && !fenster.isMaximized() &&
             !fenster.isMinimized())
        kachelung.reset();
}

void Ansichten::SpeicherePlaetze() const {
    if (SindGeladen())
        for (const frmDocument* ansicht : ansichten)
            ansicht->SpeicherePlatz();
    SpeichereKachelung(kachelung);
}

} // namespace varnoth
