#include "feinschlaf.h"

#include "weckuhr.h"

#include <windows.h>

namespace varnoth {

void WeckePuenktlich() {}

void SchlafeFein(Zeit dauer) {
    static thread_local Weckuhr uhr;
    if (dauer <= Zeit{0})
        return;
    uhr.Stelle(dauer);
    WaitForSingleObject(uhr.Griff(), INFINITE);
}

Zeit LaengsteWeckdauer() {
    return std::chrono::microseconds(600);
}

} // namespace varnoth
