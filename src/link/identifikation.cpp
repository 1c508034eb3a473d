#include "identifikation.h"

#include "zeichensatz.h"

namespace varnoth {

void VerteileIdenttext(const std::string& text, Identifikation& ident) {
    std::string rest = text + ";;;";
    for (std::string* feld : {&ident.text1, &ident.text2, &ident.text3}) {
        const auto ende = rest.find(';');
        *feld = rest.substr(0, ende);
        rest.erase(0, ende + 1);
    }
}

std::string IdenttextAlsUtf8(const std::string& text) {
    std::string utf8;
    for (const char zeichen : text)
        utf8 += AlsUtf8(static_cast<std::uint8_t>(zeichen));
    return utf8;
}

} // namespace varnoth
