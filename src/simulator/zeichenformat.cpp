#include "zeichenformat.h"

#include "wortleser.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

namespace varnoth::simulator {

namespace {

struct Geschwindigkeit {
    int baud;
    unsigned code; ///< in the register
};

constexpr Geschwindigkeit Geschwindigkeiten[] = {{1200, 10},  {2400, 11},  {4800, 12}, {9600, 13},
                                                 {19200, 14}, {38400, 15}, {57600, 16}};

const Geschwindigkeit* Finde(int baud) {
    return std::ranges::find(Geschwindigkeiten, baud, &Geschwindigkeit::baud);
}

[[noreturn]] void LehneAb(std::string_view text, std::string_view was) {
    throw std::invalid_argument(std::string(was) + ": \"" + std::string(text) +
                                "\" is not like 9600,e,8,1 (1200 to 57600; n, e or o; 8; 1 or 2)");
}

} // namespace

Zeichenformat LiesZeichenformat(std::string_view text, std::string_view was) {
    constexpr int HoechsteBaudrate = 57600;
    const auto teile = Teile(text, ',');
    if (teile.size() != 4 || teile[1].size() != 1 ||
        std::string_view("neo").find(teile[1]) == std::string_view::npos)
        LehneAb(text, was);
    const Zeichenformat format{.baud = LiesZahl(teile[0], was, 1, HoechsteBaudrate),
                               .paritaet = teile[1].front(),
                               .stoppbits = LiesZahl(teile[3], was, 1, 2)};
    if (teile[2] != "8" || Finde(format.baud) == std::end(Geschwindigkeiten))
        LehneAb(text, was);
    return format;
}

unsigned Registerwert(const Zeichenformat& format) {
    constexpr unsigned EinStoppbit = 1U << 8U, ZweiStoppbits = 3U << 8U;
    constexpr unsigned Ungerade = 0x400, Gerade = 0x800;
    const auto* const geschwindigkeit = Finde(format.baud);
    const unsigned code = geschwindigkeit == std::end(Geschwindigkeiten) ? 0 : geschwindigkeit->code;
    const unsigned paritaet = format.paritaet == 'e' ? Gerade : format.paritaet == 'o' ? Ungerade : 0;
    return code | (format.stoppbits == 1 ? EinStoppbit : ZweiStoppbits) | paritaet;
}

} // namespace varnoth::simulator
