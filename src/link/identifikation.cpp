#include "identifikation.h"

namespace varnoth {

void VerteileIdenttext(const std::string& text, Identifikation& ident) {
    std::string rest = text + ";;;";
    for (std::string* feld : {&ident.text1, &ident.text2, &ident.text3}) {
        const auto ende = rest.find(';');
        *feld = rest.substr(0, ende);
        rest.erase(0, ende + 1);
    }
}

} // namespace varnoth
