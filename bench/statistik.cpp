#include "statistik.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace varnoth::bench {

double Quantil(std::vector<double> werte, double anteil) {
    std::ranges::sort(werte);
    const auto letzter = static_cast<double>(werte.size() - 1);
    return werte.at(static_cast<std::size_t>(std::lround(anteil * letzter)));
}

double Median(const std::vector<double>& werte) {
    return Quantil(werte, 0.5);
}

double Uhrzeit() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double Rechenzeit() {
    const auto sekunden = [](const timeval& zeit) {
        return static_cast<double>(zeit.tv_sec) + 1e-6 * static_cast<double>(zeit.tv_usec);
    };
    rusage verbrauch{};
    ::getrusage(RUSAGE_SELF, &verbrauch);
    return sekunden(verbrauch.ru_utime) + sekunden(verbrauch.ru_stime);
}

} // namespace varnoth::bench
