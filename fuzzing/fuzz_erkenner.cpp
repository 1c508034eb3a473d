// Any bytes as the reply to a read, a write or an identification: in whatever pieces they arrive, verdict and
// data are those of the same bytes at once. A reply that is made of them is recognised, and one with a wrong
// bit is not; one that comes twice is recognised as once, and found twice.
//
// The first bytes choose: kind of reply, slave address, start and number of registers, where the reply is
// cut, and whether it gets a right checksum.

#include "erkenner.h"
#include "gestalt.h"

#include "pruefe.h"
#include "rahmen.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

enum Art : std::uint8_t { Lesen, Schreiben, Identifizieren, AnzahlArten };

struct Auftrag {
    std::uint8_t art = Lesen;
    std::int16_t adresse = 0;
    std::uint16_t start = 0;
    std::uint16_t anzahl = 0;
};

/// All that a transaction takes from a recogniser.
struct Ergebnis {
    bool aufgegeben = false;
    bool gut = false;
    std::string daten{};
    Identifikation ident{};

    bool operator==(const Ergebnis&) const = default;
};

using Stuecklaenge = std::function<std::size_t()>;

template<class Bauart>
void Fuettere(Bauart& erkenner, std::string_view bytes, const Stuecklaenge& naechste, Ergebnis& ergebnis) {
    while (!bytes.empty() && !ergebnis.aufgegeben && !erkenner.Fertig()) {
        const std::string_view stueck = bytes.substr(0, naechste());
        ergebnis.aufgegeben = !erkenner.Verarbeite(stueck);
        bytes.remove_prefix(stueck.size());
    }
    ergebnis.gut = !ergebnis.aufgegeben && erkenner.Fertig() && erkenner.CrcStimmt();
}

Ergebnis Erkenne(const Auftrag& auftrag, std::string_view bytes, const Stuecklaenge& naechste) {
    Ergebnis ergebnis;
    if (auftrag.art == Lesen) {
        LeseErkenner erkenner(auftrag.adresse, auftrag.anzahl);
        Fuettere(erkenner, bytes, naechste, ergebnis);
        ergebnis.daten = erkenner.Daten();
        Pruefe(!ergebnis.gut || ergebnis.daten.size() == std::size_t{2} * auftrag.anzahl,
               "a good reply has two bytes for each register");
    } else if (auftrag.art == Schreiben) {
        SchreibErkenner erkenner(auftrag.adresse, auftrag.start, auftrag.anzahl);
        Fuettere(erkenner, bytes, naechste, ergebnis);
    } else {
        IdentErkenner erkenner(ergebnis.ident);
        Fuettere(erkenner, bytes, naechste, ergebnis);
        ergebnis.daten = erkenner.Text();
    }
    return ergebnis;
}

Ergebnis AufEinmal(const Auftrag& auftrag, std::string_view bytes) {
    return Erkenne(auftrag, bytes, [&] { return bytes.size(); });
}

std::string MitCrc(std::string bytes) {
    const Crc crc = CrcVon(bytes);
    bytes += static_cast<char>(LoByte(crc));
    bytes += static_cast<char>(HiByte(crc));
    return bytes;
}

void PruefeStuecke(const Auftrag& auftrag, std::string_view bytes, unsigned schnitte) {
    const Ergebnis ganz = AufEinmal(auftrag, bytes);
    Pruefe(Erkenne(auftrag, bytes, [] { return std::size_t{1}; }) == ganz, "byte by byte gives the same");
    const auto gewuerfelt = [&]() -> std::size_t {
        schnitte = schnitte * 1664525U + 1013904223U;
        return (schnitte >> 16) % 7;
    };
    Pruefe(Erkenne(auftrag, bytes, [&] { return 1 + gewuerfelt(); }) == ganz, "pieces give the same");
    for (std::size_t schnitt = 1; schnitt < bytes.size() && bytes.size() < 64; ++schnitt) {
        std::size_t laenge = schnitt;
        const auto zweiteilig = [&] { return std::exchange(laenge, bytes.size()); };
        Pruefe(Erkenne(auftrag, bytes, zweiteilig) == ganz, "two pieces give the same");
    }
}

