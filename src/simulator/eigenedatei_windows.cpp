#include "eigenedatei.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace varnoth::simulator {

namespace {

constexpr int Immer = _O_BINARY | _O_NOINHERIT;

/// The system follows links when it opens a file; who could swap one in between may write in this user's
/// folder anyhow.
Dateideskriptor Oeffne(const std::filesystem::path& pfad, int wie) {
    if (!IstVerweis(pfad))
        return Dateideskriptor(::_wopen(pfad.c_str(), wie | Immer, _S_IREAD | _S_IWRITE));
    errno = ELOOP;
    return {};
}

} // namespace

bool IstVerweis(const std::filesystem::path& pfad) {
    std::error_code ohneBelang;
    return std::filesystem::is_symlink(std::filesystem::symlink_status(pfad, ohneBelang));
}

Dateideskriptor OeffneZumSchreiben(const std::filesystem::path& pfad) {
    return Oeffne(pfad, _O_WRONLY | _O_CREAT | _O_TRUNC);
}

bool SchreibeAlles(const Dateideskriptor& datei, std::string_view text) {
    constexpr std::size_t hoechstens = 1 << 20;
    while (!text.empty()) {
        const int geschrieben =
            ::_write(datei.Nummer(), text.data(), static_cast<unsigned>(std::min(text.size(), hoechstens)));
        if (geschrieben <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return true;
}

bool LiesAlles(const std::filesystem::path& pfad, std::string& inhalt) {
    const Dateideskriptor datei = Oeffne(pfad, _O_RDONLY);
    if (datei.Nummer() < 0)
        return false;
    std::array<char, 4096> puffer;
    for (int anzahl = 0; (anzahl = ::_read(datei.Nummer(), puffer.data(), puffer.size())) != 0;) {
        if (anzahl < 0)
            return false;
        inhalt.append(puffer.data(), static_cast<std::size_t>(anzahl));
    }
    return true;
}

} // namespace varnoth::simulator
