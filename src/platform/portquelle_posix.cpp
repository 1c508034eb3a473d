#include "portquelle.h"

#include "natuerlicheordnung.h"
#include "pseudoterminal.h"
#include "texte.h"
#include "textschutz.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <utility>

namespace varnoth {

namespace {

namespace fs = std::filesystem;

constexpr std::int16_t TextPseudoterminal = 8200;

/// The first line of a small file of the system; empty where it cannot be read.
std::string Zeile(const fs::path& datei) {
    std::string zeile;
    std::getline(std::ifstream(datei), zeile);
    return zeile;
}

std::optional<int> Zahl(const std::string& text) {
    int zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    return fehler == std::errc{} ? std::optional(zahl) : std::nullopt;
}

std::vector<fs::path> Eintraege(const fs::path& ordner) {
    std::vector<fs::path> eintraege;
    std::error_code fehler;
    for (fs::directory_iterator eintrag(ordner, fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler))
        eintraege.push_back(eintrag->path());
    std::ranges::sort(eintraege, NatuerlichDavor, [](const fs::path& pfad) { return pfad.string(); });
    return eintraege;
}

bool IstGeraetedatei(const fs::path& pfad) {
    struct stat da {};
    return stat(pfad.c_str(), &da) == 0 && S_ISCHR(da.st_mode);
}

/// The system lists every terminal. Those without hardware have no `device`; what the board could have and
/// has not, the driver calls a UART of type 0.
bool IstPort(const fs::path& klasse) {
    std::error_code fehler;
    return fs::exists(klasse / "device", fehler) && Zahl(Zeile(klasse / "type")).value_or(-1) != 0;
}

/// The USB device that a terminal belongs to, some folders above its own; empty for another one.
fs::path UsbGeraet(const fs::path& klasse) {
    constexpr int Weit = 5;
    std::error_code fehler;
    fs::path ordner = fs::canonical(klasse / "device", fehler);
    for (int i = 0; i < Weit && !fehler && ordner.has_relative_path(); ++i, ordner = ordner.parent_path())
        if (fs::exists(ordner / "idVendor", fehler))
            return ordner;
    return {};
}

std::string Uart(const fs::path& klasse) {
    constexpr std::pair<int, const char*> Bekannte[] = {
        {1, " 8250"}, {2, " 16450"}, {3, " 16550"}, {4, " 16550A"}};
    const auto* const bekannter = std::ranges::find(Bekannte, Zahl(Zeile(klasse / "type")).value_or(0),
                                                    &std::pair<int, const char*>::first);
    return std::string("UART") + (bekannter != std::end(Bekannte) ? bekannter->second : "");
}

Portangabe LiesPort(const fs::path& klasse, const fs::path& geraet) {
    Portangabe port{.geraet = geraet.string()};
    const fs::path usb = UsbGeraet(klasse);
    port.bezeichnung = usb.empty() ? Uart(klasse) : Einzeilig(Zeile(usb / "product"));
    port.hersteller = usb.empty() ? "" : Einzeilig(Zeile(usb / "manufacturer"));
    port.seriennummer = usb.empty() ? "" : Einzeilig(Zeile(usb / "serial"));
    const fs::path verzoegerung = klasse / "device" / "latency_timer";
    port.verzoegerungMs = Zahl(Zeile(verzoegerung));
    if (port.verzoegerungMs)
        port.verzoegerungsdatei = verzoegerung.string();
    return port;
}

std::vector<Portangabe> PortsDesSystems(const Portwurzeln& wurzeln) {
    std::vector<Portangabe> ports;
    for (const fs::path& klasse : Eintraege(fs::path(wurzeln.sys) / "class" / "tty")) {
        const fs::path geraet = fs::path(wurzeln.dev) / klasse.filename();
        if (IstPort(klasse) && IstGeraetedatei(geraet))
            ports.push_back(LiesPort(klasse, geraet));
    }
    return ports;
}

/// Links that lead to the ports by what is plugged in, and behind them those by where it is.
void LiesStabileNamen(std::vector<Portangabe>& ports, const fs::path& dev) {
    for (const char* art : {"by-id", "by-path"})
        for (const fs::path& name : Eintraege(dev / "serial" / art)) {
            std::error_code fehler;
            const fs::path ziel = fs::read_symlink(name, fehler);
            const auto port = std::ranges::find(
                ports, (name.parent_path() / ziel).lexically_normal().string(), &Portangabe::geraet);
            if (!fehler && port != ports.end())
                port->stabileNamen.push_back(name.string());
        }
}

bool IstTerminal(const struct stat& da, const fs::path& sys) {
    if (!S_ISCHR(da.st_mode))
        return false;
    const std::string nummer = std::to_string(major(da.st_rdev)) + ":" + std::to_string(minor(da.st_rdev));
    std::error_code fehler;
    return IstPseudoterminal(da.st_rdev) ||
           fs::read_symlink(sys / "dev" / "char" / nummer / "subsystem", fehler).filename() == "tty";
}

bool FuehrtZuTerminal(const fs::path& pfad, const fs::path& sys) {
    struct stat da {};
    return stat(pfad.c_str(), &da) == 0 && IstTerminal(da, sys);
}

std::vector<Portangabe> PortsDesOrdners(const Portwurzeln& wurzeln) {
    std::vector<Portangabe> ports;
    if (wurzeln.ordner.empty())
        return ports;
    for (const fs::path& pfad : Eintraege(wurzeln.ordner))
        if (FuehrtZuTerminal(pfad, wurzeln.sys))
            ports.push_back({.geraet = pfad.string(), .bezeichnung = LadeText(TextPseudoterminal)});
    return ports;
}

} // namespace

std::vector<Portangabe> PortsOhneBefund(const Portwurzeln& wurzeln) {
    auto ports = PortsDesSystems(wurzeln);
    LiesStabileNamen(ports, wurzeln.dev);
    std::ranges::move(PortsDesOrdners(wurzeln), std::back_inserter(ports));
    return ports;
}

bool KannPortSein(const std::string& pfad, const Portwurzeln& wurzeln) {
    struct stat da {};
    return stat(pfad.c_str(), &da) != 0 || IstTerminal(da, wurzeln.sys);
}

} // namespace varnoth
