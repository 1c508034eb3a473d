#include "prozesskonsole.h"

#include "abbruchsignal.h"
#include "aehnliche.h"
#include "texte.h"
#include "zeichenwandel.h"

#include <cerrno>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextJaNein = 8662;

bool HeisstJa(std::string_view antwort) {
    const std::string kern = Namenskern(antwort);
    return kern == "j" || kern == "ja" || kern == "y" || kern == "yes";
}

} // namespace

void Prozesskonsole::Daten(std::string_view bytes) {
    RaeumeFortschritt();
    if (fehlernummer == 0)
        fehlernummer = SchreibeInStrom(Strom::Ausgabe, bytes);
}

void Prozesskonsole::Zeile(std::string_view text) {
    Daten(FuerVorrat(text, vorrat) + "\n");
}

void Prozesskonsole::Meldung(std::string_view text) {
    RaeumeFortschritt();
    SchreibeInStrom(Strom::Fehler, FuerVorrat(text, vorrat) + "\n");
}

/// No control sequences: any terminal knows how to begin a line anew.
void Prozesskonsole::Fortschritt(std::string_view text) {
    if (!IstTerminal(Strom::Fehler))
        return;
    if (text.empty())
        return RaeumeFortschritt();
    const std::string zeile = Aufgefuellt(text, fortschrittsbreite);
    fortschrittsbreite = Anzeigebreite(text);
    SchreibeInStrom(Strom::Fehler, "\r" + FuerVorrat(zeile, vorrat));
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
    SchreibeInStrom(Strom::Fehler, FuerVorrat(std::string(text) + " " + LadeText(TextJaNein) + " ", vorrat));
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
