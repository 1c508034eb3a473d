#pragma once

#include "abbild.h"
#include "endecode.h"
#include "json.h"
#include "leitungszugang.h"
#include "parameterstelle.h"
#include "sicherungen.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnoth::ctl {

struct Lauf;

/// What kind of place a configuration comes from.
enum class Quellenart { Datei, Geraet, Werk, Sicherung };

/// A configuration, and where it comes from.
struct Quelle {
    Quellenart art = Quellenart::Datei;
    std::string pfad{}; ///< of a file or backup, UTF-8
    std::string name{}; ///< for a person, in the current language
    Abbild abbild{};
    Parametermenge ungelesen{}; ///< what a controller's read has not got
};

/// The word that names the controller as a source.
inline constexpr std::string_view WortGeraet = "device";

/// The kind that a word names: "device", "default", "backup", "backup:SERIAL", and any other word is a path.
Quellenart ArtVon(std::string_view wort);

/// Reads the configuration that a word names; `zugang` connects where it is the controller. A configuration
/// file and a configuration as text are told apart by what they hold. Why it cannot be had is told.
/// @param seriennummer of the controller whose newest backup "backup" means; nothing: that of any
Ende LiesQuelle(const Lauf& lauf, std::string_view wort, Leitungszugang& zugang,
                const std::optional<std::string>& seriennummer, Quelle& quelle);

/// The newest backup of the controller with this serial number; without one of any.
std::optional<Sicherung> NeuesteSicherung(const std::optional<std::string>& seriennummer);

/// Reads the controller that is connected, and remembers what it holds.
Ende LiesSteuergeraet(const Lauf& lauf, Leitungszugang& zugang, Quelle& quelle);

/// Says where values lie that no controller takes. True when there is none.
bool PruefePlausibel(const Lauf& lauf, const Abbild& abbild);

/// The configuration as text. That of a controller leaves out what it measures: it changes only with the
/// configuration.
std::string Quellentext(const Quelle& quelle);

/// {"kind": ..., "path": ..., "name": ...}
Json AlsJson(const Quelle& quelle);

} // namespace varnoth::ctl
