#include "auswahlliste.h"

#include "leitungsformat.h"
#include "registeradressen.h"
#include "texte.h"
#include "zahlen.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <stdexcept>

namespace varnoth {

namespace {

constexpr std::int16_t TextWertImGeraet = 5118;
constexpr std::int16_t TextAufloesung = 5207;
constexpr std::int16_t TextReichweite = 5208;
constexpr std::int16_t TextIntegrationszeit = 5209;
constexpr std::int16_t TextGruppenzaehler = 5210;
constexpr std::int16_t TextHaltezeit = 5211;
constexpr std::int16_t TextLochgroesse = 5212;
constexpr std::int16_t TextMittentoleranz = 5213;
constexpr std::int16_t TextStationsadresse = 5602;
constexpr std::int16_t TextAutosendbaudrate = 5605;
constexpr std::int16_t TextWiederholzeit = 5611;

constexpr std::int32_t Filterbits = 0x3F;
constexpr std::int32_t Ratenbits = 0xFF;
constexpr std::int32_t Baudbits = 0xFF;
constexpr std::int32_t ErsteBaudrate = 12;
constexpr auto Baudraten = std::span(Baudtexte).subspan(ErsteBaudrate - ErsterBaudcode);
constexpr double MikrosekundenJeMillisekunde = 1000;

constexpr std::string_view Reichweiten[] = {"0,05 - 0,3m", "0,20 - 1,0m", "0,50 - 1,5m",
                                            "1,00 - 2,5m", "2,00 - 3,5m", "3,00 - 4,0m"};

const Werteregel& Regel(Speicherbereich bereich, std::int16_t adresse) {
    const auto regeln = AlleWerteregeln();
    const auto regel = std::ranges::find_if(
        regeln, [&](const Werteregel& r) { return r.bereich == bereich && r.adresse == adresse; });
    if (regel == regeln.end())
        throw std::logic_error("no rule for the register of a list");
    return *regel;
}

/// A list that offers exactly what the register's rule allows.
Auswahlliste NachRegel(std::int16_t titel, std::int16_t adresse, Postenart posten,
                       std::span<const std::string_view> texte = {}) {
    const Werteregel& regel = Regel(Spezifisch, adresse);
    const int anzahl = regel.auswahl.empty() ? regel.groesster - regel.kleinster + 1
                                             : static_cast<int>(regel.auswahl.size());
    return {titel, Spezifisch, adresse, regel.maske, regel.kleinster, anzahl, posten, texte, regel.auswahl};
}

/// Only the low bits of the register select; the list nevertheless owns them all.
Auswahlliste Filterliste() {
    Auswahlliste liste = NachRegel(TextIntegrationszeit, spezifisch::Filterdurchlaeufe, Postenart::Dauer);
    liste.feld = liste.maske;
    liste.maske = Filterbits;
    return liste;
}

std::string Postentext(const Auswahlliste& liste, int auswahl, std::int32_t zyklus,
                       const Zahlformat& zahlformat) {
    const std::int32_t wert = WertFuer(liste, auswahl);
    switch (liste.posten) {
    case Postenart::Texte:
        return std::string(liste.texte[static_cast<std::size_t>(auswahl)]);
    case Postenart::Zahl:
        return std::to_string(wert);
    case Postenart::Millimeter:
        return std::to_string(wert) + "mm";
    case Postenart::Dauer:
        return zahlformat(static_cast<double>(zyklus) * wert / MikrosekundenJeMillisekunde) + "ms";
    case Postenart::Hex:
        return AlsHex(static_cast<unsigned>(wert)) + "H";
    }
    return {};
}

} // namespace

std::span<const Auswahlliste> AlleTeillisten() {
    static const std::array listen = {
        NachRegel(TextAufloesung, spezifisch::Aufloesung, Postenart::Millimeter),
        NachRegel(TextReichweite, spezifisch::Reichweite, Postenart::Texte, Reichweiten),
        Filterliste(),
        NachRegel(TextGruppenzaehler, spezifisch::Gruppenzaehler, Postenart::Zahl),
        NachRegel(TextHaltezeit, spezifisch::MinMaxHaltezeit, Postenart::Dauer),
        NachRegel(TextLochgroesse, spezifisch::Lochgroesse, Postenart::Zahl),
        NachRegel(TextMittentoleranz, spezifisch::Mittentoleranz, Postenart::Zahl),
    };
    return listen;
}

const Auswahlliste& Beschreibung(Teilliste liste) {
    return AlleTeillisten()[static_cast<std::size_t>(liste)];
}

Auswahlliste Stationsadressen(int groesste) {
    const Werteregel& regel = Regel(Kommunikation, kommunikation::Stationsadresse);
    return {TextStationsadresse, Kommunikation,   kommunikation::Stationsadresse,
            regel.maske,         regel.kleinster, groesste,
            Postenart::Hex};
}

Auswahlliste Autosendraten(int groesste) {
    return {TextWiederholzeit, Kommunikation,   kommunikation::Autosend, Ratenbits, 1,
            groesste,          Postenart::Dauer};
}

const Auswahlliste& Autosendbaudraten() {
    static const Auswahlliste liste = {TextAutosendbaudrate,
                                       Kommunikation,
                                       kommunikation::Autosendformat,
                                       Baudbits,
                                       ErsteBaudrate,
                                       static_cast<int>(Baudraten.size()),
                                       Postenart::Texte,
                                       Baudraten};
    return liste;
}

int AuswahlFuer(const Auswahlliste& liste, std::int32_t wert) {
    const std::int32_t gewaehlt = wert & liste.maske;
    for (int auswahl = 0; auswahl < liste.anzahl; ++auswahl)
        if (WertFuer(liste, auswahl) == gewaehlt)
            return auswahl;
    return KeineAuswahl;
}

std::int32_t WertFuer(const Auswahlliste& liste, int auswahl) {
    if (liste.werte.empty())
        return liste.erster + auswahl;
    return auswahl == KeineAuswahl ? 0 : liste.werte[static_cast<std::size_t>(auswahl)];
}

std::vector<std::string> Postentexte(const Auswahlliste& liste, std::int32_t zyklus,
                                     const Zahlformat& zahlformat) {
    std::vector<std::string> texte;
    texte.reserve(static_cast<std::size_t>(liste.anzahl));
    for (int auswahl = 0; auswahl < liste.anzahl; ++auswahl)
        texte.push_back(Postentext(liste, auswahl, zyklus, zahlformat));
    return texte;
}

std::string Hinweistext(const Auswahlliste& liste, std::int32_t wert) {
    if (AuswahlFuer(liste, wert) != KeineAuswahl)
        return {};
    return LadeText(TextWertImGeraet) + std::to_string(wert & liste.feld);
}

std::string UebertragenerWert(const Auswahlliste& liste, int auswahl) {
    return auswahl == KeineAuswahl ? "" : "(" + std::to_string(WertFuer(liste, auswahl)) + ")";
}

} // namespace varnoth
