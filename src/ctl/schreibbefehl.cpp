// The command that writes a configuration to the controller.

#include "auftraege.h"
#include "geraetestand.h"
#include "lauf.h"
#include "leitungswarnung.h"
#include "leitungszugang.h"
#include "quelle.h"
#include "registerjson.h"
#include "schreibfolge.h"
#include "seriennummer.h"
#include "sicherung.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "textmitwerten.h"
#include "uhrzeit.h"

#include <algorithm>
#include <cstddef>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextNichtVomGeraet = 8638;
constexpr std::int16_t TextFrage = 8639;
constexpr std::int16_t TextJetzt = 8640;
constexpr std::int16_t TextSicherung = 8641;
constexpr std::int16_t TextSicherungMisslungen = 8642;
constexpr std::int16_t TextSchreiben = 8643;
constexpr std::int16_t TextPruefen = 8644;
constexpr std::int16_t TextZurueck = 8645;

/// Each row in a line: the value before an arrow and the one behind it.
std::string Zeilentext(const Registerbefund& befund) {
    std::string text;
    for (const Registerzeile& zeile : befund.zeilen)
        text += "\n  " + zeile.bereich + " / " + zeile.name + ": " + zeile.links + " -> " + zeile.rechts;
    return text;
}

/// Each row in a line: its value, and what has become of it.
std::string Zustandstext(const Registerbefund& befund) {
    std::string text;
    for (const Registerzeile& zeile : befund.zeilen)
        text += "\n  " + zeile.bereich + " / " + zeile.name + ": " + zeile.rechts + " (" + zeile.links + ")";
    return text;
}

/// A write from its source to its end.
class Schreibgang {
public:
    explicit Schreibgang(const Lauf& derLauf) : lauf(derLauf), zugang(derLauf) {}

    Ende Laufe() {
        for (const auto schritt : {&Schreibgang::BereiteVor, &Schreibgang::Verbinde, &Schreibgang::Kuendige,
                                   &Schreibgang::Sichere})
            if (const Ende ende = (this->*schritt)(); ende != Ende::Erledigt)
                return ende;
        return Schreibe();
    }

private:
    const std::string& Wort() const { return lauf.zeile.argumente[0]; }
    bool Sichert() const { return !lauf.zeile.Hat("no-backup"); }
    bool Speichert() const { return lauf.zeile.Hat("store"); }

    /// Whatever can be found out without the controller.
    Ende BereiteVor() {
        if (ArtVon(Wort()) == Quellenart::Geraet)
            return lauf.Scheitere(Ende::Bedienung, LadeText(TextNichtVomGeraet));
        if (const Ende ende = lauf.KannErlaubnisBekommen(); ende != Ende::Erledigt)
            return ende;
        return ArtVon(Wort()) == Quellenart::Datei ? LiesVorlage() : Ende::Erledigt;
    }

    Ende LiesVorlage() {
        if (const Ende ende = LiesQuelle(lauf, Wort(), zugang, Seriennummer(geraet.abbild), quelle);
            ende != Ende::Erledigt)
            return ende;
        return PruefePlausibel(lauf, quelle.abbild) ? Ende::Erledigt : Ende::Datei;
    }

    Ende Verbinde() {
        if (const Ende ende = zugang.Verbinde(); ende != Ende::Erledigt)
            return ende;
        const Quellenart art = ArtVon(Wort());
        if (Sichert() || art != Quellenart::Datei)
            if (const Ende ende = LiesSteuergeraet(lauf, zugang, geraet); ende != Ende::Erledigt)
                return ende;
        if (art != Quellenart::Datei)
            if (const Ende ende = LiesVorlage(); ende != Ende::Erledigt)
                return ende;
        if (art == Quellenart::Werk)
            quelle.abbild = StandardkonfigurationWie(geraet.abbild);
        vorher = modGeraetestand::HoleGeraetestand();
        ergebnis.auftrag.abbild = quelle.abbild;
        return Ende::Erledigt;
    }

    /// Tells what the write will change, and asks.
    Ende Kuendige() {
        aenderungen = BefundVorDemSchreiben(ergebnis.auftrag, vorher, LadeText(TextJetzt));
        lauf.Sage(vorher ? aenderungen.text + Zeilentext(aenderungen) : aenderungen.text);
        if (const std::string warnung = Leitungswarnung(ergebnis.auftrag, vorher);
            Speichert() && !warnung.empty())
            lauf.konsole.Meldung(warnung);
        return lauf.Erlaubnis(LadeTextMit(TextFrage, {quelle.name, GeraeteSeriennummer()}));
    }

