#include "dateioeffnung_windows.h"

#include "fehlernummer_windows.h"
#include "geduldig_windows.h"
#include "systemfehler.h"
#include "systempfad_windows.h"

#include <algorithm>
#include <utility>

#include <windows.h>

namespace varnoth {

namespace {

struct Weise {
    DWORD zugriff;
    DWORD mitAnderen;
    DWORD anlegen;
    DWORD flaggen;
};

// Whoever waits at a pipe that stands in a file's place learns nothing of this user.
constexpr DWORD Immer = FILE_ATTRIBUTE_NORMAL | SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS;

Weise WeiseVon(Oeffnung wie) {
    switch (wie) {
    case Oeffnung::Neu:
        return {GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW,
                Immer | FILE_FLAG_OPEN_REPARSE_POINT};
    case Oeffnung::Anhaengen:
        return {GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS, Immer};
    case Oeffnung::Lesen:
        break;
    }
    return {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING, Immer};
}

bool SchreibeStueck(const Griff& datei, std::uint64_t stelle, std::string_view bytes, DWORD& geschrieben) {
    OVERLAPPED wo{};
    wo.Offset = static_cast<DWORD>(stelle);
    wo.OffsetHigh = static_cast<DWORD>(stelle >> 32);
    return ::WriteFile(datei.Wert(), bytes.data(), static_cast<DWORD>(bytes.size()), &geschrieben, &wo) != 0;
}

void Kuerze(const Griff& datei, std::uint64_t laenge) {
    LARGE_INTEGER ende{};
    ende.QuadPart = static_cast<LONGLONG>(laenge);
    if (::SetFilePointerEx(datei.Wert(), ende, nullptr, FILE_BEGIN) != 0)
        ::SetEndOfFile(datei.Wert());
}

} // namespace

std::string Dateifehler(int fehler) {
    if (fehler == KeineDatei)
        return KeineGewoehnlicheDatei();
    return fehler == 0 ? std::string() : Systemfehler(fehler);
}

int Dateihindernis(const std::wstring& systempfad) {
    if (systempfad.empty())
        return ENOENT;
    if (!KannDateiSein(systempfad))
        return KeineDatei;
    const DWORD merkmale = ::GetFileAttributesW(systempfad.c_str());
    const bool ordner = merkmale != INVALID_FILE_ATTRIBUTES && (merkmale & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return ordner ? EISDIR : 0;
}

Geoeffnet OeffneDatei(std::string_view pfad, Oeffnung wie) {
    const std::wstring systempfad = Systempfad(pfad);
    if (const int fehler = Dateihindernis(systempfad);
        fehler != 0 && (wie != Oeffnung::Neu || fehler != EISDIR))
        return {.fehler = fehler};
    const auto [zugriff, mitAnderen, anlegen, flaggen] = WeiseVon(wie);
    Griff datei;
    const int fehler =
        Geduldig([&, zugriff = zugriff, mitAnderen = mitAnderen, anlegen = anlegen, flaggen = flaggen] {
            datei = Griff(
                ::CreateFileW(systempfad.c_str(), zugriff, mitAnderen, nullptr, anlegen, flaggen, nullptr));
            return datei ? 0 : LetzteFehlernummer();
        });
    if (fehler != 0)
        return {.fehler = fehler};
    if (::GetFileType(datei.Wert()) != FILE_TYPE_DISK)
        return {.fehler = KeineDatei};
    return {.datei = std::move(datei)};
}

std::uint64_t Dateilaenge(const Griff& datei) {
    LARGE_INTEGER laenge{};
    return ::GetFileSizeEx(datei.Wert(), &laenge) != 0 ? static_cast<std::uint64_t>(laenge.QuadPart) : 0;
}

int SchreibeAb(const Griff& datei, std::uint64_t stelle, std::string_view bytes) {
    constexpr std::size_t hoechstens = std::size_t{1} << 24;
    for (std::uint64_t hier = stelle; !bytes.empty();) {
        DWORD geschrieben = 0;
        const bool gelungen = SchreibeStueck(datei, hier, bytes.substr(0, hoechstens), geschrieben);
        if (!gelungen || geschrieben == 0) {
            const int fehler = gelungen ? ENOSPC : LetzteFehlernummer();
            Kuerze(datei, stelle);
            return fehler;
        }
        hier += geschrieben;
        bytes.remove_prefix(geschrieben);
    }
    return 0;
}

int BringeAufDatentraeger(const Griff& datei) {
    if (::FlushFileBuffers(datei.Wert()) != 0)
        return 0;
    const DWORD fehler = ::GetLastError();
    const bool unbekannt = fehler == ERROR_INVALID_FUNCTION || fehler == ERROR_NOT_SUPPORTED;
    return unbekannt ? 0 : FehlernummerVon(fehler);
}

std::optional<Dateikennung> DateikennungVon(const Griff& datei) {
    BY_HANDLE_FILE_INFORMATION stand{};
    if (!datei || ::GetFileInformationByHandle(datei.Wert(), &stand) == 0)
        return std::nullopt;
    return Dateikennung{stand.dwVolumeSerialNumber,
                        (std::uint64_t{stand.nFileIndexHigh} << 32) | stand.nFileIndexLow};
}

std::optional<Dateikennung> DateikennungDort(const std::wstring& systempfad, bool folgtLinks) {
    constexpr DWORD mitAllen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const DWORD flaggen = FILE_FLAG_BACKUP_SEMANTICS | (folgtLinks ? 0 : FILE_FLAG_OPEN_REPARSE_POINT);
    if (!KannDateiSein(systempfad))
        return std::nullopt;
    return DateikennungVon(Griff(::CreateFileW(systempfad.c_str(), FILE_READ_ATTRIBUTES, mitAllen, nullptr,
                                               OPEN_EXISTING, flaggen, nullptr)));
}

} // namespace varnoth
