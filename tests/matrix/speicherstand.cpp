#include "speicherstand.h"

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace varnoth::pruefung {

namespace {
constexpr std::size_t Kilobyte = 1024;
}

Speicherstand LiesSpeicherstand() {
    ::malloc_trim(0);
    std::size_t ganz = 0;
    std::size_t belegt = 0;
    std::ifstream("/proc/self/statm") >> ganz >> belegt;
    const auto alle = std::filesystem::directory_iterator("/proc/self/fd");
    const auto anzahl = std::distance(begin(alle), end(alle));
    return {belegt * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) / Kilobyte,
            ::mallinfo2().uordblks / Kilobyte, static_cast<std::size_t>(anzahl)};
}

Speicherstand Hoechststand(const Speicherstand& a, const Speicherstand& b) {
    return {std::max(a.belegtKb, b.belegtKb), std::max(a.benutztKb, b.benutztKb),
            std::max(a.deskriptoren, b.deskriptoren)};
}

std::string Speicherzeilen(const std::optional<Speicherstand>& warm, const Speicherstand& ende) {
    const Speicherstand vorher = warm.value_or(Speicherstand{});
    return "memory         " + std::to_string(vorher.belegtKb) + " kB after warm-up, " +
           std::to_string(ende.belegtKb) + " kB at the end (allocated: " + std::to_string(vorher.benutztKb) +
           ", " + std::to_string(ende.benutztKb) + ")\ndescriptors    " +
           std::to_string(vorher.deskriptoren) + ", " + std::to_string(ende.deskriptoren) + "\n";
}

std::string Speicherurteil(const std::optional<Speicherstand>& warm, const Speicherstand& ende,
                           std::optional<std::size_t> hoechstensKb) {
    if (warm && hoechstensKb && ende.benutztKb > warm->benutztKb + *hoechstensKb)
        return "memory grows";
    return warm && ende.deskriptoren > warm->deskriptoren ? "file descriptors stay open" : "";
}

} // namespace varnoth::pruefung
