#include "darstellungswahl.h"

#include "einstellungen.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr const char* Abschnitt = "Darstellung"; // of the settings file
constexpr const char* SchluesselErscheinung = "Erscheinung";
constexpr const char* SchluesselFarbsatz = "Strahlfarben";

constexpr Darstellungszeile<Erscheinung> DieErscheinungszeilen[] = {
    {Erscheinung::System, "System", 9522, "mnuErscheinungSystem"},
    {Erscheinung::Hell, "Hell", 9523, "mnuErscheinungHell"},
    {Erscheinung::Dunkel, "Dunkel", 9524, "mnuErscheinungDunkel"},
    {Erscheinung::HoherKontrast, "HoherKontrast", 9525, "mnuErscheinungHoherKontrast"}};

constexpr Darstellungszeile<Strahlfarbsatz> DieFarbsatzzeilen[] = {
    {Strahlfarbsatz::GruenUndRot, "GruenUndRot", 9527, "mnuFarbsatzGruenUndRot"},
    {Strahlfarbsatz::BlauUndOrange, "BlauUndOrange", 9528, "mnuFarbsatzBlauUndOrange"},
    {Strahlfarbsatz::GruenUndMagenta, "GruenUndMagenta", 9529, "mnuFarbsatzGruenUndMagenta"},
    {Strahlfarbsatz::Graustufen, "Graustufen", 9530, "mnuFarbsatzGraustufen"}};

template<class Wert>
Wert Lies(Einstellungen& einstellungen, const char* schluessel,
          std::span<const Darstellungszeile<Wert>> zeilen, Wert standard) {
    const std::string wort = einstellungen.LiesText(Abschnitt, schluessel, "");
    const auto da = std::ranges::find(zeilen, wort, &Darstellungszeile<Wert>::wort);
    return da == zeilen.end() ? standard : da->wert;
}

template<class Wert>
void Schreib(Einstellungen& einstellungen, const char* schluessel,
             std::span<const Darstellungszeile<Wert>> zeilen, Wert wert) {
    einstellungen.SchreibText(Abschnitt, schluessel,
                              std::ranges::find(zeilen, wert, &Darstellungszeile<Wert>::wert)->wort);
}

} // namespace

std::span<const Darstellungszeile<Erscheinung>> Erscheinungszeilen() {
    return DieErscheinungszeilen;
}

std::span<const Darstellungszeile<Strahlfarbsatz>> Farbsatzzeilen() {
    return DieFarbsatzzeilen;
}

Erscheinung Wirksam(Erscheinung gewaehlt, bool systemWillDunkel) {
    return gewaehlt == Erscheinung::System && systemWillDunkel ? Erscheinung::Dunkel : gewaehlt;
}

Darstellung LiesDarstellung(Einstellungen& einstellungen) {
    const Darstellung standard;
    return {.erscheinung =
                Lies(einstellungen, SchluesselErscheinung, Erscheinungszeilen(), standard.erscheinung),
            .farbsatz = Lies(einstellungen, SchluesselFarbsatz, Farbsatzzeilen(), standard.farbsatz)};
}

void SchreibDarstellung(Einstellungen& einstellungen, const Darstellung& darstellung) {
    const Darstellung gespeichert = LiesDarstellung(einstellungen);
    if (darstellung.erscheinung != gespeichert.erscheinung)
        Schreib(einstellungen, SchluesselErscheinung, Erscheinungszeilen(), darstellung.erscheinung);
    if (darstellung.farbsatz != gespeichert.farbsatz)
        Schreib(einstellungen, SchluesselFarbsatz, Farbsatzzeilen(), darstellung.farbsatz);
}

} // namespace varnoth
