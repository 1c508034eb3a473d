#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Where recordings lie, as their thread sees it. Errors are POSIX error numbers, 0 when all went well; paths
/// are UTF-8.
namespace varnoth {

/// A file of ours that grows, open until it is closed or this object goes.
class Ausgabedatei {
public:
    Ausgabedatei() = default;
    Ausgabedatei(const Ausgabedatei&) = delete;
    Ausgabedatei& operator=(const Ausgabedatei&) = delete;
    virtual ~Ausgabedatei() = default;

    /// Hands bytes to the system, all of them: after an error the file ends where it ended before, as far as
    /// the system allows that.
    virtual int HaengeAn(std::string_view bytes) = 0;
    /// Waits until the disk itself holds what was handed over. An error too when the path no longer leads to
    /// this file.
    virtual int Sichere() = 0;
    /// Nothing more is to come.
    virtual void Schliesse() = 0;
    /// Removes the file, closed or not, unless its path leads to another by now.
    virtual void Entferne() = 0;
};

struct Angelegt {
    std::unique_ptr<Ausgabedatei> datei{}; ///< nullptr after an error
    int fehler = 0;                        ///< EEXIST where something, even a link, is there already
};

class Dateiablage {
public:
    Dateiablage() = default;
    Dateiablage(const Dateiablage&) = delete;
    Dateiablage& operator=(const Dateiablage&) = delete;
    virtual ~Dateiablage() = default;

    /// Makes a new file, and its folder where it is not there.
    virtual Angelegt LegeAn(const std::string& pfad) = 0;
    /// How many bytes find room in a folder; nothing when that cannot be told.
    virtual std::optional<std::uint64_t> FreierPlatz(const std::string& ordner) = 0;
};

} // namespace varnoth
