#pragma once

#include <functional>
#include <memory>
#include <string>

namespace varnoth {

class Messquelle;

/// A record that was opened, or why it was not.
struct GeoeffneteAufzeichnung {
    std::shared_ptr<const Messquelle> quelle{}; ///< nothing: it was not
    std::string fehlertext{};                   ///< empty: the user changed his mind
    std::string hinweis{};                      ///< what is missing of one that was opened; may be empty
};

/// Opens a record (UTF-8 path); `weiter` hears how much is done, 0..1, and says whether to go on.
using Aufzeichnungsleser = std::function<GeoeffneteAufzeichnung(
    const std::string& pfad, const std::function<bool(double anteil)>& weiter)>;

/// Opens a `*.vrec`. Every error is a sentence in the current language.
GeoeffneteAufzeichnung LiesAufzeichnung(const std::string& pfad,
                                        const std::function<bool(double anteil)>& weiter);

} // namespace varnoth
