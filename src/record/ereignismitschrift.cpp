#include "ereignismitschrift.h"

#include "ereignisworte.h"
#include "zeitpunkt.h"

#include <algorithm>

namespace varnoth {

namespace {

/// Takes an event in; false for one of another day than those there are.
bool Nimm(Tageszeilen& zeilen, const Ereignis& ereignis) {
    const std::string tag = Datumstext(ereignis.zeit);
    if (!zeilen.tag.empty() && zeilen.tag != tag)
        return false;
    zeilen.tag = tag;
    zeilen.zeilen += EreignisAlsText(ereignis);
    return true;
}

} // namespace

Ereignismitschrift::Ereignismitschrift(const Ereignisspeicher& inSpeicher)
    : speicher(&inSpeicher), stand{.naechstes = inSpeicher.Ende()}, danach(stand) {}

Tageszeilen Ereignismitschrift::Faellige() const {
    Tageszeilen zeilen;
    danach = {.naechstes = std::max(stand.naechstes, speicher->Erstes())};
    for (const std::uint64_t nummer : stand.offene)
        if (nummer >= speicher->Erstes() &&
            (speicher->Hole(nummer).offen || !Nimm(zeilen, speicher->Hole(nummer))))
            danach.offene.push_back(nummer);
    for (std::size_t schritt = 0; schritt < JeSchritt && danach.naechstes < speicher->Ende(); ++schritt) {
        const Ereignis& ereignis = speicher->Hole(danach.naechstes);
        if (ereignis.offen)
            danach.offene.push_back(danach.naechstes);
        else if (!Nimm(zeilen, ereignis))
            break;
        ++danach.naechstes;
    }
    return zeilen;
}

void Ereignismitschrift::Erledige() {
    stand = danach;
}

} // namespace varnoth
