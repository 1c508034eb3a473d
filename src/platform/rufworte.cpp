#include "rufworte.h"

#include "utf8.h"

#include <QDir>
#include <QString>

#include <algorithm>
#include <cstdint>

namespace varnoth {

namespace {

/// Not so the names that Qt has for what it keeps in the program itself.
bool IstAbsolut(std::string_view pfad) {
    return !pfad.starts_with(':') &&
           QDir::isAbsolutePath(QString::fromUtf8(pfad.data(), static_cast<qsizetype>(pfad.size())));
}

} // namespace

std::optional<std::string> GerufenerPfad(std::string_view anruf) {
    if (!anruf.starts_with(Rufgruss))
        return std::nullopt;
    anruf.remove_prefix(Rufgruss.size());
    const bool brauchbar = anruf.find('\0') == std::string_view::npos && IstUtf8(anruf) && IstAbsolut(anruf);
    return brauchbar ? std::optional(std::string(anruf)) : std::nullopt;
}

Ruffrist::Ruffrist(Zeit dauer) : ende(std::chrono::steady_clock::now() + dauer) {}

int Ruffrist::Rest() const {
    const auto rest = ende - std::chrono::steady_clock::now();
    return static_cast<int>(
        std::max<std::int64_t>(0, std::chrono::ceil<std::chrono::milliseconds>(rest).count()));
}

} // namespace varnoth
