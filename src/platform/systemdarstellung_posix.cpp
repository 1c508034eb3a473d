#include "systemdarstellung.h"

namespace varnoth {

bool SystemWillDunkel() {
    return false;
}

void FolgeImRahmenDemSystem() {}

} // namespace varnoth
