#include "abbruchsignal.h"

#include <csignal>
#include <initializer_list>

namespace varnoth {

namespace {

volatile std::sig_atomic_t abbruchVerlangt = 0;

extern "C" void MerkeAbbruch(int /*signal*/) {
    abbruchVerlangt = 1;
}

/// No call is resumed, so that whoever waits for an answer at the terminal hears of it.
void Fange(int signal) {
    struct sigaction aktion {};
    aktion.sa_handler = MerkeAbbruch;
    aktion.sa_flags = SA_RESETHAND;
    sigaction(signal, &aktion, nullptr);
}

} // namespace

void FangeAbbruchsignaleAb() {
    std::signal(SIGPIPE, SIG_IGN);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        Fange(signal);
}

bool IstAbbruchVerlangt() {
    return abbruchVerlangt != 0;
}

} // namespace varnoth
