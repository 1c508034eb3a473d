#include "konfigurationstransfer.h"

#include "registeradressen.h"
#include "texte.h"
#include "transaktionen.h"
#include "versuche.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextOptikteil = 7114;
constexpr std::int16_t TextKanal = 7115;

constexpr int Kanal = 0;

} // namespace

bool Konfigurationstransfer::UebertrageAlles() {
    erledigt = 0;
    gesamt = AnzahlSchritte();
    anzeige.ZeigeFortschritt(erledigt, gesamt);
    return UebertrageBereich(Speicherbereich::GlobaleGeraetedaten) && UebertrageOptikteile() &&
           Waehle(TextKanal, global::Kanalauswahl, Kanal) &&
           UebertrageBereich(Speicherbereich::Kommunikationsdaten);
}

bool Konfigurationstransfer::Versuche(const std::string& registertext, int anzahl,
                                      const std::function<Boolean()>& transaktion) {
    const auto zeige = [&](int versuch) { anzeige.ZeigeRegister(registertext, anzahl, versuch); };
    const bool gelungen = VersucheBisErfolg(anzeige, zeige, transaktion);
    if (gelungen)
        anzeige.ZeigeFortschritt(++erledigt, gesamt);
    return gelungen;
}

void Konfigurationstransfer::Ueberspringe() {
    anzeige.ZeigeFortschritt(++erledigt, gesamt);
}

/// Every parameter, the selection of each part and of the channel, and what the class adds.
int Konfigurationstransfer::AnzahlSchritte() const {
    int anzahl = AnzahlOptikteile + 1 + weitereSchritte;
    for (const Speicherbereich bereich : AlleSpeicherbereiche)
        anzahl +=
            Exemplare(bereich) * static_cast<int>(std::ranges::distance(ParameterMit(bereich, auswahl)));
    return anzahl;
}

bool Konfigurationstransfer::Waehle(std::int16_t textId, std::int16_t auswahlregister, int nummer) {
    anzeige.ZeigeBereich(LadeText(textId) + std::to_string(nummer));
    return Versuche(std::to_string(auswahlregister), 1, [=] {
        return modModbus::RTUModeH10SchreibenAnforderung(
            Geraeteadresse(Speicherbereich::GlobaleGeraetedaten, auswahlregister), 1, {nummer});
    });
}

bool Konfigurationstransfer::UebertrageBereich(Speicherbereich bereich, std::int16_t optikteil) {
    anzeige.ZeigeBereich(
        LadeText(static_cast<std::int16_t>(ErsterBereichstext() + static_cast<int>(bereich))));
    return std::ranges::all_of(ParameterMit(bereich, auswahl), [&](const Parameter& parameter) {
        return Uebertrage({bereich, parameter.adresse, parameter.beschreibung.Laenge, optikteil});
    });
}

bool Konfigurationstransfer::UebertrageOptikteile() {
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
        if (!Waehle(TextOptikteil, global::Optikteilauswahl, teil) ||
            !UebertrageBereich(Speicherbereich::SpezifischeGeraetedaten, teil))
            return false;
    return true;
}

} // namespace varnoth
