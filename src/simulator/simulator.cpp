#include "simulator.h"

#include "befehle.h"

#include <algorithm>

namespace varnoth::simulator {

namespace {

/// A wire quiet for so long ends a frame that is not whole. A master on a PC may pause within one.
constexpr std::chrono::milliseconds Rahmenpause{20};
constexpr std::uint8_t Schreibfunktion = 0x10;

/// What a receiver makes of bytes in another speed or format.
constexpr std::uint8_t Unlesbares = 0xF8;

/// Data blocks that nobody has taken for so long are lost.
constexpr std::chrono::seconds Aufbewahrung{1};

} // namespace

Simulator::Simulator(const Aufbau& aufbau)
    : protokoll(aufbau.protokoll), optik(aufbau), geraet(aufbau, optik, protokoll, zaehlwerk),
      leitung(aufbau), bedenkzeit(aufbau.bedenkzeit) {
    for (const Stoerung& stoerung : aufbau.stoerungen)
        stoerungen.Fuege(stoerung);
}

void Simulator::Empfange(std::span<const std::uint8_t> zeichen, Zeit jetzt) {
    SendeDatenbloecke(jetzt);
    protokoll.SetzeZeit(jetzt);
    const std::chrono::nanoseconds beginn = std::max<std::chrono::nanoseconds>(empfangsende, jetzt);
    if (beginn > empfangsende + Rahmenpause && leser.Verwirf())
        ZaehleGebrochene();
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        empfangsende = beginn + leitung.Dauer(i + 1);
        NimmZeichen(zeichen[i], jetzt);
    }
}

void Simulator::NimmZeichen(std::uint8_t zeichen, Zeit jetzt) {
    const auto ergebnis = leser.Nimm(zeichen);
    if (ergebnis == Anfragenleser::Ergebnis::Ganz)
        Beantworte(leser.Rahmen(), jetzt);
    else if (ergebnis == Anfragenleser::Ergebnis::Gebrochen)
        ZaehleGebrochene();
}

void Simulator::ZaehleGebrochene() {
    ++zaehlwerk.gebrochene;
    protokoll.Zeile([] { return std::string("broken frame ignored"); });
}

/// A write may meet a restart, or registers that stay as they are.
Bytes Simulator::Bearbeite(std::span<const std::uint8_t> anfrage, Zeit jetzt) {
    if (anfrage[1] != Schreibfunktion || !geraet.WirdBeantwortet(anfrage))
        return geraet.Bearbeite(anfrage, jetzt);
    const int adresse = anfrage[2] * 256 + anfrage[3];
    const int anzahl = anfrage[4] * 256 + anfrage[5];
    if (!stoerungen.NimmSchreibend(Eingriff::Neustart, adresse, anzahl).empty()) {
        geraet.Neustart();
        protokoll.Zeile([] { return std::string("fault restart-at"); });
    }
    Registerspeicher& speicher = geraet.Speicher();
    const int teil = speicher.Global(reg::Optikteilauswahl);
    std::vector<std::pair<Ort, std::uint16_t>> bleibende;
    for (const int vergessene : stoerungen.NimmSchreibend(Eingriff::Vergessen, adresse, anzahl))
        if (const auto ort = FindeOrt(vergessene, 1))
            bleibende.emplace_back(*ort, speicher.Block(*ort, teil, 1)[0]);
    Bytes antwort = geraet.Bearbeite(anfrage, jetzt);
    for (const auto& [ort, wert] : bleibende) {
        speicher.Block(ort, teil, 1)[0] = wert;
        protokoll.Zeile([&ort = ort, teil] { return "fault forget " + Name(ort, teil, 1); });
    }
    optik.Erneuere();
    return antwort;
}

void Simulator::Beantworte(std::span<const std::uint8_t> anfrage, Zeit jetzt) {
    const int funktion = anfrage[1];
    const auto stoerung = geraet.WirdBeantwortet(anfrage) ? stoerungen.Nimm(funktion) : std::nullopt;
    const bool abgelehnt = stoerung && stoerung->art->lehntAb;
    Bytes antwort = abgelehnt ? Bytes{static_cast<std::uint8_t>(geraet.Adresse()), anfrage[1]}
                              : Bearbeite(anfrage, jetzt);
    StelleAutosend(jetzt);
    if (antwort.empty())
        return;
    verlauf.Nimm(antwort);
    Sendung sendung;
    sendung.push_back({.zeichen = std::move(antwort)});
    if (stoerung) {
        stoerung->Verfaelsche(sendung, verlauf);
        protokoll.Zeile([&] {
            return "fault " + std::string(stoerung->art->name) + " at function " + std::to_string(funktion);
        });
    }
    leitung.Sende(sendung, empfangsende + bedenkzeit);
}

std::optional<Zeit> Simulator::NaechsteFaelligkeit() const {
    const auto faellig = leitung.NaechsteFaelligkeit();
    return faellig && naechsterBlock ? std::min(faellig, naechsterBlock) : faellig ? faellig : naechsterBlock;
}

std::vector<std::uint8_t> Simulator::Entnimm(Zeit jetzt) {
    SendeDatenbloecke(jetzt);
    return leitung.Entnimm(jetzt);
}

/// Sends the blocks that were due by now. One that the line had no time for is left out.
void Simulator::SendeDatenbloecke(Zeit jetzt) {
    if (naechsterBlock && *naechsterBlock + Aufbewahrung < jetzt)
        naechsterBlock = jetzt - Aufbewahrung;
    while (naechsterBlock && *naechsterBlock <= jetzt) {
        const Zeit wann = *naechsterBlock;
        geraet.Aktualisiere(wann);
        auto sendung = HoleAutosendung(geraet.Speicher(), geraet.Adresse());
        if (!sendung) {
            naechsterBlock.reset();
            return;
        }
        naechsterBlock = wann + sendung->periode;
        if (!sendung->lesbar)
            std::ranges::fill(sendung->block, Unlesbares);
        if (leitung.IstFrei(wann))
            leitung.Sende({{.zeichen = std::move(sendung->block)}}, wann);
    }
}

/// Autosend begins and ends with what the controller was just told.
void Simulator::StelleAutosend(Zeit jetzt) {
    if (!geraet.Autosend())
        naechsterBlock.reset();
    else if (!naechsterBlock)
        if (const auto sendung = HoleAutosendung(geraet.Speicher(), geraet.Adresse()))
            naechsterBlock = jetzt + sendung->periode;
}

std::string Simulator::Befehl(std::string_view zeile, Zeit jetzt) {
    protokoll.SetzeZeit(jetzt);
    std::string ergebnis = FuehreBefehlAus({geraet, optik, stoerungen, protokoll, zaehlwerk, jetzt}, zeile);
    StelleAutosend(jetzt);
    return ergebnis;
}

void Simulator::TrenneLeitung() {
    leitung.Verwirf();
    leser.Verwirf();
}

} // namespace varnoth::simulator
