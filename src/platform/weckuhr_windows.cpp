#include "weckuhr.h"

#include <algorithm>

#include <windows.h>

#include <timeapi.h>

#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
#define CREATE_WAITABLE_TIMER_HIGH_RESOLUTION 0x00000002
#endif

namespace varnoth {

namespace {

constexpr UINT EineMillisekunde = 1;

void* MacheUhr(DWORD art) {
    return CreateWaitableTimerExW(nullptr, nullptr, art, TIMER_MODIFY_STATE | SYNCHRONIZE);
}

} // namespace

Weckuhr::Weckuhr() : griff(MacheUhr(CREATE_WAITABLE_TIMER_HIGH_RESOLUTION)) {
    fein = griff != nullptr;
    if (!fein)
        griff = MacheUhr(0);
}

Weckuhr::~Weckuhr() {
    CloseHandle(griff);
}

void Weckuhr::Stelle(Zeit dauer) {
    constexpr LONGLONG SchritteJeMikrosekunde = 10;
    LARGE_INTEGER frist{};
    frist.QuadPart = -SchritteJeMikrosekunde * std::max<LONGLONG>(dauer.count(), 0); // from now on
    SetWaitableTimer(griff, &frist, 0, nullptr, nullptr, FALSE);
}

Zeitaufloesung::Zeitaufloesung() {
    timeBeginPeriod(EineMillisekunde);
}

Zeitaufloesung::~Zeitaufloesung() {
    timeEndPeriod(EineMillisekunde);
}

} // namespace varnoth
