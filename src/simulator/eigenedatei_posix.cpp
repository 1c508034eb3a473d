#include "eigenedatei.h"

#include <fcntl.h>

#include <array>

namespace varnoth::simulator {

namespace {

constexpr int OhneVerweis = O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t NurEigentuemer = 0600;

} // namespace

bool IstVerweis(const std::filesystem::path& pfad) {
    std::error_code ohneBelang;
    return std::filesystem::is_symlink(std::filesystem::symlink_status(pfad, ohneBelang));
}

Dateideskriptor OeffneZumSchreiben(const std::filesystem::path& pfad) {
    return Dateideskriptor(::open(pfad.c_str(), O_WRONLY | O_CREAT | O_TRUNC | OhneVerweis, NurEigentuemer));
}

bool SchreibeAlles(const Dateideskriptor& datei, std::string_view text) {
    while (!text.empty()) {
        const ssize_t geschrieben = ::write(datei.Nummer(), text.data(), text.size());
        if (geschrieben <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return true;
}

bool LiesAlles(const std::filesystem::path& pfad, std::string& inhalt) {
    const Dateideskriptor datei(::open(pfad.c_str(), O_RDONLY | OhneVerweis));
    if (datei.Nummer() < 0)
        return false;
    std::array<char, 4096> puffer;
    for (ssize_t anzahl = 0; (anzahl = ::read(datei.Nummer(), puffer.data(), puffer.size())) != 0;) {
        if (anzahl < 0)
            return false;
        inhalt.append(puffer.data(), static_cast<std::size_t>(anzahl));
    }
    return true;
}

} // namespace varnoth::simulator
