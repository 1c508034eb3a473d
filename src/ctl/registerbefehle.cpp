// The commands that read and write single registers.

#include "auftraege.h"
#include "kommandoregister.h"
#include "lauf.h"
#include "leitungswarnung.h"
#include "leitungszugang.h"
#include "registerjson.h"
#include "registerlesung.h"
#include "registerwahl.h"
#include "registerzugriff.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "textmitwerten.h"
#include "versuche.h"
#include "zeichenwandel.h"

#include <algorithm>
#include <tuple>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextNichtSchreibbar = 8646;
constexpr std::int16_t TextKeinWert = 8647;
constexpr std::int16_t TextZurWahl = 8648;
constexpr std::int16_t TextUnzulaessig = 8649;
constexpr std::int16_t TextFrage = 8650;
constexpr std::int16_t TextAbweichend = 8651;
constexpr std::int16_t TextGesetzt = 8652;
constexpr std::int16_t TextGesetztUndGespeichert = 8653;

/// The registers that the words mean; what one of them lacks is told.
Ende WaehleAlle(const Lauf& lauf, std::span<const std::string> worte, std::vector<Transferparameter>& alle) {
    for (const std::string& wort : worte) {
        const Registerwahl wahl = WaehleRegister(wort);
        if (!wahl.stelle)
            return lauf.Scheitere(Ende::Bedienung, wahl.fehler);
        alle.push_back(*wahl.stelle);
    }
    return Ende::Erledigt;
}

std::string Wertzeile(const Transferparameter& parameter, const Registerlesung& lesung, const Werte& werte) {
    return Registername(parameter) + ": " + lesung.Worte(parameter, werte);
}

/// Whether a write of the whole configuration would reach all of these registers.
bool IstSetzbar(const Transferparameter& parameter) {
    const auto stellen = ParameterMitRegistern(parameter);
    return !stellen.empty() && std::ranges::all_of(stellen, [](const Parameterstelle& stelle) {
        return IstSchreibbar(Beschreibung(stelle.bereich, stelle.adresse));
    });
}

/// A register that is set, from its name to what it then holds.
class Setzgang {
public:
    explicit Setzgang(const Lauf& derLauf) : lauf(derLauf), zugang(derLauf) {}

    Ende Laufe() {
        for (const auto schritt :
             {&Setzgang::BereiteVor, &Setzgang::LiesBisherige, &Setzgang::VersteheWert, &Setzgang::Kuendige,
              &Setzgang::Schreibe, &Setzgang::Speichere, &Setzgang::LiesZurueck})
            if (const Ende ende = (this->*schritt)(); ende != Ende::Erledigt)
                return ende;
        return GibErgebnis();
    }

private:
    const Transferparameter& Ziel() const { return ziele.front(); }
    std::string Wort() const { return WortAlsUtf8(lauf.zeile.argumente[1]); }
    bool Speichert() const { return lauf.zeile.Hat("store"); }

