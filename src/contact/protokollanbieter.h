#pragma once

#include "supportbericht.h"

#include <chrono>
#include <optional>
#include <string>

namespace varnoth {

/// What the window of the bus log asks of the program around it.
class Protokollanbieter {
public:
    Protokollanbieter() = default;
    Protokollanbieter(const Protokollanbieter&) = delete;
    Protokollanbieter& operator=(const Protokollanbieter&) = delete;
    virtual ~Protokollanbieter() = default;

    /// Asks where a file is to go: its path (UTF-8), nothing when the user changes his mind.
    virtual std::optional<std::string> FrageNachDatei(const std::string& titel, const std::string& filter,
                                                      const std::string& name) = 0;
    /// Puts a file there, as a whole or not at all, and tells the user when that fails. True when it is
    /// there.
    virtual bool Schreibe(const std::string& pfad, const std::string& bytes) = 0;
    /// What the program knows for the file for support.
    virtual Supportangaben Angaben() = 0;
    /// The time of day.
    virtual std::chrono::system_clock::time_point Jetzt() { return std::chrono::system_clock::now(); }
};

} // namespace varnoth
