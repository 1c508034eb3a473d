#pragma once

#include "griff_windows.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// What stands in place of an error number for a path that leads to no ordinary file.
inline constexpr int KeineDatei = -1;

/// The text of an error number or of KeineDatei; empty for 0.
std::string Dateifehler(int fehler);

/// Why a path as the system takes it is no place for a file; 0 when it is one or nothing is there yet.
int Dateihindernis(const std::wstring& systempfad);

enum class Oeffnung {
    Lesen, ///< one that is there
    Neu,   ///< one that is not there, not even a link; until it is closed nobody else writes or removes it
    Anhaengen, ///< one that is there or is made; nobody else writes it meanwhile
};

/// An open file, or why there is none.
struct Geoeffnet {
    Griff datei{};
    int fehler = 0;
};

/// Opens a file (UTF-8 path of any length). A folder, a device and a pipe are refused; a link to a file is
/// followed, but for a new one. A file that another program keeps to itself is waited for, a second at most.
Geoeffnet OeffneDatei(std::string_view pfad, Oeffnung wie);

/// How long an open file is; 0 where the system does not say.
std::uint64_t Dateilaenge(const Griff& datei);

/// Writes all bytes to an open file, from that place on. After an error the file ends there again.
int SchreibeAb(const Griff& datei, std::uint64_t stelle, std::string_view bytes);

/// Waits until the disk itself holds what was written; at once where the file system knows no such thing.
int BringeAufDatentraeger(const Griff& datei);

/// Which file of the system it is, whatever its name.
struct Dateikennung {
    std::uint32_t datentraeger = 0;
    std::uint64_t nummer = 0;
    bool operator==(const Dateikennung&) const = default;
};

/// That of an open file; nothing where none is open.
std::optional<Dateikennung> DateikennungVon(const Griff& datei);

/// That of what lies there, a folder included; of a link itself, or of what it leads to. Is in nobody's way.
std::optional<Dateikennung> DateikennungDort(const std::wstring& systempfad, bool folgtLinks);

} // namespace varnoth
