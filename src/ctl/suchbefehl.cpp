// The command that finds the controller.

#include "auftraege.h"
#include "geraetename.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "portliste.h"
#include "schnittstelle.h"
#include "suchlauf.h"

#include <algorithm>

namespace varnoth::ctl {

namespace {

/// Shows how far the search is, and keeps what came of each try.
class Suchschreiber : public Suchzeiger {
public:
    explicit Suchschreiber(const Lauf& derLauf) : lauf(derLauf) {}
    ~Suchschreiber() override { lauf.konsole.Fortschritt({}); }

    void Zeige(const Suchstand& stand) override {
        const std::string versuch = std::to_string(stand.nummer) + "/" + std::to_string(stand.anzahl) + " " +
                                    stand.versuch.geraet + " " + stand.versuch.format;
        lauf.ZeigeFortschritt(stand.text.empty() ? versuch : versuch + ": " + stand.text);
        if (stand.ergebnis)
            ergebnisse.push_back(stand);
    }
    bool Abgebrochen() override { return lauf.konsole.Unterbrochen(); }
    const std::vector<Suchstand>& Ergebnisse() const { return ergebnisse; }

private:
    const Lauf& lauf;
    std::vector<Suchstand> ergebnisse;
};

const char* Ergebnisname(Suchergebnis ergebnis) {
    switch (ergebnis) {
    case Suchergebnis::Gefunden:
        return "found";
    case Suchergebnis::NurMitEcho:
        return "foundWithEcho";
    case Suchergebnis::PortVerschlossen:
        return "closed";
    case Suchergebnis::Stille:
        return "silent";
    case Suchergebnis::Unverstanden:
        return "garbled";
    case Suchergebnis::Echo:
        break;
    }
    return "echo";
}

Json VersuchAlsJson(const Suchstand& stand) {
    return Json::Objekt({{"device", stand.versuch.geraet},
                         {"format", stand.versuch.format},
                         {"result", Ergebnisname(*stand.ergebnis)},
                         {"words", stand.text}});
}

Json FundAlsJson(const Suchfund& fund) {
    if (fund.ident.gueltig != True)
        return {};
    return Json::Objekt({{"device", fund.versuch.geraet},
                         {"format", fund.versuch.format},
                         {"echo", fund.mitEcho},
                         {"controller", GeraetAlsJson(fund.ident)}});
}

/// The ports that are to be searched: those of the arguments, else the one that an option names, else all.
std::vector<std::string> Geraete(const Lauf& lauf) {
    if (!lauf.zeile.argumente.empty()) {
        std::vector<std::string> geraete;
        std::ranges::transform(lauf.zeile.argumente, std::back_inserter(geraete), GanzerGeraetename);
        return geraete;
    }
    if (lauf.zeile.Hat("port"))
        return {modSchnittstelle::GetAnschluss().geraet};
    std::vector<std::string> geraete;
    for (const Portangabe& port : LiesPortliste())
        geraete.push_back(port.geraet);
    return geraete;
}

std::vector<Suchversuch> Versuche(const Lauf& lauf) {
    auto folge = Suchfolge(Geraete(lauf));
    if (!lauf.zeile.Hat("format"))
        return folge;
    const std::string& format = modSchnittstelle::GetComSettings();
    std::vector<Suchversuch> versuche;
    for (const Suchversuch& versuch : folge)
        if (const Suchversuch einer{versuch.geraet, format};
            std::ranges::find(versuche, einer) == versuche.end())
            versuche.push_back(einer);
    return versuche;
}

Ende EndeVon(const Suchfund& fund, const std::vector<Suchstand>& ergebnisse) {
    if (fund.ident.gueltig == True)
        return Ende::Erledigt;
    if (fund.abgebrochen)
        return Ende::Unterbrochen;
    const bool alleVerschlossen = std::ranges::all_of(
        ergebnisse, [](const Suchstand& stand) { return stand.ergebnis == Suchergebnis::PortVerschlossen; });
    return alleVerschlossen ? Ende::Port : Ende::KeineAntwort;
}

} // namespace

Ende Find(Lauf& lauf) {
    if (const Ende ende = WaehleAnschluss(lauf); ende != Ende::Erledigt)
        return ende;
    Suchfund fund;
    std::vector<Suchstand> ergebnisse;
    {
        Suchschreiber schreiber(lauf);
        fund = SucheSteuergeraet(Versuche(lauf), schreiber);
        ergebnisse = schreiber.Ergebnisse();
    }
    const bool gefunden = fund.ident.gueltig == True;
    lauf.Gib(gefunden ? fund.text : std::string(),
             {{"found", FundAlsJson(fund)}, {"tries", Jsonliste(ergebnisse, VersuchAlsJson)}});
    const Ende ende = EndeVon(fund, ergebnisse);
    return gefunden ? ende : lauf.Scheitere(ende, fund.text);
}

} // namespace varnoth::ctl
