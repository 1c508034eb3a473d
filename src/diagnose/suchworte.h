#pragma once

#include "suchlauf.h"

#include <string>

namespace varnoth {

/// What a search has met, for the words about its outcome.
struct Suchbilanz {
    int geraete = 0;              ///< that were to be searched
    int verschlossene = 0;        ///< that could not be opened
    std::string verschlossen{};   ///< why not, of the first of them
    std::string echoAn{};         ///< the first device on which nothing but an echo was heard
    std::string unverstandenAn{}; ///< the first device on which something was heard that is no reply
    bool simuliert = false;       ///< the program talks to its built-in controller
};

/// What came of a try.
std::string Versuchstext(Suchergebnis ergebnis);

/// The outcome of a search, and what to do next where nothing was found.
std::string Fundtext(const Suchfund& fund, const Suchbilanz& bilanz);

} // namespace varnoth
