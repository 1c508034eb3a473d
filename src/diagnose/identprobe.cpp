#include "identprobe.h"

#include "erkenner.h"
#include "gestalt.h"
#include "mithoeren.h"
#include "porteinstellungen.h"
#include "rahmen.h"
#include "schnittstelle.h"

#include <algorithm>
#include <cstdint>

namespace varnoth {

namespace {

using namespace modSchnittstelle;

constexpr Zeit Bedenkzeit = std::chrono::milliseconds(230); // controller, adapter and system together
constexpr Zeit LaengstePausensuche = std::chrono::milliseconds(50);
constexpr int HoechsteAdresse = 247;
constexpr std::size_t MeisteBytes = 4096; // of a line that does not stop talking

int Millisekunden(Zeit dauer) {
    return static_cast<int>(
        std::max(std::chrono::ceil<std::chrono::milliseconds>(dauer).count(), std::int64_t{0}));
}

bool KommtEtwas(Zeit hoechstens) {
    return WarteAufZeichen(Millisekunden(hoechstens), True);
}

/// Reads until nothing has come for so long, or for 50 ms.
std::string LiesBisPause(Zeit pause) {
    const Zeit ende = DieUmgebung().Uhr() + LaengstePausensuche;
    std::string bytes;
    while (CommPortBytesAvailable() > 0 && DieUmgebung().Uhr() < ende) {
        bytes += CommPortReadInput();
        KommtEtwas(pause);
    }
    return bytes;
}

/// The whole valid reply in the bytes, from a station that there can be.
std::string SucheAntwort(std::string bytes) {
    const std::string alle = bytes;
    if (!NimmIdentAntwort(bytes))
        return {};
    const auto antworten = SucheAntworten(std::string_view(alle).substr(0, alle.size() - bytes.size()));
    const int adresse = antworten.empty() ? 0 : static_cast<std::uint8_t>(antworten.back().front());
    return adresse >= 1 && adresse <= HoechsteAdresse ? std::string(antworten.back()) : std::string();
}

Identifikation Deute(const std::string& antwort) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    erkenner.Verarbeite(antwort);
    VerteileIdenttext(erkenner.Text(), ident);
    ident.gueltig = True;
    return ident;
}

/// How the exchange ended, by the measure of all others.
modMithoeren::Ausgang AusgangVon(const Identprobe& probe) {
    if (!probe.antwort.empty())
        return modMithoeren::Ausgang::Gelungen;
    Identifikation ident;
    IdentErkenner erkenner(ident);
    erkenner.Verarbeite(probe.empfangen);
    return erkenner.Fertig() ? modMithoeren::Ausgang::Pruefsumme : modMithoeren::Ausgang::Ausgeblieben;
}

void Empfange(Identprobe& probe, Zeit anfang, const Probefristen& fristen,
              const std::function<bool()>& abgebrochen) {
    Zeit ende = anfang + fristen.beginn;
    while (probe.antwort.empty() && probe.empfangen.size() < MeisteBytes && !abgebrochen() &&
           KommtEtwas(ende - DieUmgebung().Uhr())) {
        probe.empfangen += CommPortReadInput();
        probe.antwort = SucheAntwort(probe.empfangen);
        const Zeit jetzt = DieUmgebung().Uhr();
        probe.umlauf = jetzt - anfang;
        ende = std::min(std::max(ende, jetzt + fristen.luecke), anfang + fristen.ganze);
    }
    if (probe.antwort.empty())
        probe.empfangen += CommPortReadInput(); // which also tells whether the line is still there
}

} // namespace

Probefristen FristenBei(std::string_view format) {
    constexpr double Pausenzeichen = 4, Lueckenzeichen = 10, Anfrage = 4, LaengsteAntwort = 260;
    constexpr Zeit KuerzestePause = std::chrono::milliseconds(3),
                   KuerzesteLuecke = std::chrono::milliseconds(50);
    const double zeichen = Zeichendauer(LiesPorteinstellungen(format).value_or(Porteinstellungen{}));
    const auto Dauer = [zeichen](double anzahl) { return Zeit{static_cast<Zeit::rep>(zeichen * anzahl)}; };
    return {.pause = std::max(KuerzestePause, Dauer(Pausenzeichen)),
            .beginn = Bedenkzeit + Dauer(Anfrage + 1),
            .luecke = std::max(KuerzesteLuecke, Dauer(Lueckenzeichen)),
            .ganze = Bedenkzeit + Dauer(Anfrage + LaengsteAntwort)};
}

Identprobe FrageIdentifikation(const Probefristen& fristen, const std::function<bool()>& abgebrochen) {
    Identprobe probe{.davor = LiesBisPause(fristen.pause), .gesendet = IdentifikationsAnforderung()};
    WarteSendepause();
    probe.davor += CommPortReadInput();
    WarteSendepause();
    const Zeit anfang = DieUmgebung().Uhr();
    const Zeit aufenthalt = DieUmgebung().GetAufenthalt().gesamt;
    CommPortWriteOutput(probe.gesendet);
    Empfange(probe, anfang, fristen, abgebrochen);
    probe.aufgehalten = DieUmgebung().GetAufenthalt().gesamt != aufenthalt;
    if (!probe.antwort.empty())
        probe.ident = Deute(probe.antwort);
    modMithoeren::Endet(Austauschart::Auftrag, probe.gesendet, AusgangVon(probe), GetPortIstOffen() == True);
    return probe;
}

bool HatEcho(const Identprobe& probe) {
    return !probe.gesendet.empty() && probe.empfangen.find(probe.gesendet) != std::string::npos;
}

std::string Daneben(const Identprobe& probe) {
    std::string rest = probe.empfangen;
    if (!probe.antwort.empty())
        rest.erase(rest.rfind(probe.antwort), probe.antwort.size());
    return rest;
}

} // namespace varnoth
