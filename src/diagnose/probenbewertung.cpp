#include "probenbewertung.h"

#include "crc.h"
#include "gestalt.h"
#include "rahmen.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace varnoth {

namespace {

constexpr std::size_t Kopf = 3, Pruefsumme = 2;

bool IstFunktion(std::string_view bytes, Funktion funktion) {
    return bytes.size() > 1 && static_cast<Funktion>(bytes[1]) == funktion;
}

/// How many bytes an identification reply that begins like this has.
std::size_t Sollaenge(std::string_view beginn) {
    return Kopf + static_cast<std::uint8_t>(beginn[2]) + Pruefsumme;
}

/// How many bytes of a reply stand at the places where they do in one that was in order.
std::size_t Gleiche(std::string_view bytes, std::string_view bekannte) {
    std::size_t gleiche = 0;
    for (std::size_t i = 0; i < std::min(bytes.size(), bekannte.size()); ++i)
        gleiche += bytes[i] == bekannte[i] ? 1U : 0U;
    return gleiche;
}

/// What a failed reply is by the measure of one that was in order: most bytes of as many are right, or those
/// that came are.
Pruefende AmBekannten(std::string_view bytes, std::string_view bekannte) {
    const std::size_t gleiche = Gleiche(bytes, bekannte);
    if (bytes.size() < bekannte.size())
        return 2 * gleiche > bytes.size() ? Pruefende::Halb : Pruefende::Fremdes;
    return 2 * gleiche > bekannte.size() ? Pruefende::FalscheSumme : Pruefende::Fremdes;
}

/// What a failed reply is by its own beginning.
Pruefende AmKopf(std::string_view bytes) {
    for (; bytes.size() >= 2; bytes.remove_prefix(1))
        if (IstFunktion(bytes, Funktion::Identifikation))
            return bytes.size() < Kopf || bytes.size() < Sollaenge(bytes) ? Pruefende::Halb
                                                                          : Pruefende::FalscheSumme;
    return Pruefende::Fremdes;
}

/// Whether the bytes hold a master's whole request to read or to write.
bool EnthaeltAnfrage(std::string_view bytes) {
    constexpr std::size_t Leselaenge = 8, Schreibkopf = 7;
    for (; bytes.size() >= Leselaenge; bytes.remove_prefix(1)) {
        std::size_t laenge = IstFunktion(bytes, Funktion::Lesen) ? Leselaenge : 0;
        if (IstFunktion(bytes, Funktion::Schreiben))
            laenge = Schreibkopf + static_cast<std::uint8_t>(bytes[Schreibkopf - 1]) + Pruefsumme;
        // The CRC of a frame together with its own CRC is 0.
        if (laenge > 0 && laenge <= bytes.size() && CrcVon(bytes.substr(0, laenge)) == 0)
            return true;
    }
    return false;
}

bool EnthaeltAntwort(std::string_view bytes, Funktion funktion) {
    return std::ranges::any_of(SucheAntworten(bytes),
                               [&](std::string_view antwort) { return IstFunktion(antwort, funktion); });
}

void ZaehleUebriges(Pruefbefund& befund, const Identprobe& probe, Pruefende ende) {
    const bool spaete = EnthaeltAntwort(probe.davor, Funktion::Identifikation);
    befund.spaete += spaete ? 1 : 0;
    befund.ungefragte += !spaete && !probe.davor.empty() ? 1 : 0;
    const std::string rest = Daneben(probe);
    befund.beigaben += ende == Pruefende::Beantwortet && !rest.empty() ? 1 : 0;
    const bool anfrage = EnthaeltAnfrage(probe.davor) || EnthaeltAnfrage(rest);
    const bool block =
        EnthaeltAntwort(probe.davor, Funktion::Lesen) || EnthaeltAntwort(rest, Funktion::Lesen);
    befund.fremdeAnfragen += anfrage ? 1 : 0;
    befund.datenbloecke += block && !anfrage ? 1 : 0;
}

} // namespace

Pruefende EndeVon(const Identprobe& probe, const std::string& bekannte) {
    if (HatEcho(probe))
        return Pruefende::Echo;
    if (!probe.antwort.empty())
        return Pruefende::Beantwortet;
    if (probe.empfangen.empty())
        return Pruefende::Nichts;
    return bekannte.empty() ? AmKopf(probe.empfangen) : AmBekannten(probe.empfangen, bekannte);
}

void Zaehle(Pruefbefund& befund, const Identprobe& probe, const std::string& bekannte, bool mitParitaet) {
    const Pruefende ende = EndeVon(probe, bekannte);
    ++befund.gesendet;
    ++befund.anzahl.at(static_cast<std::size_t>(ende));
    ZaehleUebriges(befund, probe, ende);
    if (ende != Pruefende::Beantwortet) {
        befund.gebrochene += mitParitaet && probe.empfangen.find('?') != std::string::npos ? 1 : 0;
        return;
    }
    befund.antwortlaenge = probe.antwort.size();
    if (probe.aufgehalten)
        return;
    auto& zeiten = befund.umlaufzeiten;
    zeiten.insert(std::ranges::upper_bound(zeiten, probe.umlauf), probe.umlauf);
}

} // namespace varnoth
