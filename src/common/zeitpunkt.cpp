#include "zeitpunkt.h"

#include "kalenderzeit.h"
#include "texte.h"

#include <array>
#include <cstdio>

namespace varnoth {

namespace {

std::string MitMs(std::chrono::system_clock::time_point zeit, const char* form, char trenner) {
    const auto ganze = std::chrono::floor<std::chrono::seconds>(zeit);
    const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(zeit - ganze).count();
    std::array<char, 8> bruch{};
    std::snprintf(bruch.data(), bruch.size(), "%c%03d", trenner, static_cast<int>(ms));
    return InForm(form, Ortszeit(zeit)) + bruch.data();
}

} // namespace

char Dezimaltrenner() {
    return GetSprachoffset() == Englisch ? '.' : ',';
}

std::string Uhrzeittext(std::chrono::system_clock::time_point zeit) {
    return MitMs(zeit, "%H:%M:%S", Dezimaltrenner());
}

std::string Zeitpunkttext(std::chrono::system_clock::time_point zeit) {
    return MitMs(zeit, "%Y-%m-%d %H:%M:%S", '.');
}

std::string Datumstext(std::chrono::system_clock::time_point zeit) {
    return InForm("%Y-%m-%d", Ortszeit(zeit));
}

} // namespace varnoth
