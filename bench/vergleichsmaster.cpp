#include "vergleichsmaster.h"

#include "bericht.h"

#include <algorithm>

namespace varnoth::bench {

namespace {

constexpr std::uint8_t Lesen = 0x03;
constexpr std::uint8_t Schreiben = 0x10;
constexpr std::size_t StelleGeraet = 0;
constexpr std::size_t StelleFunktion = 1;
constexpr std::size_t StelleAdresse = 2;
constexpr std::size_t StelleAnzahl = 4;
constexpr std::size_t StelleWert = 7; // behind the number of bytes

std::uint8_t Byte(std::string_view rahmen, std::size_t stelle) {
    return static_cast<std::uint8_t>(rahmen.at(stelle));
}

std::uint16_t Wort(std::string_view rahmen, std::size_t stelle) {
    return static_cast<std::uint16_t>(Byte(rahmen, stelle) << 8 | Byte(rahmen, stelle + 1));
}

} // namespace

Anfrage LiesAnfrage(std::string_view rahmen) {
    const std::uint8_t funktion = Byte(rahmen, StelleFunktion);
    const std::uint16_t anzahl = Wort(rahmen, StelleAnzahl);
    const bool schreibt = funktion == Schreiben && anzahl == 1;
    if (!schreibt && funktion != Lesen)
        Scheitere(QStringLiteral("a polling pass sends something that no read and no single write is"));
    return {.schreibt = schreibt,
            .geraet = Byte(rahmen, StelleGeraet),
            .adresse = Wort(rahmen, StelleAdresse),
            .anzahl = anzahl,
            .wert = schreibt ? Wort(rahmen, StelleWert) : std::uint16_t{0}};
}

std::vector<Anfrage> LiesAnfragen(const std::vector<std::string>& rahmen) {
    std::vector<Anfrage> anfragen(rahmen.size());
    std::ranges::transform(rahmen, anfragen.begin(), LiesAnfrage);
    return anfragen;
}

} // namespace varnoth::bench
