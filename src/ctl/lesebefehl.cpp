// The command that reads the controller's configuration.

#include "ablage.h"
#include "auftraege.h"
#include "konfigurationsdatei.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "pruefsumme.h"
#include "quelle.h"
#include "registerjson.h"

namespace varnoth::ctl {

Ende Read(Lauf& lauf) {
    std::optional<std::string> pfad;
    if (const Ende ende = WaehleZiel(lauf, pfad); ende != Ende::Erledigt)
        return ende;
    Leitungszugang zugang(lauf);
    Quelle quelle;
    if (const Ende ende = LiesGenannteQuelle(lauf, zugang, quelle); ende != Ende::Erledigt)
        return ende;
    PruefePlausibel(lauf, quelle.abbild);
    if (pfad)
        if (const Ende ende = LegeDatei(lauf, *pfad, AlsKonfigurationsdatei(quelle.abbild));
            ende != Ende::Erledigt)
            return ende;
    if (lauf.InJson())
        lauf.Gib({},
                 {{"controller", GeraetAlsJson()},
                  {"file", pfad ? Json(*pfad) : Json()},
                  {"checksum", Konfigurationspruefsumme(quelle.abbild)},
                  {"registers", Jsonliste(AlleStellen(IstLesbar), [&quelle](const Parameterstelle& stelle) {
                       return WertAlsJson(quelle.abbild, stelle);
                   })}});
    else if (!pfad)
        lauf.konsole.Daten(Quellentext(quelle));
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
