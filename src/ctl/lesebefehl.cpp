// The command that reads the controller's configuration.

#include "ablage.h"
#include "auftraege.h"
#include "konfigurationsdatei.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "pruefsumme.h"
#include "registerjson.h"

namespace varnoth::ctl {

Ende Read(Lauf& lauf) {
    Umwandlung umwandlung;
    if (const Ende ende = LiesFuerZiel(lauf, umwandlung); ende != Ende::Erledigt)
        return ende;
    const auto& [quelle, pfad] = umwandlung;
    PruefePlausibel(lauf, quelle.abbild);
    if (pfad)
        if (const Ende ende = LegeDatei(lauf, *pfad, AlsKonfigurationsdatei(quelle.abbild));
            ende != Ende::Erledigt)
            return ende;
    if (lauf.InJson())
        lauf.Gib({}, {{"controller", GeraetAlsJson()},
                      {"file", pfad ? Json(*pfad) : Json()},
                      {"checksum", Konfigurationspruefsumme(quelle.abbild)},
                      {"registers", Jsonliste(AlleStellen(IstLesbar),
                                              [&abbild = quelle.abbild](const Parameterstelle& stelle) {
                                                  return WertAlsJson(abbild, stelle);
                                              })}});
    else if (!pfad)
        lauf.konsole.Daten(Quellentext(quelle));
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
