#include "systempfad_windows.h"

#include <algorithm>
#include <cwctype>

#include <windows.h>

namespace varnoth {

namespace {

constexpr std::wstring_view Langes = L"\\\\?\\";
constexpr std::wstring_view LangesNetz = L"\\\\?\\UNC\\";
constexpr std::wstring_view Geraet = L"\\\\.\\";
constexpr std::wstring_view Netz = L"\\\\";

/// The whole path in the system's own spelling, as long as it is.
std::wstring Ganzer(const std::wstring& pfad) {
    std::wstring ganzer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD laenge =
            ::GetFullPathNameW(pfad.c_str(), static_cast<DWORD>(ganzer.size()), ganzer.data(), nullptr);
        if (laenge == 0)
            return pfad;
        const bool passt = laenge < ganzer.size();
        ganzer.resize(laenge);
        if (passt)
            return ganzer;
    }
}

/// Without its first part and the separator behind that.
std::wstring_view NachErstem(std::wstring_view pfad) {
    const auto trenner = pfad.find(L'\\');
    return trenner == std::wstring_view::npos ? std::wstring_view() : pfad.substr(trenner + 1);
}

bool IstRohr(std::wstring_view netzpfad) {
    constexpr std::wstring_view name = L"pipe";
    const std::wstring_view freigabe = NachErstem(netzpfad);
    const std::wstring_view erster = freigabe.substr(0, freigabe.find(L'\\'));
    return std::ranges::equal(
        erster, name, [](wchar_t a, wchar_t b) { return std::towlower(static_cast<wint_t>(a)) == b; });
}

} // namespace

std::wstring AlsUtf16(std::string_view utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const int laenge = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(std::max(laenge, 0)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, text.data(), laenge);
    return text;
}

std::string AlsUtf8(std::wstring_view utf16) {
    const int zeichen = static_cast<int>(utf16.size());
    const int laenge = ::WideCharToMultiByte(CP_UTF8, 0, utf16.data(), zeichen, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(std::max(laenge, 0)), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, utf16.data(), zeichen, text.data(), laenge, nullptr, nullptr);
    return text;
}

std::wstring Systempfad(std::string_view utf8) {
    std::wstring pfad = AlsUtf16(utf8);
    if (pfad.empty() || pfad.starts_with(Langes))
        return pfad;
    pfad = Ganzer(pfad);
    if (pfad.starts_with(Geraet))
        return pfad;
    if (pfad.starts_with(Netz))
        return pfad.replace(0, Netz.size(), LangesNetz);
    return pfad.insert(0, Langes);
}

bool KannDateiSein(std::wstring_view systempfad) {
    if (systempfad.starts_with(LangesNetz))
        return !IstRohr(systempfad.substr(LangesNetz.size()));
    constexpr std::size_t laufwerk = 3; // "C:\"
    const std::wstring_view rest =
        systempfad.starts_with(Langes) ? systempfad.substr(Langes.size()) : std::wstring_view();
    return rest.size() >= laufwerk && std::iswalpha(static_cast<wint_t>(rest[0])) != 0 && rest[1] == L':' &&
           rest[2] == L'\\';
}

} // namespace varnoth
