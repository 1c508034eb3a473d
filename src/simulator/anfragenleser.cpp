#include "anfragenleser.h"

#include <utility>

namespace varnoth::simulator {

namespace {

constexpr std::size_t KuerzesterRahmen = 4, LaengsterRahmen = 256;
constexpr std::size_t FunktionsStelle = 1, ByteanzahlStelle = 6;
constexpr std::size_t SchreibrahmenOhneDaten = 9;

} // namespace

std::optional<std::size_t> Anfragenleser::Laenge() const {
    switch (zeichen[FunktionsStelle]) {
    case 0x03:
        return 8;
    case 0x09:
    case 0x11:
        return 4;
    case 0x10:
        if (zeichen.size() > ByteanzahlStelle)
            return SchreibrahmenOhneDaten + zeichen[ByteanzahlStelle];
        return LaengsterRahmen + 1;
    default:
        return std::nullopt;
    }
}

bool Anfragenleser::IstZuEnde() const {
    if (zeichen.size() < KuerzesterRahmen)
        return false;
    const auto laenge = Laenge();
    if (laenge)
        return zeichen.size() >= *laenge;
    return crc == 0 || zeichen.size() >= LaengsterRahmen;
}

Anfragenleser::Ergebnis Anfragenleser::Nimm(std::uint8_t neues) {
    if (std::exchange(fertig, false)) {
        zeichen.clear();
        crc = CrcStart;
    }
    zeichen.push_back(neues);
    crc = CrcWeiter(crc, neues);
    fertig = IstZuEnde();
    if (!fertig)
        return Ergebnis::Weiter;
    return crc == 0 ? Ergebnis::Ganz : Ergebnis::Gebrochen;
}

bool Anfragenleser::Verwirf() {
    return !std::exchange(fertig, true);
}

} // namespace varnoth::simulator
