#include "prozesskonsole.h"

#include "abbruchsignal.h"
#include "aehnliche.h"
#include "lauf.h"
#include "texte.h"
#include "textschutz.h"
#include "zeichenwandel.h"

#include <cerrno>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextJaNein = 8662;

bool HeisstJa(std::string_view antwort) {
    const std::string kern = Namenskern(antwort);
    return kern == "j" || kern == "ja" || kern == "y" || kern == "yes";
}

/// Characters whose number tells how many columns they take: one for each that begins in UTF-8.
Zeichenvorrat Zaehlbarer(Zeichenvorrat vorrat) {
    return vorrat == Zeichenvorrat::Utf8 ? vorrat : Zeichenvorrat::Ascii;
}

} // namespace

/// The lines of a text as they can be shown.
std::string Prozesskonsole::Anzeigbar(std::string_view text) const {
    std::string anzeigbar;
    for (const std::string_view zeile : Zeilen(text))
        anzeigbar += FuerVorrat(Einzeilig(zeile), vorrat) + "\n";
    return anzeigbar.substr(0, anzeigbar.size() - (anzeigbar.empty() ? 0 : 1));
}

void Prozesskonsole::Daten(std::string_view bytes) {
    RaeumeFortschritt();
    if (fehlernummer == 0)
        fehlernummer = SchreibeInStrom(Strom::Ausgabe, bytes);
}

void Prozesskonsole::Zeile(std::string_view text) {
    Daten(Anzeigbar(text) + "\n");
}

void Prozesskonsole::Meldung(std::string_view text) {
    RaeumeFortschritt();
    SchreibeInStrom(Strom::Fehler, Anzeigbar(text) + "\n");
}

/// No control sequences: any terminal knows how to begin a line anew.
void Prozesskonsole::Fortschritt(std::string_view text) {
    if (!IstTerminal(Strom::Fehler))
        return;
    if (text.empty())
        return RaeumeFortschritt();
    const std::string ganzer = FuerVorrat(Einzeilig(text), Zaehlbarer(vorrat));
    const int platz = Terminalbreite(Strom::Fehler) - 1; // in the last column some terminals break the line
    const std::string_view zeile = platz > 0 ? Gekuerzt(ganzer, platz) : ganzer;
    SchreibeInStrom(Strom::Fehler, "\r" + Aufgefuellt(zeile, fortschrittsbreite));
    fortschrittsbreite = Anzeigebreite(zeile);
}

void Prozesskonsole::RaeumeFortschritt() {
    if (fortschrittsbreite == 0)
        return;
    SchreibeInStrom(Strom::Fehler,
                    "\r" + std::string(static_cast<std::size_t>(fortschrittsbreite), ' ') + "\r");
    fortschrittsbreite = 0;
}

bool Prozesskonsole::KannFragen() const {
    return IstTerminal(Strom::Eingabe) && IstTerminal(Strom::Fehler);
}

bool Prozesskonsole::Frage(std::string_view text) {
    RaeumeFortschritt();
    SchreibeInStrom(Strom::Fehler, Anzeigbar(std::string(text) + " " + LadeText(TextJaNein) + " "));
    const auto antwort = LiesEingabezeile();
    if (!antwort)
        SchreibeInStrom(Strom::Fehler, "\n");
    return antwort && HeisstJa(*antwort);
}

bool Prozesskonsole::Unterbrochen() const {
    return IstAbbruchVerlangt();
}

int Prozesskonsole::Fehlernummer() const {
    return fehlernummer == EPIPE ? 0 : fehlernummer;
}

} // namespace varnoth::ctl
