#include "wiedergabe.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace varnoth {

namespace {

// Packets that hold nothing that matters stand together in small numbers; so many may be read at one go.
constexpr std::uint64_t MeisteGelesene = 64;

bool IstVerbindungsereignis(const Messereignis& ereignis) {
    return ereignis.art != Messereignisart::Notiz && ereignis.art != Messereignisart::Verworfen;
}

bool Unterbricht(Messereignisart art) {
    return art == Messereignisart::Verloren || art == Messereignisart::LiveBeendet;
}

Wiedergabelage LageNach(Messereignisart art) {
    if (art == Messereignisart::Verloren)
        return Wiedergabelage::Verloren;
    return art == Messereignisart::LiveBeendet ? Wiedergabelage::Beendet : Wiedergabelage::Leer;
}

/// What happened to live data last, up to a time.
const Messereignis* LetztesEreignis(const Messpaket& paket, Zeit bis) {
    const Messereignis* letztes = nullptr;
    for (const Messereignis& ereignis : paket.ereignisse)
        if (ereignis.laufzeit <= bis && IstVerbindungsereignis(ereignis))
            letztes = &ereignis;
    return letztes;
}

/// A break at the time of a pass comes behind it, a return before it.
bool LiegtDahinter(const Messereignis& ereignis, const Messdurchgang& durchgang) {
    return Unterbricht(ereignis.art) ? ereignis.laufzeit >= durchgang.uhr : ereignis.laufzeit > durchgang.uhr;
}

/// What a packet tells of a time; nothing when it begins to tell something only later.
std::optional<Wiedergabestelle> StelleIn(std::shared_ptr<const Messpaket> paket, std::uint64_t nummer,
                                         Zeit laufzeit) {
    const auto& alle = paket->durchgaenge;
    const auto danach = std::ranges::upper_bound(alle, laufzeit, {}, &Messdurchgang::uhr);
    const Messereignis* const ereignis = LetztesEreignis(*paket, laufzeit);
    Wiedergabestelle stelle{.nummer = nummer};
    if (danach != alle.begin() && (ereignis == nullptr || !LiegtDahinter(*ereignis, *std::prev(danach)))) {
        stelle.lage = Wiedergabelage::Messwert;
        stelle.platz = static_cast<std::size_t>(danach - alle.begin()) - 1;
    } else if (ereignis != nullptr) {
        stelle.lage = LageNach(ereignis->art);
    } else {
        return std::nullopt;
    }
    stelle.paket = std::move(paket);
    return stelle;
}

std::optional<Zeit> Naechster(const Messpaket& paket, Zeit laufzeit) {
    const auto da = std::ranges::upper_bound(paket.durchgaenge, laufzeit, {}, &Messdurchgang::uhr);
    return da == paket.durchgaenge.end() ? std::nullopt : std::optional(da->uhr);
}

std::optional<Zeit> Voriger(const Messpaket& paket, Zeit laufzeit) {
    const auto da = std::ranges::lower_bound(paket.durchgaenge, laufzeit, {}, &Messdurchgang::uhr);
    return da == paket.durchgaenge.begin() ? std::nullopt : std::optional(std::prev(da)->uhr);
}

} // namespace

Wiedergabestelle StelleUm(const Messquelle& quelle, Zeit laufzeit) {
    if (quelle.Erstes() == quelle.Ende())
        return {};
    const std::uint64_t letztes = quelle.PaketUm(laufzeit);
    const std::uint64_t zahl = std::min(letztes - quelle.Erstes() + 1, MeisteGelesene);
    for (std::uint64_t i = 0; i < zahl; ++i) {
        auto paket = quelle.Lies(letztes - i);
        if (paket == nullptr)
            return {.lage = Wiedergabelage::Unlesbar, .nummer = letztes - i};
        if (auto stelle = StelleIn(std::move(paket), letztes - i, laufzeit))
            return *stelle;
    }
    return {.nummer = letztes};
}

std::optional<Zeit> DurchgangNeben(const Messquelle& quelle, Zeit laufzeit, bool vorwaerts) {
    if (quelle.Erstes() == quelle.Ende())
        return std::nullopt;
    const std::uint64_t von = quelle.PaketUm(laufzeit);
    const std::uint64_t zahl = vorwaerts ? quelle.Ende() - von : von - quelle.Erstes() + 1;
    for (std::uint64_t i = 0; i < std::min(zahl, MeisteGelesene); ++i) {
        const auto paket = quelle.Lies(vorwaerts ? von + i : von - i);
        if (paket == nullptr)
            continue;
        if (const auto da = vorwaerts ? Naechster(*paket, laufzeit) : Voriger(*paket, laufzeit))
            return da;
    }
    return std::nullopt;
}

Wiedergabe::Wiedergabe(const Messquelle& woher) : quelle(woher), position(quelle.Spanne().von) {}

Zeit Wiedergabe::Anfang() const {
    return quelle.Spanne().von;
}

Zeit Wiedergabe::Ende() const {
    return quelle.Spanne().bis;
}

void Wiedergabe::Ruecke(Zeit uhr) {
    const Zeit vergangen = std::max(uhr - gesehen, Zeit{0});
    gesehen = uhr;
    if (!laeuft)
        return;
    const double weit = static_cast<double>(vergangen.count()) * tempo;
    const double rest = static_cast<double>((Ende() - position).count());
    laeuft = weit < rest;
    position = laeuft ? position + Zeit(std::llround(weit)) : Ende();
}

void Wiedergabe::Spiele(Zeit uhr) {
    Ruecke(uhr);
    if (position >= Ende())
        position = Anfang();
    laeuft = position < Ende();
}

void Wiedergabe::HalteAn(Zeit uhr) {
    Ruecke(uhr);
    laeuft = false;
}

void Wiedergabe::SetzeTempo(double neues, Zeit uhr) {
    Ruecke(uhr);
    tempo = std::isnan(neues) ? 1 : std::clamp(neues, KleinstesTempo, GroesstesTempo);
}

void Wiedergabe::GeheZu(Zeit laufzeit, Zeit uhr) {
    gesehen = uhr;
    position = std::clamp(laufzeit, Anfang(), std::max(Anfang(), Ende()));
}

void Wiedergabe::Schritt(bool vorwaerts, Zeit uhr) {
    HalteAn(uhr);
    const Wiedergabestelle hier = StelleUm(quelle, position);
    const Zeit von = !vorwaerts && hier.Durchgang() != nullptr ? hier.Durchgang()->uhr : position;
    if (const auto wohin = DurchgangNeben(quelle, von, vorwaerts))
        GeheZu(*wohin, uhr);
}

} // namespace varnoth
