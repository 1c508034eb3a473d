#include "messpaket.h"

#include "bytefolge.h"

#include <algorithm>
#include <bit>

namespace varnoth {

namespace {

using namespace std::chrono;

// The byte of a pass: the number of parts, then a bit for each of these.
constexpr std::uint8_t Teilzahl = 0x07;
constexpr std::uint8_t GeraetestatusNeu = 0x08;
constexpr std::uint8_t ErsterTeilNeu = 0x10;

// The byte of a part.
constexpr std::uint8_t Vorhanden = 0x01;
constexpr std::uint8_t Gemessen = 0x02;
constexpr std::uint8_t StatusNeu = 0x04;
constexpr std::uint8_t StrahlenzahlNeu = 0x08;
constexpr std::uint8_t WerteNeu = 0x10;
constexpr std::uint8_t StrahlenNeu = 0x20;
constexpr std::uint8_t AlleTeilbits = 0x3F;

constexpr int MeisteStrahlen = 1009;
constexpr std::size_t KleinsterDurchgang = 3; // bytes
constexpr std::size_t KleinstesEreignis = 4;
constexpr auto LetzteArt = Messereignisart::Verworfen;

std::int64_t Tageszeit(Systemzeit zeit) {
    return floor<microseconds>(zeit.time_since_epoch()).count();
}

bool IstTageszeit(std::int64_t mikrosekunden) {
    return mikrosekunden >= -GroessteZeit.count() && mikrosekunden <= GroessteZeit.count();
}

Systemzeit AlsTageszeit(std::int64_t zeit) {
    return Systemzeit(duration_cast<Systemzeit::duration>(microseconds(zeit)));
}

/// The pass before, and how far the time of day was ahead of the clock then.
struct Vorgaenger {
    Messdurchgang durchgang{};
    std::int64_t versatz = 0;
};

/// A bit for each element that differs.
template<class Feld>
std::uint64_t Unterschiede(const Feld& alte, const Feld& neue) {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < neue.size(); ++i)
        bits |= std::uint64_t{alte[i] != neue[i]} << i;
    return bits;
}

template<class Arbeit>
void FuerJedesBit(std::uint64_t bits, Arbeit arbeit) {
    for (; bits != 0; bits &= bits - 1)
        arbeit(static_cast<std::size_t>(std::countr_zero(bits)));
}

void Schreibe(Byteschreiber& aus, const Teilmessung& alt, const Teilmessung& neu) {
    const std::uint64_t werte = Unterschiede(alt.werte, neu.werte);
    const std::uint64_t strahlen = Unterschiede(alt.strahlregister, neu.strahlregister);
    aus.U8(static_cast<std::uint8_t>((neu.vorhanden ? Vorhanden : 0) | (neu.gemessen ? Gemessen : 0) |
                                     (neu.status != alt.status ? StatusNeu : 0) |
                                     (neu.strahlen != alt.strahlen ? StrahlenzahlNeu : 0) |
                                     (werte != 0 ? WerteNeu : 0) | (strahlen != 0 ? StrahlenNeu : 0)));
    if (neu.status != alt.status)
        aus.U16(neu.status);
    if (neu.strahlen != alt.strahlen)
        aus.Zahl(static_cast<std::uint64_t>(std::clamp<int>(neu.strahlen, 0, MeisteStrahlen)));
    if (werte != 0)
        aus.Zahl(werte);
    FuerJedesBit(werte, [&](std::size_t i) {
        aus.Unterschied(static_cast<std::int16_t>(neu.werte[i] - alt.werte[i]));
    });
    if (strahlen != 0)
        aus.Zahl(strahlen);
    FuerJedesBit(strahlen, [&](std::size_t i) { aus.U16(neu.strahlregister[i] ^ alt.strahlregister[i]); });
}

void Schreibe(Byteschreiber& aus, const Vorgaenger& alt, const Messdurchgang& neu, std::int64_t versatz) {
    aus.Zahl(static_cast<std::uint64_t>((neu.uhr - alt.durchgang.uhr).count()));
    aus.Unterschied(versatz - alt.versatz);
    const bool status = neu.geraetestatus != alt.durchgang.geraetestatus;
    const std::uint64_t teile = Unterschiede(alt.durchgang.teile, neu.teile);
    aus.U8(static_cast<std::uint8_t>(static_cast<unsigned>(neu.anzahlTeile) |
                                     (status ? GeraetestatusNeu : 0U) | teile * ErsterTeilNeu));
    if (status)
        aus.U16(neu.geraetestatus);
    FuerJedesBit(teile, [&](std::size_t i) { Schreibe(aus, alt.durchgang.teile[i], neu.teile[i]); });
}

void Lies(Byteleser& ein, Teilmessung& teil) {
    const std::uint8_t bits = ein.U8();
    if ((bits & ~AlleTeilbits) != 0)
        ein.Misslinge();
    teil.vorhanden = (bits & Vorhanden) != 0;
    teil.gemessen = (bits & Gemessen) != 0;
    if ((bits & StatusNeu) != 0)
        teil.status = ein.U16();
    if ((bits & StrahlenzahlNeu) != 0)
        teil.strahlen = static_cast<std::int16_t>(ein.ZahlBis(MeisteStrahlen));
    if ((bits & WerteNeu) != 0)
        FuerJedesBit(ein.ZahlBis((std::uint64_t{1} << teil.werte.size()) - 1), [&](std::size_t i) {
            teil.werte[i] =
                static_cast<std::uint16_t>(teil.werte[i] + static_cast<std::uint16_t>(ein.Unterschied()));
        });
    if ((bits & StrahlenNeu) != 0)
        FuerJedesBit(ein.Zahl(), [&](std::size_t i) { teil.strahlregister[i] ^= ein.U16(); });
}

/// Makes the pass before into the next.
void Lies(Byteleser& ein, Vorgaenger& stand) {
    Messdurchgang& durchgang = stand.durchgang;
    durchgang.uhr += Zeit(ein.ZahlBis(static_cast<std::uint64_t>(GroessteZeit.count())));
    const std::int64_t neuer = ein.Unterschied();
    if (neuer < -4 * GroessteZeit.count() || neuer > 4 * GroessteZeit.count())
        ein.Misslinge();
    else
        stand.versatz += neuer;
    const std::int64_t zeit = durchgang.uhr.count() + stand.versatz;
    if (!IstTageszeit(zeit))
        ein.Misslinge();
    else
        durchgang.zeit = AlsTageszeit(zeit);
    const std::uint8_t bits = ein.U8();
    if ((bits & Teilzahl) > AnzahlOptikteile)
        ein.Misslinge();
    durchgang.anzahlTeile = bits & Teilzahl;
    if ((bits & GeraetestatusNeu) != 0)
        durchgang.geraetestatus = ein.U16();
    FuerJedesBit(bits / ErsterTeilNeu, [&](std::size_t i) { Lies(ein, durchgang.teile[i]); });
}

/// A text without what is beyond the longest, whole characters at a time.
std::string_view Gekuerzt(std::string_view text) {
    if (text.size() <= LaengsterEreignistext)
        return text;
    std::size_t laenge = LaengsterEreignistext;
    while (laenge > 0 && (static_cast<std::uint8_t>(text[laenge]) & 0xC0) == 0x80)
        --laenge;
    return text.substr(0, laenge);
}

void Schreibe(Byteschreiber& aus, const Messereignis& ereignis, Zeit von) {
    aus.U8(static_cast<std::uint8_t>(ereignis.art));
    aus.Unterschied((ereignis.laufzeit - von).count());
    aus.Unterschied(Tageszeit(ereignis.zeit));
    aus.Text(Gekuerzt(ereignis.text));
}

Messereignis LiesEreignis(Byteleser& ein, Zeit von) {
    const std::uint8_t art = ein.U8();
    const std::int64_t danach = ein.Unterschied();
    const std::int64_t zeit = ein.Unterschied();
    const std::string_view text = ein.Text(LaengsterEreignistext);
    if (art > static_cast<std::uint8_t>(LetzteArt) || !IstTageszeit(zeit) || danach < -von.count() ||
        danach > (GroessteZeit - von).count()) {
        ein.Misslinge();
        return {};
    }
    return {.art = static_cast<Messereignisart>(art),
            .laufzeit = von + Zeit(danach),
            .zeit = AlsTageszeit(zeit),
            .text = std::string(text)};
}

/// How many of something follow; no more than the bytes can hold.
std::size_t LiesAnzahl(Byteleser& ein, std::size_t kleinstes) {
    const std::uint64_t anzahl = ein.ZahlBis(GroessterPaketinhalt);
    if (anzahl * kleinstes > ein.Rest())
        return static_cast<std::size_t>(ein.Misslinge());
    return static_cast<std::size_t>(anzahl);
}

void LiesDurchgaenge(Byteleser& ein, Messpaket& paket) {
    Vorgaenger stand;
    stand.durchgang.uhr = paket.spanne.von;
    const std::size_t anzahl = LiesAnzahl(ein, KleinsterDurchgang);
    paket.durchgaenge.reserve(anzahl);
    for (std::size_t i = 0; i < anzahl && ein.Gut(); ++i) {
        Lies(ein, stand);
        if (stand.durchgang.uhr > paket.spanne.bis)
            ein.Misslinge();
        paket.durchgaenge.push_back(stand.durchgang);
    }
}

} // namespace

