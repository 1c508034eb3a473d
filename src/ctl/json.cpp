#include "json.h"

#include "utf8.h"

#include <algorithm>
#include <cstddef>

namespace varnoth::ctl {

namespace {

constexpr const char* Ersatzzeichen = "\xEF\xBF\xBD";
constexpr std::size_t LaengstesZeichen = 4;

std::string Steuerzeichen(char zeichen) {
    constexpr const char* Ziffern = "0123456789abcdef";
    const auto wert = static_cast<unsigned char>(zeichen);
    return std::string("\\u00") + Ziffern[wert >> 4U] + Ziffern[wert & 0xFU];
}

/// The length of the character that the bytes begin with; 0 where they begin with none.
std::size_t Zeichenlaenge(std::string_view bytes) {
    for (std::size_t laenge = 1; laenge <= std::min(LaengstesZeichen, bytes.size()); ++laenge)
        if (IstUtf8(bytes.substr(0, laenge)))
            return laenge;
    return 0;
}

std::string Zeichen(std::string_view eines) {
    switch (eines.front()) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    default:
        return static_cast<unsigned char>(eines.front()) < 0x20 ? Steuerzeichen(eines.front())
                                                                : std::string(eines);
    }
}

} // namespace

Json::Json(std::string_view wert) : text("\"") {
    while (!wert.empty()) {
        const std::size_t laenge = Zeichenlaenge(wert);
        text += laenge == 0 ? Ersatzzeichen : Zeichen(wert.substr(0, laenge));
        wert.remove_prefix(std::max<std::size_t>(laenge, 1));
    }
    text += '"';
}

Json Json::Objekt(const std::vector<Feld>& felder, const std::vector<Feld>& weitere) {
    Json objekt;
    objekt.text = "{";
    for (const auto* const reihe : {&felder, &weitere})
        for (const auto& [name, wert] : *reihe) {
            objekt.text += objekt.text.size() > 1 ? ", " : "";
            objekt.text += Json(name).text + ": " + wert.text;
        }
    objekt.text += '}';
    return objekt;
}

Json Json::Liste(const std::vector<Json>& werte) {
    Json liste;
    liste.text = "[";
    for (const Json& wert : werte)
        liste.text += (liste.text.size() > 1 ? ", " : "") + wert.text;
    liste.text += ']';
    return liste;
}

Json Json::Zahlen(const std::vector<std::int32_t>& zahlen) {
    return Jsonliste(zahlen, [](std::int32_t zahl) { return Json(zahl); });
}

} // namespace varnoth::ctl
