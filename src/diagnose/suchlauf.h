#pragma once

#include "identifikation.h"
#include "portangabe.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varnoth {

/// One try of the search: a device and a line format.
struct Suchversuch {
    std::string geraet;
    std::string format; ///< "38400,n,8,2"

    bool operator==(const Suchversuch&) const = default;
};

/// What came of a try.
enum class Suchergebnis {
    Gefunden,         ///< a controller has answered
    NurMitEcho,       ///< it has, but what was sent came back as well
    PortVerschlossen, ///< the port could not be opened
    Stille,           ///< nothing came
    Unverstanden,     ///< something came that was no reply
    Echo,             ///< what was sent came back, and nothing else
};

struct Suchstand {
    int nummer = 0; ///< of the try, from 1 on
    int anzahl = 0; ///< tries there will be at most
    Suchversuch versuch{};
    std::optional<Suchergebnis> ergebnis{}; ///< nothing while the try is under way
    std::string text{};                     ///< the result in words of the current language
};

/// Who watches a search. Both are called between exchanges, and Suchzeiger::Abgebrochen also in them.
class Suchzeiger {
public:
    Suchzeiger() = default;
    Suchzeiger(const Suchzeiger&) = delete;
    Suchzeiger& operator=(const Suchzeiger&) = delete;
    virtual ~Suchzeiger() = default;

    /// A try begins or has ended.
    virtual void Zeige(const Suchstand& stand) = 0;
    /// Whether the search is to end now.
    virtual bool Abgebrochen() = 0;
};

struct Suchfund {
    Suchversuch versuch{};  ///< where and how it answers; empty where none was found
    Identifikation ident{}; ///< valid where one was found
    bool mitEcho = false;   ///< what is sent comes back as well: the echo must be switched off before use
    bool abgebrochen = false;
    int versuche = 0;   ///< so many were carried out
    std::string text{}; ///< the outcome in words of the current language
};

/// The line formats that the controller can have, the likeliest first.
std::span<const std::string> Suchformate();

/// All tries on these devices in the order in which they are made: the likeliest format on every device
/// first, then the others device by device.
std::vector<Suchversuch> Suchfolge(const std::vector<std::string>& geraete);

/// Looks for the controller on these devices and ends with the first that answers. Nothing but identification
/// requests is sent. A port that cannot be opened is not tried again; a line on which something is said that
/// is no reply is asked up to three times, since a controller may be sending by itself. A try takes 0.4 s at
/// most at 38400 bit/s, and at slower formats as much longer as the bytes need. Device, port number and line
/// format are those of before at the end, and the port is closed. Must not run while the port is in use.
Suchfund SucheSteuergeraet(const std::vector<std::string>& geraete, Suchzeiger& zeiger);

/// The same over tries of one's own choice, in their order.
Suchfund SucheSteuergeraet(const std::vector<Suchversuch>& versuche, Suchzeiger& zeiger);

} // namespace varnoth
