#include "programmumgebung.h"

#include <cstdlib>

namespace varnoth {

std::vector<std::string> Programmworte(int anzahl, char** worte) {
    return anzahl > 0 ? std::vector<std::string>(worte + 1, worte + anzahl) : std::vector<std::string>();
}

std::string Umgebungswert(const char* name) {
    const char* const wert = std::getenv(name);
    return wert != nullptr ? wert : "";
}

} // namespace varnoth
