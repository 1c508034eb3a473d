#include "texte.h"

#include "startzustand.h"
#include "texte_daten.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <string_view>
#include <utility>
#include <vector>

namespace varnoth {

namespace {

struct Tabelle {
    std::vector<std::int16_t> ids;
    std::vector<std::string> texte;
};

/// The part of the line up to the next tab; the line keeps what follows it.
std::string_view NaechstesFeld(std::string_view& zeile) {
    const auto ende = std::min(zeile.find('\t'), zeile.size());
    const auto feld = zeile.substr(0, ende);
    zeile.remove_prefix(std::min(ende + 1, zeile.size()));
    return feld;
}

std::string MitZeilenumbruechen(std::string_view feld) {
    std::string text;
    while (!feld.empty()) {
        const auto ende = std::min(feld.find("\\n"), feld.size());
        text += feld.substr(0, ende);
        if (ende < feld.size())
            text += '\n';
        feld.remove_prefix(std::min(ende + 2, feld.size()));
    }
    return text;
}

struct Eintrag {
    std::int16_t id;
    std::string text;
};

void LiesZeile(std::string_view zeile, std::vector<Eintrag>& eintraege) {
    if (zeile.empty() || zeile.front() == '#')
        return;
    std::int16_t id = 0;
    const auto ziffern = NaechstesFeld(zeile);
    std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), id);
    eintraege.push_back({id, MitZeilenumbruechen(NaechstesFeld(zeile))});
    eintraege.push_back(
        {static_cast<std::int16_t>(id + Englisch), MitZeilenumbruechen(NaechstesFeld(zeile))});
}

Tabelle LiesTabelle(std::string_view datei) {
    std::vector<Eintrag> eintraege;
    while (!datei.empty()) {
        const auto ende = std::min(datei.find('\n'), datei.size());
        LiesZeile(datei.substr(0, ende), eintraege);
        datei.remove_prefix(std::min(ende + 1, datei.size()));
    }
    std::ranges::stable_sort(eintraege, {}, &Eintrag::id);
    Tabelle tabelle;
    for (auto& eintrag : eintraege) {
        tabelle.ids.push_back(eintrag.id);
        tabelle.texte.push_back(std::move(eintrag.text));
    }
    return tabelle;
}

const Tabelle& DieTabelle() {
    static const Tabelle tabelle = LiesTabelle(TexteDatei());
    return tabelle;
}

std::int16_t sprachoffset = Deutsch;
static_assert(Deutsch == std::int16_t{});
const Startwert startwert(sprachoffset);

} // namespace

std::int16_t GetSprachoffset() {
    return std::atomic_ref(sprachoffset).load();
}

void SetzeSprachoffset(std::int16_t offset) {
    std::atomic_ref(sprachoffset).store(offset);
}

const std::string& LadeText(std::int16_t id) {
    return LadeText(id, GetSprachoffset());
}

const std::string& LadeText(std::int16_t id, std::int16_t sprache) {
    static const std::string unbekannt;
    const auto& [ids, texte] = DieTabelle();
    const int gesucht = id + sprache;
    const auto stelle =
        std::ranges::lower_bound(ids, gesucht, {}, [](std::int16_t eine) { return int{eine}; });
    if (stelle == ids.end() || *stelle != gesucht)
        return unbekannt;
    return texte[static_cast<std::size_t>(stelle - ids.begin())];
}

std::span<const std::int16_t> AlleTextIds() {
    return DieTabelle().ids;
}

} // namespace varnoth
