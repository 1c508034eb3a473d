#include "servicetext.h"

#include "startzustand.h"

namespace varnoth::modService {

namespace {
std::string serviceText;
const Startwert startwert(serviceText);
} // namespace

void SetzeServiceText(const std::string& text) {
    serviceText = text;
}

const std::string& GetServiceText() {
    return serviceText;
}

} // namespace varnoth::modService
