#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varnoth::bench {

/// One request as any Modbus master can send it: a read of so many registers, or a write of one.
struct Anfrage {
    bool schreibt;
    int geraet;
    int adresse;
    std::uint16_t anzahl;
    std::uint16_t wert; ///< of a write
};

/// What a request frame of the program asks for; fails the bench when it is neither a read nor a write of one
/// register.
Anfrage LiesAnfrage(std::string_view rahmen);
std::vector<Anfrage> LiesAnfragen(const std::vector<std::string>& rahmen);

/// Another program's way of polling: the same requests, in the same order, with 2 ms after each reply.
class Vergleichsmaster {
public:
    virtual ~Vergleichsmaster() = default;

    /// Sends every request once and waits for its reply. Fails the bench when one fails.
    virtual void Durchlaufe(const std::vector<Anfrage>& anfragen) = 0;
};

} // namespace varnoth::bench
