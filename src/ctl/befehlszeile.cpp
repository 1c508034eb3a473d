#include "befehlszeile.h"

#include "aehnliche.h"
#include "texte.h"
#include "textmitwerten.h"
#include "zeichenwandel.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextKeinBefehl = 8590;
constexpr std::int16_t TextUnbekannterBefehl = 8591;
constexpr std::int16_t TextUnbekannteOption = 8592;
constexpr std::int16_t TextFremdeOption = 8593;
constexpr std::int16_t TextDoppelt = 8594;
constexpr std::int16_t TextOhneWert = 8595;
constexpr std::int16_t TextMitWert = 8596;
constexpr std::int16_t TextZuWenig = 8597;
constexpr std::int16_t TextZuViel = 8598;
constexpr std::int16_t TextMeinten = 8599;
constexpr std::int16_t TextKeineSprache = 8600;

constexpr std::string_view EndeDerOptionen = "--";

std::vector<const Option*> AlleOptionen() {
    std::vector<const Option*> alle;
    for (const auto reihe : {AllgemeineOptionen(), EigeneOptionen()})
        for (const Option& option : reihe)
            alle.push_back(&option);
    return alle;
}

const Option* OptionNamens(std::string_view name) {
    for (const Option* option : AlleOptionen())
        if (option->name == name)
            return option;
    return nullptr;
}

const Option* OptionMitBuchstabe(char kurz) {
    for (const Option* option : AlleOptionen())
        if (option->kurz == kurz)
            return option;
    return nullptr;
}

std::string MitVorschlag(const std::string& fehler, std::string_view wort,
                         const std::vector<std::string>& namen) {
    const auto vorschlaege = Aehnliche(wort, namen);
    return vorschlaege.empty() ? fehler : fehler + " " + LadeTextMit(TextMeinten, {Aufzaehlung(vorschlaege)});
}

/// "-" alone and negative numbers are arguments.
bool IstOption(std::string_view wort) {
    return wort.size() > 1 && wort[0] == '-' && std::isdigit(static_cast<unsigned char>(wort[1])) == 0;
}

/// An option's name as written, and the value that hangs on it: "--name=value", "-nvalue".
std::pair<std::string, std::optional<std::string>> Zerlegt(const std::string& wort) {
    constexpr std::size_t KurzeLaenge = 2;
    const bool lang = wort.starts_with("--");
    const auto ende = lang ? wort.find('=') : KurzeLaenge;
    if (ende >= wort.size())
        return {wort, std::nullopt};
    return {wort.substr(0, ende), wort.substr(lang ? ende + 1 : ende)};
}

/// Takes the words one after the other.
class Leser {
public:
    explicit Leser(std::span<const std::string> alle) : worte(alle) {}

    Zeilenbefund Lies() {
        bool optionenMoeglich = true;
        while (stelle < worte.size() && befund.fehler.empty()) {
            const std::string& wort = worte[stelle++];
            if (optionenMoeglich && wort == EndeDerOptionen)
                optionenMoeglich = false;
            else if (optionenMoeglich && IstOption(wort))
                NimmOption(wort);
            else
                NimmWort(wort);
        }
        if (befund.fehler.empty())
            Pruefe();
        return std::move(befund);
    }

private:
    void NimmOption(const std::string& wort) {
        const auto [name, anhaengend] = Zerlegt(wort);
        const Option* const option = name.starts_with("--") ? OptionNamens(std::string_view(name).substr(2))
                                                            : OptionMitBuchstabe(name[1]);
        if (option == nullptr)
            return MeldeUnbekannte(name);
        if (befund.zeile.Hat(option->name))
            return Melde(TextDoppelt, {name});
        if (option->platzhalter == 0 && anhaengend)
            return Melde(TextMitWert, {name});
        if (option->platzhalter != 0 && !anhaengend && stelle == worte.size())
            return Melde(TextOhneWert, {name, LadeText(option->platzhalter)});
        std::string& wert = befund.zeile.optionen[std::string(option->name)];
        if (anhaengend)
            wert = *anhaengend;
        else if (option->platzhalter != 0)
            wert = worte[stelle++];
    }

