#include "windowsworte.h"

#include "fehlernummer_windows.h"
#include "systemfehler.h"
#include "textschutz.h"
#include "windowsfehler.h"

#include <QString>

#include <windows.h>

#include <array>
#include <cerrno>

namespace varnoth {

namespace {

std::string WorteDesSystems(unsigned long nummer) {
    std::array<wchar_t, 512> text{};
    const DWORD laenge = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
        nummer, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    const QString worte = QString::fromWCharArray(text.data(), static_cast<qsizetype>(laenge)).trimmed();
    return worte.isEmpty() ? "Windows " + std::to_string(nummer) : Einzeilig(worte.toStdString());
}

} // namespace

std::string Windowsfehler(unsigned long fehler) {
    if (fehler == ERROR_INVALID_FUNCTION) // a device that knows no line format
        return Systemfehler(ENOTTY);
    const int nummer = FehlernummerVon(fehler);
    const bool bekannt = nummer != EIO || IstGeraetefehler(fehler);
    return bekannt ? Systemfehler(nummer) : WorteDesSystems(fehler);
}

} // namespace varnoth
