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
    using namespace std::chrono;
    const auto sekunden = floor<seconds>(zeit);
    const auto mitternacht = floor<days>(sekunden);
    const year_month_day tag(mitternacht);
    const hh_mm_ss uhr(sekunden - mitternacht);
    std::tm kalender{};
    kalender.tm_year = static_cast<int>(tag.year()) - ErstesJahr;
    kalender.tm_mon = static_cast<int>(static_cast<unsigned>(tag.month())) - 1;
    kalender.tm_mday = static_cast<int>(static_cast<unsigned>(tag.day()));
    kalender.tm_hour = static_cast<int>(uhr.hours().count());
    kalender.tm_min = static_cast<int>(uhr.minutes().count());
    kalender.tm_sec = static_cast<int>(uhr.seconds().count());
    kalender.tm_wday = static_cast<int>(weekday(mitternacht).c_encoding());
    kalender.tm_yday = static_cast<int>((mitternacht - sys_days(tag.year() / January / 1)).count());
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
