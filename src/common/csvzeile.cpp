#include "csvzeile.h"

#include "texte.h"

namespace varnoth {

std::string CsvFeld(std::string_view wert) {
    constexpr std::string_view Formelzeichen = "=+-@\t\r";
    std::string feld;
    if (!wert.empty() && Formelzeichen.find(wert.front()) != std::string_view::npos)
        feld = "'";
    feld += wert;
    if (feld.find_first_of("\";,\r\n") == std::string::npos)
        return feld;
    for (auto stelle = feld.find('"'); stelle != std::string::npos; stelle = feld.find('"', stelle + 2))
        feld.insert(stelle, 1, '"');
    return "\"" + feld + "\"";
}

std::string Csvzeile(const std::vector<std::string>& werte) {
    const char trenner = GetSprachoffset() == Englisch ? ',' : ';';
    std::string zeile;
    for (std::size_t i = 0; i < werte.size(); ++i) {
        if (i > 0)
            zeile += trenner;
        zeile += CsvFeld(werte[i]);
    }
    return zeile + "\r\n";
}

} // namespace varnoth
