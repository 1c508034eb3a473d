#include "zeitworte.h"

#include "texte.h"
#include "zeitpunkt.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace varnoth {

namespace {

std::chrono::sys_time<std::chrono::milliseconds> Ortszeit(const Messangaben& angaben, Zeit laufzeit) {
    return std::chrono::floor<std::chrono::milliseconds>(angaben.beginn + laufzeit) +
           std::chrono::minutes(angaben.zoneMinuten);
}

template<class... Zahlen>
std::string Gesetzt(const char* muster, Zahlen... zahlen) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), muster, zahlen...);
    return text.data();
}

} // namespace

std::string Datumsworte(const Messangaben& angaben, Zeit laufzeit) {
    const std::chrono::year_month_day datum(
        std::chrono::floor<std::chrono::days>(Ortszeit(angaben, laufzeit)));
    const auto jahr = static_cast<int>(datum.year());
    const auto monat = static_cast<unsigned>(datum.month());
    const auto tag = static_cast<unsigned>(datum.day());
    return GetSprachoffset() == Englisch ? Gesetzt("%04d-%02u-%02u", jahr, monat, tag)
                                         : Gesetzt("%02u.%02u.%04d", tag, monat, jahr);
}

std::string Uhrzeitworte(const Messangaben& angaben, Zeit laufzeit) {
    const auto ort = Ortszeit(angaben, laufzeit);
    const std::chrono::hh_mm_ss uhr(ort - std::chrono::floor<std::chrono::days>(ort));
    return Gesetzt("%02d:%02d:%02d%c%03d", static_cast<int>(uhr.hours().count()),
                   static_cast<int>(uhr.minutes().count()), static_cast<int>(uhr.seconds().count()),
                   Dezimaltrenner(), static_cast<int>(uhr.subseconds().count()));
}

std::string Zeitworte(const Messangaben& angaben, Zeit laufzeit) {
    return Datumsworte(angaben, laufzeit) + " " + Uhrzeitworte(angaben, laufzeit);
}

} // namespace varnoth
