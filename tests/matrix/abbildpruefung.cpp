#include "abbildpruefung.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "registerbeschreibung.h"
#include "simulatorprozess.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varnoth::pruefung {

namespace {

/// How the controller's channel calls a range.
const char* Bereichsname(Speicherbereich bereich) {
    static constexpr std::array namen{"global ", "specific ", "communication "};
    return namen.at(static_cast<std::size_t>(bereich));
}

std::vector<std::int32_t> GanzesAbbild() {
    std::vector<std::int32_t> alles;
    for (const Speicherbereich bereich : AlleSpeicherbereiche) {
        const auto werte = modDaten::Bereich(bereich);
        alles.insert(alles.end(), werte.begin(), werte.end());
    }
    return alles;
}

bool IstStrahlregister(Speicherbereich bereich, int adresse) {
    return bereich == Speicherbereich::SpezifischeGeraetedaten && adresse >= spezifisch::Strahlzustaende &&
           adresse < spezifisch::Strahlzustaende + MaxStrahlregister;
}

/// The registers in the order of GanzesAbbild.
struct Ort {
    Speicherbereich bereich;
    int adresse;
    int teil;
};

std::vector<Ort> AlleOrte() {
    std::vector<Ort> orte;
    for (const Speicherbereich bereich : AlleSpeicherbereiche)
        for (int adresse = 0; adresse < AnzahlAdressen(bereich); ++adresse)
            for (int teil = 0; teil < Exemplare(bereich); ++teil)
                orte.push_back({bereich, adresse, teil});
    return orte;
}

/// A register as the controller's channel names it.
std::string Name(std::size_t stelle) {
    static const auto orte = AlleOrte();
    const auto& [bereich, adresse, teil] = orte.at(stelle);
    const std::string optikteil = Exemplare(bereich) > 1 ? std::to_string(teil) + ' ' : "";
    return Bereichsname(bereich) + optikteil + std::to_string(adresse);
}

/// Whether the program ever reads the register.
bool WirdGelesen(const Ort& ort) {
    if (IstStrahlregister(ort.bereich, ort.adresse))
        return true;
    for (int anfang = 0; anfang <= ort.adresse; ++anfang)
        if (anfang + Beschreibung(ort.bereich, static_cast<std::int16_t>(anfang)).Laenge > ort.adresse)
            return true;
    return false;
}

bool IstLebend(const Ort& ort) {
    return ort.bereich == Speicherbereich::SpezifischeGeraetedaten &&
           (ort.adresse == spezifisch::Optikteilstatus || ort.adresse >= spezifisch::Messwerte);
}

} // namespace

Abbildpruefung::Abbildpruefung(Simulatorprozess& simulator, Umfang umfang)
    : geraet(simulator), erlaubt(GanzesAbbild().size(), {0}) {
    const auto orte = AlleOrte();
    for (std::size_t i = 0; i < orte.size(); ++i) {
        if (WirdGelesen(orte[i]))
            gefragte.push_back(i);
        if (umfang == Umfang::Alles || IstLebend(orte[i]))
            bewachte.push_back(i);
    }
}

void Abbildpruefung::Erlaube() {
    const auto abbild = GanzesAbbild();
    for (std::size_t i = 0; i < abbild.size(); ++i)
        erlaubt[i].push_back(abbild[i]);
    for (const std::size_t i : gefragte)
        erlaubt[i].push_back(geraet.Register(Name(i)));
}

/// A value that is new may have changed in the controller meanwhile: then it holds it still.
bool Abbildpruefung::IstGesendet(std::size_t stelle, std::int32_t wert) {
    if (std::ranges::find(erlaubt[stelle], wert) != erlaubt[stelle].end())
        return true;
    if (geraet.Register(Name(stelle)) != wert)
        return false;
    erlaubt[stelle].push_back(wert);
    return true;
}

std::string Abbildpruefung::Verstoss() {
    auto abbild = GanzesAbbild();
    if (abbild == zuletztGut)
        return {};
    for (const std::size_t i : bewachte)
        if (!IstGesendet(i, abbild[i]))
            return "image: " + Name(i) + " holds " + std::to_string(abbild[i]);
    zuletztGut = std::move(abbild);
    return {};
}

std::string Abbildpruefung::Abweichung() const {
    const auto abbild = GanzesAbbild();
    for (const std::size_t i : gefragte)
        if (const int richtig = geraet.Register(Name(i)); abbild[i] != richtig)
            return "image: " + Name(i) + " is " + std::to_string(abbild[i]) + ", in the controller " +
                   std::to_string(richtig);
    return {};
}

} // namespace varnoth::pruefung
