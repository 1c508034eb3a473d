#include "supportbericht.h"

#include "ereignisse.h"
#include "ereignisworte.h"
#include "leitungsstatistik.h"
#include "passwortschutz.h"
#include "seriennummer.h"
#include "texte.h"
#include "textmitwerten.h"
#include "textschutz.h"
#include "transaktionen.h"
#include "zeitpunkt.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace varnoth {

namespace {

constexpr std::int16_t TextTitel = 8475, TextVersionen = 8476, TextVerbindung = 8477, TextGeraet = 8478,
                       TextZaehlungen = 8479, TextEreignisse = 8480, TextEinstellungen = 8481,
                       TextProtokoll = 8400, TextKeines = 8483;
constexpr std::int16_t Zaehlungstexte[] = {8421, 8430, 8422, 8487, 8426}; // in the order of Austauschende
constexpr std::uint64_t HoechstensEreignisse = 500;

std::string Abschnitt(std::int16_t titel, std::string inhalt) {
    if (inhalt.empty())
        inhalt = LadeText(TextKeines) + "\n";
    if (!inhalt.ends_with('\n'))
        inhalt += '\n';
    return "\n== " + LadeText(titel) + " ==\n" + inhalt;
}

std::string Geraet() {
    if (modModbus::GetIdentGueltig() != True)
        return {};
    return Einzeilig(IdenttextAlsUtf8(modModbus::GetIdentText1())) + ", " + Einzeilig(GeraeteSeriennummer()) +
           ", " + std::to_string(modModbus::GetSlaveAdresse());
}

std::string Zaehlungen() {
    std::string zeilen;
    const auto* text = std::begin(Zaehlungstexte);
    for (const unsigned long anzahl : modLeitungsstatistik::GetStand().anzahl)
        zeilen += LadeText(*text++) + ": " + std::to_string(anzahl) + "\n";
    return zeilen;
}

std::string Ereignisse() {
    const Ereignisspeicher& alle = modEreignisse::Alle();
    std::uint64_t nummer = std::max(alle.Erstes(), alle.Ende() - std::min(alle.Ende(), HoechstensEreignisse));
    std::string zeilen;
    for (; nummer < alle.Ende(); ++nummer)
        zeilen += Zeitpunkttext(alle.Hole(nummer).zeit) + "  " + Ereignissatz(alle.Hole(nummer)) + "\n";
    return zeilen;
}

/// Every line of a text made harmless.
std::string Zeilenweise(const std::string& text) {
    std::istringstream zeilen(text);
    std::string ergebnis;
    for (std::string zeile; std::getline(zeilen, zeile);) {
        if (zeile.ends_with('\r'))
            zeile.pop_back();
        ergebnis += Einzeilig(zeile) + "\n";
    }
    return ergebnis;
}

} // namespace

std::string UnbedenklicheEinstellungen(const std::string& ini) {
    std::istringstream zeilen(ini);
    std::string ergebnis;
    for (std::string zeile; std::getline(zeilen, zeile);) {
        const auto gleich = zeile.find('=');
        if (gleich != std::string::npos && IstVertraulich(zeile.substr(0, gleich)))
            zeile = zeile.substr(0, gleich + 1) + Verdecktes;
        ergebnis += zeile + "\n";
    }
    return Zeilenweise(ergebnis);
}

std::string Supportkopf(const Supportangaben& angaben, std::chrono::system_clock::time_point jetzt) {
    return OhnePasswort(LadeTextMit(TextTitel, {Zeitpunkttext(jetzt)}) + "\n" +
                        Abschnitt(TextVersionen, Zeilenweise(angaben.umfeld)) +
                        Abschnitt(TextVerbindung, Zeilenweise(angaben.verbindung)) +
                        Abschnitt(TextGeraet, Geraet()) + Abschnitt(TextZaehlungen, Zaehlungen()) +
                        Abschnitt(TextEreignisse, Ereignisse()) +
                        Abschnitt(TextEinstellungen, UnbedenklicheEinstellungen(angaben.einstellungen)) +
                        "\n== " + LadeText(TextProtokoll) + " ==\n");
}

} // namespace varnoth
