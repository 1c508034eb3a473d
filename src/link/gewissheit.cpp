#include "gewissheit.h"

namespace varnoth {

void Gewissheit::Gefragt(const std::string& neue, Zeit jetzt) {
    std::erase_if(fragen, [jetzt](const auto& frage) { return jetzt - frage.second >= LangeRuhe; });
    alleingefragt = fragen.insert_or_assign(neue, jetzt).second;
}

void Gewissheit::Gelungen(const std::string& neue) {
    if (neue != gestalt && letzter > 0)
        wechsel.push_back(letzter);
    gestalt = neue;
    ++letzter;
    if (!alleingefragt)
        verwechselbarBis = letzter;
    if (wechsel.size() < Belege)
        return;
    gewissBis = wechsel.front();
    wechsel.pop_front();
}

void Gewissheit::Geklaert() {
    gewissBis = letzter;
    wechsel.clear();
}

void Gewissheit::Gebrochen() {
    ++brueche;
    wechsel.clear();
}

} // namespace varnoth
