#pragma once

#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnoth::ctl {

/// A value in JSON, in one line. Its fields stay in the order in which they are given.
class Json {
public:
    Json() = default; ///< null
    // Values are meant to become JSON where they stand.
    Json(bool wert) : text(wert ? "true" : "false") {}
    Json(std::int32_t wert) : text(std::to_string(wert)) {}
    Json(std::string_view wert);
    Json(const std::string& wert) : Json(std::string_view(wert)) {}
    Json(const char* wert) : Json(std::string_view(wert)) {}

    using Feld = std::pair<std::string_view, Json>;
    /// With the fields of both, if there are two.
    static Json Objekt(const std::vector<Feld>& felder, const std::vector<Feld>& weitere = {});
    static Json Liste(const std::vector<Json>& werte);
    static Json Zahlen(const std::vector<std::int32_t>& zahlen);

    const std::string& Text() const { return text; }

private:
    std::string text = "null";
};

/// The list of what the function makes of each element.
template<class Reihe, class Funktion>
Json Jsonliste(const Reihe& reihe, Funktion funktion) {
    std::vector<Json> werte;
    werte.reserve(std::size(reihe));
    for (const auto& eines : reihe)
        werte.push_back(funktion(eines));
    return Json::Liste(werte);
}

} // namespace varnoth::ctl
