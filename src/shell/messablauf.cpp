#include "messablauf.h"

#include "aufzeichnungseinstellungen.h"
#include "dateien.h"
#include "dateiziel.h"
#include "einstellungen.h"
#include "konfigurationsbefehle.h"
#include "programmversion.h"
#include "registerabbild.h"
#include "standtext.h"
#include "transaktionen.h"
#include "umgebung.h"

#include <QDateTime>

#include <utility>

namespace varnoth {

namespace {

/// How often the configuration in use is compared with the one that the memory has.
constexpr Zeit Vergleichsabstand = std::chrono::seconds(1);

Messangaben AngabenJetzt() {
    constexpr int sekundenJeMinute = 60;
    return {.beginn = std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now()),
            .zoneMinuten = QDateTime::currentDateTime().offsetFromUtc() / sekundenJeMinute,
            .programm = std::string(Programmversion())};
}

/// As much as the settings give the flight recorder.
std::size_t Speicherbytes() {
    return static_cast<std::size_t>(LiesFlugschreiber(DieEinstellungen()).megabyte) << 20U;
}

} // namespace

Messablauf::Messablauf() : speicher(AngabenJetzt(), DieUmgebung().Uhr(), Speicherbytes()) {
    modMesshoerer::MeldeAn(*this);
}

Messablauf::~Messablauf() {
    modMesshoerer::MeldeAb(*this);
}

void Messablauf::Lokalisiere() {
    for (const Gezeigtes& eines : fenster)
        eines.lokalisiere();
}

void Messablauf::Schliesse() {
    for (const Gezeigtes& eines : fenster)
        eines.fenster->close();
}

void Messablauf::SetzeWiedergabe(Wiedergabestand* neue) {
    if (std::exchange(wiedergabe, neue) != neue)
        ++quellenzahl;
}

const Messquelle& Messablauf::Quelle() {
    return wiedergabe != nullptr ? wiedergabe->Quelle() : speicher;
}

Zeit Messablauf::Jetzt() {
    return wiedergabe != nullptr ? wiedergabe->Jetzt() : speicher.Spanne().bis;
}

void Messablauf::SpringeZu(Zeit laufzeit) {
    if (wiedergabe != nullptr)
        wiedergabe->SpringeZu(laufzeit);
}

void Messablauf::Notiere(Zeit laufzeit, const std::string& text) {
    if (wiedergabe != nullptr)
        return;
    const Zeit vorher = speicher.Laufzeit(DieUmgebung().Uhr()) - laufzeit;
    const Systemzeit zeit = std::chrono::system_clock::now() - vorher;
    speicher.Notiere(laufzeit, zeit, text);
    if (notizhoerer)
        notizhoerer(DieUmgebung().Uhr() - vorher, zeit, text);
}

std::optional<std::string> Messablauf::FrageNachDatei(const std::string& titel, const std::string& filter,
                                                      const std::string& name) {
    auto pfad = FrageNachZiel({.titel = titel, .filter = filter, .ordner = Dokumentordner(), .name = name});
    if (pfad)
        MerkeDokumentordner(*pfad);
    return pfad;
}

bool Messablauf::Schreibe(const std::string& pfad, const std::string& bytes) {
    const std::string fehler = ErsetzeDatei(pfad, bytes);
    if (!fehler.empty())
        ZeigeWarnung(Dateifehlertext(fehler, pfad));
    return fehler.empty();
}

void Messablauf::SchlageBlankingVor(int teil, const Werte& muster) {
    if (blankingweg)
        blankingweg(teil, muster);
}

void Messablauf::BerichteStrahlen(const Strahlbericht& abschnitt) {
    if (berichtsweg)
        berichtsweg(abschnitt);
}

void Messablauf::Hoere(const Messdurchgang& durchgang) {
    if (durchgang.uhr - zuletztGesehen >= Vergleichsabstand) {
        zuletztGesehen = durchgang.uhr;
        MerkeKonfiguration();
    }
    speicher.Nimm(durchgang);
}

void Messablauf::Hoere(const Liveereignis& ereignis) {
    if (ereignis.art == Liveereignisart::Begonnen) {
        zuletztGesehen = ereignis.uhr;
        MerkeGeraet();
        MerkeKonfiguration();
    }
    speicher.Nimm(ereignis);
}

bool Messablauf::Braucht(int teil) const {
    return std::ranges::any_of(fenster, [teil](const Gezeigtes& eines) { return eines.braucht(teil); });
}

void Messablauf::MerkeGeraet() {
    if (modModbus::GetIdentGueltig() != False)
        speicher.SetzeGeraet(IdenttextAlsUtf8(modModbus::GetIdentText1()),
                             IdenttextAlsUtf8(modModbus::GetIdentText2()));
}

/// Takes the configuration in use when it is another than before.
void Messablauf::MerkeKonfiguration() {
    const Abbild jetzige = OhneMomentanes(modDaten::DasAbbild());
    if (std::exchange(hatKonfiguration, true) && jetzige == konfiguration)
        return;
    konfiguration = jetzige;
    speicher.SetzeKonfiguration(modDaten::DasAbbild());
}

} // namespace varnoth
