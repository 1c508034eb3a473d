#include "programmumgebung.h"

#include "systempfad_windows.h"

#include <windows.h>

#include <shellapi.h>

#include <string_view>

namespace varnoth {

namespace {

std::string Fenstersprache() {
    return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_GERMAN ? "de" : "en";
}

} // namespace

/// main gets them in the old code page, in which many characters are lost.
std::vector<std::string> Programmworte(int /*anzahl*/, char** /*worte*/) {
    int anzahl = 0;
    wchar_t** const breite = ::CommandLineToArgvW(::GetCommandLineW(), &anzahl);
    std::vector<std::string> worte;
    for (int i = 1; breite != nullptr && i < anzahl; ++i)
        worte.push_back(AlsUtf8(breite[i]));
    ::LocalFree(breite);
    return worte;
}

std::string Umgebungswert(const char* name) {
    std::wstring wert(::GetEnvironmentVariableW(AlsUtf16(name).c_str(), nullptr, 0), L'\0');
    if (!wert.empty())
        wert.resize(
            ::GetEnvironmentVariableW(AlsUtf16(name).c_str(), wert.data(), static_cast<DWORD>(wert.size())));
    if (wert.empty() && std::string_view(name) == "LANG")
        return Fenstersprache();
    return AlsUtf8(wert);
}

} // namespace varnoth
