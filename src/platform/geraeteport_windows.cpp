#include "geraeteport.h"

#include "windowsport.h"

namespace varnoth {

std::unique_ptr<SeriellerPort> MacheGeraeteport() {
    return std::make_unique<WindowsPort>();
}

} // namespace varnoth
