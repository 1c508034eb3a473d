#pragma once

#include "lesart.h"
#include "werte.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// The entries of a data block in the order they are sent: "Status:Varnoth, TU:K1"; "none" in the language
/// for an empty one. An entry that means nothing is told as a number.
std::string DatenblockAlsWorte(const Werte& datenblock, const Lesart& lesart);

/// The registers of a data block with these entries, 30 at most.
std::optional<Werte> DatenblockAusWorten(std::string_view worte, const Lesart& lesart);

} // namespace varnoth
