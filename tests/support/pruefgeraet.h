#pragma once

#include "pruefport.h"

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// A byte string from numbers.
inline std::string Bytes(std::initializer_list<int> zahlen) {
    std::string bytes;
    for (const int zahl : zahlen)
        bytes += static_cast<char>(zahl);
    return bytes;
}

/// The bytes and their CRC behind them, reckoned bit by bit.
inline std::string MitPruefsumme(std::string bytes) {
    unsigned crc = 0xFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1U) != 0 ? (crc >> 1U) ^ 0xA001U : crc >> 1U;
    }
    bytes += static_cast<char>(crc & 0xFFU);
    bytes += static_cast<char>(crc >> 8U);
    return bytes;
}

inline int Wort(const std::string& bytes, std::size_t stelle) {
    return static_cast<std::uint8_t>(bytes.at(stelle)) * 256 +
           static_cast<std::uint8_t>(bytes.at(stelle + 1));
}

/// A small controller for tests: registers in a map, answered at once. Specific registers (0x2000 to 0x21FF)
/// are kept for each optical part.
class PruefGeraet {
public:
    explicit PruefGeraet(PruefPort& port) {
        port.antworte = [this](const std::string& anforderung) -> std::vector<Stueck> {
            const std::string antwort = Antworte(anforderung);
            return antwort.empty() ? std::vector<Stueck>{} : std::vector<Stueck>{{Zeit{0}, antwort}};
        };
    }

    /// A write request that was received: optical part selected, device address, values.
    struct Schreibvorgang {
        int teil;
        int adresse;
        std::vector<int> werte;
        bool operator==(const Schreibvorgang&) const = default;
    };

    int& Register(int adresse) { return inhalt[{Istspezifisch(adresse) ? auswahl : 0, adresse}]; }
    int& Spezifisch(int teil, int adresse) { return inhalt[{teil, 0x2000 + adresse}]; }

    /// Asked first for each request; true swallows it.
    std::function<bool(const std::string& anforderung)> schweige;
    /// Hears of each write, by device address, before it is confirmed.
    std::function<void(int adresse)> beimSchreiben;

    std::string identtext = "Varnoth;4711;(C)";
    int slaveAdresse = 1;
    std::vector<Schreibvorgang> geschrieben;
    std::vector<std::pair<int, int>> gelesen; ///< device address and count

private:
    static bool Istspezifisch(int adresse) { return adresse >= 0x2000 && adresse < 0x2200; }

    std::string Antworte(const std::string& anforderung) {
        if (schweige && schweige(anforderung))
            return {};
        switch (anforderung.at(1)) {
        case 0x03:
            return Lies(Wort(anforderung, 2), Wort(anforderung, 4));
        case 0x10:
            return Schreibe(anforderung);
        case 0x11:
            return MitPruefsumme(Bytes({slaveAdresse, 0x11, static_cast<int>(identtext.size()) + 2, 7, 50}) +
                                 identtext);
        default:
            return {};
        }
    }

    std::string Lies(int adresse, int anzahl) {
        gelesen.emplace_back(adresse, anzahl);
        std::string antwort = Bytes({slaveAdresse, 0x03, 2 * anzahl});
        for (int i = 0; i < anzahl; ++i)
            antwort += Bytes({Register(adresse + i) / 256, Register(adresse + i) % 256});
        return MitPruefsumme(antwort);
    }

    std::string Schreibe(const std::string& anforderung) {
        const int adresse = Wort(anforderung, 2);
        Schreibvorgang vorgang{auswahl, adresse, {}};
        for (int i = 0; i < Wort(anforderung, 4); ++i) {
            const int wert = Wort(anforderung, 7 + 2 * static_cast<std::size_t>(i));
            vorgang.werte.push_back(wert);
            Register(adresse + i) = wert;
            if (adresse + i == 212)
                auswahl = wert;
        }
        geschrieben.push_back(vorgang);
        if (beimSchreiben)
            beimSchreiben(adresse);
        return MitPruefsumme(anforderung.substr(0, 6));
    }

    int auswahl = 0;
    std::map<std::pair<int, int>, int> inhalt;
};

} // namespace varnoth::pruefung
