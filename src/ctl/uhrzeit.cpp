#include "uhrzeit.h"

#include "kalenderzeit.h"
#include "texte.h"

namespace varnoth::ctl {

std::string Uhrzeit() {
    return InForm("%H:%M:%S", Ortszeit(std::chrono::system_clock::now()));
}

std::string Zeitpunkttext() {
    return InForm(GetSprachoffset() == Englisch ? "%m/%d/%Y %H:%M" : "%d.%m.%Y %H:%M",
                  Ortszeit(std::chrono::system_clock::now()));
}

std::string Zeitmarke(std::chrono::system_clock::time_point zeit) {
    const auto ganze = std::chrono::floor<std::chrono::seconds>(zeit);
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(zeit - ganze).count();
    const std::string bruchteil = std::to_string(1000 + rest).substr(1);
    return InForm("%Y-%m-%dT%H:%M:%S.", Weltzeit(zeit)) + bruchteil + "Z";
}

} // namespace varnoth::ctl
