#include "geraeteport.h"

#include "qtseriellerport.h"

namespace varnoth {

std::unique_ptr<SeriellerPort> MacheGeraeteport() {
    return std::make_unique<QtSeriellerPort>();
}

} // namespace varnoth
