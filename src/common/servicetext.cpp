#include "servicetext.h"

namespace varnoth::modService {

namespace {
std::string serviceText;
}

void SetzeServiceText(const std::string& text) {
    serviceText = text;
}

const std::string& GetServiceText() {
    return serviceText;
}

void Zuruecksetzen() {
    serviceText.clear();
}

} // namespace varnoth::modService
