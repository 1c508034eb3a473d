#include "terminal.h"

#include "abbruchsignal.h"
#include "fehlernummer_windows.h"
#include "systempfad_windows.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace varnoth {

namespace {

constexpr std::size_t LaengsteZeile = 4096;
constexpr std::array<DWORD, 2> Ausgaben{STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};

HANDLE GriffVon(Strom strom) {
    switch (strom) {
    case Strom::Eingabe:
        return ::GetStdHandle(STD_INPUT_HANDLE);
    case Strom::Ausgabe:
        return ::GetStdHandle(STD_OUTPUT_HANDLE);
    case Strom::Fehler:
        break;
    }
    return ::GetStdHandle(STD_ERROR_HANDLE);
}

bool FuehrtWohin(HANDLE griff) {
    return griff != nullptr && griff != INVALID_HANDLE_VALUE && ::GetFileType(griff) != FILE_TYPE_UNKNOWN;
}

HANDLE OeffneKonsole() {
    return ::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                         nullptr, OPEN_EXISTING, 0, nullptr);
}

/// The shell does not wait for a program with windows: its next prompt may stand there already.
void BeginneZeile(HANDLE konsole) {
    CONSOLE_SCREEN_BUFFER_INFO stand{};
    DWORD geschrieben = 0;
    if (::GetConsoleScreenBufferInfo(konsole, &stand) != 0 && stand.dwCursorPosition.X > 0)
        ::WriteConsoleW(konsole, L"\r\n", 2, &geschrieben, nullptr);
}

/// How many of the first bytes are whole characters, at most so many bytes.
std::size_t GanzeZeichen(std::string_view bytes, std::size_t hoechstens) {
    if (bytes.size() <= hoechstens)
        return bytes.size();
    std::size_t ende = hoechstens;
    while (ende > 0 && (static_cast<unsigned char>(bytes[ende]) & 0xC0U) == 0x80U)
        --ende;
    return ende > 0 ? ende : hoechstens;
}

/// In the console's own characters: whatever code page it has set, it shows them.
int SchreibeInKonsole(HANDLE konsole, std::string_view bytes) {
    constexpr std::size_t stueck = 8192; // old consoles take no more at once
    while (!bytes.empty()) {
        const std::size_t ganze = GanzeZeichen(bytes, stueck);
        const std::wstring text = AlsUtf16(bytes.substr(0, ganze));
        bytes.remove_prefix(ganze);
        for (std::wstring_view rest = text; !rest.empty();) {
            DWORD geschrieben = 0;
            if (::WriteConsoleW(konsole, rest.data(), static_cast<DWORD>(rest.size()), &geschrieben,
                                nullptr) == 0)
                return LetzteFehlernummer();
            rest.remove_prefix(geschrieben);
        }
    }
    return 0;
}

std::optional<std::string> LiesKonsolenzeile(HANDLE konsole) {
    constexpr wchar_t Dateiende = 0x1A; // Ctrl+Z
    std::wstring zeile;
    while (zeile.size() < LaengsteZeile && !zeile.ends_with(L'\n')) {
        wchar_t puffer[256];
        DWORD gelesen = 0;
        if (::ReadConsoleW(konsole, puffer, static_cast<DWORD>(std::size(puffer)), &gelesen, nullptr) == 0 ||
            gelesen == 0)
            return std::nullopt;
        zeile.append(puffer, gelesen);
    }
    if (zeile.starts_with(Dateiende))
        return std::nullopt;
    zeile.erase(zeile.find_last_not_of(L"\r\n") + 1);
    return AlsUtf8(zeile);
}

std::optional<std::string> LiesDateizeile(HANDLE datei) {
    std::string zeile;
    while (zeile.size() < LaengsteZeile) {
        char zeichen = 0;
        DWORD gelesen = 0;
        if (::ReadFile(datei, &zeichen, 1, &gelesen, nullptr) == 0 || gelesen == 0)
            return std::nullopt;
        if (zeichen == '\n')
            break;
        zeile += zeichen;
    }
    if (zeile.ends_with('\r'))
        zeile.pop_back();
    return zeile;
}

} // namespace

void NimmTerminalDesAufrufers() {
    // Attaching may replace what was redirected.
    std::array<HANDLE, Ausgaben.size()> griffe{};
    std::ranges::transform(Ausgaben, griffe.begin(), ::GetStdHandle);
    if (std::ranges::all_of(griffe, FuehrtWohin) || ::AttachConsole(ATTACH_PARENT_PROCESS) == 0)
        return;
    const HANDLE konsole = OeffneKonsole();
    BeginneZeile(konsole);
    for (std::size_t i = 0; i < Ausgaben.size(); ++i)
        ::SetStdHandle(Ausgaben[i], FuehrtWohin(griffe[i]) ? griffe[i] : konsole);
}

bool IstTerminal(Strom strom) {
    DWORD art = 0;
    return ::GetConsoleMode(GriffVon(strom), &art) != 0;
}

int Terminalbreite(Strom strom) {
    CONSOLE_SCREEN_BUFFER_INFO stand{};
    if (::GetConsoleScreenBufferInfo(GriffVon(strom), &stand) == 0)
        return 0;
    return stand.srWindow.Right - stand.srWindow.Left + 1;
}

int SchreibeInStrom(Strom strom, std::string_view bytes) {
    constexpr std::size_t stueck = std::size_t{1} << 20;
    const HANDLE griff = GriffVon(strom);
    if (IstTerminal(strom))
        return SchreibeInKonsole(griff, bytes);
    while (!bytes.empty()) {
        DWORD geschrieben = 0;
        const auto laenge = static_cast<DWORD>(std::min(bytes.size(), stueck));
        if (::WriteFile(griff, bytes.data(), laenge, &geschrieben, nullptr) == 0)
            return LetzteFehlernummer();
        if (geschrieben == 0)
            return EIO;
        bytes.remove_prefix(geschrieben);
    }
    return 0;
}

std::optional<std::string> LiesEingabezeile() {
    if (IstAbbruchVerlangt())
        return std::nullopt;
    const HANDLE griff = GriffVon(Strom::Eingabe);
    return IstTerminal(Strom::Eingabe) ? LiesKonsolenzeile(griff) : LiesDateizeile(griff);
}

Zeichenvorrat ZeichenvorratDesNutzers() {
    return Zeichenvorrat::Utf8;
}

} // namespace varnoth
