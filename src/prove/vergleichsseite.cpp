#include "vergleichsseite.h"

#include "texte.h"

namespace varnoth {

namespace {

struct Quellenzeile {
    Vergleichsquelle quelle;
    std::int16_t name; ///< text id
    bool fragtNach;
};

constexpr Quellenzeile DieQuellen[] = {
    {Vergleichsquelle::InBearbeitung, 9570, false}, {Vergleichsquelle::ZuletztGelesen, 9571, false},
    {Vergleichsquelle::Geraet, 9572, true},         {Vergleichsquelle::Datei, 9573, true},
    {Vergleichsquelle::Sicherung, 9574, true},      {Vergleichsquelle::Werksvorgabe, 9575, false},
};

const Quellenzeile& Zeile(Vergleichsquelle quelle) {
    return DieQuellen[static_cast<std::size_t>(quelle)];
}

std::string OhneOrdner(const std::string& pfad) {
    return pfad.substr(pfad.find_last_of('/') + 1);
}

} // namespace

std::string Quellenname(Vergleichsquelle quelle) {
    return LadeText(Zeile(quelle).name);
}

bool FragtNach(Vergleichsquelle quelle) {
    return Zeile(quelle).fragtNach;
}

bool IstVonDatei(const Vergleichsseite& seite) {
    return seite.quelle == Vergleichsquelle::Datei || seite.quelle == Vergleichsquelle::Sicherung;
}

std::string Seitenname(const Vergleichsseite& seite) {
    return IstVonDatei(seite) ? OhneOrdner(seite.einzelheit) : Quellenname(seite.quelle);
}

} // namespace varnoth
