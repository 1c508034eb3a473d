// The command that lists the ports of the machine.

#include "auftraege.h"
#include "geraetepfade.h"
#include "lauf.h"
#include "portliste.h"
#include "portworte.h"
#include "texte.h"
#include "verbindungsauskunft.h"

#include <algorithm>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextKeinPort = 8277;
constexpr std::int16_t TextFrei = 8278;
constexpr std::int16_t TextVorhanden = 6790;
constexpr int Portnummern = 4;

/// The numbers of COM1 to COM4 that mean the port.
std::vector<std::int32_t> Nummern(const Portangabe& port) {
    std::vector<std::int32_t> nummern;
    for (int nummer = 1; nummer <= Portnummern; ++nummer) {
        const std::string pfad = Geraetepfad(nummer);
        if (pfad == port.geraet || std::ranges::find(port.stabileNamen, pfad) != port.stabileNamen.end())
            nummern.push_back(nummer);
    }
    return nummern;
}

std::string Ursache(const Portangabe& port) {
    return Portursache(port.geraet, port.befund, {});
}

std::string Absatz(const Portangabe& port) {
    const std::string ursache = Ursache(port);
    const std::string frei = LadeText(port.befund.benutzungUnbekannt ? TextVorhanden : TextFrei);
    std::string text = Portworte(port, Nummern(port)) + "\n  " + (ursache.empty() ? frei : ursache) + "\n";
    for (const std::string& name : port.stabileNamen)
        text += "  " + name + "\n";
    return text;
}

const char* Zustand(const Portbefund& befund) {
    switch (befund.hindernis) {
    case Hindernis::Keines:
        return befund.benutzungUnbekannt ? "present" : "free";
    case Hindernis::Belegt:
        return "busy";
    case Hindernis::KeinRecht:
        return "denied";
    case Hindernis::Fehlt:
        return "missing";
    default:
        return "error";
    }
}

Json Text(const std::string& text) {
    return Json(text);
}

Json TextOderNichts(const std::string& text) {
    return text.empty() ? Json() : Json(text);
}

Json Zeitgeber(const Portangabe& port) {
    if (!port.verzoegerungMs)
        return {};
    return Json::Objekt(
        {{"file", port.verzoegerungsdatei}, {"milliseconds", std::int32_t{*port.verzoegerungMs}}});
}

Json AlsJson(const Portangabe& port) {
    return Json::Objekt({{"device", port.geraet},
                         {"product", TextOderNichts(port.bezeichnung)},
                         {"manufacturer", TextOderNichts(port.hersteller)},
                         {"serialNumber", TextOderNichts(port.seriennummer)},
                         {"stableNames", Jsonliste(port.stabileNamen, Text)},
                         {"com", Json::Zahlen(Nummern(port))},
                         {"state", Zustand(port.befund)},
                         {"cause", TextOderNichts(Ursache(port))},
                         {"processes", Jsonliste(port.befund.prozesse, Text)},
                         {"latencyTimer", Zeitgeber(port)}});
}

} // namespace

Ende Ports(Lauf& lauf) {
    auto ports = LiesPortliste();
    ErgaenzeProzesse(ports);
    std::string text;
    for (const Portangabe& port : ports)
        text += Absatz(port);
    lauf.Gib(text, {{"ports", Jsonliste(ports, AlsJson)}});
    if (ports.empty())
        lauf.Sage(LadeText(TextKeinPort));
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
