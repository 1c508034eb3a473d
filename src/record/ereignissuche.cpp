#include "ereignissuche.h"

#include "statusbits.h"
#include "uebersicht.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::uint64_t PaketeZurueck = 8;    // that may lie between two passes without one of their own
constexpr int UebergangeneJeGelesenem = 4000; // to look at the overview is that much cheaper
constexpr auto Ausgangsbit = static_cast<std::uint16_t>(geraetestatus::PnpAktiv);
constexpr auto Vorhandenbit = static_cast<std::uint16_t>(optikteilstatus::Vorhanden);

std::uint16_t Ohne(std::uint16_t wert, std::uint16_t bit) {
    return static_cast<std::uint16_t>(wert & ~bit);
}

using Funde = std::vector<Sprungfund>;

/// What has changed from one pass to the next.
void VergleicheTeil(const Messdurchgang& vorher, const Messdurchgang& jetzt, int teil, Funde& funde) {
    const Teilmessung& alt = vorher.teile.at(static_cast<std::size_t>(teil));
    const Teilmessung& neu = jetzt.teile.at(static_cast<std::size_t>(teil));
    if (alt.vorhanden != neu.vorhanden)
        funde.push_back({.laufzeit = jetzt.uhr, .art = Sprungart::Teil, .teil = teil, .ein = neu.vorhanden});
    if (Ohne(alt.status, Vorhandenbit) != Ohne(neu.status, Vorhandenbit))
        funde.push_back({.laufzeit = jetzt.uhr, .art = Sprungart::Zustand, .teil = teil});
}

void Vergleiche(const Messdurchgang& vorher, const Messdurchgang& jetzt, Funde& funde) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        VergleicheTeil(vorher, jetzt, teil, funde);
    const int anders = vorher.geraetestatus ^ jetzt.geraetestatus;
    if ((anders & Ausgangsbit) != 0)
        funde.push_back({.laufzeit = jetzt.uhr,
                         .art = Sprungart::Ausgang,
                         .ein = (jetzt.geraetestatus & Ausgangsbit) != 0});
    if (Ohne(static_cast<std::uint16_t>(anders), Ausgangsbit) != 0)
        funde.push_back({.laufzeit = jetzt.uhr, .art = Sprungart::Zustand});
}

/// The last pass before a packet; nothing when there is none near.
std::optional<Messdurchgang> LetzterVor(const Messquelle& quelle, std::uint64_t nummer) {
    const std::uint64_t zahl = std::min(nummer - quelle.Erstes(), PaketeZurueck);
    for (std::uint64_t i = 1; i <= zahl; ++i)
        if (const auto paket = quelle.Lies(nummer - i); paket != nullptr && !paket->durchgaenge.empty())
            return paket->durchgaenge.back();
    return std::nullopt;
}

void NimmEreignisse(const Messpaket& paket, Funde& funde) {
    for (const Messereignis& ereignis : paket.ereignisse)
        if (ereignis.art == Messereignisart::Notiz)
            funde.push_back({.laufzeit = ereignis.laufzeit, .art = Sprungart::Notiz, .text = ereignis.text});
        else if (ereignis.art != Messereignisart::Verworfen)
            funde.push_back({.laufzeit = ereignis.laufzeit,
                             .art = Sprungart::Verbindung,
                             .ein = ereignis.art == Messereignisart::LiveBegonnen ||
                                    ereignis.art == Messereignisart::Zurueck,
                             .ereignis = ereignis.art});
}

bool IstGleich(const Bitspanne& bits, const Bitspanne& erste) {
    return bits == erste && (bits.einmal == bits.immer || bits == Bitspanne{});
}

/// Whether every status is the same throughout some stretches.
bool BleibtGleich(const Uebersicht& uebersicht, std::size_t erster, std::size_t letzter) {
    for (std::size_t i = erster; i <= letzter; ++i) {
        if (uebersicht.HatLuecke(i) ||
            !IstGleich(uebersicht.Geraetestatus(i), uebersicht.Geraetestatus(erster)))
            return false;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            if (!IstGleich(uebersicht.Status(i, teil), uebersicht.Status(erster, teil)))
                return false;
    }
    return true;
}

} // namespace

std::vector<Sprungfund> FundeIn(const Messquelle& quelle, std::uint64_t nummer) {
    Funde funde;
    const auto paket = quelle.Lies(nummer);
    if (paket == nullptr)
        return funde;
    NimmEreignisse(*paket, funde);
    const std::optional<Messdurchgang> davor =
        paket->durchgaenge.empty() ? std::nullopt : LetzterVor(quelle, nummer);
    const Messdurchgang* vorher = davor ? &*davor : nullptr;
    for (const Messdurchgang& durchgang : paket->durchgaenge) {
        if (vorher != nullptr)
            Vergleiche(*vorher, durchgang, funde);
        vorher = &durchgang;
    }
    std::ranges::stable_sort(funde, {}, &Sprungfund::laufzeit);
    return funde;
}

Ereignissuche::Ereignissuche(const Messquelle& woher, Zeit abWann, bool nachVorn,
                             std::vector<Sprungart> welche)
    : quelle(woher), von(abWann), vorwaerts(nachVorn), arten(std::move(welche)),
      naechstes(quelle.PaketUm(von)) {
    uebrige = vorwaerts ? quelle.Ende() - naechstes : naechstes - quelle.Erstes() + 1;
    if (quelle.Erstes() == quelle.Ende())
        uebrige = 0;
}

bool Ereignissuche::Passt(const Sprungfund& einer) const {
    const bool dahinter = vorwaerts ? einer.laufzeit > von : einer.laufzeit < von;
    return dahinter && (arten.empty() || std::ranges::find(arten, einer.art) != arten.end());
}

/// Whether nothing has changed in the next packet, and since the one before it.
bool Ereignissuche::IstEintoenig() const {
    if (naechstes == quelle.Erstes() || quelle.HatEreignisse(naechstes))
        return false;
    const Uebersicht& uebersicht = quelle.DieUebersicht();
    if (uebersicht.Anzahl() == 0)
        return false;
    return BleibtGleich(uebersicht, uebersicht.AbschnittUm(quelle.Spanne(naechstes - 1).bis),
                        uebersicht.AbschnittUm(quelle.Spanne(naechstes).bis));
}

bool Ereignissuche::Weiter(int hoechstensPakete) {
    for (int arbeit = hoechstensPakete * UebergangeneJeGelesenem; arbeit > 0 && uebrige > 0 && !fund;) {
        const bool eintoenig = IstEintoenig();
        arbeit -= eintoenig ? 1 : UebergangeneJeGelesenem;
        const auto funde = eintoenig ? Funde() : FundeIn(quelle, naechstes);
        const auto passt = [this](const Sprungfund& einer) { return Passt(einer); };
        if (vorwaerts) {
            if (const auto da = std::ranges::find_if(funde, passt); da != funde.end())
                fund = *da;
        } else if (const auto da = std::find_if(funde.rbegin(), funde.rend(), passt); da != funde.rend()) {
            fund = *da;
        }
        naechstes = vorwaerts ? naechstes + 1 : naechstes - 1;
        --uebrige;
    }
    return uebrige > 0 && !fund;
}

} // namespace varnoth
