#pragma once

#include "messquelle.h"

#include <list>

namespace varnoth {

/// Keeps the packets that were read last. What is kept is bounded by the passes that they hold.
class Paketmerker {
public:
    /// The packet of a number; nothing when it is not kept. It counts as the one read last.
    std::shared_ptr<const Messpaket> Hole(std::uint64_t nummer);
    void Merke(std::uint64_t nummer, std::shared_ptr<const Messpaket> paket);
    /// Forgets the packet of a number.
    void Vergiss(std::uint64_t nummer);

private:
    struct Gemerktes {
        std::uint64_t nummer;
        std::shared_ptr<const Messpaket> paket;
    };

    static std::size_t Umfang(const Messpaket& paket);

    std::list<Gemerktes> gemerkte; ///< the one read last comes first
    std::size_t umfang = 0;
};

} // namespace varnoth
