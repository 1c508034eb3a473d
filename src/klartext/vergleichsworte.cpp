#include "vergleichsworte.h"

#include "klartext.h"
#include "registertext.h"
#include "textmitwerten.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextGlobal = 5100;
constexpr std::int16_t TextOptikteil = 9550;
constexpr std::int16_t TextKommunikation = 5600;
constexpr std::int16_t TextNichtVorhanden = 9314;
constexpr std::int16_t TextNichtGelesen = 9552;
constexpr std::int16_t TextAnzahlen = 9553;
constexpr std::int16_t TextUnterschiede = 9554;
constexpr std::int16_t TextEinUnterschied = 9555;
constexpr std::int16_t TextAllesGleich = 9556;
constexpr std::int16_t TextSonstGleich = 9557;
constexpr std::int16_t TextNichtVerglichen = 9558;
constexpr std::int16_t TextNirgends = 9559;
constexpr std::int16_t TextNichtsVerglichen = 9902;
constexpr std::int16_t TextSonstGleichEiner = 9903;

/// How the values of a side are told.
class Erzaehler {
public:
    explicit Erzaehler(const Vergleichsbild& seite) : bild(seite) {}

    Lesart LesartBei(const Parameterstelle& stelle) const {
        return LesartFuer(bild.abbild, stelle.bereich, stelle.optikteil);
    }
    std::string Worte(const Vergleichszeile& zeile, const Werte& werte, bool hatWert) const {
        if (hatWert)
            return Klartext(zeile.stelle.bereich, zeile.stelle.adresse, werte, LesartBei(zeile.stelle));
        const bool ungelesen = bild.ungelesen.contains(zeile.stelle);
        return LadeText(ungelesen ? TextNichtGelesen : TextNichtVorhanden);
    }

private:
    Vergleichsbild bild;
};

/// Whether a row that is equal is told in the same words on both sides: the search for words is what takes
/// time.
bool SagtDasselbe(const Vergleichszeile& zeile, const Erzaehler& a, const Erzaehler& b) {
    const Lesart eine = a.LesartBei(zeile.stelle);
    const Lesart andere = b.LesartBei(zeile.stelle);
    return zeile.klasse == Vergleichsklasse::Gleich && eine.zyklus == andere.zyklus &&
           eine.bustyp == andere.bustyp;
}

std::string Teilnamen(const std::vector<int>& teile) {
    std::string namen;
    for (const int teil : teile)
        namen += (namen.empty() ? "" : ", ") + LadeTextMit(TextOptikteil, {std::to_string(teil + 1)});
    return namen;
}

std::string Unterschiedssatz(const Vergleichsergebnis& ergebnis) {
    const int anzahl = ergebnis.Unterschiede();
    if (anzahl == 1)
        return LadeText(TextEinUnterschied);
    if (anzahl > 1)
        return LadeTextMit(TextUnterschiede, {std::to_string(anzahl)});
    const int gleiche = ergebnis.Anzahl(Vergleichsklasse::Gleich);
    if (gleiche == 0)
        return LadeText(TextNichtsVerglichen);
    if (ergebnis.IstGleich())
        return LadeTextMit(TextAllesGleich, {std::to_string(gleiche)});
    return LadeAnzahltext(TextSonstGleichEiner, TextSonstGleich, gleiche);
}

} // namespace

std::string Gruppenname(const Parameterstelle& stelle) {
    switch (stelle.bereich) {
    case Speicherbereich::GlobaleGeraetedaten:
        return LadeText(TextGlobal);
    case Speicherbereich::SpezifischeGeraetedaten:
        return LadeTextMit(TextOptikteil, {std::to_string(stelle.optikteil + 1)});
    case Speicherbereich::Kommunikationsdaten:
        return LadeText(TextKommunikation);
    }
    return {};
}

std::string Stellenname(const Parameterstelle& stelle) {
    return Gruppenname(stelle) + ", " + Parametername(stelle.bereich, stelle.adresse);
}

std::string Wertzeilen(const Abbild& abbild, const Parametermenge& stellen) {
    std::string zeilen;
    for (const Parameterstelle& stelle : stellen) {
        const auto& [bereich, adresse, teil] = stelle;
        zeilen += "\n" + Stellenname(stelle) + ": " +
                  Klartext(bereich, adresse, abbild.HoleParameter(bereich, adresse, teil),
                           LesartFuer(abbild, bereich, teil));
    }
    return zeilen;
}

std::vector<Vergleichsworte> InWorten(const Vergleichsergebnis& ergebnis, const Vergleichsbild& a,
                                      const Vergleichsbild& b) {
    const Erzaehler einer(a);
    const Erzaehler anderer(b);
    std::vector<Vergleichsworte> worte;
    worte.reserve(ergebnis.zeilen.size());
    for (const Vergleichszeile& zeile : ergebnis.zeilen) {
        const Parameterstelle& stelle = zeile.stelle;
        const std::string wortA = einer.Worte(zeile, zeile.a, zeile.HatA(a.ungelesen));
        const std::string wortB = SagtDasselbe(zeile, einer, anderer)
                                      ? wortA
                                      : anderer.Worte(zeile, zeile.b, zeile.HatB(b.ungelesen));
        worte.push_back({stelle, zeile.klasse, Gruppenname(stelle),
                         Parametername(stelle.bereich, stelle.adresse), wortA, wortB,
                         Registertext(stelle.bereich, stelle.adresse)});
    }
    return worte;
}

std::string Klassenanzahlen(const Vergleichsergebnis& ergebnis) {
    const auto anzahl = [&](Vergleichsklasse klasse) { return std::to_string(ergebnis.Anzahl(klasse)); };
    return LadeTextMit(TextAnzahlen, {anzahl(Vergleichsklasse::Verschieden), anzahl(Vergleichsklasse::NurInA),
                                      anzahl(Vergleichsklasse::NurInB), anzahl(Vergleichsklasse::NichtLesbar),
                                      anzahl(Vergleichsklasse::Gleich)});
}

std::string Vergleichsbefund(const Vergleichsergebnis& ergebnis) {
    std::string befund = Unterschiedssatz(ergebnis);
    if (const int ungelesen = ergebnis.Anzahl(Vergleichsklasse::NichtLesbar))
        befund += " " + LadeTextMit(TextNichtVerglichen, {std::to_string(ungelesen)});
    if (!ergebnis.nirgends.empty())
        befund += " " + LadeTextMit(TextNirgends, {Teilnamen(ergebnis.nirgends)});
    return befund;
}

std::string AlsText(const std::vector<Vergleichsworte>& zeilen, const std::string& nameA,
                    const std::string& nameB) {
    std::string text;
    std::string gruppe;
    for (const Vergleichsworte& zeile : zeilen) {
        if (zeile.gruppe != gruppe)
            text += (text.empty() ? "" : "\n") + zeile.gruppe + "\n";
        gruppe = zeile.gruppe;
        text += "  " + zeile.name + " (" + zeile.registertext + ")\n";
        text += "    " + nameA + ": " + zeile.a + "\n";
        text += "    " + nameB + ": " + zeile.b + "\n";
    }
    return text;
}

} // namespace varnoth
