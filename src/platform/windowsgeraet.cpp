#include "windowsgeraet.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::string_view Vorsatz = R"(\\.\)";
constexpr std::string_view Com = "COM";

std::string_view OhneLeerzeichen(std::string_view text) {
    const auto anfang = std::min(text.find_first_not_of(" \t"), text.size());
    text.remove_prefix(anfang);
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

std::string_view Nackt(std::string_view name) {
    name = OhneLeerzeichen(name);
    return name.starts_with(Vorsatz) ? name.substr(Vorsatz.size()) : name;
}

char Gross(char zeichen) {
    return zeichen >= 'a' && zeichen <= 'z' ? static_cast<char>(zeichen - 'a' + 'A') : zeichen;
}

bool IstZiffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

bool IstNumeriert(std::string_view name) {
    return name.size() > Com.size() && std::ranges::equal(name.substr(0, Com.size()), Com, {}, Gross) &&
           std::ranges::all_of(name.substr(Com.size()), IstZiffer);
}

} // namespace

std::string Windowsgeraet(std::string_view name) {
    const std::string_view nackt = Nackt(name);
    if (IstNumeriert(nackt))
        return std::string(Com) + std::string(nackt.substr(Com.size()));
    return std::string(nackt);
}

std::string WindowsgeraetPfad(std::string_view name) {
    const std::string geraet = Windowsgeraet(name);
    return geraet.empty() ? geraet : std::string(Vorsatz) + geraet;
}

bool KannWindowsgeraetSein(std::string_view name) {
    const std::string_view nackt = Nackt(name);
    return !nackt.empty() && nackt.find_first_of(R"(\/:.)") == std::string_view::npos;
}

} // namespace varnoth
