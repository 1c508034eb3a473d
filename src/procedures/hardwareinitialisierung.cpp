#include "hardwareinitialisierung.h"

#include "einstellungen.h"
#include "ereignisse.h"
#include "geraetestand.h"
#include "kommandoregister.h"
#include "registeradressen.h"
#include "registerbeschreibung.h"
#include "servicetext.h"
#include "texte.h"
#include "transaktionen.h"
#include "versuche.h"
#include "zahlen.h"
#include "zeichensatz.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnoth {

namespace {

constexpr std::int16_t TextSeriennummer = 7503;
constexpr std::int16_t TextHardwareversion = 7504;
constexpr std::int16_t TextHerstelldatum = 7505;
constexpr std::int16_t TextPasswort = 7512;
constexpr std::int16_t TextEepromUpdate = 7513;

constexpr std::size_t Passwortlaenge = 16; // characters
constexpr std::size_t Seriennummerlaenge = 20;
constexpr std::size_t Jahreslaenge = 4;
constexpr std::size_t Monatslaenge = 2;
constexpr std::size_t Tageslaenge = 2;

constexpr int Hauptversionsgewicht = 256;

std::int32_t Zeichencode(char zeichen) {
    return static_cast<std::uint8_t>(zeichen);
}

/// The text cut or filled up with blanks to a length.
std::string MitLaenge(std::string_view text, std::size_t laenge) {
    std::string gefuellt(laenge, ' ');
    std::copy_n(text.begin(), std::min(text.size(), laenge), gefuellt.begin());
    return gefuellt;
}

Werte PackePasswort(const Werksdaten& /*daten*/) {
    return PackeZeichen(modService::GetServiceText());
}

Werte Speicherbefehl(const Werksdaten& /*daten*/) {
    return {static_cast<std::int32_t>(Kommando::SpeichereWerksdaten)};
}

void Merke(const char* schluessel, const std::string& text) {
    std::string utf8;
    for (const char zeichen : text)
        utf8 += AlsUtf8(static_cast<std::uint8_t>(zeichen));
    DieEinstellungen().SchreibText(werksdatenablage::Abschnitt, schluessel, utf8);
}

void MerkeNichts(const Werksdaten& /*daten*/) {}

void MerkeSeriennummer(const Werksdaten& daten) {
    Merke(werksdatenablage::Seriennummer, daten.seriennummer);
}

void MerkeHardwareversion(const Werksdaten& daten) {
    Merke(werksdatenablage::Hauptversion, daten.hauptversion);
    Merke(werksdatenablage::Unterversion, daten.unterversion);
}

/// One write of the procedure.
struct Schritt {
    std::int16_t text;
    std::int16_t adresse; ///< global register
    Werte (*werte)(const Werksdaten& daten);
    void (*merke)(const Werksdaten& daten); ///< what the settings keep once it is written
};

/// The password opens the controller for just one group of registers.
constexpr Schritt Passwortschritt{TextPasswort, global::Passwort, PackePasswort, MerkeNichts};

constexpr Schritt Schritte[] = {
    Passwortschritt,
    {TextSeriennummer, global::Seriennummer, PackeSeriennummer, MerkeSeriennummer},
    Passwortschritt,
    {TextHerstelldatum, global::Herstelldatum, PackeHerstelldatum, MerkeNichts},
    Passwortschritt,
    {TextHardwareversion, global::Hardwareversion, PackeHardwareversion, MerkeHardwareversion},
    {TextEepromUpdate, global::Kommando, Speicherbefehl, MerkeNichts},
};

bool FuehreAus(Initialisierungsanzeige& anzeige, const Schritt& schritt, const Werksdaten& daten) {
    anzeige.ZeigeSchritt(LadeText(schritt.text));
    const Werte werte = schritt.werte(daten);
    const auto adresse = Geraeteadresse(Speicherbereich::GlobaleGeraetedaten, schritt.adresse);
    const auto anzahl = static_cast<std::uint16_t>(werte.size());
    const bool geschrieben = VersucheBisErfolg(
        anzeige, [&](int versuch) { anzeige.ZeigeVersuch(versuch); },
        [&] { return modModbus::RTUModeH10SchreibenAnforderung(adresse, anzahl, werte); });
    modGeraetestand::Vergiss({{Speicherbereich::GlobaleGeraetedaten, schritt.adresse}});
    if (geschrieben)
        schritt.merke(daten);
    return geschrieben;
}

} // namespace

Werte PackeZeichen(std::string_view text) {
    Werte werte;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2)
        werte.push_back(Zeichencode(text[i]) * 256 + Zeichencode(text[i + 1]));
    return werte;
}

Werte PackeSeriennummer(const Werksdaten& daten) {
    return PackeZeichen(MitLaenge(daten.seriennummer, Seriennummerlaenge));
}

Werte PackeHerstelldatum(const Werksdaten& daten) {
    return PackeZeichen(MitLaenge(daten.jahr, Jahreslaenge) + MitLaenge(daten.monat, Monatslaenge) +
                        MitLaenge(daten.tag, Tageslaenge));
}

Werte PackeHardwareversion(const Werksdaten& daten) {
    const double version = Val(daten.hauptversion) * Hauptversionsgewicht + Val(daten.unterversion);
    return {static_cast<std::int32_t>(std::llrint(version))};
}

bool InitialisiereHardware(Initialisierungsanzeige& anzeige, const Werksdaten& daten) {
    if (modService::GetServiceText().size() != Passwortlaenge)
        return false;
    const bool vollstaendig = std::ranges::all_of(
        Schritte, [&](const Schritt& schritt) { return FuehreAus(anzeige, schritt, daten); });
    modEreignisse::Merke({.art = Ereignisart::Werksdaten, .gelungen = vollstaendig});
    return vollstaendig;
}

} // namespace varnoth
