#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnoth {

/// Puts numbers behind bytes: fixed ones with the low byte first; a `Zahl` in groups of seven bits, the low
/// ones first, the top bit set in all bytes but the last; a `Unterschied` as a Zahl of its absolute value
/// twice, one less when it is negative.
class Byteschreiber {
public:
    explicit Byteschreiber(std::string& ziel) : bytes(ziel) {}

    void U8(std::uint8_t wert) { bytes += static_cast<char>(wert); }
    void U16(std::uint16_t wert) { Feste(wert, 2); }
    void U32(std::uint32_t wert) { Feste(wert, 4); }
    void U64(std::uint64_t wert) { Feste(wert, 8); }
    void Zahl(std::uint64_t wert) {
        for (; wert >= 0x80; wert >>= 7)
            U8(static_cast<std::uint8_t>(wert | 0x80));
        U8(static_cast<std::uint8_t>(wert));
    }
    void Unterschied(std::int64_t wert) {
        const auto bits = static_cast<std::uint64_t>(wert);
        Zahl(wert < 0 ? ~(bits << 1) : bits << 1);
    }
    /// Its length in bytes as a Zahl, and the bytes.
    void Text(std::string_view text) {
        Zahl(text.size());
        bytes += text;
    }

private:
    void Feste(std::uint64_t wert, int anzahl) {
        for (int i = 0; i < anzahl; ++i)
            U8(static_cast<std::uint8_t>(wert >> (8 * i)));
    }

    std::string& bytes;
};

/// Takes what a Byteschreiber wrote, from bytes that nothing is known of. Once something does not fit it
/// gives 0 and no text for all that follows, and `Gut` is false.
class Byteleser {
public:
    explicit Byteleser(std::string_view quelle) : rest(quelle) {}

    bool Gut() const { return gut; }
    /// Bytes that are left.
    std::size_t Rest() const { return rest.size(); }
    /// Whether all was taken and all of it fitted.
    bool Fertig() const { return gut && rest.empty(); }

    std::uint8_t U8() { return static_cast<std::uint8_t>(Feste(1)); }
    std::uint16_t U16() { return static_cast<std::uint16_t>(Feste(2)); }
    std::uint32_t U32() { return static_cast<std::uint32_t>(Feste(4)); }
    std::uint64_t U64() { return Feste(8); }
    std::uint64_t Zahl() {
        std::uint64_t wert = 0;
        for (std::size_t i = 0; i < rest.size() && i < 10; ++i) {
            const auto byte = static_cast<std::uint8_t>(rest[i]);
            if (i == 9 && byte > 1)
                break;
            wert |= static_cast<std::uint64_t>(byte & 0x7F) << (7 * i);
            if (byte < 0x80) {
                rest.remove_prefix(i + 1);
                return wert;
            }
        }
        return Misslinge();
    }
    /// At most as large as a limit.
    std::uint64_t ZahlBis(std::uint64_t groesste) {
        const std::uint64_t wert = Zahl();
        return wert <= groesste ? wert : Misslinge();
    }
    std::int64_t Unterschied() {
        const std::uint64_t bits = Zahl();
        return static_cast<std::int64_t>((bits & 1) != 0 ? ~(bits >> 1) : bits >> 1);
    }
    /// A text of a limited length.
    std::string_view Text(std::size_t hoechstens) { return Nimm(ZahlBis(hoechstens)); }
    /// Some bytes as they stand.
    std::string_view Nimm(std::uint64_t anzahl) {
        if (anzahl > rest.size()) {
            Misslinge();
            return {};
        }
        const std::string_view genommene = rest.substr(0, static_cast<std::size_t>(anzahl));
        rest.remove_prefix(static_cast<std::size_t>(anzahl));
        return genommene;
    }
    std::uint64_t Misslinge() {
        gut = false;
        rest = {};
        return 0;
    }

private:
    std::uint64_t Feste(std::size_t anzahl) {
        if (rest.size() < anzahl)
            return Misslinge();
        std::uint64_t wert = 0;
        for (std::size_t i = 0; i < anzahl; ++i)
            wert |= static_cast<std::uint64_t>(static_cast<std::uint8_t>(rest[i])) << (8 * i);
        rest.remove_prefix(anzahl);
        return wert;
    }

    std::string_view rest;
    bool gut = true;
};

} // namespace varnoth
