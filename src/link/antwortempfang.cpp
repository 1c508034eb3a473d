#include "antwortempfang.h"

#include "austauschstand.h"
#include "erkenner.h"
#include "gestalt.h"
#include "schnittstelle.h"
#include "startzustand.h"

#include <algorithm>
#include <utility>

namespace varnoth::modAustausch {

namespace {

using namespace modSchnittstelle;

struct Zustand {
    std::string beantwortete{};  ///< the request that succeeded last
    std::string letzteAntwort{}; ///< the one that was believed last
    std::string ungefragtes{};   ///< bytes since then that nobody was waiting for
};

Zustand zustand;
const Startwert startwert(zustand);

/// A copy right behind its original does no harm while there is nothing but this one exchange in doubt: the
/// value is the same whichever of the two it was taken from.
bool IstHarmlos(std::string_view antwort) {
    return antwort == zustand.letzteAntwort &&
           DerStand().gewissheit.Letzter() <= DerStand().gewissheit.GewissBis() + 1;
}

/// Whether the bytes hold what may be the own reply, broken, of a request that believed another's.
bool IstZerbrochene(std::string_view bytes) {
    return !zustand.beantwortete.empty() && EnthaeltAehnliche(bytes, zustand.beantwortete);
}

int MillisekundenBis(Zeit ende) {
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - DieUmgebung().Uhr());
    return static_cast<int>(std::max(rest.count(), std::chrono::milliseconds::rep{0}));
}

} // namespace

void NimmUngefragtes(std::string_view bytes) {
    zustand.ungefragtes += bytes;
    const auto antworten = SucheAntworten(zustand.ungefragtes);
    const bool zerbrochene = antworten.empty() && IstZerbrochene(zustand.ungefragtes);
    if (zerbrochene)
        zustand.ungefragtes.clear();
    if (zerbrochene || !std::ranges::all_of(antworten, IstHarmlos))
        DerStand().gewissheit.Gebrochen();
    if (!antworten.empty())
        zustand.ungefragtes.clear();
}

bool Empfange(Erkenner& erkenner, std::string& strom) {
    while (!erkenner.Fertig()) {
        const Zeit ende = DieUmgebung().Uhr() + Antwortzeit;
        WarteAufRest(erkenner.MindestensNoch());
        if (!WarteAufZeichen(MillisekundenBis(ende), True))
            return false;
        const std::string bytes = CommPortReadInput();
        strom += bytes;
        if (!erkenner.Verarbeite(bytes))
            return false;
    }
    return erkenner.CrcStimmt();
}

bool ErwarteIdentAntwort(std::string& strom, Zeit ende) {
    for (;;) {
        const std::string bisher = strom;
        if (NimmIdentAntwort(strom)) {
            const std::string_view davor = std::string_view(bisher).substr(0, bisher.size() - strom.size());
            const std::string_view identAntwort = SucheAntworten(davor).back();
            NimmUngefragtes(davor.substr(0, davor.size() - identAntwort.size()));
            zustand.letzteAntwort = identAntwort;
            return true;
        }
        if (!WarteAufZeichen(MillisekundenBis(ende), True)) {
            NimmUngefragtes(std::exchange(strom, {}));
            return false;
        }
        strom += CommPortReadInput();
    }
}

bool EmpfangeUnterAnderem(Erkenner& erkenner) {
    constexpr Zeit Suchdauer = std::chrono::milliseconds(250);
    std::string strom;
    return ErwarteIdentAntwort(strom, DieUmgebung().Uhr() + Suchdauer) &&
           erkenner.Verarbeite(zustand.letzteAntwort);
}

void BewerteScheitern(const std::string& anforderung, const std::string& strom) {
    const auto antworten = SucheAntworten(strom);
    const auto vorDerAntwort = [&] {
        return std::string_view(strom).substr(0,
                                              static_cast<std::size_t>(antworten[0].data() - strom.data()));
    };
    if (antworten.size() > 1 ||
        (antworten.size() == 1 && (!Passt(antworten[0], anforderung) || IstZerbrochene(vorDerAntwort()))))
        DerStand().gewissheit.Gebrochen();
    // The rest of a reply that has begun may still be on its way.
    const auto ende = antworten.empty() ? strom.data() : antworten.back().data() + antworten.back().size();
    zustand.ungefragtes = strom.substr(static_cast<std::size_t>(ende - strom.data()));
    if (antworten.empty() && EnthaeltAehnliche(strom, anforderung))
        zustand.ungefragtes.clear(); // broken, but all of it
}

void BewerteErfolg(const std::string& anforderung, const Erkenner& erkenner, const std::string& strom) {
    const std::string_view bisEnde = std::string_view(strom).substr(0, erkenner.Genommen());
    const auto antworten = SucheAntworten(bisEnde);
    if (antworten.size() > 1)
        DerStand().gewissheit.Gebrochen();
    zustand.letzteAntwort = antworten.empty() ? std::string() : std::string(antworten.back());
    zustand.ungefragtes.clear();
    zustand.beantwortete = anforderung;
    DerStand().gewissheit.Gelungen(Gestalt(anforderung));
    DerStand().zuordnung.Beantwortet(anforderung);
    if (!erkenner.Ueberzaehlig())
        return;
    DerStand().zuordnung.Ueberzaehliges();
    NimmUngefragtes(std::string_view(strom).substr(erkenner.Genommen()));
}

} // namespace varnoth::modAustausch
