#pragma once

#include "eingabedatei.h"
#include "vrecblock.h"

#include <string>
#include <string_view>

namespace varnoth::vrec {

/// Walks over the blocks of a record from a place to its end, whatever the file holds.
class Blockgang {
public:
    enum class Schritt {
        Block,       ///< a block, its content right
        Beschaedigt, ///< a block whose content is not
        Luecke,      ///< there were bytes that are no block
        Suche,       ///< still among such bytes
        Ende, ///< nothing follows; `Abgeschnitten` tells whether bytes are left that are no whole block
    };

    /// `datei` must outlive this object.
    Blockgang(const Eingabedatei& datei, std::uint64_t beginn);

    /// The next step, a megabyte of bytes at most if they are no block.
    Schritt Weiter();

    // Of the block that was met last, until the next step.

    const Blockkopf& Kopf() const { return kopf; }
    std::uint64_t Blockstelle() const { return blockstelle; }
    std::string_view Inhalt() const { return inhalt; }

    /// Where it stands.
    std::uint64_t Stelle() const { return stelle; }
    bool Abgeschnitten() const { return abgeschnitten; }
    /// Whether some bytes could not be read.
    bool Lesefehler() const { return lesefehler; }

private:
    std::string_view Hole(std::uint64_t ab, std::size_t laenge);
    std::string_view HoleViele();
    Schritt Nimm(const Blockkopf& neuer);
    Schritt Suche();
    Schritt Ueberspringe();

    const Eingabedatei& datei;
    std::uint64_t groesse;
    std::uint64_t stelle;
    std::string puffer;
    std::uint64_t pufferstelle = 0;
    Blockkopf kopf;
    std::uint64_t blockstelle = 0;
    std::string_view inhalt;
    bool sucht = false;
    bool abgeschnitten = false;
    bool lesefehler = false;
};

} // namespace varnoth::vrec