/// The reply that a controller would give, with these bytes as its data.
std::string Antwort(const Auftrag& auftrag, std::string_view inhalt) {
    const auto adresse = static_cast<char>(LoByte(auftrag.adresse));
    if (auftrag.art == Schreiben) // an echo of the request's beginning
        return MitCrc(
            SchreibAnforderung(auftrag.adresse, auftrag.start, auftrag.anzahl, Werte(auftrag.anzahl))
                .substr(0, 6));
    const auto funktion =
        static_cast<char>(auftrag.art == Lesen ? Funktion::Lesen : Funktion::Identifikation);
    const auto laenge = static_cast<char>(static_cast<std::uint8_t>(inhalt.size()));
    return MitCrc(std::string{adresse, funktion, laenge} + std::string(inhalt));
}

/// An identification with another function code or length may hold a right one: its recogniser starts afresh.
bool DarfEineAndereEnthalten(const Auftrag& auftrag, std::size_t stelle) {
    return auftrag.art == Identifizieren && (stelle == 1 || stelle == 2);
}

void PruefeFalscheBits(const Auftrag& auftrag, const std::string& antwort) {
    for (std::size_t bit = 0; bit < antwort.size() * 8; ++bit) {
        if (DarfEineAndereEnthalten(auftrag, bit / 8))
            continue;
        std::string falsch = antwort;
        falsch[bit / 8] = static_cast<char>(falsch[bit / 8] ^ static_cast<char>(1U << (bit % 8)));
        Pruefe(!AufEinmal(auftrag, falsch).gut, "a reply with a wrong bit is not recognised");
    }
}

void PruefeGuteAntwort(Auftrag auftrag, std::string_view inhalt) {
    constexpr std::size_t hoechstens = 16; // every bit of it is tried
    inhalt = inhalt.substr(0, hoechstens);
    if (auftrag.art == Lesen) {
        inhalt = inhalt.substr(0, inhalt.size() / 2 * 2);
        auftrag.anzahl = static_cast<std::uint16_t>(inhalt.size() / 2);
    }
    const std::string antwort = Antwort(auftrag, inhalt);
    const Ergebnis gut = AufEinmal(auftrag, antwort + "surplus");
    Pruefe(gut.gut, "a right reply is recognised, surplus bytes or not");
    if (auftrag.art == Lesen)
        Pruefe(gut.daten == inhalt, "a right reply gives its data");
    if (auftrag.art == Identifizieren)
        Pruefe(gut.daten == inhalt.substr(std::min<std::size_t>(2, inhalt.size())),
               "a right identification gives its text");
    PruefeFalscheBits(auftrag, antwort);
    Pruefe(AufEinmal(auftrag, antwort + antwort) == AufEinmal(auftrag, antwort),
           "a reply that comes twice is recognised as once");
    Pruefe(SucheAntworten(antwort + antwort) == std::vector<std::string_view>{antwort, antwort},
           "both are found among the bytes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    constexpr std::size_t hoechstens = 600;
    std::string_view bytes = AlsText(daten, std::min(laenge, hoechstens));
    Auftrag auftrag{.art = static_cast<std::uint8_t>(NimmByte(bytes) % AnzahlArten)};
    auftrag.adresse = NimmByte(bytes);
    auftrag.start = NimmByte(bytes);
    auftrag.anzahl = NimmByte(bytes);
    const unsigned schnitte = NimmByte(bytes);
    const bool rechneCrc = NimmByte(bytes) % 2 != 0;
    PruefeStuecke(auftrag, rechneCrc ? MitCrc(std::string(bytes)) : std::string(bytes), schnitte);
    PruefeGuteAntwort(auftrag, bytes);
    return 0;
}
