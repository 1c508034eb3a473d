#include "textmitwerten.h"

#include "texte.h"

namespace varnoth {

std::string LadeTextMit(std::int16_t id, std::initializer_list<std::string> werte) {
    const std::string& vorlage = LadeText(id);
    std::string text;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        const auto nummer = i + 1 < vorlage.size() ? static_cast<std::size_t>(vorlage[i + 1] - '0') : 0;
        if (vorlage[i] == '%' && nummer >= 1 && nummer <= werte.size()) {
            text += *(werte.begin() + nummer - 1);
            ++i;
        } else {
            text += vorlage[i];
        }
    }
    return text;
}

} // namespace varnoth
