#pragma once

#include "umgebung.h"

#include <cstddef>
#include <deque>
#include <map>
#include <string>

namespace varnoth {

/// Which exchanges are certain to have got their own replies. A reply that comes twice is believed by the
/// next request of the same shape; from then on there is one reply more than requests, and every later
/// request of that shape takes its predecessor's. At the first request of another shape something arrives
/// that does not fit. So what was exchanged is provisional until requests of another shape have gone cleanly
/// behind it, and when something does not, all that is provisional must be asked again.
class Gewissheit {
public:
    /// So many changes of shape must have gone cleanly behind an exchange.
    static constexpr std::size_t Belege = 2;

    /// Longer than a reply comes behind its first.
    static constexpr Zeit LangeRuhe = std::chrono::milliseconds(600);

    /// A request of this shape is sent.
    void Gefragt(const std::string& gestalt, Zeit jetzt);
    /// An exchange of this shape has succeeded.
    void Gelungen(const std::string& gestalt);
    /// An exchange whose reply cannot be mistaken has succeeded: all before it is certain.
    void Geklaert();
    /// A reply came that nobody was waiting for, or another one than was waited for.
    void Gebrochen();

    /// The number of the last exchange that succeeded, from 1; 0 before the first.
    unsigned long Letzter() const { return letzter; }
    /// The number of the last one that is certain. What a break has made worthless never becomes certain,
    /// though its numbers lie below: whoever relies on an exchange also watches the breaks.
    unsigned long GewissBis() const { return gewissBis; }
    bool IstVorlaeufiges() const { return letzter > gewissBis; }
    /// Whether all but the last few are certain, and these few cannot have taken another's reply: nothing
    /// else of their shape was asked for so long that none of its replies was under way.
    bool IstUnverwechselbar() const { return gewissBis >= verwechselbarBis; }
    /// How many breaks there were.
    unsigned long Brueche() const { return brueche; }

private:
    unsigned long letzter = 0;
    unsigned long gewissBis = 0;
    unsigned long brueche = 0;
    unsigned long verwechselbarBis = 0;   ///< the last that could have taken the reply to another request
    bool alleingefragt = false;           ///< no other request of the last one's shape was sent lately
    std::map<std::string, Zeit> fragen{}; ///< when a request of each shape was last sent, of the late ones
    std::string gestalt;                  ///< of the last exchange
    std::deque<unsigned long> wechsel{};  ///< the last exchange before each change of shape
};

} // namespace varnoth
