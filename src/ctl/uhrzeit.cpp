#include "uhrzeit.h"

#include "texte.h"

#include <cstddef>
#include <ctime>

namespace varnoth::ctl {

namespace {

std::string InForm(const char* form, const std::tm& zeit) {
    char text[64];
    return {text, std::strftime(text, sizeof text, form, &zeit)};
}

std::tm Ortszeit() {
    const std::time_t sekunden = std::time(nullptr);
    std::tm ortszeit{};
    localtime_r(&sekunden, &ortszeit);
    return ortszeit;
}

} // namespace

std::string Uhrzeit() {
    return InForm("%H:%M:%S", Ortszeit());
}

std::string Zeitpunkttext() {
    return InForm(GetSprachoffset() == Englisch ? "%m/%d/%Y %H:%M" : "%d.%m.%Y %H:%M", Ortszeit());
}

std::string Zeitmarke(std::chrono::system_clock::time_point zeit) {
    const auto ganze = std::chrono::floor<std::chrono::seconds>(zeit);
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(zeit - ganze).count();
    const std::time_t sekunden = std::chrono::system_clock::to_time_t(ganze);
    std::tm weltzeit{};
    gmtime_r(&sekunden, &weltzeit);
    const std::string bruchteil = std::to_string(1000 + rest).substr(1);
    return InForm("%Y-%m-%dT%H:%M:%S.", weltzeit) + bruchteil + "Z";
}

} // namespace varnoth::ctl
