#include "ereignistagebuch.h"

#include "einstellungen.h"
#include "ereignisse.h"
#include "texte.h"
#include "textmitwerten.h"
#include "umgebung.h"

#include <QDir>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextNichtGeschrieben = 6672, TextVoll = 6673, TextOhneOrdner = 6680,
                       TextAntwortetNicht = 6752;
constexpr const char* Abschnitt = "Ereignisse";
constexpr const char* SchluesselLaeuft = "Tagesdatei";
constexpr const char* SchluesselOrdner = "Ordner";
constexpr int TaktMs = 1000;
constexpr int SchreibtaktMs = 50;

std::string Dateiname(const std::string& ordner, const std::string& tag) {
    return QDir(QString::fromStdString(ordner))
        .filePath(QStringLiteral("varnoth-%1.txt").arg(QString::fromStdString(tag)))
        .toStdString();
}

std::string Grenztext(std::size_t grenze, const std::string& datei) {
    constexpr std::size_t Megabyte = std::size_t{1} << 20U;
    return LadeTextMit(TextVoll, {std::to_string(grenze / Megabyte), datei});
}

} // namespace

Ereignistagebuch::Ereignistagebuch(std::size_t hoechstens, Tagebuchschreiber::Weg weg)
    : grenze(hoechstens), schreiber(std::move(weg)) {
    Einstellungen& einstellungen = DieEinstellungen();
    stand.ordner = einstellungen.LiesText(Abschnitt, SchluesselOrdner, {});
    stand.laeuft = !stand.ordner.empty() && einstellungen.LiesZahl(Abschnitt, SchluesselLaeuft, 0) != 0;
    if (stand.laeuft)
        mitschrift.emplace(modEreignisse::Alle());
    connect(&takt, &QTimer::timeout, this, &Ereignistagebuch::Sieh);
    takt.start(TaktMs);
    connect(&schreibtakt, &QTimer::timeout, this, &Ereignistagebuch::SiehNach);
}

void Ereignistagebuch::Setze(bool laeuft, const std::string& ordner) {
    SchreibeAlles();
    stand = {.laeuft = laeuft && !ordner.empty(), .ordner = ordner};
    mitschrift.reset();
    if (stand.laeuft)
        mitschrift.emplace(modEreignisse::Alle());
    Einstellungen& einstellungen = DieEinstellungen();
    einstellungen.SchreibText(Abschnitt, SchluesselOrdner, ordner);
    einstellungen.SchreibText(Abschnitt, SchluesselLaeuft, stand.laeuft ? "1" : "0");
}

void Ereignistagebuch::Sieh() {
    if (schreiber.Laeuft())
        return SiehNach();
    if (!mitschrift || mitschrift->Faellige().zeilen.empty() || std::exchange(geplant, true))
        return;
    DieUmgebung().FuerWartezeit([buch = QPointer(this)] {
        if (buch == nullptr)
            return;
        buch->geplant = false;
        buch->Schreibe();
    });
}

void Ereignistagebuch::SchreibeAlles() {
    using Uhr = std::chrono::steady_clock;
    const auto ende = Uhr::now() + (schreiber.SchweigtLange() ? std::chrono::milliseconds{}
                                                              : Nebenfaden::LaengstesSchweigen);
    while (schreiber.Laeuft() || Schreibe()) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - Uhr::now());
        const auto ergebnis = schreiber.Hole(std::max(rest, std::chrono::milliseconds{}));
        if (!ergebnis) {
            schreiber.LasseZurueck();
            return MerkeFehler(LadeText(TextAntwortetNicht));
        }
        if (!Uebernimm(*ergebnis))
            return;
    }
}

/// Begins to write some lines of one day. False when nothing is due.
bool Ereignistagebuch::Schreibe() {
    if (!mitschrift || schreiber.Laeuft())
        return false;
    Tageszeilen zeilen = mitschrift->Faellige();
    if (zeilen.zeilen.empty())
        return false;
    schreiber.Beginne({.ordner = stand.ordner,
                       .datei = Dateiname(stand.ordner, zeilen.tag),
                       .zeilen = std::move(zeilen.zeilen),
                       .hoechstens = grenze});
    schreibtakt.start(SchreibtaktMs);
    return true;
}

/// Often at first; once a disk has been silent for long, once a second is enough.
void Ereignistagebuch::SiehNach() {
    if (const auto ergebnis = schreiber.Hole())
        Uebernimm(*ergebnis);
    else if (schreiber.SchweigtLange())
        MerkeFehler(LadeText(TextAntwortetNicht));
    if (!schreiber.Laeuft() || schreiber.SchweigtLange())
        schreibtakt.stop();
}

/// False when the lines could not be written.
bool Ereignistagebuch::Uebernimm(const Tagebuchschreiber::Ergebnis& ergebnis) {
    if (ergebnis.ohneOrdner) {
        MerkeFehler(LadeText(TextOhneOrdner));
        return false;
    }
    const auto& [voll, fehlertext] = ergebnis.angehaengt;
    if (voll || fehlertext.empty())
        mitschrift->Erledige();
    stand.datei = ergebnis.datei;
    MerkeFehler(voll ? Grenztext(grenze, stand.datei) : fehlertext);
    return stand.fehler.empty();
}

/// Said once when it begins, not with each attempt.
void Ereignistagebuch::MerkeFehler(const std::string& fehler) {
    const bool neu = !fehler.empty() && stand.fehler.empty();
    stand.fehler = fehler;
    if (neu)
        DieUmgebung().ZeigeStatustext(FeldMeldungen, LadeTextMit(TextNichtGeschrieben, {fehler}));
}

} // namespace varnoth
