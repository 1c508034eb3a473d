#include "notizliste.h"

#include <algorithm>

namespace varnoth {

void Notizliste::Beginne() {
    *this = {};
}

bool Notizliste::IstFertig(const Messquelle& quelle) const {
    if (quelle.Erstes() == quelle.Ende())
        return true;
    return von <= quelle.Erstes() && bis == quelle.Ende() && gewachsenBis == quelle.Spanne().bis;
}

bool Notizliste::Suche(const Messquelle& quelle, int pakete) {
    if (quelle.Erstes() == quelle.Ende())
        return false;
    if (von == bis)
        von = bis = quelle.Ende();
    von = std::max(von, quelle.Erstes());
    bis = std::max(bis, von);
    bool anders = Vergiss(quelle.Spanne().von);
    if (bis > von && gewachsenBis != quelle.Spanne().bis)
        --bis;
    gewachsenBis = quelle.Spanne().bis;
    for (; bis < quelle.Ende() && pakete > 0; --pakete)
        anders |= Sieh(quelle, bis++);
    for (; von > quelle.Erstes() && pakete > 0; --pakete)
        anders |= Sieh(quelle, --von);
    return anders;
}

bool Notizliste::SiehNach(const Messquelle& quelle, Zeit laufzeit) {
    return quelle.Erstes() != quelle.Ende() && Sieh(quelle, quelle.PaketUm(laufzeit));
}

bool Notizliste::Sieh(const Messquelle& quelle, std::uint64_t nummer) {
    const auto paket = quelle.Lies(nummer);
    const std::size_t vorher = notizen.size();
    for (const Messereignis& ereignis : paket ? paket->ereignisse : std::vector<Messereignis>())
        if (ereignis.art == Messereignisart::Notiz && notizen.size() < Hoechstzahl &&
            std::ranges::find(notizen, ereignis) == notizen.end()) {
            const auto stelle =
                std::ranges::upper_bound(notizen, ereignis.laufzeit, {}, &Messereignis::laufzeit);
            notizen.insert(stelle, ereignis);
        }
    return notizen.size() != vorher;
}

bool Notizliste::Vergiss(Zeit vor) {
    const auto erste = std::ranges::lower_bound(notizen, vor, {}, &Messereignis::laufzeit);
    const bool gibtEs = erste != notizen.begin();
    notizen.erase(notizen.begin(), erste);
    return gibtEs;
}

} // namespace varnoth
