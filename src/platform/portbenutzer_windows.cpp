#include "portbenutzer.h"

namespace varnoth {

// Who has a port open can be found out only with the rights of an administrator, handle by handle.

std::vector<std::vector<std::string>> ProzesseAnGeraeten(const std::vector<std::string>& pfade,
                                                         const std::string& /*proc*/) {
    return std::vector<std::vector<std::string>>(pfade.size());
}

std::vector<std::vector<std::string>> SperrendeAnGeraeten(const std::vector<std::string>& pfade,
                                                          const std::string& /*proc*/) {
    return std::vector<std::vector<std::string>>(pfade.size());
}

std::vector<std::string> ProzesseAn(const std::string& /*pfad*/) {
    return {};
}

} // namespace varnoth
