#include "kalenderzeit.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace varnoth {

namespace {

using std::chrono::system_clock;

constexpr int ErstesJahr = 1900; // of what the calendar counts from
constexpr int MinutenJeStunde = 60;

std::time_t Sekunden(system_clock::time_point zeit) {
    return system_clock::to_time_t(std::chrono::floor<std::chrono::seconds>(zeit));
}

/// The moment at which universal time shows what this calendar shows.
std::chrono::sys_seconds AlsWeltzeit(const std::tm& kalender) {
    const std::chrono::year_month_day tag{std::chrono::year(kalender.tm_year + ErstesJahr),
                                          std::chrono::month(static_cast<unsigned>(kalender.tm_mon + 1)),
                                          std::chrono::day(static_cast<unsigned>(kalender.tm_mday))};
    return std::chrono::sys_days(tag) + std::chrono::hours(kalender.tm_hour) +
           std::chrono::minutes(kalender.tm_min) + std::chrono::seconds(kalender.tm_sec);
}

} // namespace

std::tm Ortszeit(system_clock::time_point zeit) {
    const std::time_t sekunden = Sekunden(zeit);
    std::tm kalender{};
    ::localtime_r(&sekunden, &kalender);
    return kalender;
}

std::tm Weltzeit(system_clock::time_point zeit) {
    const std::time_t sekunden = Sekunden(zeit);
    std::tm kalender{};
    ::gmtime_r(&sekunden, &kalender);
    return kalender;
}

int Zonenminuten(system_clock::time_point zeit) {
    const auto ganze = std::chrono::floor<std::chrono::seconds>(zeit);
    const auto voraus = AlsWeltzeit(Ortszeit(zeit)) - ganze;
    return static_cast<int>(std::chrono::duration_cast<std::chrono::minutes>(voraus).count());
}

std::string Zonentext(system_clock::time_point zeit) {
    const int minuten = Zonenminuten(zeit);
    const int betrag = std::abs(minuten);
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%c%02d%02d", minuten < 0 ? '-' : '+', betrag / MinutenJeStunde,
                  betrag % MinutenJeStunde);
    return text.data();
}

std::string InForm(const char* form, const std::tm& kalender) {
    std::array<char, 64> text{};
    return {text.data(), std::strftime(text.data(), text.size(), form, &kalender)};
}

} // namespace varnoth
