#include "konfigurationstransfer.h"

#include "texte.h"
#include "transaktionen.h"
#include "versuche.h"
#include "zahlen.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextOptikteil = 7114;
constexpr std::int16_t TextKanal = 7115;

constexpr int Kanal = 0;

} // namespace

std::string Registertext(Speicherbereich bereich, std::int16_t adresse) {
    if (bereich == Speicherbereich::GlobaleGeraetedaten)
        return std::to_string(adresse);
    return AlsHex(Bereichsanfang(bereich)) + "H + " + std::to_string(adresse);
}

bool Konfigurationstransfer::UebertrageAlles() {
    erledigt = 0;
    gesamt = AnzahlSchritte();
    anzeige.ZeigeFortschritt(erledigt, gesamt);
    return UebertrageBereich(Speicherbereich::GlobaleGeraetedaten) && UebertrageOptikteile() &&
           Waehle(TextKanal, modModbus::KanalAuswahlRegister, Kanal) &&
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

/// The range's parameters. They are gathered before the first is transferred, since the description's cursor
/// may be moved by others while a transfer waits.
std::vector<Transferparameter> Konfigurationstransfer::Parameter(Speicherbereich bereich) const {
    std::vector<Transferparameter> liste;
    Transferparameter parameter{bereich, 0, 0};
    for (Boolean da = ErsterEintrag()(bereich, parameter.adresse, parameter.anzahl); da != False;
         da = NaechsterEintrag()(bereich, parameter.adresse, parameter.anzahl))
        liste.push_back(parameter);
    return liste;
}

/// Every parameter, the selection of each part and of the channel, and what the class adds.
int Konfigurationstransfer::AnzahlSchritte() const {
    int anzahl = AnzahlOptikteile + 1 + weitereSchritte;
    for (const Speicherbereich bereich : AlleSpeicherbereiche)
        anzahl += Exemplare(bereich) * static_cast<int>(Parameter(bereich).size());
    return anzahl;
}

bool Konfigurationstransfer::Waehle(std::int16_t textId, std::int16_t auswahlregister, int auswahl) {
    anzeige.ZeigeBereich(LadeText(textId) + std::to_string(auswahl));
    return Versuche(std::to_string(auswahlregister), 1, [=] {
        return modModbus::RTUModeH10SchreibenAnforderung(static_cast<std::uint16_t>(auswahlregister), 1,
                                                         {auswahl});
    });
}

bool Konfigurationstransfer::UebertrageBereich(Speicherbereich bereich, std::int16_t optikteil) {
    anzeige.ZeigeBereich(
        LadeText(static_cast<std::int16_t>(ErsterBereichstext() + static_cast<int>(bereich))));
    for (Transferparameter parameter : Parameter(bereich)) {
        parameter.optikteil = optikteil;
        if (!Uebertrage(parameter))
            return false;
    }
    return true;
}

bool Konfigurationstransfer::UebertrageOptikteile() {
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
        if (!Waehle(TextOptikteil, modModbus::OptikteilAuswahlRegister, teil) ||
            !UebertrageBereich(Speicherbereich::SpezifischeGeraetedaten, teil))
            return false;
    return true;
}

} // namespace varnoth
