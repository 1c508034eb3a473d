#include "registerplan.h"

#include <algorithm>

namespace varnoth::simulator {

namespace {

struct Fenster {
    Bereich bereich;
    int anfang;
    int groesse;
    const char* name;
};

constexpr Fenster AlleFenster[] = {
    {Bereich::Global, 0x0000, 256, "global"},
    {Bereich::Spezifisch, 0x2000, 512, "specific"},
    {Bereich::Kommunikation, 0x4000, 256, "communication"},
};

const Fenster& FensterVon(Bereich bereich) {
    return AlleFenster[static_cast<std::size_t>(bereich)];
}

bool IstKommando(std::uint16_t wert) {
    return wert >= 1 && wert <= 3;
}

bool IstOptikteil(std::uint16_t wert) {
    return wert <= 3;
}

bool IstKanal(std::uint16_t wert) {
    return wert == 0;
}

bool IstSteuerwert(std::uint16_t wert) {
    return wert == 2 || wert == 4;
}

constexpr Eintrag Plan[] = {
    {Bereich::Global, reg::Seriennummer, 10, Art::Werksdaten},
    {Bereich::Global, reg::Herstelldatum, 4, Art::Werksdaten},
    {Bereich::Global, reg::Hardwareversion, 1, Art::Werksdaten},
    {Bereich::Global, reg::Passwort, reg::Passwortregister, Art::Steuerung},
    {Bereich::Global, reg::Kommando, 1, Art::Steuerung, IstKommando},
    {Bereich::Global, reg::Schaltausgang, 1, Art::Konfiguration},
    {Bereich::Global, reg::Optikteilauswahl, 1, Art::Steuerung, IstOptikteil},
    {Bereich::Global, reg::Kanalauswahl, 1, Art::Steuerung, IstKanal},
    {Bereich::Spezifisch, reg::Aufloesung, 2, Art::Konfiguration},
    {Bereich::Spezifisch, reg::Filter, 1, Art::Konfiguration},
    {Bereich::Spezifisch, reg::Gruppenzaehler, 4, Art::Konfiguration},
    {Bereich::Spezifisch, reg::Blanking, reg::Blankingregister, Art::Konfiguration},
    {Bereich::Kommunikation, reg::Stationsadresse, 1, Art::Konfiguration},
    {Bereich::Kommunikation, reg::Pausenzeit, 1, Art::Konfiguration},
    {Bereich::Kommunikation, reg::Autosend, 1 + reg::Datenblockregister, Art::Konfiguration},
    {Bereich::Kommunikation, reg::Autosendformat, 1, Art::Konfiguration},
    {Bereich::Kommunikation, reg::Steuerwert, 1, Art::Steuerung, IstSteuerwert},
};

} // namespace

std::optional<Ort> FindeOrt(int geraeteadresse, int anzahl) {
    for (const Fenster& fenster : AlleFenster) {
        const int adresse = geraeteadresse - fenster.anfang;
        if (adresse >= 0 && adresse < fenster.groesse && adresse + anzahl <= fenster.groesse)
            return Ort{fenster.bereich, adresse};
    }
    return std::nullopt;
}

int Groesse(Bereich bereich) {
    return FensterVon(bereich).groesse;
}

std::string Name(Bereich bereich) {
    return FensterVon(bereich).name;
}

std::string Name(Ort ort, int teil, int anzahl) {
    std::string name = Name(ort.bereich);
    if (ort.bereich == Bereich::Spezifisch)
        name += '[' + std::to_string(teil) + ']';
    name += ' ' + std::to_string(ort.adresse);
    if (anzahl > 1)
        name += ".." + std::to_string(ort.adresse + anzahl - 1);
    return name;
}

std::span<const Eintrag> Schreibbare() {
    return Plan;
}

const Eintrag* FindeSchreibbar(Ort ort) {
    const auto gefunden = std::ranges::find_if(Plan, [ort](const Eintrag& eintrag) {
        return eintrag.bereich == ort.bereich && ort.adresse >= eintrag.adresse &&
               ort.adresse < eintrag.adresse + eintrag.anzahl;
    });
    return gefunden == std::end(Plan) ? nullptr : &*gefunden;
}

bool IstLebend(Ort ort) {
    return ort.bereich == Bereich::Spezifisch &&
           (ort.adresse == reg::Teilstatus ||
            (ort.adresse >= reg::Messwerte && ort.adresse < reg::Strahlen + reg::Strahlenregister));
}

} // namespace varnoth::simulator
