// The command that compares two configurations.

#include "ablage.h"
#include "auftraege.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "registerjson.h"
#include "sicherung.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "textmitwerten.h"
#include "vergleich.h"
#include "vergleichsworte.h"
#include "zeichenwandel.h"

#include <array>
#include <optional>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextZweimalDasselbe = 8632;

using Paar = std::array<Quelle, 2>;

bool SindDasselbe(const std::string& a, const std::string& b) {
    const bool sindDateien = ArtVon(a) == Quellenart::Datei && ArtVon(b) == Quellenart::Datei;
    return a == b || (sindDateien && IstDasselbe(a, b));
}

/// The controller comes first: which backup is meant hangs on who answers, and the other side's beam counts
/// tell what the default is.
Ende LiesBeide(const Lauf& lauf, Leitungszugang& zugang, Paar& paar) {
    std::optional<std::string> seriennummer;
    for (const bool zuerstGeraet : {true, false})
        for (std::size_t seite = 0; seite < paar.size(); ++seite) {
            const std::string& wort = lauf.zeile.argumente[seite];
            if ((ArtVon(wort) == Quellenart::Geraet) != zuerstGeraet)
                continue;
            if (const Ende ende = LiesQuelle(lauf, wort, zugang, seriennummer, paar.at(seite));
                ende != Ende::Erledigt)
                return ende;
            if (zuerstGeraet)
                seriennummer = Seriennummer(paar.at(seite).abbild);
        }
    for (std::size_t seite = 0; seite < paar.size(); ++seite)
        if (paar.at(seite).art == Quellenart::Werk)
            paar.at(seite).abbild = StandardkonfigurationWie(paar.at(1 - seite).abbild);
    return Ende::Erledigt;
}

Json Anzahlen(const Vergleichsergebnis& ergebnis) {
    const auto anzahl = [&ergebnis](Vergleichsklasse klasse) { return Json(ergebnis.Anzahl(klasse)); };
    return Json::Objekt({{"different", anzahl(Vergleichsklasse::Verschieden)},
                         {"onlyInA", anzahl(Vergleichsklasse::NurInA)},
                         {"onlyInB", anzahl(Vergleichsklasse::NurInB)},
                         {"notReadable", anzahl(Vergleichsklasse::NichtLesbar)},
                         {"equal", anzahl(Vergleichsklasse::Gleich)}});
}

void GibVergleich(const Lauf& lauf, const Paar& paar, const Vergleichsergebnis& ergebnis) {
    const Vergleichsbild a{paar[0].abbild, paar[0].ungelesen};
    const Vergleichsbild b{paar[1].abbild, paar[1].ungelesen};
    const auto worte = InWorten(ergebnis, a, b);
    std::vector<Vergleichsworte> ungleiche;
    std::vector<Json> zeilen;
    for (std::size_t i = 0; i < worte.size(); ++i)
        if (worte[i].klasse != Vergleichsklasse::Gleich) {
            ungleiche.push_back(worte[i]);
            zeilen.push_back(ZeileAlsJson(worte[i], ergebnis.zeilen[i], a, b));
        }
    const std::string text = AlsText(ungleiche, "A", "B");
    lauf.Gib("A: " + paar[0].name + "\nB: " + paar[1].name + "\n\n" + text + (text.empty() ? "" : "\n") +
                 Vergleichsbefund(ergebnis) + "\n" + Klassenanzahlen(ergebnis) + "\n",
             {{"a", AlsJson(paar[0])},
              {"b", AlsJson(paar[1])},
              {"equal", ergebnis.IstGleich()},
              {"counts", Anzahlen(ergebnis)},
              {"missingParts", Jsonliste(ergebnis.nirgends, [](int teil) { return Json(teil + 1); })},
              {"differences", Json::Liste(zeilen)}});
}

} // namespace

Ende Compare(Lauf& lauf) {
    const auto& argumente = lauf.zeile.argumente;
    if (SindDasselbe(argumente[0], argumente[1]))
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextZweimalDasselbe, {WortAlsUtf8(argumente[0])}));
    Leitungszugang zugang(lauf);
    Paar paar;
    if (const Ende ende = LiesBeide(lauf, zugang, paar); ende != Ende::Erledigt)
        return ende;
    const auto ergebnis = Vergleiche(paar[0].abbild, paar[1].abbild, {paar[0].ungelesen, paar[1].ungelesen});
    GibVergleich(lauf, paar, ergebnis);
    return ergebnis.IstGleich() ? Ende::Erledigt : Ende::Unterschiede;
}

} // namespace varnoth::ctl
