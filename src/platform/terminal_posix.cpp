#include "terminal.h"

#include "abbruchsignal.h"

#include <langinfo.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <initializer_list>

namespace varnoth {

namespace {

/// Whoever has started the program may have made a stream that does not block.
void WarteBisFrei(int nummer) {
    pollfd eines{nummer, POLLOUT, 0};
    ::poll(&eines, 1, -1);
}

/// Waits until a byte can be read. False when the user has interrupted the program: of a signal that comes
/// just before it waits, a read would not hear.
bool WarteAufEingabe() {
    constexpr int BlickMs = 100;
    pollfd eines{STDIN_FILENO, POLLIN, 0};
    while (!IstAbbruchVerlangt())
        if (::poll(&eines, 1, BlickMs) > 0)
            return true;
    return false;
}

/// The character set in the name of a locale that is not installed: "UTF-8" of "de_DE.UTF-8".
std::string GewuenschterSatz() {
    for (const char* const variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* const wert = std::getenv(variable);
        if (wert == nullptr || *wert == '\0')
            continue;
        const std::string name = wert;
        const auto punkt = name.find('.');
        return punkt == std::string::npos ? std::string() : name.substr(punkt + 1);
    }
    return {};
}

std::string InGrossbuchstaben(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char zeichen) { return static_cast<char>(std::toupper(zeichen)); });
    return text;
}

} // namespace

void NimmTerminalDesAufrufers() {}

bool IstTerminal(Strom strom) {
    return ::isatty(static_cast<int>(strom)) == 1;
}

int Terminalbreite(Strom strom) {
    winsize groesse{};
    return ::ioctl(static_cast<int>(strom), TIOCGWINSZ, &groesse) == 0 ? groesse.ws_col : 0;
}

int SchreibeInStrom(Strom strom, std::string_view bytes) {
    const int nummer = static_cast<int>(strom);
    while (!bytes.empty()) {
        const ssize_t geschrieben = ::write(nummer, bytes.data(), bytes.size());
        if (geschrieben >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
        else if (errno == EAGAIN)
            WarteBisFrei(nummer);
        else if (errno != EINTR)
            return errno;
    }
    return 0;
}

std::optional<std::string> LiesEingabezeile() {
    constexpr std::size_t Laengste = 4096;
    std::string zeile;
    char zeichen = 0;
    while (zeile.size() < Laengste) {
        if (!WarteAufEingabe() || ::read(STDIN_FILENO, &zeichen, 1) != 1)
            return std::nullopt;
        if (zeichen == '\n')
            break;
        zeile += zeichen;
    }
    return zeile;
}

Zeichenvorrat ZeichenvorratDesNutzers() {
    const bool bekannt = std::setlocale(LC_CTYPE, "") != nullptr;
    const std::string name = InGrossbuchstaben(bekannt ? ::nl_langinfo(CODESET) : GewuenschterSatz());
    if (name == "UTF-8" || name == "UTF8")
        return Zeichenvorrat::Utf8;
    return name.starts_with("ISO-8859-1") || name.starts_with("ISO8859-1") ? Zeichenvorrat::Latin1
                                                                           : Zeichenvorrat::Ascii;
}

} // namespace varnoth
