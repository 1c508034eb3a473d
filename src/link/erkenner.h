#pragma once

#include "crc.h"
#include "identifikation.h"
#include "werte.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnoth {

/// Recognises one reply byte by byte, in whatever pieces the bytes arrive. The state is a number: 0 hunts for
/// the address, 1 expects the function code, the states up to 9 are the function's own, 10 and 11 take the
/// two CRC bytes, 12 is the end.
class Erkenner {
public:
    Erkenner() = default;
    Erkenner(const Erkenner&) = delete;
    Erkenner& operator=(const Erkenner&) = delete;
    virtual ~Erkenner() = default;

    /// Takes bytes in the order of their arrival; what follows the end of the reply is ignored.
    /// @return false when the reply is given up: more than 10 bytes were rejected
    bool Verarbeite(std::string_view bytes);

    /// Whether the reply's last byte was taken.
    bool Fertig() const { return zustand == Ende; }
    /// Whether the received CRC is that of the received bytes; meaningful once Fertig.
    bool CrcStimmt() const;
    /// How many bytes the reply is still short of at least, or how many could make it given up, whichever are
    /// fewer. 0 at its end.
    std::size_t MindestensNoch() const;
    /// Whether bytes followed the end of the reply.
    bool Ueberzaehlig() const { return ueberzaehlig; }
    /// How many bytes were taken until the end of the reply.
    std::size_t Genommen() const { return genommen; }

protected:
    static constexpr int Adresse = 0;
    static constexpr int Funktionscode = 1;
    static constexpr int ErstesEigenes = 2;
    static constexpr int CrcLow = 10;
    static constexpr int CrcHigh = 11;
    static constexpr int Ende = 12;

    /// The state after a byte in a state below CrcLow.
    virtual int NachByte(int stand, std::uint8_t byte) = 0;
    /// How many bytes from a state below CrcLow on stand before the CRC at least, by what is known by then.
    virtual std::size_t BisCrc(int stand) const = 0;

    /// Counts a rejected byte.
    void LehneAb() { ++abgelehnt; }
    /// Starts the CRC anew with this byte alone.
    void BeginneCrcMit(std::uint8_t byte) { crc = CrcUpdate(CrcInit(), byte); }

private:
    void VerarbeiteByte(std::uint8_t byte);

    int zustand = Adresse;
    int abgelehnt = 0;
    std::size_t genommen = 0;
    Crc crc = CrcInit();
    std::uint8_t empfangenLow = 0;
    std::uint8_t empfangenHigh = 0;
    bool ueberzaehlig = false;
};

/// Reply to a read of `anzahl` registers at the given slave address.
class LeseErkenner : public Erkenner {
public:
    LeseErkenner(std::int16_t slaveAdresse, std::uint16_t anzahl);

    /// The received data bytes, two a register.
    const std::string& Daten() const { return daten; }

protected:
    int NachByte(int stand, std::uint8_t byte) override;
    std::size_t BisCrc(int stand) const override;

private:
    std::uint8_t adresse;
    std::size_t datenlaenge;
    std::string daten;
};

/// Reply to a write: the echo of start and count.
class SchreibErkenner : public Erkenner {
public:
    SchreibErkenner(std::int16_t slaveAdresse, std::uint16_t start, std::uint16_t anzahl);

protected:
    int NachByte(int stand, std::uint8_t byte) override;
    std::size_t BisCrc(int stand) const override;

private:
    std::uint8_t adresse;
    std::string echo;
};

/// Reply to the identification request. Address and identification bytes go into the record while they
/// arrive, also when the reply fails later.
class IdentErkenner : public Erkenner {
public:
    explicit IdentErkenner(Identifikation& ident) : ziel(ident) {}

    /// The characters that followed the two identification bytes.
    const std::string& Text() const { return text; }

protected:
    int NachByte(int stand, std::uint8_t byte) override;
    std::size_t BisCrc(int stand) const override;

private:
    int NachFunktionscode(std::uint8_t byte);
    int NachDatenbyte(int naechster);

    Identifikation& ziel;
    int erwartet = 0;
    int empfangen = 0;
    std::string text;
};

/// Looks for a whole valid reply to the identification request anywhere in a stream of bytes. When there is
/// one, it is taken out together with all that came before it.
bool NimmIdentAntwort(std::string& strom);

} // namespace varnoth
