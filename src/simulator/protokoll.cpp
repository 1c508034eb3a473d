#include "protokoll.h"

#include <cstdio>

namespace varnoth::simulator {

void Protokoll::Gib(const std::string& text) {
    char zeit[40];
    std::snprintf(zeit, sizeof zeit, "%.6f ", std::chrono::duration<double>(jetzt).count());
    ziel(zeit + text);
}

} // namespace varnoth::simulator
