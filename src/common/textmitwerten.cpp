#include "textmitwerten.h"

#include "texte.h"

#include <span>

namespace varnoth {

namespace {

std::string MitWerten(std::int16_t id, std::span<const std::string> werte) {
    const std::string& vorlage = LadeText(id);
    std::string text;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        const auto nummer = i + 1 < vorlage.size() ? static_cast<std::size_t>(vorlage[i + 1] - '0') : 0;
        if (vorlage[i] == '%' && nummer >= 1 && nummer <= werte.size()) {
            text += werte[nummer - 1];
            ++i;
        } else {
            text += vorlage[i];
        }
    }
    return text;
}

} // namespace

std::string LadeTextMit(std::int16_t id, std::initializer_list<std::string> werte) {
    return MitWerten(id, werte);
}

std::string LadeAnzahltext(std::int16_t einzahl, std::int16_t mehrzahl, int anzahl,
                           const std::vector<std::string>& weitere) {
    std::vector<std::string> werte{std::to_string(anzahl)};
    werte.insert(werte.end(), weitere.begin(), weitere.end());
    return MitWerten(anzahl == 1 ? einzahl : mehrzahl, werte);
}

} // namespace varnoth
