#include "vrecblock.h"

#include "bytefolge.h"
#include "crc32.h"
#include "messpaket.h"
#include "utf8.h"

#include <utility>

namespace varnoth::vrec {

namespace {

constexpr std::size_t LaengsterText = 4096;
constexpr int LaengsteZone = 24 * 60; // minutes
constexpr std::size_t KleinsterEintrag = 2;

constexpr std::uint64_t Konfigurationsbit = 1;
constexpr std::uint64_t Ereignisbit = 2;
constexpr int Artbits = 2;
constexpr std::uint64_t GroessteStelle = std::uint64_t{1} << 60;

constexpr auto GroessteLaufzeit = static_cast<std::uint64_t>(GroessteZeit.count());

std::string Text(Byteleser& ein) {
    const std::string_view text = ein.Text(LaengsterText);
    if (!IstUtf8(text))
        ein.Misslinge();
    return std::string(text);
}

Eintrag LiesEintrag(Byteleser& ein, std::uint64_t letzteStelle, Zeit letztesEnde) {
    const std::uint64_t bits = ein.ZahlBis(GroessteStelle);
    Eintrag eintrag{.istKonfiguration = (bits & Konfigurationsbit) != 0,
                    .hatEreignisse = (bits & Ereignisbit) != 0,
                    .stelle = letzteStelle + (bits >> Artbits)};
    eintrag.laenge = static_cast<std::uint32_t>(ein.ZahlBis(GroessterBlock));
    if (eintrag.istKonfiguration)
        return eintrag;
    eintrag.spanne.von =
        letztesEnde + Zeit(ein.ZahlBis(GroessteLaufzeit - static_cast<std::uint64_t>(letztesEnde.count())));
    eintrag.spanne.bis =
        eintrag.spanne.von +
        Zeit(ein.ZahlBis(GroessteLaufzeit - static_cast<std::uint64_t>(eintrag.spanne.von.count())));
    return eintrag;
}

} // namespace

std::string AlsBlock(Blockart art, std::string_view inhalt) {
    std::string bytes(Blockmarke);
    bytes.reserve(LaengeBlockkopf + inhalt.size());
    Byteschreiber aus(bytes);
    aus.U32(static_cast<std::uint32_t>(art));
    aus.U32(static_cast<std::uint32_t>(inhalt.size()));
    aus.U32(Crc32(inhalt));
    aus.U32(Crc32(bytes));
    return bytes += inhalt;
}

std::optional<Blockkopf> BlockkopfAus(std::string_view bytes) {
    if (bytes.size() < LaengeBlockkopf || !bytes.starts_with(Blockmarke))
        return std::nullopt;
    Byteleser ein(bytes.substr(Blockmarke.size()));
    const auto art = static_cast<Blockart>(ein.U32() & 0xFFU);
    const Blockkopf kopf{.art = art, .laenge = ein.U32(), .pruefsumme = ein.U32()};
    if (ein.U32() != Crc32(bytes.substr(0, LaengeBlockkopf - 4)) || kopf.laenge > GroessterBlock)
        return std::nullopt;
    return kopf;
}

std::string AlsInhalt(const Messangaben& angaben) {
    std::string bytes;
    Byteschreiber aus(bytes);
    aus.U64(static_cast<std::uint64_t>(
        std::chrono::floor<std::chrono::microseconds>(angaben.beginn.time_since_epoch()).count()));
    aus.U16(static_cast<std::uint16_t>(angaben.zoneMinuten));
    for (const std::string* text : {&angaben.bezeichnung, &angaben.seriennummer, &angaben.programm})
        aus.Text(text->size() <= LaengsterText && IstUtf8(*text) ? *text : std::string_view());
    return bytes;
}

std::optional<Messangaben> AngabenAus(std::string_view inhalt) {
    Byteleser ein(inhalt);
    const auto beginn = static_cast<std::int64_t>(ein.U64());
    Messangaben angaben{.zoneMinuten = static_cast<std::int16_t>(ein.U16()),
                        .bezeichnung = Text(ein),
                        .seriennummer = Text(ein),
                        .programm = Text(ein)};
    if (!ein.Gut() || beginn < -GroessteZeit.count() || beginn > GroessteZeit.count() ||
        angaben.zoneMinuten < -LaengsteZone || angaben.zoneMinuten > LaengsteZone)
        return std::nullopt;
    angaben.beginn = Systemzeit(std::chrono::microseconds(beginn));
    return angaben;
}

void Verzeichnisschreiber::Nimm(const Eintrag& eintrag) {
    Byteschreiber aus(bytes);
    aus.Zahl((eintrag.stelle - letzteStelle) << Artbits | (eintrag.istKonfiguration ? Konfigurationsbit : 0) |
             (eintrag.hatEreignisse ? Ereignisbit : 0));
    aus.Zahl(eintrag.laenge);
    letzteStelle = eintrag.stelle;
    ++anzahl;
    if (eintrag.istKonfiguration)
        return;
    aus.Zahl(static_cast<std::uint64_t>((eintrag.spanne.von - letztesEnde).count()));
    aus.Zahl(static_cast<std::uint64_t>((eintrag.spanne.bis - eintrag.spanne.von).count()));
    letztesEnde = eintrag.spanne.bis;
}

std::string Verzeichnisschreiber::Entnimm() {
    std::string inhalt;
    Byteschreiber(inhalt).Zahl(anzahl);
    inhalt += bytes;
    *this = {};
    return inhalt;
}

std::optional<std::vector<Eintrag>> VerzeichnisAus(std::string_view inhalt) {
    Byteleser ein(inhalt);
    const auto anzahl = static_cast<std::size_t>(ein.ZahlBis(GroesstesVerzeichnis));
    if (anzahl * KleinsterEintrag > ein.Rest())
        return std::nullopt;
    std::vector<Eintrag> eintraege;
    eintraege.reserve(anzahl);
    std::uint64_t stelle = 0;
    Zeit ende{};
    for (std::size_t i = 0; i < anzahl && ein.Gut(); ++i) {
        eintraege.push_back(LiesEintrag(ein, stelle, ende));
        stelle = eintraege.back().stelle;
        if (stelle > GroessteStelle)
            return std::nullopt;
        if (!eintraege.back().istKonfiguration)
            ende = eintraege.back().spanne.bis;
    }
    if (!ein.Fertig())
        return std::nullopt;
    return eintraege;
}

std::string AlsInhalt(const Schluss& schluss) {
    std::string bytes;
    Byteschreiber aus(bytes);
    aus.U64(schluss.verzeichnis);
    aus.U64(schluss.durchgaenge);
    return bytes;
}

std::optional<Schluss> SchlussAus(std::string_view inhalt) {
    Byteleser ein(inhalt);
    const Schluss schluss{.verzeichnis = ein.U64(), .durchgaenge = ein.U64()};
    if (!ein.Fertig())
        return std::nullopt;
    return schluss;
}

} // namespace varnoth::vrec
