#include "stoerfaelle.h"

namespace varnoth::pruefung {

namespace {

constexpr int Bits = 8;

struct Antwortart {
    const char* funktion;
    int Belastung::*laenge;
};

constexpr Antwortart Antwortarten[] = {
    {"@3", &Belastung::lesen},
    {"@16", &Belastung::schreiben},
    {"@17", &Belastung::kennung},
};

constexpr const char* GuteAntwort = "fault stray=0:";

/// Flips a bit at each position of a reply in turn, another bit at each.
std::vector<Befehle> KippeJedeStelle(const Belastung& platz) {
    std::vector<Befehle> portionen;
    int inPortion = platz.amStueck;
    for (const auto& [funktion, laenge] : Antwortarten)
        for (int stelle = 0; stelle < platz.*laenge; ++stelle) {
            if (inPortion++ == platz.amStueck) {
                portionen.emplace_back();
                inPortion = 1;
            }
            const int bit = stelle * Bits + stelle % Bits;
            portionen.back().push_back("fault flip=" + std::to_string(bit) + ":1" + funktion);
            if (platz.abwechselnd)
                portionen.back().push_back(std::string(GuteAntwort) + "1" + funktion);
        }
    return portionen;
}

/// The fault at the first exchange of the place, at the second, and so on.
std::vector<Befehle> TriffReihum(const Belastung& platz, const std::string& stoerung) {
    std::vector<Befehle> portionen;
    for (int davor = 0; davor < platz.austausche; ++davor) {
        Befehle befehle;
        if (davor > 0)
            befehle.push_back(GuteAntwort + std::to_string(davor) + platz.nur);
        befehle.push_back("fault " + stoerung + ":1" + platz.nur);
        portionen.push_back(befehle);
    }
    return portionen;
}

/// Arrives during the request that follows.
std::vector<Befehle> VerspaeteReihum(const Belastung& platz) {
    return TriffReihum(platz, "late=1500");
}

/// Arrives in part, and the rest during the requests that follow.
std::vector<Befehle> ZerreisseReihum(const Belastung& platz) {
    return TriffReihum(platz, "pieces=1200");
}

/// Comes once more, with the request waiting that follows.
std::vector<Befehle> WiederholeReihum(const Belastung& platz) {
    return TriffReihum(platz, "repeat=60");
}

std::vector<Befehle> WiederholeSofortReihum(const Belastung& platz) {
    return TriffReihum(platz, "repeat=0");
}

std::vector<Befehle> WiederholeSpaetReihum(const Belastung& platz) {
    return TriffReihum(platz, "repeat=500");
}

std::vector<Befehle> WiederholeZweimalReihum(const Belastung& platz) {
    return TriffReihum(platz, "repeat-twice=40");
}

std::vector<Befehle> WiederholeGekipptReihum(const Belastung& platz) {
    return TriffReihum(platz, "repeat-flip=26,60");
}

std::vector<Befehle> WiederholeFruehereReihum(const Belastung& platz) {
    return TriffReihum(platz, "repeat-earlier=2,30");
}

} // namespace

std::span<const Stoerfall> AlleStoerfaelle() {
    static const std::vector<std::string> keineMehr{"fault none"};
    static const std::vector<Stoerfall> faelle{
        {"silence", Wirkung::Anhaltend, {"fault silence"}, keineMehr},
        {"wrong CRC", Wirkung::Anhaltend, {"fault crc"}, keineMehr},
        {"wrong address", Wirkung::Anhaltend, {"fault address"}, keineMehr},
        {"exception", Wirkung::Anhaltend, {"fault exception=4"}, keineMehr},
        {"stray bytes", Wirkung::Anhaltend, {"fault stray=3"}, keineMehr},
        {"pieces < 1 s", Wirkung::Keine, {"fault pieces=450:4"}, keineMehr},
        {"pieces > 1 s", Wirkung::Reihum, {}, keineMehr, ZerreisseReihum},
        {"surplus bytes", Wirkung::Keine, {"fault surplus=5"}, keineMehr},
        {"late", Wirkung::Reihum, {}, keineMehr, VerspaeteReihum},
        {"flipped bits", Wirkung::Reihum, {}, keineMehr, KippeJedeStelle},
        {"repeat 0 ms", Wirkung::Reihum, {}, keineMehr, WiederholeSofortReihum},
        {"repeat 60 ms", Wirkung::Reihum, {}, keineMehr, WiederholeReihum},
        {"repeat 500 ms", Wirkung::Reihum, {}, keineMehr, WiederholeSpaetReihum},
        {"repeat twice", Wirkung::Reihum, {}, keineMehr, WiederholeZweimalReihum},
        {"repeat flipped", Wirkung::Reihum, {}, keineMehr, WiederholeGekipptReihum},
        {"repeat earlier", Wirkung::Reihum, {}, keineMehr, WiederholeFruehereReihum},
        {"repeat all", Wirkung::Voruebergehend, {"fault repeat=60:6"}, keineMehr},
        {"unplugged", Wirkung::Anhaltend, {"unplug"}, {"plug"}},
        {"restart", Wirkung::Voruebergehend, {"restart", "fault silence:2"}, keineMehr},
    };
    return faelle;
}

} // namespace varnoth::pruefung
