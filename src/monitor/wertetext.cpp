#include "wertetext.h"

namespace varnoth {

std::optional<int> Strahlposition(int nummer, int abstandMm) {
    if (nummer < 1 || abstandMm <= 0)
        return std::nullopt;
    return (nummer - 1) * abstandMm;
}

std::string Positionstext(std::optional<int> positionMm) {
    return positionMm ? std::to_string(*positionMm) + " mm" : std::string();
}

std::string Wertetabelle(std::span<const std::string> ueberschriften, std::span<const Wertzeile> zeilen) {
    std::string tabelle;
    for (const std::string& ueberschrift : ueberschriften)
        tabelle += ueberschrift + '\n';
    for (const auto& [name, wert, daneben] : zeilen) {
        tabelle.append(name).append(1, '\t').append(wert);
        if (!daneben.empty())
            tabelle.append(1, '\t').append(daneben);
        tabelle += '\n';
    }
    return tabelle;
}

} // namespace varnoth
