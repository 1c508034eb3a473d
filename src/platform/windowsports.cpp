#include "windowsports.h"

namespace varnoth {

namespace {

constexpr std::string_view Usb = "USB\\";
constexpr std::string_view Ftdi = "FTDIBUS\\";

/// What the system makes up for a device without a number, from the socket that it is plugged into.
bool IstErfunden(std::string_view nummer) {
    return nummer.find('&') != std::string_view::npos;
}

std::string_view NachLetztem(std::string_view text, char trenner) {
    return text.substr(text.find_last_of(trenner) + 1);
}

/// This driver puts a letter for the port behind the adapter's number.
std::string_view FtdiNummer(std::string_view instanz) {
    const std::string_view geraet = instanz.substr(0, instanz.find_last_of('\\'));
    std::string_view nummer = NachLetztem(geraet, '+');
    if (!nummer.empty())
        nummer.remove_suffix(1);
    return nummer;
}

} // namespace

std::string OhnePortnamen(std::string_view anzeigename, std::string_view port) {
    const std::string anhang = " (" + std::string(port) + ")";
    if (anzeigename.ends_with(anhang))
        anzeigename.remove_suffix(anhang.size());
    return std::string(anzeigename);
}

std::string SeriennummerAusInstanz(std::string_view instanz) {
    std::string_view nummer;
    if (instanz.starts_with(Ftdi))
        nummer = FtdiNummer(instanz.substr(Ftdi.size()));
    else if (instanz.starts_with(Usb))
        nummer = NachLetztem(instanz, '\\');
    return IstErfunden(nummer) ? std::string() : std::string(nummer);
}

} // namespace varnoth