std::string AlsBytes(const Messpaket& paket) {
    std::string bytes;
    Byteschreiber aus(bytes);
    aus.Zahl(static_cast<std::uint64_t>(paket.spanne.von.count()));
    aus.Zahl(static_cast<std::uint64_t>((paket.spanne.bis - paket.spanne.von).count()));
    const std::size_t durchgaenge = std::min(paket.durchgaenge.size(), GroessterPaketinhalt);
    aus.Zahl(durchgaenge);
    Vorgaenger stand;
    stand.durchgang.uhr = paket.spanne.von;
    for (std::size_t i = 0; i < durchgaenge; ++i) {
        const Messdurchgang& durchgang = paket.durchgaenge[i];
        const std::int64_t versatz = Tageszeit(durchgang.zeit) - durchgang.uhr.count();
        Schreibe(aus, stand, durchgang, versatz);
        stand = {durchgang, versatz};
    }
    const std::size_t ereignisse = std::min(paket.ereignisse.size(), GroessterPaketinhalt);
    aus.Zahl(ereignisse);
    for (std::size_t i = 0; i < ereignisse; ++i)
        Schreibe(aus, paket.ereignisse[i], paket.spanne.von);
    return bytes;
}

std::optional<Messpaket> PaketAus(std::string_view bytes) {
    Byteleser ein(bytes);
    Messpaket paket;
    paket.spanne.von = Zeit(ein.ZahlBis(static_cast<std::uint64_t>(GroessteZeit.count())));
    paket.spanne.bis =
        paket.spanne.von +
        Zeit(ein.ZahlBis(static_cast<std::uint64_t>((GroessteZeit - paket.spanne.von).count())));
    LiesDurchgaenge(ein, paket);
    const std::size_t ereignisse = LiesAnzahl(ein, KleinstesEreignis);
    for (std::size_t i = 0; i < ereignisse && ein.Gut(); ++i)
        paket.ereignisse.push_back(LiesEreignis(ein, paket.spanne.von));
    if (!ein.Fertig())
        return std::nullopt;
    return paket;
}

} // namespace varnoth
