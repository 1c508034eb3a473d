#pragma once

#include "vergleichsseite.h"

#include <string>
#include <vector>

namespace varnoth {

/// What the comparison window asks of the program around it.
class Vergleichsanbieter {
public:
    Vergleichsanbieter() = default;
    Vergleichsanbieter(const Vergleichsanbieter&) = delete;
    Vergleichsanbieter& operator=(const Vergleichsanbieter&) = delete;
    virtual ~Vergleichsanbieter() = default;

    /// The sources that can be asked for at present, of those that ask further.
    virtual std::vector<Vergleichsquelle> Fragbare() = 0;
    /// The user wants a source that asks further at one side: `frmVergleich::Setze` answers, at once or
    /// later, or never where the user changes his mind.
    virtual void Verlange(Vergleichsquelle quelle, Seitenwahl seite) = 0;
    /// Saves a text (UTF-8) in a file that the user chooses.
    virtual void SpeichereText(const std::string& text) = 0;
};

} // namespace varnoth
