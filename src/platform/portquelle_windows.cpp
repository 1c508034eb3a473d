#include "portquelle.h"

#include "natuerlicheordnung.h"
#include "textschutz.h"
#include "windowsgeraet.h"
#include "windowsports.h"

#include <QString>

#include <windows.h>

#include <initguid.h>

#include <devguid.h>
#include <setupapi.h>
#include <winioctl.h>

#include <algorithm>
#include <array>

namespace varnoth {

namespace {

using Worte = std::array<wchar_t, 512>;

std::string AlsText(const Worte& worte, std::size_t laenge) {
    const QString text = QString::fromWCharArray(worte.data(), static_cast<qsizetype>(laenge));
    return Einzeilig(text.section(QChar(u'\0'), 0, 0).toStdString());
}

/// The text that a key of the registry holds under a name; empty where there is none.
std::string Eintrag(HKEY schluessel, const wchar_t* name) {
    Worte worte{};
    DWORD bytes = sizeof worte;
    const LSTATUS stand =
        RegGetValueW(schluessel, nullptr, name, RRF_RT_REG_SZ, nullptr, worte.data(), &bytes);
    return stand == ERROR_SUCCESS ? AlsText(worte, bytes / sizeof(wchar_t)) : std::string();
}

/// A list of devices of the system, as long as it is looked at.
class Geraeteliste {
public:
    Geraeteliste(const GUID& art, DWORD welche)
        : liste(SetupDiGetClassDevsW(&art, nullptr, nullptr, DIGCF_PRESENT | welche)) {}
    Geraeteliste(const Geraeteliste&) = delete;
    Geraeteliste& operator=(const Geraeteliste&) = delete;
    ~Geraeteliste() {
        if (liste != INVALID_HANDLE_VALUE)
            SetupDiDestroyDeviceInfoList(liste);
    }

    std::vector<Portangabe> Ports() const;

private:
    std::string Portname(SP_DEVINFO_DATA& geraet) const;
    std::string Eigenschaft(SP_DEVINFO_DATA& geraet, DWORD welche) const;
    std::string Instanz(SP_DEVINFO_DATA& geraet) const;

    HDEVINFO liste;
};

/// What the device is opened by; empty for one that is no port.
std::string Geraeteliste::Portname(SP_DEVINFO_DATA& geraet) const {
    const HKEY schluessel =
        SetupDiOpenDevRegKey(liste, &geraet, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_QUERY_VALUE);
    if (schluessel == INVALID_HANDLE_VALUE)
        return {};
    const std::string name = Eintrag(schluessel, L"PortName");
    RegCloseKey(schluessel);
    return name;
}

std::string Geraeteliste::Eigenschaft(SP_DEVINFO_DATA& geraet, DWORD welche) const {
    Worte worte{};
    DWORD bytes = 0;
    const bool gelesen = SetupDiGetDeviceRegistryPropertyW(
        liste, &geraet, welche, nullptr, reinterpret_cast<BYTE*>(worte.data()), sizeof worte, &bytes);
    return gelesen ? AlsText(worte, bytes / sizeof(wchar_t)) : std::string();
}

std::string Geraeteliste::Instanz(SP_DEVINFO_DATA& geraet) const {
    Worte worte{};
    DWORD laenge = 0;
    const bool gelesen =
        SetupDiGetDeviceInstanceIdW(liste, &geraet, worte.data(), static_cast<DWORD>(worte.size()), &laenge);
    return gelesen ? AlsText(worte, laenge) : std::string();
}

std::vector<Portangabe> Geraeteliste::Ports() const {
    std::vector<Portangabe> ports;
    SP_DEVINFO_DATA geraet{};
    geraet.cbSize = sizeof geraet;
    for (DWORD i = 0; liste != INVALID_HANDLE_VALUE && SetupDiEnumDeviceInfo(liste, i, &geraet); ++i) {
        const std::string name = Portname(geraet);
        ports.push_back({.geraet = Windowsgeraet(name),
                         .bezeichnung = OhnePortnamen(Eigenschaft(geraet, SPDRP_FRIENDLYNAME), name),
                         .hersteller = Eigenschaft(geraet, SPDRP_MFG),
                         .seriennummer = SeriennummerAusInstanz(Instanz(geraet))});
    }
    return ports;
}

/// The ports that drivers have entered under their names and nothing else.
std::vector<Portangabe> EingetragenePorts() {
    std::vector<Portangabe> ports;
    HKEY schluessel = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_QUERY_VALUE,
                      &schluessel) != ERROR_SUCCESS)
        return ports;
    Worte name{};
    for (DWORD i = 0;; ++i) {
        DWORD laenge = static_cast<DWORD>(name.size());
        if (RegEnumValueW(schluessel, i, name.data(), &laenge, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        ports.push_back({.geraet = Windowsgeraet(Eintrag(schluessel, name.data()))});
    }
    RegCloseKey(schluessel);
    return ports;
}

bool IstDruckerport(const std::string& geraet) {
    return geraet.starts_with("LPT");
}

/// Adds the ports that are not in the list yet; the class of ports also holds those of printers.
void Ergaenze(std::vector<Portangabe>& ports, const std::vector<Portangabe>& weitere) {
    for (const Portangabe& port : weitere)
        if (!port.geraet.empty() && !IstDruckerport(port.geraet) &&
            std::ranges::find(ports, port.geraet, &Portangabe::geraet) == ports.end())
            ports.push_back(port);
}

} // namespace

std::vector<Portangabe> PortsOhneBefund(const Portwurzeln& /*wurzeln*/) {
    std::vector<Portangabe> ports;
    Ergaenze(ports, Geraeteliste(GUID_DEVCLASS_PORTS, 0).Ports());
    Ergaenze(ports, Geraeteliste(GUID_DEVINTERFACE_COMPORT, DIGCF_DEVICEINTERFACE).Ports());
    Ergaenze(ports, EingetragenePorts());
    std::ranges::sort(ports, NatuerlichDavor, &Portangabe::geraet);
    return ports;
}

bool KannPortSein(const std::string& pfad, const Portwurzeln& /*wurzeln*/) {
    return KannWindowsgeraetSein(pfad);
}

} // namespace varnoth
