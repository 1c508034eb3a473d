#include "einzelwert.h"

#include "ereignisse.h"
#include "geraetestand.h"
#include "registeradressen.h"
#include "transaktionen.h"
#include "zahlen.h"

#include <cmath>
#include <iterator>

namespace varnoth {

namespace {

constexpr const char* Fehlanzeige = "???";
constexpr const char* Bestaetigung = "OK";

constexpr std::int32_t GroessterWert = 0xFFFF;
constexpr std::int32_t KleinsterWert = -0x8000;

/// Val gives 0 for a number that it cannot hold, which must not pass for the number 0: what such a number
/// begins with, up to its first digit other than 0, is not 0.
bool IstUebergelaufen(std::string_view text) {
    const std::size_t ziffer = text.find_first_of("123456789ABCDEFabcdef");
    return ziffer != std::string_view::npos && Val(text) == 0 && Val(text.substr(0, ziffer + 1)) != 0;
}

/// The number typed, rounded to a whole one, of two equally near ones to the even. Nothing when it lies
/// outside the limits.
std::optional<std::int32_t> GanzeZahl(std::string_view text, std::int32_t kleinste, std::int32_t groesste) {
    const double zahl = std::nearbyint(Val(text));
    if (zahl < kleinste || zahl > groesste || IstUebergelaufen(text))
        return std::nullopt;
    return static_cast<std::int32_t>(zahl);
}

/// The parameter that a register of the controller belongs to; none for one that no configuration holds.
Parametermenge ParameterAn(std::uint16_t geraeteadresse, int optikteil) {
    Parametermenge gefunden;
    for (const Parameterstelle& stelle : AlleStellen(IstLesbar)) {
        const int abstand = geraeteadresse - Geraeteadresse(stelle.bereich, stelle.adresse);
        const bool inDiesemTeil = Exemplare(stelle.bereich) == 1 || stelle.optikteil == optikteil;
        if (inDiesemTeil && abstand >= 0 && abstand < Beschreibung(stelle.bereich, stelle.adresse).Laenge)
            gefunden.insert(stelle);
    }
    return gefunden;
}

/// Even without a confirmation the controller may have taken the value; a command may have started it anew.
void VergissGeschriebenes(std::uint16_t geraeteadresse, int optikteil) {
    modGeraetestand::Vergiss(ParameterAn(geraeteadresse, optikteil));
    if (geraeteadresse == Geraeteadresse(Speicherbereich::GlobaleGeraetedaten, global::Kommando))
        modGeraetestand::BeginneVerbindung();
}

} // namespace

std::int32_t BereichsOffset(int bereich) {
    const auto stelle = static_cast<std::size_t>(bereich);
    return Bereichsanfang(stelle < std::size(AlleSpeicherbereiche) ? AlleSpeicherbereiche[stelle]
                                                                   : Speicherbereich::GlobaleGeraetedaten);
}

std::optional<std::uint16_t> Registeradresse(const Einzelregister& wahl) {
    const std::int32_t offset = wahl.adressOffset;
    const auto adresse = GanzeZahl(wahl.adresse, -offset, GroessterWert - offset);
    if (!adresse)
        return std::nullopt;
    return static_cast<std::uint16_t>(offset + *adresse);
}

std::optional<std::int32_t> Registerwert(std::string_view inhalt) {
    return GanzeZahl(inhalt, KleinsterWert, GroessterWert);
}

std::string LiesEinzelwert(const Einzelregister& wahl) {
    const auto adresse = Registeradresse(wahl);
    Werte werte(1);
    const bool gelesen = adresse && modModbus::WaehleOptikteil(wahl.optikteil) != False &&
                         modModbus::RTUModeH03LeseAnforderung(*adresse, 1, werte) != False;
    return gelesen ? "&H" + AlsHex(static_cast<unsigned>(werte[0])) : Fehlanzeige;
}

std::string SchreibeEinzelwert(const Einzelregister& wahl, std::string_view inhalt) {
    const auto adresse = Registeradresse(wahl);
    const auto wert = Registerwert(inhalt);
    if (!adresse || !wert || modModbus::WaehleOptikteil(wahl.optikteil) == False)
        return Fehlanzeige;
    const bool geschrieben = modModbus::RTUModeH10SchreibenAnforderung(*adresse, 1, {*wert}) != False;
    VergissGeschriebenes(*adresse, wahl.optikteil);
    modEreignisse::Merke({.art = Ereignisart::RegisterGeschrieben, .gelungen = geschrieben, .alt = *adresse});
    return geschrieben ? Bestaetigung : Fehlanzeige;
}

} // namespace varnoth