    void NimmWort(const std::string& wort) {
        if (befund.zeile.befehl != nullptr) {
            befund.zeile.argumente.push_back(wort);
            return;
        }
        const auto alle = AlleBefehle();
        const auto treffer = std::ranges::find(alle, wort, &Befehl::name);
        if (treffer != alle.end()) {
            befund.zeile.befehl = &*treffer;
            return;
        }
        std::vector<std::string> namen;
        for (const Befehl& befehl : alle)
            namen.emplace_back(befehl.name);
        befund.fehler = MitVorschlag(LadeTextMit(TextUnbekannterBefehl, {WortAlsUtf8(wort)}), wort, namen);
    }

    /// What can only be said once all words are known.
    void Pruefe() {
        const Befehlszeile& zeile = befund.zeile;
        if (zeile.Hat("help") || zeile.Hat("version"))
            return;
        if (zeile.befehl == nullptr)
            return Melde(TextKeinBefehl, {});
        const Befehl& befehl = *zeile.befehl;
        for (const Option& option : EigeneOptionen())
            if (zeile.Hat(option.name) && !Nimmt(befehl, option.name))
                return Melde(TextFremdeOption, {std::string(befehl.name), "--" + std::string(option.name)});
        if (zeile.argumente.size() < befehl.mindestens)
            return Melde(TextZuWenig, {std::string(befehl.name), LadeText(befehl.argumente)});
        if (zeile.argumente.size() > befehl.hoechstens)
            return Melde(TextZuViel,
                         {std::string(befehl.name), WortAlsUtf8(zeile.argumente[befehl.hoechstens])});
    }

    void MeldeUnbekannte(const std::string& name) {
        std::vector<std::string> namen;
        for (const Option* option : AlleOptionen())
            namen.push_back("--" + std::string(option->name));
        befund.fehler = MitVorschlag(LadeTextMit(TextUnbekannteOption, {WortAlsUtf8(name)}), name, namen);
    }

    void Melde(std::int16_t text, std::initializer_list<std::string> werte) {
        befund.fehler = LadeTextMit(text, werte);
    }

    std::span<const std::string> worte;
    std::size_t stelle = 0;
    Zeilenbefund befund{};
};

std::optional<std::int16_t> SpracheNamens(std::string_view name) {
    if (name == "de")
        return Deutsch;
    if (name == "en")
        return Englisch;
    return std::nullopt;
}

/// The language that the words name, right or wrong.
std::optional<std::string> Sprachwunsch(std::span<const std::string> worte) {
    for (std::size_t i = 0; i < worte.size() && worte[i] != EndeDerOptionen; ++i) {
        const auto [name, wert] = Zerlegt(worte[i]);
        if (name != "--lang" && name != "-l")
            continue;
        if (wert || i + 1 < worte.size())
            return wert ? wert : worte[i + 1];
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> Befehlszeile::Wert(std::string_view option) const {
    const auto stelle = optionen.find(option);
    return stelle == optionen.end() ? std::nullopt : std::optional(stelle->second);
}

Zeilenbefund LiesBefehlszeile(std::span<const std::string> worte) {
    Zeilenbefund befund = Leser(worte).Lies();
    const auto sprache = befund.zeile.Wert("lang");
    if (befund.fehler.empty() && sprache && !SpracheNamens(*sprache))
        befund.fehler = LadeTextMit(TextKeineSprache, {WortAlsUtf8(*sprache)});
    return befund;
}

std::int16_t SpracheAus(std::span<const std::string> worte,
                        const std::function<std::string(const char* name)>& variable) {
    if (const auto wunsch = Sprachwunsch(worte); wunsch && SpracheNamens(*wunsch))
        return *SpracheNamens(*wunsch);
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const std::string wert = variable(name); !wert.empty())
            return wert.starts_with("de") ? Deutsch : Englisch;
    return Englisch;
}

} // namespace varnoth::ctl
