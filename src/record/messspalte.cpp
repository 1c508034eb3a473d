#include "messspalte.h"

#include <algorithm>

namespace varnoth {

void Teilspalte::Nimm(const Teilmessung& messung) {
    if (!messung.gemessen)
        return;
    gemessen = true;
    status.Nimm(messung.status);
    strahlen = std::max(strahlen, messung.strahlen);
    for (std::size_t k = 0; k < AnzahlKurvenwerte; ++k) {
        aktuell[k].Nimm(messung.werte[k]);
        band[k].Nimm(messung.werte[ErstesMinimum + k]);
        band[k].Nimm(messung.werte[ErstesMaximum + k]);
    }
}

void Teilspalte::Nimm(const Teilspalte& andere) {
    gemessen |= andere.gemessen;
    strahlen = std::max(strahlen, andere.strahlen);
    status.Nimm(andere.status);
    for (std::size_t k = 0; k < AnzahlKurvenwerte; ++k) {
        aktuell[k].Nimm(andere.aktuell[k]);
        band[k].Nimm(andere.band[k]);
    }
}

void Messspalte::Nimm(const Messdurchgang& neuer, unsigned gewaehlte) {
    durchgang = true;
    geraetestatus.Nimm(neuer.geraetestatus);
    for (std::size_t teil = 0; teil < teile.size(); ++teil)
        if ((gewaehlte >> teil & 1U) != 0)
            teile[teil].Nimm(neuer.teile[teil]);
}

void Messspalte::Nimm(const Messspalte& andere, unsigned gewaehlte) {
    durchgang |= andere.durchgang;
    luecke |= andere.luecke;
    geraetestatus.Nimm(andere.geraetestatus);
    for (std::size_t teil = 0; teil < teile.size(); ++teil)
        if ((gewaehlte >> teil & 1U) != 0 && andere.teile[teil].gemessen)
            teile[teil].Nimm(andere.teile[teil]);
}

} // namespace varnoth
