#pragma once

#include "endecode.h"
#include "json.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnoth::ctl {

struct Lauf;

/// The path that the option "output" names, if there is one. The file may come there: the path is free, or
/// the user agrees that what is there is replaced. To be asked before anything takes time.
Ende WaehleZiel(const Lauf& lauf, std::optional<std::string>& pfad);

/// Puts a file there, whole or not at all.
Ende LegeDatei(const Lauf& lauf, const std::string& pfad, std::string_view bytes);

/// Hands over a document: as a file where there is a path, else where the data goes. In JSON these fields
/// tell of it, and the document itself stands under the name where it is in no file.
Ende GibDokument(const Lauf& lauf, const std::optional<std::string>& pfad, const std::string& dokument,
                 std::string_view name, std::vector<Json::Feld> felder);

} // namespace varnoth::ctl
