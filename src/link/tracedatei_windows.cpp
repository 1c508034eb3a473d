#include "tracedatei.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

namespace varnoth {

std::FILE* LegePrivateDateiAn(const std::filesystem::path& pfad) {
    const int nummer = ::_wopen(pfad.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                                _S_IREAD | _S_IWRITE);
    if (nummer < 0)
        return nullptr;
    std::FILE* const datei = ::_fdopen(nummer, "wb");
    if (datei == nullptr)
        ::_close(nummer);
    else
        std::setvbuf(datei, nullptr, _IONBF, 0);
    return datei;
}

} // namespace varnoth
