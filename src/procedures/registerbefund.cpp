#include "registerbefund.h"

#include "klartext.h"
#include "registertext.h"
#include "texte.h"
#include "textmitwerten.h"
#include "vergleich.h"
#include "vergleichsworte.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextUnbekannt = 5103;
constexpr std::int16_t TextPruefsatz = 9766;
constexpr std::int16_t TextAenderungstitel = 9767;
constexpr std::int16_t TextAenderungen = 9768;
constexpr std::int16_t TextKeineAenderung = 9769;
constexpr std::int16_t TextStandUnbekannt = 9770;
constexpr std::int16_t TextTeilweiseUnbekannt = 9771;
constexpr std::int16_t TextAelter = 9772;
constexpr std::int16_t TextImGeraet = 9775;
constexpr std::int16_t TextNachher = 9776;
constexpr std::int16_t TextNichtGespeichert = 9781;
constexpr std::int16_t TextPrueftitel = 9782;
constexpr std::int16_t TextAbweichend = 9783;
constexpr std::int16_t TextNichtVergleichbar = 9784;
constexpr std::int16_t TextGeschriebenerWert = 9785;
constexpr std::int16_t TextGelesenerWert = 9786;
constexpr std::int16_t TextNichtVerglichen = 9787;
constexpr std::int16_t TextNochEinmal = 9788;
constexpr std::int16_t TextAbbruchtitel = 9789;
constexpr std::int16_t TextAbbruch = 9790;
constexpr std::int16_t TextZustand = 9791;
constexpr std::int16_t TextGeschrieben = 9792;
constexpr std::int16_t TextNichtGeschrieben = 9793;
constexpr std::int16_t TextUngewiss = 9794;
constexpr std::int16_t TextZurueckschreiben = 9795;
constexpr std::int16_t TextWert = 9800;
constexpr std::int16_t TextEineAenderung = 9892;
constexpr std::int16_t TextStandUnbekanntEine = 9893;
constexpr std::int16_t TextTeilweiseUnbekanntEine = 9894;
constexpr std::int16_t TextEineAbweichend = 9895;
constexpr std::int16_t TextEineNichtVergleichbar = 9896;
constexpr std::int16_t TextEinRegisterNichtVergleichbar = 9897;
constexpr std::int16_t TextPruefsatzEines = 9899;
constexpr std::int16_t TextNurGeschrieben = 9908;
constexpr std::int16_t TextNurGeschriebenEine = 9909;

/// A register keeps 16 bits, whatever an image holds.
std::string Worte(const Abbild& abbild, const Parameterstelle& stelle) {
    Werte werte = abbild.HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil);
    for (std::int32_t& wert : werte)
        wert &= 0xFFFF;
    return Klartext(stelle.bereich, stelle.adresse, werte,
                    LesartFuer(abbild, stelle.bereich, stelle.optikteil));
}

Geraetestand NichtsBekannt() {
    Geraetestand stand;
    stand.unbekannt = AlleStellen(IstLesbar);
    return stand;
}

Registerzeile Zeile(const Parameterstelle& stelle, std::string links, std::string rechts) {
    return {.stelle = stelle,
            .bereich = Gruppenname(stelle),
            .name = Parametername(stelle.bereich, stelle.adresse),
            .links = std::move(links),
            .rechts = std::move(rechts),
            .ort = Registertext(stelle.bereich, stelle.adresse)};
}

/// How many of the compared parameters the controller has confirmed, but not been asked for since.
int AnzahlUngepruefter(const Vergleichsergebnis& vergleich, const Geraetestand& stand) {
    return static_cast<int>(std::ranges::count_if(vergleich.zeilen, [&stand](const Vergleichszeile& zeile) {
        return stand.ungeprueft.contains(zeile.stelle);
    }));
}

std::string Aenderungstext(const Vergleichsergebnis& vergleich, const Geraetestand& stand,
                           const std::string& wann) {
    const int verschieden = vergleich.Anzahl(Vergleichsklasse::Verschieden);
    const int unbekannt = vergleich.Anzahl(Vergleichsklasse::NichtLesbar);
    std::string text = verschieden > 0 || unbekannt > 0
                           ? LadeAnzahltext(TextEineAenderung, TextAenderungen, verschieden, {wann})
                           : LadeTextMit(TextKeineAenderung, {wann});
    if (unbekannt > 0)
        text += "\n" + LadeAnzahltext(TextTeilweiseUnbekanntEine, TextTeilweiseUnbekannt, unbekannt);
    if (const int ungeprueft = AnzahlUngepruefter(vergleich, stand); ungeprueft > 0)
        text += "\n" + LadeAnzahltext(TextNurGeschriebenEine, TextNurGeschrieben, ungeprueft);
    if (!stand.ausDieserVerbindung)
        text += "\n" + LadeText(TextAelter);
    return text;
}

