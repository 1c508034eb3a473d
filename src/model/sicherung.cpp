#include "sicherung.h"

#include "initext.h"
#include "kalenderzeit.h"
#include "registeradressen.h"
#include "zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <string>

namespace varnoth {

namespace {

using std::chrono::milliseconds;
using std::chrono::system_clock;

constexpr std::string_view Abschnitt = "Sicherung";
constexpr std::string_view Namensmuster = "dddd-dd-dd_dd-dd-dd-dddZ"; // d: a digit
constexpr std::size_t LaengsterOrdnername = 40;

struct Anlassname {
    Sicherungsanlass anlass;
    const char* name;
};

constexpr Anlassname Anlassnamen[] = {
    {Sicherungsanlass::VorDemSchreiben, "VorDemSchreiben"},
    {Sicherungsanlass::VorDemVerbinden, "VorDemVerbinden"},
    {Sicherungsanlass::VorNeuer, "VorNeuer"},
    {Sicherungsanlass::VorDemOeffnen, "VorDemOeffnen"},
};

struct Textfeld {
    const char* schluessel;
    std::string Sicherungsangaben::*feld;
};

constexpr Textfeld Textfelder[] = {
    {"Seriennummer", &Sicherungsangaben::seriennummer},
    {"Softwareversion", &Sicherungsangaben::softwareversion},
    {"Strahlen", &Sicherungsangaben::strahlen},
    {"Programm", &Sicherungsangaben::programm},
};

bool IstSteuerzeichen(char zeichen) {
    const auto wert = static_cast<unsigned char>(zeichen);
    return wert < 0x20 || wert == 0x7F;
}

std::string InEinerZeile(std::string text) {
    std::ranges::replace_if(text, IstSteuerzeichen, ' ');
    const auto erstes = text.find_first_not_of(' ');
    if (erstes == std::string::npos)
        return {};
    return text.substr(erstes, text.find_last_not_of(' ') - erstes + 1);
}

std::string Versionsworte(std::int32_t version) {
    if (version == 0)
        return {};
    return std::to_string((version >> 8) & 0xFF) + "." + std::to_string(version & 0xFF);
}

std::string Strahlenworte(const Abbild& abbild) {
    std::string text;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        text += (teil == 0 ? "" : ", ") +
                std::to_string(abbild.HoleRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                   spezifisch::Strahlenzahl, teil));
    return text;
}

bool IstZiffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

bool PasstZumMuster(std::string_view name) {
    return name.size() == Namensmuster.size() &&
           std::ranges::equal(name, Namensmuster, [](char zeichen, char gewollt) {
               return gewollt == 'd' ? IstZiffer(zeichen) : zeichen == gewollt;
           });
}

bool IstNachnummer(std::string_view text) {
    return text.empty() || (text.size() > 1 && text.size() < 6 && text.front() == '_' &&
                            std::ranges::all_of(text.substr(1), IstZiffer));
}

int Zahl(std::string_view text, std::size_t stelle, std::size_t laenge) {
    int zahl = 0;
    for (const char ziffer : text.substr(stelle, laenge))
        zahl = 10 * zahl + (ziffer - '0');
    return zahl;
}

bool IstOrdnerzeichen(char zeichen) {
    return IstZiffer(zeichen) || (zeichen >= 'A' && zeichen <= 'Z') || (zeichen >= 'a' && zeichen <= 'z') ||
           zeichen == '-' || zeichen == '_';
}

/// Names that some systems keep for devices.
bool IstGeraetename(std::string name) {
    constexpr std::string_view Feste[] = {"CON", "PRN", "AUX", "NUL"};
    std::ranges::transform(name, name.begin(), [](char zeichen) {
        return zeichen >= 'a' && zeichen <= 'z' ? static_cast<char>(zeichen - 'a' + 'A') : zeichen;
    });
    const bool nummeriert = name.size() == 4 && (name.starts_with("COM") || name.starts_with("LPT"));
    return nummeriert || std::ranges::find(Feste, name) != std::end(Feste);
}

} // namespace