    Ende Sichere() {
        if (!Sichert())
            return Ende::Erledigt;
        if (const std::string fehler = SichereGeraetestand(); !fehler.empty())
            return lauf.Scheitere(Ende::Datei, LadeTextMit(TextSicherungMisslungen, {fehler}));
        if (const auto neueste = NeuesteSicherung(Seriennummer(geraet.abbild))) {
            sicherung = neueste->pfad;
            lauf.Sage(LadeTextMit(TextSicherung, {sicherung}));
        }
        return Ende::Erledigt;
    }

    Ende Schreibe() {
        Geduld geduld(lauf);
        {
            Fortgang fortgang(lauf, geduld, LadeText(TextSchreiben));
            ergebnis.vollstaendig =
                SchreibeKonfiguration(fortgang, Speichert() ? Ablage::Dauerhaft : Ablage::Fluechtig,
                                      ergebnis.auftrag, ergebnis.spur);
        }
        const bool geprueft = !ergebnis.vollstaendig || !lauf.zeile.Hat("verify") || Pruefe(geduld);
        const bool zuEnde = ergebnis.vollstaendig && geprueft;
        Ende ende = zuEnde ? Ende::Erledigt : zugang.EndeNachAbbruch();
        if (zuEnde && ergebnis.pruefung && !ergebnis.pruefung->IstGut())
            ende = Ende::Abgelehnt;
        GibErgebnis();
        return ende;
    }

    /// False when it has not come to its end.
    bool Pruefe(Geduld& geduld) {
        Fortgang fortgang(lauf, geduld, LadeText(TextPruefen));
        const Schreibauftrag& auftrag = ergebnis.auftrag;
        const bool alles = LiesZurueck(fortgang, auftrag.stellen, ergebnis.ruecklesung);
        ergebnis.pruefung = PruefeRuecklesung(auftrag.abbild, auftrag.stellen, ergebnis.ruecklesung);
        return alles;
    }

    Json Pruefjson(const std::optional<Schreibfolge>& folge) const {
        if (!ergebnis.pruefung)
            return {};
        return Json::Objekt(
            {{"registers", ergebnis.pruefung->alleRegister},
             {"equal", ergebnis.pruefung->gleicheRegister},
             {"rows", ergebnis.vollstaendig && folge ? BefundAlsJson(folge->befund, "written", "readBack")
                                                     : Json::Liste({})}});
    }

    /// The sentence about a check stands above it already.
    std::string Befundtext(const Registerbefund& befund) const {
        if (!ergebnis.vollstaendig)
            return befund.text + Zustandstext(befund);
        return befund.text.substr(std::min(Pruefsatz(*ergebnis.pruefung).size() + 1, befund.text.size())) +
               Zeilentext(befund);
    }

    void GibErgebnis() const {
        const auto folge = FolgeAus(ergebnis, vorher);
        std::string text;
        if (ergebnis.vollstaendig)
            text = Schreibsatz(ergebnis, Speichert(), Uhrzeit()) + "\n";
        if (folge)
            text += Befundtext(folge->befund) + "\n";
        const auto anzahl = [](const Parametermenge& stellen) { return Json(AnzahlRegister(stellen)); };
        lauf.Gib(text, {{"source", AlsJson(quelle)},
                        {"controller", GeraetAlsJson()},
                        {"complete", ergebnis.vollstaendig},
                        {"stored", ergebnis.vollstaendig && Speichert()},
                        {"backup", sicherung.empty() ? Json() : Json(sicherung)},
                        {"changes", vorher ? BefundAlsJson(aenderungen, "before", "after") : Json()},
                        {"registers", Json::Objekt({{"all", anzahl(ergebnis.auftrag.stellen)},
                                                    {"written", anzahl(ergebnis.spur.geschrieben)},
                                                    {"uncertain", anzahl(ergebnis.spur.ungewiss)}})},
                        {"unfinished", !ergebnis.vollstaendig && folge
                                           ? BefundAlsJson(folge->befund, "state", "value")
                                           : Json::Liste({})},
                        {"check", Pruefjson(folge)}});
        if (!ergebnis.vollstaendig && folge && !sicherung.empty())
            lauf.konsole.Meldung(LadeTextMit(TextZurueck, {sicherung}));
    }

    const Lauf& lauf;
    Leitungszugang zugang;
    Quelle quelle{};
    Quelle geraet{};
    std::optional<Geraetestand> vorher{};
    Registerbefund aenderungen{};
    Schreibergebnis ergebnis{};
    std::string sicherung{};
};

} // namespace

Ende Write(Lauf& lauf) {
    return Schreibgang(lauf).Laufe();
}

} // namespace varnoth::ctl
