#include "strahlabschnitt.h"

#include "textmitwerten.h"
#include "zeitworte.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextZeitraum = 6461, TextUebrige = 6463;

bool IstZuBerichten(const Strahlwerte& werte, std::span<const Strahlverdacht> verdaechte, int strahl) {
    return werte.unterbrochen > Zeit{} || VerdachtVon(verdaechte, strahl) != nullptr;
}

} // namespace

Strahlbericht Berichtsabschnitt(std::span<const Strahlwerte> strahlen,
                                std::span<const Strahlverdacht> verdaechte, const Strahlbezug& bezug) {
    Strahlbericht bericht;
    bericht.zeitraum = LadeTextMit(
        TextZeitraum, {std::to_string(bezug.teil + 1), Zeitworte(bezug.angaben, bezug.zeitraum.von),
                       Zeitworte(bezug.angaben, bezug.zeitraum.bis), Dauerworte(bezug.gemessen)});
    for (const Strahlverdacht& verdacht : verdaechte)
        bericht.verdacht.push_back(Verdachtsfrage(verdacht) + " " + Verdachtsgrund(verdacht));
    for (int spalte = 0; spalte < AnzahlStrahlspalten; ++spalte)
        bericht.titel.push_back(Spaltentitel(static_cast<Strahlspaltenart>(spalte)));
    for (std::size_t i = 0; i < strahlen.size(); ++i) {
        const int strahl = static_cast<int>(i);
        if (!IstZuBerichten(strahlen[i], verdaechte, strahl))
            continue;
        auto& zeile = bericht.zeilen.emplace_back();
        for (int spalte = 0; spalte < AnzahlStrahlspalten; ++spalte)
            zeile.push_back(Spaltenworte(static_cast<Strahlspaltenart>(spalte), strahlen[i], strahl,
                                         bezug.abstandMm, bezug.angaben, verdaechte));
    }
    bericht.anmerkung = LadeTextMit(TextUebrige, {std::to_string(strahlen.size() - bericht.zeilen.size()),
                                                  std::to_string(strahlen.size())});
    return bericht;
}

} // namespace varnoth
