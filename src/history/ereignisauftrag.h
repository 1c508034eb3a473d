#pragma once

#include "ereignisspeicher.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

/// Writes chosen events into a text, some at a time.
class Ereignisauftrag {
public:
    using Zeilenform = std::string (*)(const Ereignis& ereignis);

    /// `kopf` stands first; `fertig` gets the text when all is written.
    Ereignisauftrag(std::vector<std::uint64_t> gewaehlte, Zeilenform alsZeile, std::string kopf,
                    std::function<void(const std::string& text)> fertig)
        : nummern(std::move(gewaehlte)), form(alsZeile), text(std::move(kopf)), danach(std::move(fertig)) {}

    /// Writes so many at most; those that the store has forgotten are left out. True when all are written.
    bool Weiter(const Ereignisspeicher& speicher, std::size_t hoechstens) {
        for (; hoechstens > 0 && naechste < nummern.size(); --hoechstens, ++naechste)
            if (nummern[naechste] >= speicher.Erstes())
                text += form(speicher.Hole(nummern[naechste]));
        return naechste == nummern.size();
    }
    void MeldeFertig() const { danach(text); }

private:
    std::vector<std::uint64_t> nummern;
    Zeilenform form;
    std::string text;
    std::function<void(const std::string& text)> danach;
    std::size_t naechste = 0;
};

} // namespace varnoth
