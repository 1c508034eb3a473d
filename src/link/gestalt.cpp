#include "gestalt.h"

#include "crc.h"
#include "rahmen.h"

#include <bit>
#include <cstddef>
#include <cstdint>

namespace varnoth {

namespace {

constexpr std::size_t Kopf = 2, Startadresse = 2, Anzahl = 2, Bytezahl = 1, Pruefsumme = 2;
constexpr unsigned Ablehnungsbit = 0x80; // in the function code of a refusal

Funktion FunktionVon(std::string_view rahmen) {
    return static_cast<Funktion>(rahmen.at(1));
}

/// Length that a reply which begins with these bytes has, 0 when none does.
std::size_t Antwortlaenge(std::string_view bytes) {
    if (bytes.size() <= Kopf)
        return 0;
    if ((static_cast<std::uint8_t>(bytes[1]) & Ablehnungsbit) != 0)
        return Kopf + Bytezahl + Pruefsumme;
    switch (FunktionVon(bytes)) {
    case Funktion::Lesen:
    case Funktion::Identifikation:
        return Kopf + Bytezahl + static_cast<std::uint8_t>(bytes[Kopf]) + Pruefsumme;
    case Funktion::Schreiben:
        return Kopf + Startadresse + Anzahl + Pruefsumme;
    default:
        return 0;
    }
}

/// What every reply to a read or write begins with; empty for other requests.
std::string Antwortbeginn(const std::string& anforderung) {
    switch (FunktionVon(anforderung)) {
    case Funktion::Lesen:
        return anforderung.substr(0, Kopf) + static_cast<char>(2 * anforderung[Kopf + Startadresse + 1]);
    case Funktion::Schreiben:
        return anforderung.substr(0, Kopf + Startadresse + Anzahl);
    default:
        return {};
    }
}

/// In how many bits the bytes begin differently.
int AndereBits(std::string_view bytes, std::string_view beginn) {
    int andere = 0;
    for (std::size_t i = 0; i < beginn.size(); ++i)
        andere += std::popcount(static_cast<std::uint8_t>(bytes[i] ^ beginn[i]));
    return andere;
}

} // namespace

std::string Gestalt(const std::string& anforderung) {
    switch (FunktionVon(anforderung)) {
    case Funktion::Lesen:
        return anforderung.substr(0, Kopf) + anforderung.substr(Kopf + Startadresse, Anzahl);
    case Funktion::Schreiben:
        return anforderung.substr(0, Kopf + Startadresse + Anzahl);
    default:
        return anforderung.substr(0, Kopf);
    }
}

bool Schreibt(const std::string& anforderung) {
    const Funktion funktion = FunktionVon(anforderung);
    return funktion == Funktion::Schreiben || funktion == Funktion::Kommando;
}

std::vector<std::string_view> SucheAntworten(std::string_view strom) {
    std::vector<std::string_view> antworten;
    while (!strom.empty()) {
        const std::size_t laenge = Antwortlaenge(strom);
        // The CRC of a frame together with its own CRC is 0.
        const bool ganz = laenge != 0 && laenge <= strom.size() && CrcVon(strom.substr(0, laenge)) == 0;
        if (ganz)
            antworten.push_back(strom.substr(0, laenge));
        strom.remove_prefix(ganz ? laenge : 1);
    }
    return antworten;
}

bool EnthaeltAehnliche(std::string_view bytes, const std::string& anforderung) {
    constexpr int MeisteAndereBits = 2;
    const std::string beginn = Antwortbeginn(anforderung);
    const std::size_t laenge = beginn.empty() ? 0 : Antwortlaenge(beginn);
    for (; laenge != 0 && bytes.size() >= laenge; bytes.remove_prefix(1))
        if (AndereBits(bytes, beginn) <= MeisteAndereBits)
            return true;
    return false;
}

bool Passt(std::string_view antwort, const std::string& anforderung) {
    const auto abgelehnte = static_cast<Funktion>(static_cast<std::uint8_t>(antwort.at(1)) & ~Ablehnungsbit);
    if (FunktionVon(antwort) != abgelehnte)
        return antwort[0] == anforderung[0] && abgelehnte == FunktionVon(anforderung);
    if (FunktionVon(antwort) != FunktionVon(anforderung))
        return false;
    switch (FunktionVon(anforderung)) {
    case Funktion::Lesen:
        return antwort[0] == anforderung[0] &&
               static_cast<std::uint8_t>(antwort[Kopf]) ==
                   2 * static_cast<std::uint8_t>(anforderung[Kopf + Startadresse + 1]);
    case Funktion::Schreiben:
        return antwort.starts_with(Gestalt(anforderung));
    default:
        return true;
    }
}

} // namespace varnoth
