#pragma once

#include "messquelle.h"

#include <array>
#include <cstdint>
#include <optional>

namespace varnoth {

/// Which passes are recorded.
enum class Rhythmus : std::uint8_t {
    JederDurchgang,
    BeiAenderung, ///< those that differ from the one before, and one a minute
    AlleSekunden, ///< one in so many seconds
};

/// How a CSV file is written: with comma and decimal point, or as the German Excel reads it.
enum class Csvart : std::uint8_t { Standard, ExcelDeutsch };

struct Wahlbereich {
    int kleinster;
    int groesster;
};

inline constexpr Wahlbereich Sekundenbereich{1, 3600};
// 0 means never in these:
inline constexpr Wahlbereich Megabytebereich{0, 10'000};
inline constexpr Wahlbereich Endebereich{0, 100'000}; ///< minutes
inline constexpr Wahlbereich Behaltebereich{0, 8760}; ///< hours

/// What somebody has chosen for his recordings.
struct Aufzeichnungswahl {
    bool vrec = true;
    bool csv = true;
    Csvart csvart = Csvart::Standard;
    Rhythmus rhythmus = Rhythmus::JederDurchgang;
    int sekunden = 10;        ///< of the rhythm
    int megabyte = 0;         ///< a new file begins when one holds so many
    bool mitternacht = false; ///< a new file begins at midnight, local time
    int endeMinuten = 0;      ///< the recording ends after so many
    int behalteStunden = 0;   ///< what is older is deleted

    bool operator==(const Aufzeichnungswahl&) const = default;
};

/// The choice with every number brought into its range, and with a form where none was chosen.
Aufzeichnungswahl Begrenzt(Aufzeichnungswahl wahl);

/// Tells which passes are due.
class Durchgangsauswahl {
public:
    explicit Durchgangsauswahl(Rhythmus welcher, int alleSekunden)
        : rhythmus(welcher), abstand(std::chrono::seconds(alleSekunden)) {}

    /// Whether this pass, which follows on those asked about before, is to be recorded.
    bool Nimm(const Messdurchgang& durchgang);
    /// The next pass is due whatever it holds: something has happened between.
    void BeginneNeu() { letzter.reset(); }

private:
    bool IstFaellig(const Messdurchgang& durchgang) const;

    Rhythmus rhythmus;
    Zeit abstand;
    std::optional<Messdurchgang> letzter; ///< that was recorded
};

/// How long a file may grow before the next begins, so that old ones can be deleted: a twelfth of what is
/// kept. Nothing while all is kept.
std::optional<Zeit> Stuecklaenge(int behalteStunden);

/// The local day of a time, counted in days; changes at midnight.
std::int64_t Ortstag(Systemzeit zeit);

} // namespace varnoth