std::string NichtVerglichenes(const Parametermenge& stellen) {
    const int anzahl = AnzahlRegister(stellen);
    const auto eine = anzahl == 1 ? TextEinRegisterNichtVergleichbar : TextEineNichtVergleichbar;
    return LadeAnzahltext(eine, TextNichtVergleichbar, static_cast<int>(stellen.size()),
                          {std::to_string(anzahl)});
}

} // namespace

Registerbefund BefundVorDemSchreiben(const Schreibauftrag& auftrag, const std::optional<Geraetestand>& stand,
                                     const std::string& wann) {
    Registerbefund befund{.titel = LadeText(TextAenderungstitel),
                          .text = LadeAnzahltext(TextStandUnbekanntEine, TextStandUnbekannt,
                                                 static_cast<int>(auftrag.stellen.size())),
                          .links = LadeText(TextImGeraet),
                          .rechts = LadeText(TextNachher)};
    const Geraetestand bekannt = stand ? *stand : NichtsBekannt();
    const auto vergleich = Vergleiche(bekannt.abbild, auftrag.abbild, {.inA = bekannt.unbekannt},
                                      Vergleichsumfang::Geschriebenes);
    Vergleichsergebnis betroffen;
    for (const Vergleichszeile& zeile : vergleich.zeilen) {
        if (!auftrag.stellen.contains(zeile.stelle))
            continue;
        betroffen.Fuege(zeile);
        if (zeile.klasse != Vergleichsklasse::Gleich)
            befund.zeilen.push_back(Zeile(zeile.stelle,
                                          zeile.klasse == Vergleichsklasse::NichtLesbar
                                              ? LadeText(TextUnbekannt)
                                              : Worte(bekannt.abbild, zeile.stelle),
                                          Worte(auftrag.abbild, zeile.stelle)));
    }
    if (stand)
        befund.text = Aenderungstext(betroffen, *stand, wann);
    return befund;
}

std::string Pruefsatz(const Pruefergebnis& ergebnis) {
    const std::string gleiche = std::to_string(ergebnis.gleicheRegister);
    return ergebnis.alleRegister == 1
               ? LadeTextMit(TextPruefsatzEines, {"1", gleiche})
               : LadeTextMit(TextPruefsatz, {gleiche, std::to_string(ergebnis.alleRegister)});
}

Registerbefund BefundDerPruefung(const Schreibauftrag& auftrag, const Pruefergebnis& ergebnis,
                                 const Ruecklesung& ruecklesung) {
    Registerbefund befund{.titel = LadeText(TextPrueftitel),
                          .text = Pruefsatz(ergebnis),
                          .links = LadeText(TextGeschriebenerWert),
                          .rechts = LadeText(TextGelesenerWert),
                          .weiter = LadeText(TextNochEinmal)};
    if (!ergebnis.abweichend.empty())
        befund.text += "\n" + LadeAnzahltext(TextEineAbweichend, TextAbweichend,
                                             static_cast<int>(ergebnis.abweichend.size()));
    if (!ergebnis.nichtVerglichen.empty())
        befund.text += "\n" + NichtVerglichenes(ergebnis.nichtVerglichen);
    for (const Parameterstelle& stelle : auftrag.stellen) {
        if (ergebnis.abweichend.contains(stelle))
            befund.zeilen.push_back(
                Zeile(stelle, Worte(auftrag.abbild, stelle), Worte(ruecklesung.abbild, stelle)));
        if (ergebnis.nichtVerglichen.contains(stelle))
            befund.zeilen.push_back(
                Zeile(stelle, Worte(auftrag.abbild, stelle), LadeText(TextNichtVerglichen)));
    }
    return befund;
}

Registerbefund BefundDesAbbruchs(const Schreibauftrag& auftrag, const Schreibspur& spur,
                                 bool zurueckschreibbar) {
    const int geschrieben = AnzahlRegister(spur.geschrieben);
    const int ungewiss = AnzahlRegister(spur.ungewiss);
    const int alle = AnzahlRegister(auftrag.stellen);
    Registerbefund befund{.titel = LadeText(TextAbbruchtitel),
                          .text = LadeTextMit(TextAbbruch, {std::to_string(geschrieben), std::to_string(alle),
                                                            std::to_string(alle - geschrieben - ungewiss),
                                                            std::to_string(ungewiss)}),
                          .links = LadeText(TextZustand),
                          .rechts = LadeText(TextWert),
                          .weiter = zurueckschreibbar ? LadeText(TextZurueckschreiben) : std::string()};
    if (geschrieben == alle)
        befund.text = LadeText(TextNichtGespeichert);
    for (const Parameterstelle& stelle : auftrag.stellen) {
        std::int16_t zustand = TextNichtGeschrieben;
        if (spur.geschrieben.contains(stelle))
            zustand = TextGeschrieben;
        else if (spur.ungewiss.contains(stelle))
            zustand = TextUngewiss;
        befund.zeilen.push_back(Zeile(stelle, LadeText(zustand), Worte(auftrag.abbild, stelle)));
    }
    return befund;
}

} // namespace varnoth
