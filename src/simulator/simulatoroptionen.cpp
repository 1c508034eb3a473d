#include "simulatoroptionen.h"

#include "wortleser.h"

#include <algorithm>
#include <stdexcept>

namespace varnoth::simulator {

namespace {

struct Option {
    std::string_view name;
    std::string_view argument; ///< empty = takes none
    std::string_view erklaerung;
    void (*nimm)(Optionen& optionen, std::string_view wert);
};

void NimmStrahlen(Optionen& optionen, std::string_view wert) {
    const auto zahlen = Teile(wert, ',');
    if (zahlen.size() > Optikteile)
        throw std::invalid_argument("--beams: at most four parts");
    std::array<int, Optikteile> strahlen{};
    std::ranges::transform(zahlen, strahlen.begin(),
                           [](std::string_view zahl) { return LiesZahl(zahl, "--beams", 0, MaxStrahlen); });
    PruefeStrahlen(strahlen);
    optionen.aufbau.strahlen = strahlen;
}

void NimmFormat(Optionen& optionen, std::string_view wert) {
    optionen.aufbau.format = LiesZeichenformat(wert, "--format");
    optionen.aufbau.baud = optionen.aufbau.format->baud;
}

void NimmPasswort(Optionen& optionen, std::string_view wert) {
    if (wert.size() != Passwortlaenge)
        throw std::invalid_argument("--password: exactly 16 characters");
    optionen.aufbau.passwort = wert;
}

constexpr int GroessterStartwert = 1'000'000'000;

constexpr Option AlleOptionen[] = {
    {"--link", "PATH", "keep a symbolic link to the terminal at PATH",
     [](Optionen& o, std::string_view wert) { o.verknuepfung = wert; }},
    {"--beams", "N,N,N,N", "beams of each optical part, 0 = no part, at most 512 in all (32,64,128,288)",
     NimmStrahlen},
    {"--address", "N", "station address, 1..240, until a stored configuration names another (1)",
     [](Optionen& o, std::string_view wert) { o.aufbau.adresse = LiesZahl(wert, "--address", 1, 240); }},
    {"--baud", "N", "speed of the line (38400)",
     [](Optionen& o, std::string_view wert) { o.aufbau.baud = LiesZahl(wert, "--baud", 300, 4'000'000); }},
    {"--format", "B,P,8,S", "answer only to a terminal that is set like this: 9600,e,8,1", NimmFormat},
    {"--echo", "", "send back what comes, as an adapter does that hears itself",
     [](Optionen& o, std::string_view) { o.echo = true; }},
    {"--lot", "N", "bytes that are handed over together, as a UART's buffer does (8)",
     [](Optionen& o, std::string_view wert) { o.aufbau.los = LiesZahl(wert, "--lot", 1, 4096); }},
    {"--turnaround", "US", "microseconds between request and reply (0)",
     [](Optionen& o, std::string_view wert) {
         o.aufbau.bedenkzeit = Zeit{LiesZahl(wert, "--turnaround", 0, 10'000'000)};
     }},
    {"--unpaced", "", "replies take no time on the wire",
     [](Optionen& o, std::string_view) { o.aufbau.getaktet = false; }},
    {"--seed", "N", "another scene (1)",
     [](Optionen& o, std::string_view wert) {
         o.aufbau.startwert = static_cast<std::uint64_t>(LiesZahl(wert, "--seed", 0, GroessterStartwert));
     }},
    {"--replay", "FILE",
     "serve the beams, values and configuration of a record in place of the scene, at the pace they were "
     "recorded; it begins when they are first asked for and stays at its last pass",
     [](Optionen& o, std::string_view wert) { o.wiedergabe = wert; }},
    {"--replay-loop", "", "begin the record anew behind its last pass",
     [](Optionen& o, std::string_view) { o.aufbau.schleife = true; }},
    {"--store", "FILE", "keep the stored configuration and factory data in FILE",
     [](Optionen& o, std::string_view wert) { o.aufbau.speicherdatei = wert; }},
    {"--password", "TEXT", "the 16 characters that open the factory data (Varnoth-Service1)", NimmPasswort},
    {"--log", "FILE|-", "a line for each request to FILE, or to standard output",
     [](Optionen& o, std::string_view wert) { o.protokoll = wert; }},
    {"--control", "PATH", "take commands, one a line, at a Unix socket; the command help lists them",
     [](Optionen& o, std::string_view wert) { o.steuerkanal = wert; }},
    {"--fault", "NAME[=ARG[,MS]][:COUNT][@FUNCTION]",
     "silence, crc, address, exception=CODE, stray=BYTES, pieces=MS, surplus=BYTES, late=MS, flip=BIT, "
     "repeat=MS, repeat-twice=MS, repeat-flip=BIT,MS, repeat-earlier=BACK,MS, forget=ADDRESS,PASS, "
     "restart-at=ADDRESS,PASS",
     [](Optionen& o, std::string_view wert) { o.aufbau.stoerungen.push_back(LiesStoerung(wert)); }},
    {"--exit-with-parent", "", "end when the program that started this one ends",
     [](Optionen& o, std::string_view) { o.endetMitEltern = true; }},
    {"--help", "", "show this text", [](Optionen& o, std::string_view) { o.hilfe = true; }},
    {"--version", "", "show the version", [](Optionen& o, std::string_view) { o.version = true; }},
};

const Option& FindeOption(std::string_view wort) {
    const auto option = std::ranges::find(AlleOptionen, wort, &Option::name);
    if (option == std::end(AlleOptionen))
        throw std::invalid_argument("unknown option \"" + std::string(wort) + "\", try --help");
    return *option;
}

} // namespace

Optionen LiesOptionen(std::span<const char* const> worte) {
    Optionen optionen;
    while (!worte.empty()) {
        const Option& option = FindeOption(worte.front());
        worte = worte.subspan(1);
        if (option.argument.empty()) {
            option.nimm(optionen, {});
            continue;
        }
        if (worte.empty())
            throw std::invalid_argument(std::string(option.name) + ": " + std::string(option.argument) +
                                        " is missing");
        option.nimm(optionen, worte.front());
        worte = worte.subspan(1);
    }
    return optionen;
}

std::string Hilfetext() {
    std::string text = "varnoth-simulator: a simulated Varnoth controller on a pseudo terminal\n\n";
    for (const Option& option : AlleOptionen)
        text += "  " + std::string(option.name) + ' ' + std::string(option.argument) + "\n        " +
                std::string(option.erklaerung) + '\n';
    return text;
}

} // namespace varnoth::simulator
