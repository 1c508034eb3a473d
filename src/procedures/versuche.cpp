#include "versuche.h"

#include "umgebung.h"

namespace varnoth {

bool VersucheBisErfolg(Ablaufanzeige& anzeige, const std::function<void(int versuch)>& zeige,
                       const std::function<Boolean()>& transaktion) {
    for (int versuch = 1;; ++versuch) {
        zeige(versuch);
        const bool gelungen = transaktion() != False;
        DieUmgebung().LasseEreignisseLaufen();
        if (anzeige.Abgebrochen())
            return false;
        if (gelungen)
            return true;
    }
}

} // namespace varnoth
