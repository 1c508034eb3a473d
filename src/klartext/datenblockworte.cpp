#include "datenblockworte.h"

#include "datenblock.h"
#include "rohwert.h"
#include "wortlaut.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextKeine = 9307;
constexpr std::int32_t GroessterEintrag = 0xFFFF;

std::string EintragAlsWorte(std::int16_t eintrag, const Lesart& lesart) {
    const auto wahl = WahlAus(eintrag);
    const bool hatWorte = wahl && Eintragswort(*wahl) == eintrag;
    return hatWorte ? Eintragstext(eintrag, lesart.sprache) : Rohtext(static_cast<std::uint16_t>(eintrag));
}

/// Every entry word that a person can choose, sensible or not.
std::vector<std::int16_t> AlleEintragsworte() {
    std::vector<std::int16_t> worte;
    for (int quelle = 0; quelle < AnzahlQuellen; ++quelle)
        for (int art = 0; art < AnzahlWertarten; ++art)
            for (int wert = 0; wert < AnzahlSendewerte; ++wert)
                if (const std::int16_t wort =
                        Eintragswort({static_cast<Quelle>(quelle), static_cast<Wertart>(art),
                                      static_cast<Sendewert>(wert)}))
                    worte.push_back(wort);
    return worte;
}

std::optional<std::int16_t> EintragAus(std::string_view worte, const Lesart& lesart) {
    const std::string kern = Wortkern(worte);
    for (const std::int16_t wort : AlleEintragsworte())
        if (Wortkern(Eintragstext(wort, lesart.sprache)) == kern)
            return wort;
    const auto roh = RohwertAus(worte);
    if (!roh || *roh < 1 || *roh > GroessterEintrag)
        return std::nullopt;
    return static_cast<std::int16_t>(*roh);
}

} // namespace

std::string DatenblockAlsWorte(const Werte& datenblock, const Lesart& lesart) {
    const Eintragsliste liste = ListeAus(datenblock);
    std::string worte;
    for (int i = 0; i < AnzahlEintraege(liste); ++i)
        worte += (i == 0 ? "" : ", ") + EintragAlsWorte(liste.at(static_cast<std::size_t>(i)), lesart);
    return worte.empty() ? LadeText(TextKeine, lesart.sprache) : worte;
}

std::optional<Werte> DatenblockAusWorten(std::string_view worte, const Lesart& lesart) {
    Eintragsliste liste{};
    if (Wortkern(worte) == Wortkern(LadeText(TextKeine, lesart.sprache)))
        return DatenblockAus(liste);
    const auto teile = Zerlege(worte, ',');
    if (teile.size() > liste.size())
        return std::nullopt;
    for (std::size_t i = 0; i < teile.size(); ++i) {
        const auto eintrag = EintragAus(teile[i], lesart);
        if (!eintrag)
            return std::nullopt;
        liste.at(i) = *eintrag;
    }
    return DatenblockAus(liste);
}

} // namespace varnoth
