#pragma once

#include "dateideskriptor.h"

#include <poll.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varnoth::simulator {

/// The control channel: a Unix stream socket that takes one command a line and answers each with one line.
class Steuerkanal {
public:
    using Ausfuehren = std::function<std::string(std::string_view zeile)>;

    /// @param socketpfad where the socket appears, empty = no channel
    /// @throws std::runtime_error with a sentence for the user
    explicit Steuerkanal(std::string socketpfad);
    Steuerkanal(const Steuerkanal&) = delete;
    Steuerkanal& operator=(const Steuerkanal&) = delete;
    ~Steuerkanal();

    /// Appends what poll() shall watch.
    void Beobachte(std::vector<pollfd>& liste) const;
    /// Serves those of the watched that have something to say.
    void Bediene(const std::vector<pollfd>& liste, const Ausfuehren& ausfuehren);

private:
    struct Gast {
        Dateideskriptor leitung;
        std::string angefangen{}; ///< a line not yet whole
    };
    bool Bediene(Gast& gast, const Ausfuehren& ausfuehren);
    void LasseEin();

    std::string pfad;
    Dateideskriptor tuer;
    std::vector<Gast> gaeste;
};

} // namespace varnoth::simulator