std::string Seriennummer(const Abbild& abbild) {
    std::string text;
    for (const std::int32_t wert :
         abbild.HoleParameter(Speicherbereich::GlobaleGeraetedaten, global::Seriennummer)) {
        if (text.empty() && wert == 0)
            return {};
        text += RegisterAlsUtf8(wert);
    }
    return InEinerZeile(std::move(text));
}

Sicherungsangaben AngabenZu(const Abbild& abbild, system_clock::time_point zeit) {
    return {.zeit = zeit,
            .seriennummer = Seriennummer(abbild),
            .softwareversion = Versionsworte(
                abbild.HoleRegister(Speicherbereich::GlobaleGeraetedaten, global::Softwareversion)),
            .strahlen = Strahlenworte(abbild)};
}

std::string AlsSicherungstext(const Sicherungsangaben& angaben) {
    Initext text;
    const auto setze = [&text](const char* schluessel, const std::string& wert) {
        text.Setze(Abschnitt, schluessel, InEinerZeile(wert));
    };
    setze("Zeit", InForm("%Y-%m-%d %H:%M:%S ", Ortszeit(angaben.zeit)) + Zonentext(angaben.zeit));
    for (const auto& [anlass, name] : Anlassnamen)
        if (angaben.anlass == anlass)
            setze("Anlass", name);
    for (const auto& [schluessel, feld] : Textfelder)
        setze(schluessel, angaben.*feld);
    return text.Text();
}

Sicherungsangaben LiesSicherungstext(std::string_view bytes) {
    const Initext text{std::string(bytes)};
    const auto lies = [&text](const char* schluessel) {
        return InEinerZeile(text.Lies(Abschnitt, schluessel).value_or(std::string()));
    };
    Sicherungsangaben angaben;
    for (const auto& [anlass, name] : Anlassnamen)
        if (lies("Anlass") == name)
            angaben.anlass = anlass;
    for (const auto& [schluessel, feld] : Textfelder)
        angaben.*feld = lies(schluessel);
    return angaben;
}

std::string Sicherungsordnername(std::string_view seriennummer) {
    std::string name(seriennummer.substr(0, LaengsterOrdnername));
    std::ranges::replace_if(
        name, [](char zeichen) { return !IstOrdnerzeichen(zeichen); }, '_');
    if (name.empty())
        return "ohne-nummer";
    return IstGeraetename(name) ? name + "_" : name;
}

std::string Sicherungsname(system_clock::time_point zeit) {
    const auto rest = std::chrono::floor<milliseconds>(zeit) - std::chrono::floor<std::chrono::seconds>(zeit);
    std::string tausendstel = std::to_string(1000 + std::chrono::duration_cast<milliseconds>(rest).count());
    return InForm("%Y-%m-%d_%H-%M-%S-", Weltzeit(zeit)) + tausendstel.substr(1) + "Z";
}

std::optional<system_clock::time_point> ZeitAusName(std::string_view name) {
    const std::string_view zeit = name.substr(0, Namensmuster.size());
    if (!PasstZumMuster(zeit) || !IstNachnummer(name.substr(zeit.size())))
        return std::nullopt;
    using namespace std::chrono;
    const year_month_day tag{year{Zahl(zeit, 0, 4)}, month{static_cast<unsigned>(Zahl(zeit, 5, 2))},
                             day{static_cast<unsigned>(Zahl(zeit, 8, 2))}};
    if (!tag.ok())
        return std::nullopt;
    return time_point_cast<system_clock::duration>(sys_days{tag} + hours{Zahl(zeit, 11, 2)} +
                                                   minutes{Zahl(zeit, 14, 2)} + seconds{Zahl(zeit, 17, 2)} +
                                                   milliseconds{Zahl(zeit, 20, 3)});
}

} // namespace varnoth
