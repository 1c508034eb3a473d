#pragma once

#include "anschluss.h"

#include <array>
#include <cstddef>
#include <string>

namespace varnoth {

/// How many COM numbers the program knows.
inline constexpr int AnzahlCom = 4;

/// The name of a COM number.
inline std::string Comname(int com) {
    return "COM" + std::to_string(com);
}

/// What a person chooses about the connection.
struct Anschlusswahl {
    std::array<std::string, AnzahlCom> geraete; ///< what COM1 to COM4 mean
    int nummer = 1;                             ///< the COM number in use, 1 to 4
    std::string format;                         ///< the line format, for all of them

    /// The device of a number 1 to 4.
    const std::string& Geraet(int com) const { return geraete.at(static_cast<std::size_t>(com - 1)); }
    std::string& Geraet(int com) { return geraete.at(static_cast<std::size_t>(com - 1)); }

    bool operator==(const Anschlusswahl&) const = default;
};

/// What is in force, and what the system says of it.
struct Anschlussstand {
    Anschlusswahl wahl;
    std::array<std::string, AnzahlCom> ziele{};  ///< where the names of the devices lead, links followed
    std::array<Portbefund, AnzahlCom> befunde{}; ///< what stands in the way of the devices
    std::array<bool, AnzahlCom> eingetragen{};   ///< the settings name the device; else it is the usual one
    std::string geraetDiesesLaufs{};             ///< in this run every number means it; empty: none
    bool simuliert = false;                      ///< the built-in controller answers at present
    bool immerSimuliert = false;                 ///< and in this run nothing else will
    std::string offen{};                         ///< the device that this program has open; empty: none

    /// The device that the number in use leads to in this run; empty where the built-in controller answers.
    std::string Geraet() const {
        if (simuliert)
            return {};
        return geraetDiesesLaufs.empty() ? wahl.Geraet(wahl.nummer) : geraetDiesesLaufs;
    }

    bool operator==(const Anschlussstand&) const = default;
};

} // namespace varnoth
