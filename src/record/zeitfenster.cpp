#include "zeitfenster.h"

#include "strahlworte.h"
#include "zeitworte.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace varnoth {

namespace {

using namespace std::chrono_literals;

constexpr std::array<std::int64_t, 10> Stufen{10, 12, 15, 20, 25, 30, 40, 50, 60, 80};
constexpr int StufenJeZehnfach = static_cast<int>(Stufen.size());

constexpr Zeit DieAbstaende[] = {1ms,   2ms, 5ms, 10ms, 20ms, 50ms, 100ms, 200ms, 500ms, 1s,
                                 2s,    5s,  10s, 15s,  30s,  1min, 2min,  5min,  10min, 15min,
                                 30min, 1h,  2h,  4h,   6h,   12h,  24h,   48h,   96h,   240h};

Zeit Stufe(int nummer) {
    std::int64_t breite = Stufen.at(static_cast<std::size_t>(nummer % StufenJeZehnfach));
    for (int i = 0; i < nummer / StufenJeZehnfach; ++i)
        breite *= 10;
    return Zeit(breite * (KleinsteSpalte.count() / Stufen.front()));
}

int StufeAb(Zeit mindestens) {
    int nummer = 0;
    while (Stufe(nummer) < mindestens && Stufe(nummer) < GroessteSpalte)
        ++nummer;
    return nummer;
}

std::int64_t Abgerundet(std::int64_t wert, std::int64_t teiler) {
    return wert / teiler - (wert % teiler < 0 ? 1 : 0);
}

/// Local time at a source's time: no more of it than a tick's distance tells apart.
std::string Strichtext(const Messangaben& angaben, Zeit zeit, Zeit abstand) {
    constexpr std::size_t MitSekunden = 8;
    constexpr std::size_t OhneSekunden = 5;
    constexpr std::size_t Datum = 10;
    std::string uhr = Uhrzeitworte(angaben, zeit);
    if (abstand < 1s)
        return uhr;
    if (abstand < 1min)
        return uhr.substr(0, MitSekunden);
    if (abstand < 24h)
        return uhr.substr(0, OhneSekunden);
    return Zeitworte(angaben, zeit).substr(0, Datum);
}

} // namespace

std::int64_t Zeitfenster::SpalteUm(Zeit zeit) const {
    return Abgerundet(zeit.count(), breite.count());
}

Zeit Spaltenstufe(Zeit mindestens) {
    return std::min(Stufe(StufeAb(mindestens)), GroessteSpalte);
}

Zeit Spaltenstufe(Zeit breite, int schritte) {
    return std::min(Stufe(std::max(0, StufeAb(breite) + schritte)), GroessteSpalte);
}

Zeitfenster FensterUm(const Zeitspanne& spanne, int spalten) {
    const int anzahl = std::max(1, spalten);
    const Zeit dauer = std::max(spanne.bis - spanne.von, Zeit(1));
    Zeitfenster fenster{.breite = Spaltenstufe(Zeit(dauer.count() / anzahl + 1)), .spalten = anzahl};
    fenster.erste = fenster.SpalteUm(spanne.von);
    while (fenster.Bis() <= spanne.bis && fenster.breite < GroessteSpalte) {
        fenster.breite = Spaltenstufe(fenster.breite, 1);
        fenster.erste = fenster.SpalteUm(spanne.von);
    }
    return fenster;
}

Zeitfenster Gezoomt(const Zeitfenster& fenster, Zeit um, int schritte) {
    Zeitfenster neues = fenster;
    neues.breite = Spaltenstufe(fenster.breite, schritte);
    neues.erste = neues.SpalteUm(um) - (fenster.SpalteUm(um) - fenster.erste);
    return neues;
}

Zeitfenster Verschoben(const Zeitfenster& fenster, std::int64_t um, const Zeitspanne& alles) {
    Zeitfenster neues = fenster;
    const std::int64_t frueheste = fenster.SpalteUm(alles.von) - fenster.spalten / 2;
    const std::int64_t spaeteste = fenster.SpalteUm(alles.bis) - fenster.spalten / 2;
    neues.erste = std::clamp(fenster.erste + um, std::min(frueheste, fenster.erste),
                             std::max(spaeteste, fenster.erste));
    return neues;
}

Zeitfenster MitSpalten(const Zeitfenster& fenster, int spalten) {
    Zeitfenster neues = fenster;
    neues.spalten = std::max(1, spalten);
    neues.erste = fenster.erste + fenster.spalten - neues.spalten;
    return neues;
}

Zeitfenster BisZu(const Zeitfenster& fenster, Zeit zeit) {
    Zeitfenster neues = fenster;
    neues.erste = fenster.SpalteUm(zeit) - fenster.spalten + 1;
    return neues;
}

Zeit Strichabstand(const Zeitfenster& fenster, int mindestensSpalten) {
    const auto* const da = std::ranges::find_if(
        DieAbstaende, [&](Zeit abstand) { return abstand >= mindestensSpalten * fenster.breite; });
    return da == std::end(DieAbstaende) ? *std::prev(std::end(DieAbstaende)) : *da;
}

std::vector<Fensterstrich> Fensterstriche(const Zeitfenster& fenster, int mindestensSpalten,
                                          const Messangaben& angaben) {
    const Zeit abstand = Strichabstand(fenster, std::max(1, mindestensSpalten));
    const auto ort = std::chrono::duration_cast<Zeit>(angaben.beginn.time_since_epoch()) +
                     std::chrono::minutes(angaben.zoneMinuten);
    std::vector<Fensterstrich> striche;
    const Zeit von = Abgerundet((fenster.Von() + ort).count() - 1, abstand.count()) * abstand + abstand - ort;
    for (Zeit zeit = von; zeit < fenster.Bis(); zeit += abstand)
        striche.push_back({zeit, Strichtext(angaben, zeit, abstand)});
    return striche;
}

} // namespace varnoth
