#include "leitungspruefung.h"

#include "porteinstellungen.h"
#include "probenbewertung.h"
#include "schnittstelle.h"
#include "verbindungsauskunft.h"

#include <algorithm>

namespace varnoth {

namespace {

using namespace modSchnittstelle;

bool HatParitaet(const std::string& format) {
    const auto gelesen = LiesPorteinstellungen(format);
    return gelesen && gelesen->paritaet != Paritaet::Keine;
}

/// Behind silence: whether the reply comes when it is not waited for any more. The next request would take it
/// for its own. Where a few times nothing has come, it is not listened for again.
void LauscheNach(const Pruefbefund& befund, const Identprobe& probe, int& vergeblich) {
    constexpr int Vergebliche = 3;
    constexpr int Millisekunden = 770; // a second together with the wait before
    if (!probe.antwort.empty() || !probe.empfangen.empty() ||
        (befund.spaete == 0 && vergeblich == Vergebliche))
        return;
    WarteAufZeichen(Millisekunden, True);
    ++vergeblich;
}

void PruefeOffene(Pruefbefund& befund, int anzahl, Pruefzeiger& zeiger) {
    const Probefristen fristen = FristenBei(befund.format);
    const bool mitParitaet = HatParitaet(befund.format);
    std::string bekannte;
    int vergeblich = 0;
    while (befund.gesendet < anzahl && !befund.portVerloren) {
        if (zeiger.Abgebrochen()) {
            befund.abgebrochen = true;
            return;
        }
        bool abgebrochen = false;
        const Identprobe probe = FrageIdentifikation(fristen, [&] {
            abgebrochen = zeiger.Abgebrochen();
            return abgebrochen;
        });
        befund.portVerloren = GetPortIstOffen() != True;
        if (!probe.antwort.empty())
            bekannte = probe.antwort;
        else if (abgebrochen || befund.portVerloren)
            continue; // nobody knows what would have come
        Zaehle(befund, probe, bekannte, mitParitaet);
        zeiger.Zeige(befund);
        LauscheNach(befund, probe, vergeblich);
    }
}

} // namespace

Pruefbefund PruefeLeitung(const Pruefauftrag& auftrag, Pruefzeiger& zeiger) {
    Pruefbefund befund{.geraet = GetAnschluss().geraet, .format = GetComSettings(), .port = auftrag.port};
    OpenCommPort();
    if (GetPortIstOffen() == True) {
        PruefeOffene(befund, auftrag.anzahl, zeiger);
        WarteAufRuhe();
    } else {
        const std::string ursache = Portursache(befund.geraet, GetPortbefund(), GetPortfehler());
        befund.portfehler = ursache.empty() ? GetPortfehler() : ursache;
    }
    CloseCommPort();
    return befund;
}

std::optional<Zeit> Umlaufzeit(const Pruefbefund& befund, int prozent) {
    const auto& zeiten = befund.umlaufzeiten;
    if (zeiten.empty())
        return std::nullopt;
    constexpr std::size_t Hundert = 100;
    const std::size_t bis =
        (zeiten.size() * static_cast<std::size_t>(std::clamp(prozent, 0, 100)) + Hundert - 1) / Hundert;
    return zeiten.at(std::max(bis, std::size_t{1}) - 1);
}

} // namespace varnoth
