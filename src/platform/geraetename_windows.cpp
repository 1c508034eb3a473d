#include "geraetename.h"

namespace varnoth {

std::string GanzerGeraetename(const std::string& name) {
    return name;
}

std::string Geraeteziel(const std::string& name) {
    return name;
}

bool KenntComNummern() {
    return true;
}

} // namespace varnoth
