#include "abbruchsignal.h"

#include <windows.h>

#include <atomic>

namespace varnoth {

namespace {

std::atomic<bool> abbruchVerlangt = false;

/// The thread that is to end the program; open to its end.
HANDLE HauptfadenGriff() {
    static HANDLE const griff = ::OpenThread(SYNCHRONIZE, FALSE, ::GetCurrentThreadId());
    return griff;
}

/// Runs in a thread of the system's. When the console or the session goes, the process ends with the return
/// from here: until then the program has time to come to its own end.
BOOL WINAPI MerkeAbbruch(DWORD anlass) {
    constexpr DWORD BedenkzeitMs = 4000; // the system waits five seconds
    const bool zweiter = abbruchVerlangt.exchange(true);
    if (anlass == CTRL_C_EVENT || anlass == CTRL_BREAK_EVENT)
        return zweiter ? FALSE : TRUE;
    ::WaitForSingleObject(HauptfadenGriff(), BedenkzeitMs);
    return FALSE;
}

} // namespace

void FangeAbbruchsignaleAb() {
    HauptfadenGriff();
    ::SetConsoleCtrlHandler(MerkeAbbruch, TRUE);
}

bool IstAbbruchVerlangt() {
    return abbruchVerlangt;
}

} // namespace varnoth
