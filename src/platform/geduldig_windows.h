#pragma once

#include <cerrno>
#include <chrono>
#include <thread>

namespace varnoth {

/// Repeats a call that another program may be in the way of for a moment, as virus scanners are that look at
/// a new file: until it gives another error number than EBUSY, or for about a second.
template<class Tun>
int Geduldig(Tun tun) {
    constexpr auto Laengste = std::chrono::milliseconds(320);
    int fehler = tun();
    for (auto pause = std::chrono::milliseconds(10); fehler == EBUSY && pause <= Laengste; pause *= 2) {
        std::this_thread::sleep_for(pause);
        fehler = tun();
    }
    return fehler;
}

} // namespace varnoth
