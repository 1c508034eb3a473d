#pragma once

#include "endecode.h"
#include "quelle.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnoth::ctl {

struct Lauf;

/// A configuration that is to become a file or a document.
struct Umwandlung {
    Quelle quelle{};
    std::optional<std::string> ziel{}; ///< path; nothing: it goes where the data goes
};

/// Reads what the argument of the command line names, or else the controller; the target is what the option
/// "output" names. Before anything takes time it is certain that a file may come there: the path is free, or
/// the user agrees that what is there is replaced.
Ende LiesFuerZiel(const Lauf& lauf, Umwandlung& umwandlung);

/// Whether two paths lead to the same file or device.
bool IstDasselbe(const std::string& ein, const std::string& anderes);

/// Puts a file there, whole or not at all.
Ende LegeDatei(const Lauf& lauf, const std::string& pfad, std::string_view bytes);

/// Hands over a document: as a file where there is a target, else where the data goes. In JSON it stands
/// under the name where it is in no file.
Ende GibDokument(const Lauf& lauf, const Umwandlung& umwandlung, const std::string& dokument,
                 std::string_view name);

} // namespace varnoth::ctl
