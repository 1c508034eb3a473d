#include "porteinstellungen.h"

#include <array>
#include <cctype>
#include <charconv>
#include <utility>

namespace varnoth {

namespace {

constexpr int HoechsteBaudrate = 4'000'000;

constexpr std::pair<char, Paritaet> Paritaeten[] = {
    {'n', Paritaet::Keine}, {'e', Paritaet::Gerade}, {'o', Paritaet::Ungerade},
    {'m', Paritaet::Eins},  {'s', Paritaet::Null},
};

constexpr std::pair<std::string_view, Stoppbits> StoppbitAngaben[] = {
    {"1", Stoppbits::Eins},
    {"1.5", Stoppbits::Eineinhalb},
    {"2", Stoppbits::Zwei},
};

std::string_view OhneBlanks(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos)
        return {};
    return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

/// The four parts between the commas; nothing when there are more or fewer.
std::optional<std::array<std::string_view, 4>> Zerlege(std::string_view text) {
    std::array<std::string_view, 4> teile;
    for (std::size_t i = 0; i < teile.size(); ++i) {
        const auto komma = text.find(',');
        const bool letzter = i + 1 == teile.size();
        if (letzter != (komma == std::string_view::npos))
            return std::nullopt;
        teile[i] = OhneBlanks(text.substr(0, komma));
        text.remove_prefix(letzter ? text.size() : komma + 1);
    }
    return teile;
}

std::optional<int> LiesGanzeZahl(std::string_view text, int kleinste, int groesste) {
    int zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (fehler != std::errc{} || ende != text.data() + text.size() || zahl < kleinste || zahl > groesste)
        return std::nullopt;
    return zahl;
}

std::optional<Paritaet> LiesParitaet(std::string_view text) {
    if (text.size() != 1)
        return std::nullopt;
    const auto klein = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    for (const auto& [buchstabe, paritaet] : Paritaeten)
        if (buchstabe == klein)
            return paritaet;
    return std::nullopt;
}

std::optional<Stoppbits> LiesStoppbits(std::string_view text) {
    for (const auto& [angabe, stoppbits] : StoppbitAngaben)
        if (angabe == text)
            return stoppbits;
    return std::nullopt;
}

} // namespace

std::optional<Porteinstellungen> LiesPorteinstellungen(std::string_view text) {
    const auto teile = Zerlege(text);
    if (!teile)
        return std::nullopt;
    const auto baud = LiesGanzeZahl((*teile)[0], 1, HoechsteBaudrate);
    const auto paritaet = LiesParitaet((*teile)[1]);
    const auto datenbits = LiesGanzeZahl((*teile)[2], 5, 8);
    const auto stoppbits = LiesStoppbits((*teile)[3]);
    if (!baud || !paritaet || !datenbits || !stoppbits)
        return std::nullopt;
    return Porteinstellungen{*baud, *paritaet, *datenbits, *stoppbits};
}

double Bitzeiten(const Porteinstellungen& einstellungen) {
    constexpr double startbit = 1;
    const double paritaetsbit = einstellungen.paritaet == Paritaet::Keine ? 0 : 1;
    const double stoppbits = einstellungen.stoppbits == Stoppbits::Eins   ? 1
                             : einstellungen.stoppbits == Stoppbits::Zwei ? 2
                                                                          : 1.5;
    return startbit + einstellungen.datenbits + paritaetsbit + stoppbits;
}

double Zeichendauer(const Porteinstellungen& einstellungen) {
    constexpr double MikrosekundenJeSekunde = 1e6;
    return MikrosekundenJeSekunde * Bitzeiten(einstellungen) / einstellungen.baud;
}

} // namespace varnoth
