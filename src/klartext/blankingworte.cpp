#include "blankingworte.h"

#include "blankingmuster.h"
#include "wortlaut.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextKeine = 9307;
constexpr char Strichzeichen = '-';

struct Strahlbereich {
    int erster;
    int letzter;
};

std::string Bereichstext(Strahlbereich strahlen) {
    std::string text = std::to_string(strahlen.erster);
    return strahlen.erster == strahlen.letzter ? text : text + "-" + std::to_string(strahlen.letzter);
}

std::optional<Strahlbereich> BereichAus(std::string_view text) {
    const auto enden = Zerlege(text, Strichzeichen);
    const auto erster = ZahlAus(enden.front(), MaxStrahlen);
    const auto letzter = ZahlAus(enden.back(), MaxStrahlen);
    if (enden.size() > 2 || !erster || !letzter || *erster < 1 || *letzter < *erster)
        return std::nullopt;
    return Strahlbereich{*erster, *letzter};
}

} // namespace

std::string BlankingAlsWorte(const Werte& muster, const Lesart& lesart) {
    const Geblankte geblankte = GeblankteAusMuster(muster, MaxStrahlen);
    std::string worte;
    for (auto anfang = std::ranges::find(geblankte, true); anfang != geblankte.end();) {
        const auto ende = std::find(anfang, geblankte.end(), false);
        const auto nummer = [&](auto stelle) { return static_cast<int>(stelle - geblankte.begin()); };
        worte += (worte.empty() ? "" : ", ") + Bereichstext({nummer(anfang) + 1, nummer(ende)});
        anfang = std::find(ende, geblankte.end(), true);
    }
    return worte.empty() ? LadeText(TextKeine, lesart.sprache) : worte;
}

std::optional<Werte> BlankingAusWorten(std::string_view worte, const Lesart& lesart) {
    Geblankte geblankte(MaxStrahlen);
    if (Wortkern(worte) == Wortkern(LadeText(TextKeine, lesart.sprache)))
        return MusterAus(geblankte);
    for (const std::string_view teil : Zerlege(worte, ',')) {
        const auto strahlen = BereichAus(teil);
        if (!strahlen)
            return std::nullopt;
        std::fill(geblankte.begin() + strahlen->erster - 1, geblankte.begin() + strahlen->letzter, true);
    }
    return MusterAus(geblankte);
}

} // namespace varnoth
