#include "tracedatei.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varnoth {

namespace {

constexpr mode_t NurEigentuemer = 0600;

} // namespace

std::FILE* LegePrivateDateiAn(const std::filesystem::path& pfad) {
    const int nummer = ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, NurEigentuemer);
    if (nummer < 0)
        return nullptr;
    ::fchmod(nummer, NurEigentuemer);
    std::FILE* const datei = ::fdopen(nummer, "wb");
    if (datei == nullptr)
        ::close(nummer);
    else
        std::setvbuf(datei, nullptr, _IONBF, 0);
    return datei;
}

} // namespace varnoth
