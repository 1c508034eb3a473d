// handbuch TEMPLATE de|en: the template with the tables of varnothctl in place of its marks, on standard
// output. A manual page has @COMMANDS@, @OPTIONS@ and @EXITCODES@, a completion @WORDS@, @SHARED@, @VALUED@
// and @OWN@.

#include "ctlbefehle.h"
#include "texte.h"

#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <string>

namespace {

using namespace varnoth;
using namespace varnoth::ctl;

constexpr std::int16_t TextExitcodeliste = 8611;

/// Text for a manual page: a hyphen is the character that a reader types, a line break is a blank, no line
/// begins a request.
std::string Roff(const std::string& text) {
    std::string roff = "\\&";
    for (const char zeichen : text) {
        if (zeichen == '-' || zeichen == '\\')
            roff += '\\';
        roff += zeichen == '\n' ? ' ' : zeichen == '\\' ? 'e' : zeichen;
    }
    return roff;
}

std::string Fett(const std::string& text) {
    return "\\fB" + Roff(text).substr(2) + "\\fR";
}

std::string Kursiv(std::int16_t id) {
    return id == 0 ? std::string() : " \\fI" + Roff(LadeText(id)).substr(2) + "\\fR";
}

std::string AlsAbsatz(const Option& option) {
    const std::string kurz = option.kurz != 0 ? Fett(std::string("-") + option.kurz) + ", " : "";
    return ".TP\n" + kurz + Fett("--" + std::string(option.name)) + Kursiv(option.platzhalter) + "\n" +
           Roff(LadeText(option.zweck)) + ".\n";
}

template<class Bedingung>
std::string Optionsabsaetze(std::span<const Option> optionen, Bedingung gehoertDazu) {
    std::string absaetze;
    for (const Option& option : optionen)
        if (gehoertDazu(option))
            absaetze += AlsAbsatz(option);
    return absaetze;
}

std::string Befehlsabsatz(const Befehl& befehl) {
    const std::string eigene = Optionsabsaetze(
        EigeneOptionen(), [&befehl](const Option& option) { return Nimmt(befehl, option.name); });
    return ".TP\n" + Fett(std::string(befehl.name)) + Kursiv(befehl.argumente) + "\n" +
           Roff(LadeText(befehl.zweck)) + ".\n" +
           (befehl.einzelheiten != 0 ? Roff(LadeText(befehl.einzelheiten)) + "\n" : "") +
           (eigene.empty() ? "" : ".RS\n" + eigene + ".RE\n");
}

std::string Befehlsabsaetze() {
    std::string absaetze;
    for (const Befehl& befehl : AlleBefehle())
        absaetze += Befehlsabsatz(befehl);
    return absaetze;
}

std::string Exitcodes() {
    return ".nf\n" + LadeText(TextExitcodeliste) + "\n.fi\n";
}

std::string Befehlsworte() {
    std::string worte;
    for (const Befehl& befehl : AlleBefehle())
        worte += " " + std::string(befehl.name);
    return worte.substr(1);
}

std::string Optionsworte() {
    std::string worte;
    for (const Option& option : AllgemeineOptionen())
        worte += " --" + std::string(option.name);
    return worte.substr(1);
}

/// The options behind which a value stands, as the pattern of a case.
std::string WerteErwartende() {
    std::string muster;
    for (const auto& optionen : {AllgemeineOptionen(), EigeneOptionen()})
        for (const Option& option : optionen)
            if (option.platzhalter != 0)
                muster += (muster.empty() ? "--" : " | --") + std::string(option.name) +
                          (option.kurz != 0 ? std::string(" | -") + option.kurz : "");
    return muster;
}

std::string EigeneFaelle() {
    std::string faelle;
    for (const Befehl& befehl : AlleBefehle()) {
        std::string worte;
        for (const std::string_view name : befehl.optionen)
            worte += name.empty() ? "" : " --" + std::string(name);
        if (!worte.empty())
            faelle += "    " + std::string(befehl.name) + ") words+='" + worte + "' ;;\n";
    }
    return faelle;
}

std::string Ersetzt(std::string text) {
    const std::map<std::string, std::function<std::string()>> marken{
        {"@COMMANDS@\n", Befehlsabsaetze},
        {"@OPTIONS@\n",
         [] { return Optionsabsaetze(AllgemeineOptionen(), [](const Option&) { return true; }); }},
        {"@EXITCODES@\n", Exitcodes},
        {"@WORDS@", Befehlsworte},
        {"@SHARED@", Optionsworte},
        {"@VALUED@", WerteErwartende},
        {"@OWN@\n", EigeneFaelle}};
    for (const auto& [marke, inhalt] : marken)
        for (auto wo = text.find(marke); wo != std::string::npos; wo = text.find(marke))
            text.replace(wo, marke.size(), inhalt());
    return text;
}

} // namespace

int main(int anzahl, char** worte) {
    if (anzahl != 3)
        return EXIT_FAILURE;
    std::ifstream vorlage(worte[1]);
    const std::string text{std::istreambuf_iterator<char>(vorlage), {}};
    SetzeSprachoffset(std::string(worte[2]) == "de" ? Deutsch : Englisch);
    std::cout << Ersetzt(text);
    return text.empty() || !std::cout.flush() ? EXIT_FAILURE : EXIT_SUCCESS;
}
