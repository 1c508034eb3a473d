#include "griff_windows.h"

#include <utility>

#include <windows.h>

namespace varnoth {

Griff::Griff(void* offener) : griff(offener == INVALID_HANDLE_VALUE ? nullptr : offener) {}

Griff::Griff(Griff&& anderer) noexcept : griff(std::exchange(anderer.griff, nullptr)) {}

Griff& Griff::operator=(Griff&& anderer) noexcept {
    std::swap(griff, anderer.griff);
    return *this;
}

Griff::~Griff() {
    Schliesse();
}

void Griff::Schliesse() {
    if (griff != nullptr)
        ::CloseHandle(std::exchange(griff, nullptr));
}

} // namespace varnoth
