#include "abschnittsbloecke.h"

#include <ranges>
#include <utility>

namespace varnoth {

void Abschnittsbloecke::Nimm(std::int64_t nummer, const Messspalte& inhalt) {
    for (Stufe& stufe : stufen) {
        ++stufe.offener.anzahl;
        stufe.offener.letzter = nummer;
        stufe.offener.inhalt.Nimm(inhalt);
        if (stufe.offener.anzahl == stufe.laenge)
            stufe.bloecke.push_back(std::exchange(stufe.offener, {}));
    }
}

void Abschnittsbloecke::Vergiss(std::uint64_t abschnitte) {
    for (Stufe& stufe : stufen)
        for (; !stufe.bloecke.empty() && stufe.erster * stufe.laenge < abschnitte; ++stufe.erster)
            stufe.bloecke.pop_front();
}

const Abschnittsbloecke::Block* Abschnittsbloecke::Ab(std::uint64_t abschnitt, std::int64_t letzter) const {
    for (const Stufe& stufe : std::views::reverse(stufen)) {
        const std::uint64_t stelle = abschnitt / stufe.laenge;
        if (abschnitt % stufe.laenge != 0 || stelle < stufe.erster)
            continue;
        const std::uint64_t i = stelle - stufe.erster;
        if (i < stufe.bloecke.size() && stufe.bloecke[i].letzter <= letzter)
            return &stufe.bloecke[i];
    }
    return nullptr;
}

} // namespace varnoth
