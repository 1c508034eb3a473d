#include "speichersicherung.h"

#include "vrecform.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

using Uhr = std::chrono::steady_clock;

} // namespace

Speichersicherung::Speichersicherung(const Messquelle& quelle, Zeitspanne spanne, std::string pfad,
                                     Schreiber derSchreiber)
    : abschrift(quelle, std::make_unique<Vrecform>(), spanne), schreibe(std::move(derSchreiber)),
      inhalt(std::make_shared<Inhalt>(Inhalt{.pfad = std::move(pfad), .bytes = {}, .fehler = {}})) {}

bool Speichersicherung::Arbeite(Zeit dauer) {
    if (faden)
        return false;
    const auto ende = Uhr::now() + dauer;
    do {
        const auto stueck = abschrift.Weiter();
        if (!stueck) {
            faden.emplace([inhalt = inhalt, schreibe = schreibe] {
                inhalt->fehler = schreibe(inhalt->pfad, inhalt->bytes);
            });
            return false;
        }
        inhalt->bytes += *stueck;
    } while (Uhr::now() < ende);
    return true;
}

bool Speichersicherung::IstFertig() {
    return faden && faden->WarteAufEnde({});
}

bool Speichersicherung::Beende(std::chrono::milliseconds hoechstens) {
    const auto ende = Uhr::now() + hoechstens;
    while (Uhr::now() < ende && Arbeite(hoechstens)) {
    }
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - Uhr::now());
    if (faden && faden->WarteAufEnde(std::max(rest, std::chrono::milliseconds{0})))
        return true;
    if (faden)
        faden->LasseZurueck();
    return false;
}

} // namespace varnoth
