#pragma once

#include "simulator.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace varnoth::simulator {

inline Bytes MitCrc(Bytes zeichen) {
    HaengeCrcAn(zeichen);
    return zeichen;
}

inline void HaengeAn(Bytes& zeichen, int wort) {
    zeichen.push_back(static_cast<std::uint8_t>(wort >> 8));
    zeichen.push_back(static_cast<std::uint8_t>(wort & 0xFF));
}

inline Bytes Leseanfrage(int adresse, int anzahl, std::uint8_t station = 1) {
    Bytes zeichen{station, 0x03};
    HaengeAn(zeichen, adresse);
    HaengeAn(zeichen, anzahl);
    return MitCrc(zeichen);
}

inline Bytes Schreibanfrage(int adresse, const std::vector<int>& werte, std::uint8_t station = 1) {
    Bytes zeichen{station, 0x10};
    HaengeAn(zeichen, adresse);
    HaengeAn(zeichen, static_cast<int>(werte.size()));
    zeichen.push_back(static_cast<std::uint8_t>(2 * werte.size()));
    for (const int wert : werte)
        HaengeAn(zeichen, wert);
    return MitCrc(zeichen);
}

inline Bytes Kennungsanfrage() {
    return {0x00, 0x11, 0xC1, 0xBC};
}

inline Bytes Ausnahme(int funktion, int code) {
    return MitCrc({1, static_cast<std::uint8_t>(funktion | 0x80), static_cast<std::uint8_t>(code)});
}

inline Aufbau OhneTakt() {
    Aufbau aufbau;
    aufbau.getaktet = false;
    return aufbau;
}

/// An unpaced controller and a master that asks it something every second.
class Probe {
public:
    explicit Probe(Aufbau aufbau = OhneTakt()) : simulator(MitProtokoll(std::move(aufbau))) {}

    /// The whole reply, at whatever time it comes.
    Bytes Frage(const Bytes& anfrage) {
        jetzt += std::chrono::seconds{1};
        simulator.Entnimm(jetzt);
        simulator.Empfange(anfrage, jetzt);
        // In autosend there would be no end.
        const bool autosend = simulator.Befehl("state", jetzt).ends_with("autosend=on");
        return simulator.Entnimm(autosend ? jetzt : Zeit::max());
    }

    /// The registers read, empty when the reply is not the one expected.
    std::vector<int> Lies(int adresse, int anzahl) {
        const Bytes antwort = Frage(Leseanfrage(adresse, anzahl));
        std::vector<int> werte;
        if (antwort.size() == 5U + 2U * static_cast<unsigned>(anzahl))
            for (std::size_t i = 3; i + 2 < antwort.size(); i += 2)
                werte.push_back(antwort[i] * 256 + antwort[i + 1]);
        return werte;
    }

    /// Whether the write was confirmed.
    bool Schreibe(int adresse, const std::vector<int>& werte) {
        const Bytes anfrage = Schreibanfrage(adresse, werte);
        return Frage(anfrage) == MitCrc(Bytes(anfrage.begin(), anfrage.begin() + 6));
    }

    void Waehle(int teil) { Schreibe(212, {teil}); }
    std::string Befehl(std::string_view zeile) { return simulator.Befehl(zeile, jetzt); }

    std::vector<std::string> protokoll; ///< the log without times
    Zeit jetzt{0};
    Simulator simulator;

private:
    Aufbau MitProtokoll(Aufbau aufbau) {
        aufbau.protokoll = [this](std::string_view zeile) {
            protokoll.emplace_back(zeile.substr(zeile.find(' ') + 1));
        };
        return aufbau;
    }
};

} // namespace varnoth::simulator
