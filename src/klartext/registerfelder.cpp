#include "registerfelder.h"

#include "auswahlliste.h"
#include "autosend.h"
#include "geraetetexte.h"
#include "gruppenzaehler.h"
#include "leitungsformat.h"
#include "pnpausgang.h"

#include <span>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int32_t AlleBits = -1;
constexpr std::int16_t TextMerken = 5614;
constexpr std::int16_t TextZyklen = 9304;
constexpr std::int16_t TextStopbits = 9305;
constexpr std::int16_t TextParitaet = 9306;

/// The words of a list's items. Where the cycle time is not known, a duration is told in cycles.
std::vector<std::string> Worte(const Auswahlliste& liste, const Lesart& lesart) {
    if (liste.posten != Postenart::Dauer || lesart.zyklus != 0)
        return Postentexte(liste, lesart.zyklus, [&](double zahl) { return Zahlwort(zahl, lesart); });
    std::vector<std::string> worte;
    worte.reserve(static_cast<std::size_t>(liste.anzahl));
    for (int auswahl = 0; auswahl < liste.anzahl; ++auswahl)
        worte.push_back(LadeText(TextZyklen, lesart.sprache) + std::to_string(WertFuer(liste, auswahl)));
    return worte;
}

Feld Listenfeld(const Auswahlliste& liste, const Lesart& lesart) {
    Feld feld{liste.feld, {}};
    const auto worte = Worte(liste, lesart);
    for (int auswahl = 0; auswahl < liste.anzahl; ++auswahl)
        feld.wahlen.push_back({WertFuer(liste, auswahl), worte[static_cast<std::size_t>(auswahl)]});
    return feld;
}

Fuegungen Nur(Feld feld) {
    return {{std::move(feld)}};
}

Fuegungen NurListe(Teilliste liste, const Lesart& lesart) {
    return Nur(Listenfeld(Beschreibung(liste), lesart));
}

/// What an autosend mode needs beside itself where it sends without trigger.
Feld Ratenfeld(const Lesart& lesart) {
    const Auswahlliste raten = Autosendraten(MaxAutosendrate(lesart.bustyp));
    Feld feld = Listenfeld(raten, lesart);
    feld.maske = autosendbits::Zusatz;
    for (Wahl& wahl : feld.wahlen) {
        wahl.wert <<= autosendbits::Zusatzversatz;
        wahl.worte = LadeText(raten.titel, lesart.sprache) + ": " + wahl.worte;
    }
    return feld;
}

Feld Zusatzfeld(std::int16_t klasse, const Lesart& lesart) {
    if (klasse == autosendklasse::OhneTrigger)
        return Ratenfeld(lesart);
    if (klasse == autosendklasse::MitTrigger)
        return FeldAus(autosendbits::Zusatz, Triggerarten(), lesart.sprache);
    return {autosendbits::Zusatz, {{0, {}}}};
}

/// The choices of `texte`, whose values follow one another from `erster` on.
Feld Aufzaehlung(std::int32_t maske, std::int32_t erster, std::int32_t abstand,
                 std::span<const std::string_view> texte, const std::string& davor = {}) {
    Feld feld{maske, {}};
    for (const std::string_view text : texte) {
        feld.wahlen.push_back({erster, davor + std::string(text)});
        erster += abstand;
    }
    return feld;
}

} // namespace

Fuegungen Geraetetypfelder(const Lesart& lesart) {
    return Nur(FeldAus(AlleBits, AlleGeraetetypen(), lesart.sprache));
}

Fuegungen PnpAusgangsfelder(const Lesart& lesart) {
    constexpr std::int32_t teilbits = 0x300;
    constexpr std::int32_t pegelbit = 0x8000;
    return {{FeldAus(~(teilbits | pegelbit), PnpFunktionen(), lesart.sprache),
             FeldAus(teilbits, PnpOptikteile(), lesart.sprache),
             FeldAus(pegelbit, PnpPegel(), lesart.sprache)}};
}

Fuegungen Aufloesungsfelder(const Lesart& lesart) {
    return NurListe(Teilliste::Aufloesung, lesart);
}

Fuegungen Reichweitenfelder(const Lesart& lesart) {
    return NurListe(Teilliste::Reichweite, lesart);
}

Fuegungen Integrationsfelder(const Lesart& lesart) {
    return NurListe(Teilliste::Filterdurchlaeufe, lesart);
}

Fuegungen Gruppenzaehlerfelder(const Lesart& lesart) {
    const Feld anzahl = Listenfeld(Beschreibung(Teilliste::Gruppenzaehler), lesart);
    return {{anzahl, FeldAus(~anzahl.maske, Gruppenverknuepfungen(), lesart.sprache)}};
}

Fuegungen Haltezeitfelder(const Lesart& lesart) {
    return NurListe(Teilliste::MinMaxHaltezeit, lesart);
}

Fuegungen Lochgroessenfelder(const Lesart& lesart) {
    return NurListe(Teilliste::Lochgroesse, lesart);
}

Fuegungen Toleranzfelder(const Lesart& lesart) {
    return NurListe(Teilliste::Mittentoleranz, lesart);
}

Fuegungen Bustypfelder(const Lesart& lesart) {
    return Nur(FeldAus(AlleBits, Bustypen, lesart.sprache));
}

Fuegungen Formatfelder(const Lesart& lesart) {
    using namespace leitungsbits;
    Feld paritaet = FeldAus(~(Baud | Stop), Paritaeten(), lesart.sprache);
    for (Wahl& wahl : paritaet.wahlen)
        wahl.worte = LadeText(TextParitaet, lesart.sprache) + wahl.worte;
    return {{Aufzaehlung(Baud, ErsterBaudcode, 1, Baudtexte),
             Aufzaehlung(Stop, 0, 1 << Stopversatz, Stopbittexte, LadeText(TextStopbits, lesart.sprache)),
             paritaet}};
}

Fuegungen Stationsfelder(const Lesart& lesart) {
    return Nur(Listenfeld(Stationsadressen(MaxStationsadresse(lesart.bustyp)), lesart));
}

Fuegungen Autosendfelder(const Lesart& lesart) {
    const Feld merken = Schalter(autosendbits::Merken, LadeText(TextMerken, lesart.sprache));
    Fuegungen fuegungen;
    for (const Option& art : Autosendarten()) {
        const std::int16_t klasse = AutosendKlasse(static_cast<Autosendart>(art.wert));
        fuegungen.push_back({FeldAus(autosendbits::Art, std::span(&art, 1), lesart.sprache),
                             Zusatzfeld(klasse, lesart), merken});
    }
    return fuegungen;
}

Fuegungen Autosendformatfelder(const Lesart& lesart) {
    const Feld baud = Listenfeld(Autosendbaudraten(), lesart);
    return {{baud, FeldAus(~baud.maske, Byteformate(), lesart.sprache)}};
}

} // namespace varnoth
