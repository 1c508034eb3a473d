#pragma once

#include "messspalte.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <ranges>

namespace varnoth {

/// What was seen in each four and each sixteen stretches of an overview that follow on each other, so that a
/// wide column is made of few pieces. Stretches are counted from the first one there ever was.
class Abschnittsbloecke {
public:
    struct Block {
        std::uint64_t anzahl = 0; ///< stretches in it
        std::int64_t erster = 0;  ///< the number of the first of them
        std::int64_t letzter = 0; ///< and of the last
        Messspalte inhalt{};
    };

    static constexpr std::uint64_t Faktor = 4;
    static constexpr std::size_t Stufen = 2;
    /// What each stretch takes of memory here, about.
    static constexpr std::size_t BytesJeAbschnitt = sizeof(Block) / 3;

    /// The next stretch, and what was seen in it.
    /// @param nummer greater than that of any before
    void Nimm(std::int64_t nummer, const Messspalte& inhalt);
    /// So many stretches are gone, counted from the first one there ever was: what holds one of them too.
    void Vergiss(std::uint64_t abschnitte);
    /// The largest block from a stretch on that is as asked for; nullptr if there is none.
    template<class Bedingung>
    const Block* Ab(std::uint64_t abschnitt, Bedingung passt) const {
        for (const Stufe& stufe : std::ranges::reverse_view(stufen)) {
            const std::uint64_t stelle = abschnitt / stufe.laenge;
            if (abschnitt % stufe.laenge != 0 || stelle < stufe.erster)
                continue;
            const std::uint64_t i = stelle - stufe.erster;
            if (i < stufe.bloecke.size() && passt(stufe.bloecke[i]))
                return &stufe.bloecke[i];
        }
        return nullptr;
    }

private:
    struct Stufe {
        std::uint64_t laenge = Faktor; ///< stretches a block
        std::uint64_t erster = 0;      ///< the first block that is kept, counted likewise
        std::deque<Block> bloecke{};
        Block offener{}; ///< the one that is not full yet
    };

    std::array<Stufe, Stufen> stufen{Stufe{.laenge = Faktor}, Stufe{.laenge = Faktor * Faktor}};
};

} // namespace varnoth
