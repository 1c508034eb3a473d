#include "ctlbefehle.h"

#include "auftraege.h"

#include <algorithm>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t WertPort = 8500;
constexpr std::int16_t WertFormat = 8501;
constexpr std::int16_t WertSekunden = 8502;
constexpr std::int16_t WertSprache = 8503;
constexpr std::int16_t WertDatei = 8504;
constexpr std::int16_t WertText = 8505;
constexpr std::int16_t WertAnzahl = 8506;

constexpr std::int16_t ArgumentQuelle = 8507;
constexpr std::int16_t ArgumentAB = 8508;
constexpr std::int16_t ArgumentRegister = 8509;
constexpr std::int16_t ArgumentRegisterWert = 8510;
constexpr std::int16_t ArgumentTextdatei = 8511;
constexpr std::int16_t ArgumentQuelleFrei = 8512;
constexpr std::int16_t ArgumentGeraeteFrei = 8275;

constexpr Option Allgemeine[] = {
    {"port", 'p', WertPort, 8520},
    {"format", 'f', WertFormat, 8521},
    {"timeout", 't', WertSekunden, 8522},
    {"json", 'j', 0, 8523},
    {"lang", 'l', WertSprache, 8524},
    {"quiet", 'q', 0, 8525},
    {"yes", 'y', 0, 8526},
    {"help", 'h', 0, 8527},
    {"version", 'V', 0, 8528},
};

constexpr Option Eigene[] = {
    {"output", 'o', WertDatei, 8529}, {"store", 0, 0, 8530},
    {"verify", 0, 0, 8531},           {"no-backup", 0, 0, 8532},
    {"count", 'n', WertAnzahl, 8533}, {"interval", 'i', WertSekunden, 8534},
    {"plant", 0, WertText, 8535},     {"machine", 0, WertText, 8536},
    {"person", 0, WertText, 8537},    {"requests", 0, WertAnzahl, 8276},
};

constexpr Befehl Befehle[] = {
    {"ports", 0, 0, 0, 8270, 0, {}, Ports},
    {"find", ArgumentGeraeteFrei, 0, BeliebigViele, 8271, 8273, {}, Find},
    {"linecheck", 0, 0, 0, 8272, 8274, {"requests"}, Linecheck},
    {"identify", 0, 0, 0, 8540, 0, {}, Identify},
    {"read", 0, 0, 0, 8541, 8560, {"output"}, Read},
    {"write", ArgumentQuelle, 1, 1, 8542, 8561, {"store", "verify", "no-backup"}, Write},
    {"compare", ArgumentAB, 2, 2, 8543, 8562, {}, Compare},
    {"get", ArgumentRegister, 1, BeliebigViele, 8544, 8563, {}, Get},
    {"set", ArgumentRegisterWert, 2, 2, 8545, 8564, {"store"}, Set},
    {"watch", 0, 0, 0, 8546, 8565, {"count", "interval"}, Watch},
    {"report", ArgumentQuelleFrei, 0, 1, 8547, 8566, {"output", "plant", "machine", "person"}, Report},
    {"export", ArgumentQuelleFrei, 0, 1, 8548, 8567, {"output"}, Export},
    {"import", ArgumentTextdatei, 1, 1, 8549, 8568, {"output"}, Import},
    {"reset", 0, 0, 0, 8550, 8569, {}, Reset},
};

} // namespace

std::span<const Option> AllgemeineOptionen() {
    return Allgemeine;
}

std::span<const Option> EigeneOptionen() {
    return Eigene;
}

std::span<const Befehl> AlleBefehle() {
    return Befehle;
}

bool Nimmt(const Befehl& befehl, std::string_view option) {
    return !option.empty() && std::ranges::find(befehl.optionen, option) != std::end(befehl.optionen);
}

} // namespace varnoth::ctl
