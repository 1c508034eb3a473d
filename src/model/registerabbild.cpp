#include "registerabbild.h"

#include "registeradressen.h"
#include "startzustand.h"

#include <algorithm>
#include <array>

namespace varnoth::modDaten {

namespace {

struct Modul {
    Abbild abbild;
    /// The next address that the iterators of a range examine.
    std::array<std::int16_t, std::size(AlleSpeicherbereiche)> zeiger{};
    std::string konfigurationsdateiname;
    Boolean konfigurationGeaendert = False;
};

Modul dasModul;
const Startwert startwert(dasModul);

std::int16_t& Zeiger(Speicherbereich bereich) {
    return dasModul.zeiger[static_cast<std::size_t>(bereich)];
}

Boolean Ueberlasse(const Werte& geholte, Werte& werte) {
    if (geholte.empty())
        return False;
    werte.resize(std::max(werte.size(), geholte.size()));
    std::ranges::copy(geholte, werte.begin());
    return True;
}

bool IstLaenge(Speicherbereich bereich, std::int16_t adresse, std::int16_t anzahl) {
    return Beschreibung(bereich, adresse).Laenge == anzahl;
}

Boolean Hole(Speicherbereich bereich, std::int16_t adresse, std::int16_t anzahl, int optikteil,
             Werte& werte) {
    if (!IstLaenge(bereich, adresse, anzahl))
        return False;
    return Ueberlasse(HoleParameter(bereich, adresse, optikteil), werte);
}

Boolean Setze(Speicherbereich bereich, std::int16_t adresse, std::int16_t anzahl, int optikteil,
              const Werte& werte) {
    return AlsBoolean(IstLaenge(bereich, adresse, anzahl) &&
                      SetzeParameter(bereich, adresse, werte, optikteil));
}

/// A configuration in which something was stored is a changed one.
bool Gespeichert(bool gelungen) {
    if (gelungen)
        SetzeGeaendert();
    return gelungen;
}

/// Moves the cursor past the next parameter that qualifies, or to the end of the range.
template<class Bedingung>
Boolean NaechsterEintrag(Speicherbereich bereich, Bedingung qualifiziert, std::int16_t& adresse,
                         std::int16_t& anzahl) {
    std::int16_t& zeiger = Zeiger(bereich);
    for (const Parameter& parameter : ParameterMit(bereich, qualifiziert)) {
        if (parameter.adresse < zeiger)
            continue;
        adresse = parameter.adresse;
        anzahl = parameter.beschreibung.Laenge;
        zeiger = static_cast<std::int16_t>(adresse + 1);
        return True;
    }
    zeiger = AnzahlAdressen(bereich);
    return False;
}

} // namespace

void InitRegisterbeschreibung() {
    dasModul.konfigurationsdateiname.clear();
    dasModul.konfigurationGeaendert = False;
}

const Abbild& DasAbbild() {
    return dasModul.abbild;
}

void ErsetzeAbbild(const Abbild& neues) {
    dasModul.abbild = neues;
}

std::span<const std::int32_t> Bereich(Speicherbereich bereich) {
    return DasAbbild().Bereich(bereich);
}

Boolean ErsetzeBereich(Speicherbereich bereich, std::span<const std::int32_t> werte) {
    const auto ziel = dasModul.abbild.Bereich(bereich);
    if (werte.size() != ziel.size())
        return False;
    std::ranges::copy(werte, ziel.begin());
    return True;
}

void LeereAbbild() {
    dasModul.abbild = {};
}

Werte HoleParameter(Speicherbereich bereich, std::int16_t adresse, int optikteil) {
    return dasModul.abbild.HoleParameter(bereich, adresse, optikteil);
}

bool SetzeParameter(Speicherbereich bereich, std::int16_t adresse, const Werte& werte, int optikteil) {
    return Gespeichert(dasModul.abbild.SetzeParameter(bereich, adresse, werte, optikteil));
}

std::int32_t HoleRegister(Speicherbereich bereich, std::int16_t adresse, int optikteil) {
    return dasModul.abbild.HoleRegister(bereich, adresse, optikteil);
}

bool SetzeRegister(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert, int optikteil) {
    return Gespeichert(dasModul.abbild.SetzeRegister(bereich, adresse, wert, optikteil));
}

Boolean HoleGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte) {
    return Hole(Global, adresse, anzahl, 0, werte);
}

Boolean SetzeGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte) {
    return Setze(Global, adresse, anzahl, 0, werte);
}

Boolean HoleSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil,
                             Werte& werte) {
    return Hole(Spezifisch, adresse, anzahl, optikteil, werte);
}

Boolean SetzeSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil,
                              const Werte& werte) {
    return Setze(Spezifisch, adresse, anzahl, optikteil, werte);
}

Boolean HoleKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte) {
    return Hole(Kommunikation, adresse, anzahl, 0, werte);
}

Boolean SetzeKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte) {
    return Setze(Kommunikation, adresse, anzahl, 0, werte);
}

Boolean HoleStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, Werte& werte) {
    return Ueberlasse(dasModul.abbild.HoleStrahlzustaende(anzahl, optikteil), werte);
}

Boolean SetzeStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, const Werte& werte) {
    return AlsBoolean(dasModul.abbild.SetzeStrahlzustaende(anzahl, optikteil, werte));
}

std::int32_t Strahlenzahl(int optikteil) {
    return HoleRegister(Spezifisch, spezifisch::Strahlenzahl, optikteil);
}

Boolean ErsterLesbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    Zeiger(bereich) = 0;
    return NaechsterLesbarerEintrag(bereich, adresse, anzahl);
}

Boolean NaechsterLesbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    return NaechsterEintrag(bereich, IstLesbar, adresse, anzahl);
}

Boolean ErsterSchreibbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    Zeiger(bereich) = 0;
    return NaechsterSchreibbarerEintrag(bereich, adresse, anzahl);
}

Boolean NaechsterSchreibbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    return NaechsterEintrag(bereich, IstSchreibbar, adresse, anzahl);
}

void SetzeGeaendert() {
    dasModul.konfigurationGeaendert = True;
}

void LoescheGeaendert() {
    dasModul.konfigurationGeaendert = False;
}

Boolean IstGeaendert() {
    return dasModul.konfigurationGeaendert;
}

void SetDateiname(const std::string& name) {
    dasModul.konfigurationsdateiname = name;
}

std::string GetDateiname() {
    return dasModul.konfigurationsdateiname;
}

} // namespace varnoth::modDaten
