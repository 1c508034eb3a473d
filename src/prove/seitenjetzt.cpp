#include "seitenjetzt.h"

#include "kalenderzeit.h"
#include "registerabbild.h"
#include "texte.h"
#include "textmitwerten.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextStand = 9576;
constexpr std::int16_t TextOhneNummer = 9577;
constexpr std::int16_t TextAelter = 9578;
constexpr std::int16_t TextUngespeichert = 9579;
constexpr std::int16_t TextSeitherGeschrieben = 9898;
constexpr std::int16_t TextNurGeschrieben = 9907;

Vergleichsseite InBearbeitung() {
    std::string einzelheit = modDaten::GetDateiname();
    if (modDaten::IstGeaendert() != False)
        einzelheit += (einzelheit.empty() ? "" : ", ") + LadeText(TextUngespeichert);
    return {Vergleichsquelle::InBearbeitung, einzelheit, modDaten::DasAbbild(), {}};
}

Vergleichsseite ZuletztGelesen() {
    const auto stand = modGeraetestand::HoleGeraetestand();
    if (!stand)
        return {Vergleichsquelle::ZuletztGelesen, {}, {}, AlleStellen(IstLesbar)};
    return {Vergleichsquelle::ZuletztGelesen, Standzeile(*stand), stand->abbild, stand->unbekannt};
}

} // namespace

std::string Standzeile(const Geraetestand& stand) {
    std::string zeile = Lesezeile(stand.gelesen.value_or(stand.zeit), stand.seriennummer);
    if (!stand.ungeprueft.empty())
        zeile += ", " + LadeText(stand.gelesen ? TextSeitherGeschrieben : TextNurGeschrieben);
    if (!stand.ausDieserVerbindung)
        zeile += ", " + LadeText(TextAelter);
    return zeile;
}

bool IstBekannt(Vergleichsquelle quelle) {
    if (quelle == Vergleichsquelle::ZuletztGelesen)
        return modGeraetestand::HoleGeraetestand().has_value();
    return !FragtNach(quelle);
}

Vergleichsseite SeiteJetzt(Vergleichsquelle quelle) {
    if (quelle == Vergleichsquelle::InBearbeitung)
        return InBearbeitung();
    if (quelle == Vergleichsquelle::ZuletztGelesen)
        return ZuletztGelesen();
    return {quelle, {}, {}, {}};
}

std::string Zeitpunkt(std::chrono::system_clock::time_point zeit) {
    return InForm("%Y-%m-%d %H:%M:%S", Ortszeit(zeit));
}

std::string Lesezeile(std::chrono::system_clock::time_point zeit, const std::string& seriennummer) {
    if (seriennummer.empty())
        return LadeTextMit(TextOhneNummer, {Zeitpunkt(zeit)});
    return LadeTextMit(TextStand, {Zeitpunkt(zeit), seriennummer});
}

} // namespace varnoth
