#include "programmversion.h"

namespace varnoth {

std::string_view Programmversion() {
    return VARNOTH_VERSION;
}

} // namespace varnoth
