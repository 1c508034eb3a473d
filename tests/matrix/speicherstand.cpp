#include "speicherstand.h"

#include <malloc.h>
#include <unistd.h>

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

} // namespace varnoth::pruefung
