#include "wertetext.h"

namespace varnoth {

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
