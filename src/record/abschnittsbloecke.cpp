#include "abschnittsbloecke.h"

#include <utility>

namespace varnoth {

void Abschnittsbloecke::Nimm(std::int64_t nummer, const Messspalte& inhalt) {
    for (Stufe& stufe : stufen) {
        if (stufe.offener.anzahl++ == 0)
            stufe.offener.erster = nummer;
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

} // namespace varnoth
