#include "durchgangsmeldung.h"

#include "austausch.h"
#include "messhoerer.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "startzustand.h"
#include "strahlbits.h"

#include <algorithm>
#include <vector>

namespace varnoth::modDurchgangsmeldung {

namespace {

using namespace modDaten;

constexpr int Registerbits = 16;
constexpr int MeisteStrahlen = 1009;

/// A pass that came to its end, and its last exchange: the pass is certain when that is.
struct Beendeter {
    unsigned long austausch;
    Messdurchgang durchgang;
};

Messdurchgang laufender;         ///< the pass under way
std::vector<Beendeter> beendete; ///< those that are not certain yet
const Startwert startwert(laufender, beendete);

Teilmessung& Teil(int teil) {
    return laufender.teile.at(static_cast<std::size_t>(teil));
}

std::uint16_t AlsRegister(std::int32_t wert) {
    return static_cast<std::uint16_t>(wert);
}

int Strahlen(int teil) {
    return std::clamp(Strahlenzahl(teil), 0, MeisteStrahlen);
}

void MeldeGewisse() {
    const auto ungewiss = std::ranges::find_if(
        beendete, [](const Beendeter& einer) { return einer.austausch > modAustausch::GewissBis(); });
    std::for_each(beendete.begin(), ungewiss,
                  [](const Beendeter& einer) { modMesshoerer::Melde(einer.durchgang); });
    beendete.erase(beendete.begin(), ungewiss);
}

} // namespace

void Beginne() {
    laufender = {};
}

void MerkeStatus(int teil, bool vorhanden) {
    Teilmessung& messung = Teil(teil);
    messung.status = AlsRegister(HoleRegister(Spezifisch, spezifisch::Optikteilstatus, teil));
    messung.vorhanden = vorhanden;
    messung.strahlen = static_cast<std::int16_t>(Strahlen(teil));
}

void MerkeStrahlen(int teil, Werte werte) {
    if (!modMesshoerer::HoertJemand())
        return;
    for (int strahl = Strahlen(teil); strahl < static_cast<int>(werte.size()) * Registerbits; ++strahl)
        SetzeStrahlBit(werte, strahl, false);
    std::ranges::transform(werte, Teil(teil).strahlregister.begin(), AlsRegister);
}

void MerkeMesswerte(int teil) {
    std::ranges::transform(HoleParameter(Spezifisch, spezifisch::Messwerte, teil), Teil(teil).werte.begin(),
                           AlsRegister);
    Teil(teil).gemessen = true;
}

void Beende(Systemzeit zeit, int anzahlTeile) {
    if (!modMesshoerer::HoertJemand())
        return;
    laufender.zeit = zeit;
    laufender.uhr = DieUmgebung().Uhr();
    laufender.anzahlTeile = anzahlTeile;
    laufender.geraetestatus =
        AlsRegister(HoleRegister(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus));
    beendete.push_back({modAustausch::Letzter(), laufender});
    MeldeGewisse();
}

void Verwirf() {
    MeldeGewisse();
    beendete.clear();
}

} // namespace varnoth::modDurchgangsmeldung
