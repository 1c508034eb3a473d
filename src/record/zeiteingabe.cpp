#include "zeiteingabe.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <vector>

namespace varnoth {

namespace {

using namespace std::chrono;
using Ortszeitpunkt = local_time<Zeit>;

constexpr std::size_t MeisteStellen = 4;
constexpr std::size_t Nachkommastellen = 6;

std::string_view OhneBlanks(std::string_view text) {
    const auto anfang = text.find_first_not_of(" \t");
    return anfang == std::string_view::npos ? std::string_view()
                                            : text.substr(anfang, text.find_last_not_of(" \t") - anfang + 1);
}

bool SindZiffern(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char z) { return z >= '0' && z <= '9'; });
}

/// The numbers between the separators; nothing where something else stands.
std::vector<int> Zahlen(std::string_view text, char trenner) {
    std::vector<int> zahlen;
    for (;;) {
        const auto stueck = text.substr(0, text.find(trenner));
        if (!SindZiffern(stueck) || stueck.size() > MeisteStellen)
            return {};
        std::from_chars(stueck.data(), stueck.data() + stueck.size(), zahlen.emplace_back());
        if (stueck.size() == text.size())
            return zahlen;
        text.remove_prefix(stueck.size() + 1);
    }
}

std::optional<year_month_day> LiesTag(std::string_view text) {
    const bool mitPunkten = text.find('.') != std::string_view::npos;
    auto zahlen = Zahlen(text, mitPunkten ? '.' : '-');
    if (zahlen.size() != 3)
        return std::nullopt;
    if (mitPunkten)
        std::ranges::reverse(zahlen);
    const year_month_day tag{year{zahlen[0]}, month{static_cast<unsigned>(zahlen[1])},
                             day{static_cast<unsigned>(zahlen[2])}};
    return tag.ok() ? std::optional(tag) : std::nullopt;
}

/// What stands behind the seconds, as a time, and how exact it is.
std::optional<Zeiteingabe> LiesBruchteil(std::string_view stellen) {
    if (!SindZiffern(stellen) || stellen.size() > Nachkommastellen)
        return std::nullopt;
    Zeiteingabe teil{.tag = {}, .uhrzeit = {}, .genauigkeit = seconds(1)};
    for (const char ziffer : stellen) {
        teil.genauigkeit /= 10;
        teil.uhrzeit += (ziffer - '0') * teil.genauigkeit;
    }
    return teil;
}

std::optional<Zeiteingabe> LiesUhrzeit(std::string_view text) {
    const auto komma = text.find_first_of(",.");
    const auto zahlen = Zahlen(text.substr(0, komma), ':');
    const bool mitSekunden = zahlen.size() == 3;
    if (zahlen.size() != 2 && !mitSekunden)
        return std::nullopt;
    if (zahlen[0] > 23 || zahlen[1] > 59 || (mitSekunden && zahlen[2] > 59))
        return std::nullopt;
    Zeiteingabe eingabe{.tag = {},
                        .uhrzeit = hours(zahlen[0]) + minutes(zahlen[1]),
                        .genauigkeit = mitSekunden ? Zeit(seconds(1)) : Zeit(minutes(1))};
    if (mitSekunden)
        eingabe.uhrzeit += seconds(zahlen[2]);
    if (komma == std::string_view::npos)
        return eingabe;
    const auto bruchteil = LiesBruchteil(text.substr(komma + 1));
    if (!mitSekunden || !bruchteil)
        return std::nullopt;
    eingabe.uhrzeit += bruchteil->uhrzeit;
    eingabe.genauigkeit = bruchteil->genauigkeit;
    return eingabe;
}

} // namespace

std::optional<Zeiteingabe> LiesZeiteingabe(std::string_view text) {
    text = OhneBlanks(text);
    const auto luecke = text.find_last_of(" \t");
    auto eingabe = LiesUhrzeit(luecke == std::string_view::npos ? text : text.substr(luecke + 1));
    if (!eingabe || luecke == std::string_view::npos)
        return eingabe;
    eingabe->tag = LiesTag(OhneBlanks(text.substr(0, luecke)));
    return eingabe->tag ? eingabe : std::nullopt;
}

std::optional<Zeit> GemeinteLaufzeit(const Zeiteingabe& eingabe, const Messangaben& angaben,
                                     const Zeitspanne& spanne, Zeit hier) {
    const Ortszeitpunkt beginn(floor<Zeit>(angaben.beginn.time_since_epoch()) + minutes(angaben.zoneMinuten));
    const auto am = [&](local_days tag) -> std::optional<Zeit> {
        const Zeit laufzeit = Ortszeitpunkt(tag) + eingabe.uhrzeit - beginn;
        if (laufzeit + eingabe.genauigkeit <= spanne.von || laufzeit > spanne.bis)
            return std::nullopt;
        return std::max(laufzeit, spanne.von);
    };
    if (eingabe.tag)
        return am(local_days(*eingabe.tag));
    if (const auto heute = am(floor<days>(beginn + hier)))
        return heute;
    for (auto tag = floor<days>(beginn + spanne.von); tag <= beginn + spanne.bis; tag += days(1))
        if (const auto laufzeit = am(tag))
            return laufzeit;
    return std::nullopt;
}

} // namespace varnoth
