#include "konfigurationstransfer.h"

#include "registeradressen.h"
#include "registertext.h"
#include "texte.h"
#include "transaktionen.h"

#include <memory>

namespace varnoth {

namespace {

constexpr std::int16_t TextOptikteil = 7114;
constexpr std::int16_t TextKanal = 7115;

constexpr int Kanal = 0;

} // namespace

bool Konfigurationstransfer::UebertrageAlles() {
    HaengeBereichAn(Speicherbereich::GlobaleGeraetedaten, Transferschritt::Ohne);
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        HaengeAuswahlAn(TextOptikteil, global::Optikteilauswahl, teil);
        HaengeBereichAn(Speicherbereich::SpezifischeGeraetedaten, schritte.size() - 1, teil);
    }
    HaengeAuswahlAn(TextKanal, global::Kanalauswahl, Kanal);
    HaengeBereichAn(Speicherbereich::Kommunikationsdaten, schritte.size() - 1);
    HaengeBereichAn(Speicherbereich::GlobaleGeraetedaten, Transferschritt::Ohne, 0, true);
    HaengeWeitereAn();
    Schrittfolge folge(schritte, [this] { return anzeige.Abgebrochen(); });
    if (gewissheitVerlangt)
        folge.VerlangeGewissheit();
    if (!folge.Laufe())
        return false;
    anzeige.ZeigeFortschritt(AnzahlSchritte(), AnzahlSchritte());
    for (std::size_t i = folge.ErsterOffener(); i < parameterDerSchritte.size(); ++i)
        if (parameterDerSchritte[i].anzahl > 0)
            offene.push_back(parameterDerSchritte[i]);
    letzterAustausch = folge.LetzterAustausch();
    return true;
}

void Konfigurationstransfer::HaengeAn(const std::string& bereichstext, const std::string& registertext,
                                      int anzahl, const std::function<Boolean()>& tausche) {
    const auto zeige = [=, this, erledigt = AnzahlSchritte()](int versuch) {
        if (versuch == 1)
            anzeige.ZeigeFortschritt(erledigt, AnzahlSchritte());
        anzeige.ZeigeBereich(bereichstext);
        anzeige.ZeigeRegister(registertext, anzahl, versuch);
    };
    schritte.push_back({.zeige = zeige, .tausche = [=] { return tausche() != False; }, .uebernimm = [] {}});
    parameterDerSchritte.push_back({});
}

void Konfigurationstransfer::HaengeAuswahlAn(std::int16_t textId, std::int16_t auswahlregister, int nummer) {
    HaengeAn(LadeText(textId) + std::to_string(nummer), std::to_string(auswahlregister), 1, [=] {
        return modModbus::RTUModeH10SchreibenAnforderung(
            Geraeteadresse(Speicherbereich::GlobaleGeraetedaten, auswahlregister), 1, {nummer});
    });
}

void Konfigurationstransfer::HaengeBereichAn(Speicherbereich bereich, std::size_t auswahlschritt,
                                             std::int16_t optikteil, bool zuletzt) {
    const std::string text =
        LadeText(static_cast<std::int16_t>(ErsterBereichstext() + static_cast<int>(bereich)));
    for (const Parameter& einer : ParameterMit(bereich, auswahl)) {
        const Transferparameter parameter{bereich, einer.adresse, einer.beschreibung.Laenge, optikteil};
        if (!Betrifft(parameter) || KommtZuletzt(parameter) != zuletzt)
            continue;
        const auto werte = std::make_shared<Werte>(static_cast<std::size_t>(parameter.anzahl));
        HaengeAn(text, Registertext(bereich, parameter.adresse), parameter.anzahl,
                 [this, parameter, werte] { return Tausche(parameter, *werte); });
        schritte.back().uebernimm = [this, parameter, werte] { Uebernimm(parameter, *werte); };
        schritte.back().auswahl = auswahlschritt;
        parameterDerSchritte.back() = parameter;
    }
}

} // namespace varnoth
