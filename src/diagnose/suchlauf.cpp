#include "suchlauf.h"

#include "identprobe.h"
#include "schnittstelle.h"
#include "suchworte.h"
#include "verbindungsauskunft.h"

#include <algorithm>
#include <array>
#include <deque>
#include <set>

namespace varnoth {

namespace {

/// The controllers' own format, then the other ones at speeds that buses mostly have, slow ones last. What
/// sends with one stop bit and no parity is understood with two as well.
const std::array<std::string, 21> DieFormate{
    "38400,n,8,2", "38400,e,8,1", "38400,o,8,1", "19200,n,8,2", "19200,e,8,1", "19200,o,8,1", "9600,n,8,2",
    "9600,e,8,1",  "9600,o,8,1",  "57600,n,8,2", "57600,e,8,1", "57600,o,8,1", "4800,n,8,2",  "4800,e,8,1",
    "4800,o,8,1",  "2400,n,8,2",  "2400,e,8,1",  "2400,o,8,1",  "1200,n,8,2",  "1200,e,8,1",  "1200,o,8,1"};

/// Puts device and format of the port back to what they were, and leaves it closed.
class Leitungsmerker {
public:
    Leitungsmerker() = default;
    Leitungsmerker(const Leitungsmerker&) = delete;
    Leitungsmerker& operator=(const Leitungsmerker&) = delete;
    ~Leitungsmerker() {
        modSchnittstelle::CloseCommPort();
        modSchnittstelle::SetzeGeraet(geraet);
        modSchnittstelle::SetzeComSettings(format);
    }

private:
    std::string geraet = modSchnittstelle::GetGeraet();
    std::string format = modSchnittstelle::GetComSettings();
};

class Suche {
public:
    Suche(const std::vector<Suchversuch>& plan, Suchzeiger& neuer)
        : offene(plan.begin(), plan.end()), anzahl(static_cast<int>(plan.size())), zeiger(neuer) {
        std::set<std::string> geraete;
        for (const Suchversuch& versuch : plan)
            geraete.insert(versuch.geraet);
        bilanz.geraete = static_cast<int>(geraete.size());
    }

    Suchfund Laufe() {
        const Leitungsmerker merker;
        bilanz.simuliert = modSchnittstelle::GetAnschluss().simuliert;
        while (!bilanz.simuliert && !offene.empty() && fund.ident.gueltig != True && !fund.abgebrochen)
            MacheNaechsten();
        fund.text = Fundtext(fund, bilanz);
        return fund;
    }

private:
    void MacheNaechsten() {
        if (zeiger.Abgebrochen()) {
            fund.abgebrochen = true;
            return;
        }
        const Suchversuch versuch = offene.front();
        offene.pop_front();
        Suchstand stand{.nummer = ++fund.versuche, .anzahl = anzahl, .versuch = versuch};
        zeiger.Zeige(stand);
        const std::string ursache = Versuche(versuch, stand);
        if (!stand.ergebnis) {
            --fund.versuche;
            fund.abgebrochen = true;
            return;
        }
        stand.anzahl = anzahl;
        stand.text = ursache.empty() ? Versuchstext(*stand.ergebnis) : ursache;
        zeiger.Zeige(stand);
    }

    /// Carries a try out; no result where it was cancelled. Gives why the port is closed, empty where it is
    /// not.
    std::string Versuche(const Suchversuch& versuch, Suchstand& stand) {
        modSchnittstelle::SetzeGeraet(versuch.geraet);
        modSchnittstelle::SetzeComSettings(versuch.format);
        modSchnittstelle::OpenCommPort();
        bool abgebrochen = false;
        Identprobe probe;
        if (modSchnittstelle::GetPortIstOffen() == True)
            probe = FrageIdentifikation(FristenBei(versuch.format), [&] {
                abgebrochen = zeiger.Abgebrochen();
                return abgebrochen;
            });
        const bool offen = modSchnittstelle::GetPortIstOffen() == True;
        std::string ursache = offen ? std::string() : Verschlossen(versuch.geraet);
        modSchnittstelle::CloseCommPort();
        if (!abgebrochen)
            stand.ergebnis = Bewerte(versuch, probe, offen);
        return ursache;
    }

    Suchergebnis Bewerte(const Suchversuch& versuch, const Identprobe& probe, bool offen) {
        const bool echo = HatEcho(probe);
        if (!probe.antwort.empty()) {
            fund.versuch = versuch;
            fund.ident = probe.ident;
            fund.mitEcho = echo;
            return echo ? Suchergebnis::NurMitEcho : Suchergebnis::Gefunden;
        }
        if (!offen)
            return Suchergebnis::PortVerschlossen;
        if (echo && probe.empfangen == probe.gesendet) {
            Merke(bilanz.echoAn, versuch.geraet);
            return Suchergebnis::Echo;
        }
        if (probe.empfangen.empty() && probe.davor.empty())
            return Suchergebnis::Stille;
        Merke(bilanz.unverstandenAn, versuch.geraet);
        FrageNocheinmal(versuch);
        return Suchergebnis::Unverstanden;
    }

    static void Merke(std::string& wo, const std::string& geraet) {
        if (wo.empty())
            wo = geraet;
    }

    /// A controller that sends by itself may have missed the request.
    void FrageNocheinmal(const Suchversuch& versuch) {
        constexpr int Anfragen = 3;
        gefragt = versuch == zuletzt ? gefragt + 1 : 1;
        zuletzt = versuch;
        if (gefragt == Anfragen)
            return;
        offene.push_front(versuch);
        ++anzahl;
    }

    /// What cannot be opened is not tried again.
    std::string Verschlossen(const std::string& geraet) {
        anzahl -= static_cast<int>(
            std::erase_if(offene, [&](const Suchversuch& anderer) { return anderer.geraet == geraet; }));
        ++bilanz.verschlossene;
        const std::string ursache =
            Portursache(geraet, modSchnittstelle::GetPortbefund(), modSchnittstelle::GetPortfehler());
        std::string text = ursache.empty() ? Versuchstext(Suchergebnis::PortVerschlossen) : ursache;
        Merke(bilanz.verschlossen, text);
        return text;
    }

    std::deque<Suchversuch> offene; ///< tries that are still to be made
    int anzahl;
    Suchzeiger& zeiger;
    Suchfund fund;
    Suchbilanz bilanz;
    Suchversuch zuletzt; ///< that was not understood
    int gefragt = 0;     ///< so often
};

} // namespace

std::span<const std::string> Suchformate() {
    return DieFormate;
}

std::vector<Suchversuch> Suchfolge(const std::vector<std::string>& geraete) {
    std::vector<Suchversuch> folge;
    folge.reserve(geraete.size() * Suchformate().size());
    for (const std::string& geraet : geraete)
        folge.push_back({geraet, DieFormate.front()});
    for (const std::string& geraet : geraete)
        for (const std::string& format : Suchformate().subspan(1))
            folge.push_back({geraet, format});
    return folge;
}

Suchfund SucheSteuergeraet(const std::vector<std::string>& geraete, Suchzeiger& zeiger) {
    return SucheSteuergeraet(Suchfolge(geraete), zeiger);
}

Suchfund SucheSteuergeraet(const std::vector<Suchversuch>& versuche, Suchzeiger& zeiger) {
    return Suche(versuche, zeiger).Laufe();
}

} // namespace varnoth
