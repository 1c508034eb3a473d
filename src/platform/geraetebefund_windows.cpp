#include "geraetebefund.h"

#include "windowsgeraet.h"

#include <QString>

#include <windows.h>

#include <array>

namespace varnoth {

Portbefund BefundDesGeraets(const std::string& pfad) {
    const std::wstring name = QString::fromStdString(Windowsgeraet(pfad)).toStdWString();
    std::array<wchar_t, 1024> dahinter{};
    // A name that leads to more than fits is there all the same.
    const bool da = !name.empty() && (QueryDosDeviceW(name.c_str(), dahinter.data(),
                                                      static_cast<DWORD>(dahinter.size())) != 0 ||
                                      GetLastError() == ERROR_INSUFFICIENT_BUFFER);
    if (!da)
        return {.hindernis = Hindernis::Fehlt};
    return {.benutzungUnbekannt = true};
}

} // namespace varnoth
