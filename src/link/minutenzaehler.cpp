#include "minutenzaehler.h"

namespace varnoth {

namespace {

long long Sekunde(Zeit zeit) {
    return std::chrono::floor<std::chrono::seconds>(zeit).count();
}

} // namespace

void Minutenzaehler::Zaehle(Zeit jetzt) {
    const long long sekunde = Sekunde(jetzt);
    Fach& fach = faecher.at(static_cast<std::size_t>(sekunde % Sekunden));
    if (fach.sekunde != sekunde)
        fach = {.sekunde = sekunde};
    ++fach.anzahl;
}

int Minutenzaehler::Anzahl(Zeit jetzt) const {
    const long long erste = Sekunde(jetzt) - Sekunden + 1;
    int anzahl = 0;
    for (const Fach& fach : faecher)
        if (fach.sekunde >= erste)
            anzahl += fach.anzahl;
    return anzahl;
}

} // namespace varnoth
