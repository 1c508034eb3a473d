#include "aehnliche.h"

#include "texte.h"
#include "wortlaut.h"
#include "zeichenwandel.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextOder = 8601;

constexpr std::size_t Hoechstens = 3;

/// How many letters must be put in, left out or changed to make one word of the other.
std::size_t Abstand(std::string_view eines, std::string_view anderes) {
    std::vector<std::size_t> reihe(anderes.size() + 1);
    std::iota(reihe.begin(), reihe.end(), std::size_t{0});
    for (std::size_t i = 0; i < eines.size(); ++i) {
        std::size_t schraeg = std::exchange(reihe[0], i + 1);
        for (std::size_t j = 0; j < anderes.size(); ++j) {
            const std::size_t ersetzt = schraeg + (eines[i] == anderes[j] ? 0 : 1);
            schraeg = reihe[j + 1];
            reihe[j + 1] = std::min({ersetzt, schraeg + 1, reihe[j] + 1});
        }
    }
    return reihe.back();
}

/// How far a name is from what was typed: a part of it is as near as can be.
std::size_t Ferne(const std::string& getippt, const std::string& name) {
    return getippt.size() > 1 && name.find(getippt) != std::string::npos ? 1 : Abstand(getippt, name);
}

} // namespace

std::string Namenskern(std::string_view name) {
    std::string kern;
    for (const char zeichen : FuerVorrat(name, Zeichenvorrat::Ascii))
        if (std::isspace(static_cast<unsigned char>(zeichen)) == 0)
            kern += static_cast<char>(std::tolower(static_cast<unsigned char>(zeichen)));
    return kern;
}

std::vector<std::string> Aehnliche(std::string_view wort, const std::vector<std::string>& namen) {
    return Aehnliche(wort, namen, namen);
}

std::vector<std::string> Aehnliche(std::string_view wort, const std::vector<std::string>& namen,
                                   const std::vector<std::string>& angebote) {
    const std::string getippt = Namenskern(wort);
    const std::size_t weitestens = std::max<std::size_t>(2, getippt.size() / 3);
    std::vector<std::pair<std::size_t, std::string>> nahe;
    for (std::size_t i = 0; i < namen.size(); ++i)
        if (const std::size_t ferne = Ferne(getippt, Namenskern(namen[i])); ferne <= weitestens)
            nahe.emplace_back(ferne, angebote[i]);
    std::ranges::stable_sort(nahe, {}, &std::pair<std::size_t, std::string>::first);
    std::vector<std::string> beste;
    for (const auto& [ferne, name] : nahe)
        if (beste.size() < Hoechstens && std::ranges::find(beste, name) == beste.end())
            beste.push_back(name);
    return beste;
}

std::string Aufzaehlung(const std::vector<std::string>& namen) {
    std::string text;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (i > 0)
            text += i + 1 < namen.size() ? ", " : " " + LadeText(TextOder) + " ";
        text += "\"" + namen[i] + "\"";
    }
    return text;
}

} // namespace varnoth::ctl
