#include "geraetename.h"

#include <filesystem>
#include <system_error>

namespace varnoth {

std::string GanzerGeraetename(const std::string& name) {
    std::error_code fehler;
    if (name.find('/') == std::string::npos && !std::filesystem::exists(name, fehler))
        return "/dev/" + name;
    const auto ganzer = std::filesystem::absolute(name, fehler);
    return fehler ? name : ganzer.string();
}

std::string Geraeteziel(const std::string& name) {
    std::error_code fehler;
    const auto ziel = std::filesystem::canonical(name, fehler);
    return fehler ? name : ziel.string();
}

bool KenntComNummern() {
    return false;
}

} // namespace varnoth