    Ende BereiteVor() {
        if (const Ende ende = WaehleAlle(lauf, std::span(lauf.zeile.argumente).first(1), ziele);
            ende != Ende::Erledigt)
            return ende;
        if (!IstSetzbar(Ziel()))
            return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextNichtSchreibbar, {Registername(Ziel())}));
        return lauf.KannErlaubnisBekommen();
    }

    Ende LiesBisherige() {
        if (const Ende ende = zugang.Verbinde(); ende != Ende::Erledigt)
            return ende;
        const Ende ende = lesung.Lies(lauf, zugang, ziele);
        if (ende == Ende::Erledigt)
            bisherige = lesung.WerteVon(Ziel());
        return ende;
    }

    Ende VersteheWert() {
        const auto werte = lesung.WerteAus(Ziel(), Wort());
        const std::string name = Registername(Ziel());
        if (!werte) {
            const std::string auswahl = lesung.Auswahl(Ziel());
            return lauf.Scheitere(Ende::Bedienung,
                                  LadeTextMit(TextKeinWert, {Wort(), name}) +
                                      (auswahl.empty() ? "" : "\n" + LadeTextMit(TextZurWahl, {auswahl})));
        }
        if (!SindPlausibel(Ziel(), *werte))
            return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextUnzulaessig, {Wort(), name}));
        neue = *werte;
        return Ende::Erledigt;
    }

    Ende Kuendige() {
        const std::string von = lesung.Worte(Ziel(), bisherige);
        const std::string nach = lesung.Worte(Ziel(), neue);
        Schreibauftrag auftrag{.abbild = Standardkonfiguration(), .stellen = ParameterMitRegistern(Ziel())};
        std::ignore = auftrag.abbild.SetzeParameter(Ziel().bereich, Ziel().adresse, neue, Ziel().optikteil);
        if (const std::string warnung = Leitungswarnung(auftrag, std::nullopt);
            Speichert() && !warnung.empty())
            lauf.konsole.Meldung(warnung);
        return lauf.Erlaubnis(LadeTextMit(TextFrage, {Registername(Ziel()), von, nach}));
    }

    Ende Schreibe() {
        Geduld geduld(lauf);
        Geduldsanzeige anzeige(geduld);
        return SchreibeRegister(anzeige, Ziel(), neue) ? Ende::Erledigt : zugang.EndeNachAbbruch();
    }

    Ende Speichere() {
        Geduld geduld(lauf);
        Geduldsanzeige anzeige(geduld);
        const bool gelungen =
            !Speichert() || VersucheBisErfolg(
                                anzeige, [](int /*versuch*/) {},
                                [] { return SendeKommando(Kommando::SpeichereKonfiguration); });
        return gelungen ? Ende::Erledigt : zugang.EndeNachAbbruch();
    }

    Ende LiesZurueck() {
        const Ende ende = lesung.Lies(lauf, zugang, ziele);
        if (ende == Ende::Erledigt)
            gelesene = lesung.WerteVon(Ziel());
        return ende;
    }

    Ende GibErgebnis() const {
        const bool gleich = gelesene == neue;
        const std::string satz = LadeText(Speichert() ? TextGesetztUndGespeichert : TextGesetzt);
        lauf.Gib(Wertzeile(Ziel(), lesung, gelesene) + (gleich ? " " + satz : ""),
                 {{"register", Json::Objekt(Ortsfelder(Ziel()))},
                  {"before", lesung.AlsJson(Ziel(), bisherige)},
                  {"written", lesung.AlsJson(Ziel(), neue)},
                  {"readBack", lesung.AlsJson(Ziel(), gelesene)},
                  {"equal", gleich},
                  {"stored", Speichert()}});
        if (gleich)
            return Ende::Erledigt;
        return lauf.Scheitere(Ende::Abgelehnt,
                              LadeTextMit(TextAbweichend, {Registername(Ziel()), lesung.Worte(Ziel(), neue),
                                                           lesung.Worte(Ziel(), gelesene)}));
    }

    const Lauf& lauf;
    Leitungszugang zugang;
    std::vector<Transferparameter> ziele{};
    Registerlesung lesung{};
    Werte bisherige{};
    Werte neue{};
    Werte gelesene{};
};

} // namespace

Ende Get(Lauf& lauf) {
    std::vector<Transferparameter> alle;
    if (const Ende ende = WaehleAlle(lauf, lauf.zeile.argumente, alle); ende != Ende::Erledigt)
        return ende;
    Leitungszugang zugang(lauf);
    if (const Ende ende = zugang.Verbinde(); ende != Ende::Erledigt)
        return ende;
    Registerlesung lesung;
    if (const Ende ende = lesung.Lies(lauf, zugang, alle); ende != Ende::Erledigt)
        return ende;
    std::string text;
    std::vector<Json> zeilen;
    for (const Transferparameter& einer : alle) {
        const Werte& werte = lesung.WerteVon(einer);
        text += Wertzeile(einer, lesung, werte) + "\n";
        zeilen.push_back(Json::Objekt(
            Ortsfelder(einer), {{"words", lesung.Worte(einer, werte)}, {"values", Json::Zahlen(werte)}}));
    }
    lauf.Gib(text, {{"registers", Json::Liste(zeilen)}});
    return Ende::Erledigt;
}

Ende Set(Lauf& lauf) {
    return Setzgang(lauf).Laufe();
}

} // namespace varnoth::ctl
