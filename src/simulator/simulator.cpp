#include "simulator.h"

#include "befehle.h"

#include <algorithm>

namespace varnoth::simulator {

namespace {

/// A wire quiet for so long ends a frame that is not whole. A master on a PC may pause within one.
constexpr std::chrono::milliseconds Rahmenpause{20};

} // namespace

Simulator::Simulator(const Aufbau& aufbau)
    : protokoll_(aufbau.protokoll), optik_(aufbau), geraet_(aufbau, optik_, protokoll_, zaehlwerk_),
      leitung_(aufbau), bedenkzeit_(aufbau.bedenkzeit) {
    for (const Stoerung& stoerung : aufbau.stoerungen)
        stoerungen_.Fuege(stoerung);
}

void Simulator::Empfange(std::span<const std::uint8_t> zeichen, Zeit jetzt) {
    protokoll_.SetzeZeit(jetzt);
    const std::chrono::nanoseconds beginn = std::max<std::chrono::nanoseconds>(empfangsende_, jetzt);
    if (beginn > empfangsende_ + Rahmenpause && leser_.Verwirf())
        ZaehleGebrochene();
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        empfangsende_ = beginn + leitung_.Dauer(i + 1);
        NimmZeichen(zeichen[i], jetzt);
    }
}

void Simulator::NimmZeichen(std::uint8_t zeichen, Zeit jetzt) {
    const auto ergebnis = leser_.Nimm(zeichen);
    if (ergebnis == Anfragenleser::Ergebnis::Ganz)
        Beantworte(leser_.Rahmen(), jetzt);
    else if (ergebnis == Anfragenleser::Ergebnis::Gebrochen)
        ZaehleGebrochene();
}

void Simulator::ZaehleGebrochene() {
    ++zaehlwerk_.gebrochene;
    protokoll_.Zeile([] { return std::string("broken frame ignored"); });
}

void Simulator::Beantworte(std::span<const std::uint8_t> anfrage, Zeit jetzt) {
    const int funktion = anfrage[1];
    const auto stoerung = geraet_.WirdBeantwortet(anfrage) ? stoerungen_.Nimm(funktion) : std::nullopt;
    const bool abgelehnt = stoerung && stoerung->art->lehntAb;
    Bytes antwort = abgelehnt ? Bytes{static_cast<std::uint8_t>(geraet_.Adresse()), anfrage[1]}
                              : geraet_.Bearbeite(anfrage, jetzt);
    if (antwort.empty())
        return;
    verlauf_.Nimm(antwort);
    Sendung sendung;
    sendung.push_back({.zeichen = std::move(antwort)});
    if (stoerung) {
        stoerung->Verfaelsche(sendung, verlauf_);
        protokoll_.Zeile([&] {
            return "fault " + std::string(stoerung->art->name) + " at function " + std::to_string(funktion);
        });
    }
    leitung_.Sende(sendung, empfangsende_ + bedenkzeit_);
}

std::string Simulator::Befehl(std::string_view zeile, Zeit jetzt) {
    protokoll_.SetzeZeit(jetzt);
    return FuehreBefehlAus({geraet_, optik_, stoerungen_, protokoll_, zaehlwerk_, jetzt}, zeile);
}

void Simulator::TrenneLeitung() {
    leitung_.Verwirf();
    leser_.Verwirf();
}

} // namespace varnoth::simulator
