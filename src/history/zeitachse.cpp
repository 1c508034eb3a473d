#include "zeitachse.h"

#include "durchgangssuche.h"
#include "texte.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace varnoth {

namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr Zeit DieSchritte[] = {milliseconds(1),
                                milliseconds(2),
                                milliseconds(5),
                                milliseconds(10),
                                milliseconds(20),
                                milliseconds(50),
                                milliseconds(100),
                                milliseconds(200),
                                milliseconds(500),
                                seconds(1),
                                seconds(2),
                                seconds(5),
                                seconds(10),
                                seconds(15),
                                seconds(30),
                                minutes(1),
                                minutes(2),
                                minutes(5),
                                minutes(10),
                                minutes(15),
                                minutes(30),
                                hours(1),
                                hours(2),
                                hours(3),
                                hours(6),
                                hours(12),
                                days(1),
                                days(2),
                                days(7)};

/// Microseconds of local time since 1970.
Zeit Ortszeit(const Messangaben& angaben, Zeit laufzeit) {
    const auto utc = std::chrono::floor<std::chrono::microseconds>(Uhrzeit(angaben, laufzeit));
    return utc.time_since_epoch() + minutes(angaben.zoneMinuten);
}

template<class... Zahlen>
std::string Satz(const char* muster, Zahlen... zahlen) {
    char puffer[48];
    std::snprintf(puffer, sizeof puffer, muster, zahlen...);
    return puffer;
}

/// Of a day: whole units and the rest.
int Teil(Zeit ortszeit, Zeit gross, Zeit klein) {
    const Zeit imTag = ortszeit - std::chrono::floor<days>(ortszeit);
    return static_cast<int>(imTag % gross / klein);
}

std::string Tageszeit(Zeit ortszeit, Zeit genau) {
    const int stunde = Teil(ortszeit, days(1), hours(1));
    const int minute = Teil(ortszeit, hours(1), minutes(1));
    const int sekunde = Teil(ortszeit, minutes(1), seconds(1));
    if (genau >= minutes(1))
        return Satz("%02d:%02d", stunde, minute);
    if (genau >= seconds(1))
        return Satz("%02d:%02d:%02d", stunde, minute, sekunde);
    const char* const muster = GetSprachoffset() == Englisch ? "%02d:%02d:%02d.%03d" : "%02d:%02d:%02d,%03d";
    return Satz(muster, stunde, minute, sekunde, Teil(ortszeit, seconds(1), milliseconds(1)));
}

std::string Datum(Zeit ortszeit) {
    const std::chrono::year_month_day tag{std::chrono::sys_days(std::chrono::floor<days>(ortszeit))};
    const int jahr = static_cast<int>(tag.year());
    const auto monat = static_cast<unsigned>(tag.month());
    const auto tagImMonat = static_cast<unsigned>(tag.day());
    return GetSprachoffset() == Englisch ? Satz("%04d-%02u-%02u", jahr, monat, tagImMonat)
                                         : Satz("%02u.%02u.%04d", tagImMonat, monat, jahr);
}

std::string Strichtext(Zeit ortszeit, Zeit schritt) {
    return ortszeit % days(1) == Zeit(0) ? Datum(ortszeit) : Tageszeit(ortszeit, schritt);
}

} // namespace

Zeit RunderZeitschritt(Zeit mindestens) {
    const auto* const schritt = std::ranges::lower_bound(DieSchritte, mindestens);
    if (schritt != std::ranges::end(DieSchritte))
        return *schritt;
    const Zeit woche = days(7);
    return (mindestens + woche - Zeit(1)) / woche * woche;
}

std::vector<Zeitstrich> Zeitstriche(const Messangaben& angaben, Zeitspanne spanne, Zeit mindestabstand) {
    std::vector<Zeitstrich> striche;
    if (spanne.bis <= spanne.von || mindestabstand <= Zeit(0))
        return striche;
    const Zeit schritt = RunderZeitschritt(mindestabstand);
    const Zeit versatz = Ortszeit(angaben, Zeit(0));
    Zeit ort = versatz + spanne.von;
    if (const Zeit rest = ort % schritt; rest != Zeit(0))
        ort += rest > Zeit(0) ? schritt - rest : -rest;
    for (; ort <= versatz + spanne.bis; ort += schritt)
        striche.push_back({ort - versatz, Strichtext(ort, schritt)});
    return striche;
}

std::string BreitesterZeittext(Zeit schritt) {
    const std::string tageszeit = Tageszeit(hours(22), schritt);
    const std::string datum = Datum(Zeit(days(20000)));
    return datum.size() > tageszeit.size() ? datum : tageszeit;
}

std::string Abstandstext(Zeit dauer) {
    const std::string vorzeichen = dauer < Zeit(0) ? "-" : "";
    const Zeit betrag = dauer < Zeit(0) ? -dauer : dauer;
    const auto ms = static_cast<long long>(std::chrono::round<milliseconds>(betrag).count());
    if (ms < 1000)
        return vorzeichen + Satz("%lld ms", ms);
    if (ms < 60'000)
        return vorzeichen +
               Satz(GetSprachoffset() == Englisch ? "%lld.%03lld s" : "%lld,%03lld s", ms / 1000, ms % 1000);
    const long long sekunden = ms / 1000;
    return vorzeichen + Satz("%lld:%02lld:%02lld", sekunden / 3600, sekunden / 60 % 60, sekunden % 60);
}

} // namespace varnoth
