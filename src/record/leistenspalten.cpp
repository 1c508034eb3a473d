#include "leistenspalten.h"

#include "uebersicht.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

bool Wechselt(const Bitspanne& bits) {
    return bits != Bitspanne{} && bits.einmal != bits.immer;
}

bool Wechselt(const Uebersicht& uebersicht, std::size_t i) {
    bool wechselt = Wechselt(uebersicht.Geraetestatus(i));
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        wechselt = wechselt || Wechselt(uebersicht.Status(i, teil));
    return wechselt;
}

/// Where nothing was measured there is no stretch: a gap goes on to the next one.
Zeit Lueckenende(const Uebersicht& uebersicht, std::size_t i, Zeit ende) {
    return i + 1 < uebersicht.Anzahl() ? uebersicht.Spanne(i + 1).von : ende;
}

} // namespace

Zeit ZeitDerSpalte(const Zeitspanne& spanne, int anzahl, int spalte) {
    if (anzahl < 2)
        return spanne.von;
    const double anteil = static_cast<double>(std::clamp(spalte, 0, anzahl - 1)) / (anzahl - 1);
    return spanne.von + Zeit(std::llround(anteil * static_cast<double>((spanne.bis - spanne.von).count())));
}

int SpalteDerZeit(const Zeitspanne& spanne, int anzahl, Zeit laufzeit) {
    if (anzahl < 2 || spanne.bis <= spanne.von)
        return 0;
    const double anteil = static_cast<double>((laufzeit - spanne.von).count()) /
                          static_cast<double>((spanne.bis - spanne.von).count());
    return static_cast<int>(std::lround(std::clamp(anteil, 0.0, 1.0) * (anzahl - 1)));
}

std::vector<Leistenspalte> Leistenspalten(const Uebersicht& uebersicht, const Zeitspanne& spanne,
                                          int anzahl) {
    std::vector<Leistenspalte> spalten(static_cast<std::size_t>(std::max(anzahl, 0)));
    if (spalten.empty())
        return spalten;
    const auto markiere = [&](Zeit von, Zeit bis, bool Leistenspalte::*was) {
        const int letzte = SpalteDerZeit(spanne, anzahl, bis);
        for (int spalte = SpalteDerZeit(spanne, anzahl, von); spalte <= letzte; ++spalte)
            spalten[static_cast<std::size_t>(spalte)].*was = true;
    };
    for (std::size_t i = 0; i < uebersicht.Anzahl(); ++i) {
        const Zeitspanne hier = uebersicht.Spanne(i);
        if (Wechselt(uebersicht, i))
            markiere(hier.von, hier.bis, &Leistenspalte::wechsel);
        if (uebersicht.HatLuecke(i))
            markiere(hier.von, Lueckenende(uebersicht, i, spanne.bis), &Leistenspalte::luecke);
    }
    return spalten;
}

} // namespace varnoth
