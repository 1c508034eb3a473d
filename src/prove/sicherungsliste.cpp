#include "sicherungsliste.h"

#include "texte.h"
#include "textmitwerten.h"
#include "vergleich.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextUnbekannt = 5103;
constexpr std::int16_t TextVorDemSchreiben = 9809;
constexpr std::int16_t TextVorDemVerbinden = 9810;
constexpr std::int16_t TextVorNeuer = 9811;
constexpr std::int16_t TextVorDemOeffnen = 9812;
constexpr std::int16_t TextGeraet = 9813;
constexpr std::int16_t TextOhneNummer = 9814;
constexpr std::int16_t TextUnterschiede = 9815;
constexpr std::int16_t TextKeineSicherung = 9823;
constexpr std::int16_t TextEineSicherung = 9891;
constexpr std::int16_t TextSicherungen = 9824;
constexpr std::int16_t TextGleich = 9816;
constexpr std::int16_t TextNichtLesbar = 9817;
constexpr std::int16_t TextEinUnterschied = 9890;

} // namespace

std::vector<Geraetesicherungen> NachGeraet(const std::vector<Sicherung>& alle) {
    std::vector<Geraetesicherungen> gruppen;
    for (const Sicherung& sicherung : alle) {
        const std::string& nummer = sicherung.angaben.seriennummer;
        auto gruppe = std::ranges::find(gruppen, nummer, &Geraetesicherungen::seriennummer);
        if (gruppe == gruppen.end())
            gruppe = gruppen.insert(gruppen.end(), {nummer, {}});
        gruppe->sicherungen.push_back(sicherung);
    }
    return gruppen;
}

std::string Gruppenname(const std::string& seriennummer) {
    return seriennummer.empty() ? LadeText(TextOhneNummer) : LadeTextMit(TextGeraet, {seriennummer});
}

std::string Anlasstext(const std::optional<Sicherungsanlass>& anlass) {
    if (!anlass)
        return LadeText(TextUnbekannt);
    switch (*anlass) {
    case Sicherungsanlass::VorDemSchreiben:
        return LadeText(TextVorDemSchreiben);
    case Sicherungsanlass::VorDemVerbinden:
        return LadeText(TextVorDemVerbinden);
    case Sicherungsanlass::VorNeuer:
        return LadeText(TextVorNeuer);
    case Sicherungsanlass::VorDemOeffnen:
        return LadeText(TextVorDemOeffnen);
    }
    return {};
}

std::string Unterschiedstext(const std::optional<Abbild>& sicherung, const Abbild& jetzt) {
    if (!sicherung)
        return LadeText(TextNichtLesbar);
    const int anzahl = Vergleiche(*sicherung, jetzt).Unterschiede();
    return anzahl == 0 ? LadeText(TextGleich) : LadeAnzahltext(TextEinUnterschied, TextUnterschiede, anzahl);
}

std::string Sicherungszahl(std::size_t anzahl) {
    return anzahl == 0 ? LadeText(TextKeineSicherung)
                       : LadeAnzahltext(TextEineSicherung, TextSicherungen, static_cast<int>(anzahl));
}

} // namespace varnoth
