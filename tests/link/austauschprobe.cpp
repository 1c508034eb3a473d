#include "probelauf.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

using varnoth::Zeit;
using varnoth::pruefung::Probelauf;
using varnoth::pruefung::Probezahlen;

constexpr Zeit HoechsterVorlauf = std::chrono::seconds(3);

struct Optionen {
    long austausche = 20000;
    std::uint64_t startwert = 1;
    int gemischt = 0;
    std::size_t mitschrift = 0;
    bool ausserDerReihe = false;
    bool gueltig = true;
};

Optionen LiesOptionen(int anzahl, char** worte) {
    Optionen optionen;
    for (int i = 1; i < anzahl; ++i) {
        const std::string_view wort = worte[i];
        if (wort == "--out-of-order")
            optionen.ausserDerReihe = true;
        else if (wort == "--exchanges" && i + 1 < anzahl)
            optionen.austausche = std::atol(worte[++i]);
        else if (wort == "--seed" && i + 1 < anzahl)
            optionen.startwert = std::strtoull(worte[++i], nullptr, 10);
        else if (wort == "--mixed" && i + 1 < anzahl)
            optionen.gemischt = std::atoi(worte[++i]);
        else if (wort == "--trace" && i + 1 < anzahl)
            optionen.mitschrift = std::strtoull(worte[++i], nullptr, 10);
        else
            optionen.gueltig = false;
    }
    return optionen;
}

void Drucke(const Probezahlen& zahlen, const Optionen& optionen) {
    std::cout << "exchanges " << zahlen.austausche << ", seed " << optionen.startwert;
    if (optionen.gemischt > 0)
        std::cout << ", all kinds at " << optionen.gemischt << " of 1000 replies";
    std::cout << ", faults " << zahlen.fehler << " (";
    const char* trenner = "";
    for (const auto& [art, anzahl] : zahlen.fehlerarten) {
        std::cout << trenner << art << ' ' << anzahl;
        trenner = ", ";
    }
    std::cout << "), failed " << zahlen.gescheiterte << ", settling exchanges " << zahlen.rueckfragen
              << ", breaks " << zahlen.brueche << ", rows to the end " << zahlen.reihen << ", not recovered "
              << zahlen.nichtErholt << ", longest lead "
              << std::chrono::duration<double>(zahlen.laengsterVorlauf).count() << " s, lost writes "
              << zahlen.verloreneWrites << ", wrong values " << zahlen.falscheWerte << '\n';
}

} // namespace

/// Ends with 1 when a value or a write was believed that should not have been, or a line did not recover.
int main(int anzahl, char** worte) {
    const Optionen optionen = LiesOptionen(anzahl, worte);
    if (!optionen.gueltig) {
        std::cerr << "austauschprobe [--exchanges N] [--seed S] [--mixed PERMILLE] [--trace LINES] "
                     "[--out-of-order]\n";
        return 2;
    }
    Probelauf lauf(optionen.startwert, optionen.ausserDerReihe);
    lauf.Mische(optionen.gemischt);
    lauf.SchreibMit(optionen.mitschrift);
    lauf.Laufe(optionen.austausche);
    const Probezahlen& zahlen = lauf.Zahlen();
    Drucke(zahlen, optionen);
    if (optionen.ausserDerReihe)
        return 0;
    const bool gut = zahlen.falscheWerte == 0 && zahlen.verloreneWrites == 0 && zahlen.nichtErholt == 0 &&
                     zahlen.laengsterVorlauf <= HoechsterVorlauf;
    return gut ? 0 : 1;
}
