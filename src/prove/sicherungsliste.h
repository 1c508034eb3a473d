#pragma once

#include "sicherungen.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

/// The backups of one controller, the newest first.
struct Geraetesicherungen {
    std::string seriennummer; ///< empty where the configurations have none
    std::vector<Sicherung> sicherungen;
};

/// Backups by controller: the controller with the newest backup stands first.
std::vector<Geraetesicherungen> NachGeraet(const std::vector<Sicherung>& alle);

/// What a group of backups is called, in the current language.
std::string Gruppenname(const std::string& seriennummer);
/// Before what a backup was made, in the current language.
std::string Anlasstext(const std::optional<Sicherungsanlass>& anlass);
/// How many settings of a backup differ from an image, a part that is on one side alone included; that it
/// cannot be read, where it could not.
std::string Unterschiedstext(const std::optional<Abbild>& sicherung, const Abbild& jetzt);

/// How many backups there are, in the current language.
std::string Sicherungszahl(std::size_t anzahl);

} // namespace varnoth
