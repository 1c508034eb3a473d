#include "feinschlaf.h"

#include <QtGlobal>

#include <thread>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace varnoth {

void WeckePuenktlich() {
#ifdef Q_OS_LINUX
    prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
#endif
}

void SchlafeFein(Zeit dauer) {
    std::this_thread::sleep_for(dauer);
}

Zeit LaengsteWeckdauer() {
    return std::chrono::microseconds(200);
}

} // namespace varnoth
