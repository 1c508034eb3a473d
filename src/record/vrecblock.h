#pragma once

#include "messquelle.h"

#include <optional>
#include <string>
#include <string_view>

/// What a record (`*.vrec`) is made of, see docs/RECORD_FORMAT.md.
namespace varnoth::vrec {

inline constexpr std::string_view Kennung = "Varnoth Aufzeichnung\r\n\x1A";
inline constexpr std::uint8_t Version = 1;
inline constexpr std::size_t LaengeKennung = Kennung.size() + 1;

inline constexpr std::string_view Blockmarke = "\xA5VRB";
inline constexpr std::size_t LaengeBlockkopf = 20;
inline constexpr std::uint32_t GroessterBlock = 32U << 20U;
inline constexpr std::size_t LaengeSchluss = LaengeBlockkopf + 16;
inline constexpr std::size_t GroesstesVerzeichnis = 65'536; // entries

enum class Blockart : std::uint8_t {
    Angaben = 1,
    Konfiguration = 2,
    Paket = 3,
    Verzeichnis = 4,
    Schluss = 5
};

struct Blockkopf {
    Blockart art{}; ///< may be one that is not known
    std::uint32_t laenge = 0;
    std::uint32_t pruefsumme = 0;

    bool operator==(const Blockkopf&) const = default;
};

/// A block as bytes.
std::string AlsBlock(Blockart art, std::string_view inhalt);
/// The head of a block in at least LaengeBlockkopf bytes; nothing when they are none.
std::optional<Blockkopf> BlockkopfAus(std::string_view bytes);

/// The contents of blocks. What cannot be one gives nothing.
std::string AlsInhalt(const Messangaben& angaben);
std::optional<Messangaben> AngabenAus(std::string_view inhalt);

/// A block that an index tells of.
struct Eintrag {
    bool istKonfiguration = false;
    bool hatEreignisse = false; ///< packets only
    std::uint64_t stelle = 0;   ///< of the block in the file
    std::uint32_t laenge = 0;   ///< of its content
    Zeitspanne spanne{};        ///< packets only

    bool operator==(const Eintrag&) const = default;
};

/// Collects the entries of one index block.
class Verzeichnisschreiber {
public:
    void Nimm(const Eintrag& eintrag);
    bool IstVoll() const { return anzahl >= GroesstesVerzeichnis; }
    bool IstLeer() const { return anzahl == 0; }
    /// The content of the block; the next entry begins another one.
    std::string Entnimm();

private:
    std::string bytes;
    std::size_t anzahl = 0;
    std::uint64_t letzteStelle = 0;
    Zeit letztesEnde{};
};

std::optional<std::vector<Eintrag>> VerzeichnisAus(std::string_view inhalt);

struct Schluss {
    std::uint64_t verzeichnis = 0; ///< offset of the first index block
    std::uint64_t durchgaenge = 0; ///< in the whole record
};

std::string AlsInhalt(const Schluss& schluss);
std::optional<Schluss> SchlussAus(std::string_view inhalt);

} // namespace varnoth::vrec
