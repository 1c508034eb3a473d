#include "anfragenleser.h"

#include <utility>

namespace varnoth::simulator {

namespace {

constexpr std::size_t KuerzesterRahmen = 4, LaengsterRahmen = 256;
constexpr std::size_t FunktionsStelle = 1, ByteanzahlStelle = 6;
constexpr std::size_t SchreibrahmenOhneDaten = 9;

} // namespace

std::optional<std::size_t> Anfragenleser::Laenge() const {
    switch (zeichen_[FunktionsStelle]) {
    case 0x03:
        return 8;
    case 0x09:
    case 0x11:
        return 4;
    case 0x10:
        if (zeichen_.size() > ByteanzahlStelle)
            return SchreibrahmenOhneDaten + zeichen_[ByteanzahlStelle];
        return LaengsterRahmen + 1;
    default:
        return std::nullopt;
    }
}

bool Anfragenleser::IstZuEnde() const {
    if (zeichen_.size() < KuerzesterRahmen)
        return false;
    const auto laenge = Laenge();
    if (laenge)
        return zeichen_.size() >= *laenge;
    return crc_ == 0 || zeichen_.size() >= LaengsterRahmen;
}

Anfragenleser::Ergebnis Anfragenleser::Nimm(std::uint8_t zeichen) {
    if (std::exchange(fertig_, false)) {
        zeichen_.clear();
        crc_ = CrcStart;
    }
    zeichen_.push_back(zeichen);
    crc_ = CrcWeiter(crc_, zeichen);
    fertig_ = IstZuEnde();
    if (!fertig_)
        return Ergebnis::Weiter;
    return crc_ == 0 ? Ergebnis::Ganz : Ergebnis::Gebrochen;
}

bool Anfragenleser::Verwirf() {
    return !std::exchange(fertig_, true);
}

} // namespace varnoth::simulator
