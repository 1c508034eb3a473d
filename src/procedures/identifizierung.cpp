#include "identifizierung.h"

#include "texte.h"
#include "transaktionen.h"
#include "umgebung.h"
#include "verbindungsauskunft.h"

#include <cstdint>

namespace varnoth {

namespace {

constexpr int Versuche = 10;

constexpr std::int16_t TextKeineVerbindung = 7209;

} // namespace

bool Identifiziere(Identifikationsanzeige& anzeige) {
    for (int verbleibend = Versuche - 1;; --verbleibend) {
        anzeige.ZeigeVerbleibend(verbleibend);
        const bool gelungen = modModbus::RTUModeH11IndentifikationsAnforderung() != False;
        const bool letzter = verbleibend <= 1;
        if (!gelungen)
            anzeige.ZeigeUrsache(LiesVerbindungsauskunft());
        if (letzter)
            DieUmgebung().ZeigeMeldung(
                MeldungOhneVerbindung(LadeText(TextKeineVerbindung), LadeText(TextAchtung)));
        DieUmgebung().LasseEreignisseLaufen();
        if (letzter || anzeige.Abgebrochen())
            return false;
        if (gelungen)
            break;
    }
    anzeige.ZeigeIdentifikation();
    return true;
}

} // namespace varnoth
