#pragma once

#include "umgebung.h"

namespace varnoth {

/// A timer of Windows that a thread can wait on together with other things, fine to half a millisecond where
/// the system has such timers.
class Weckuhr {
public:
    Weckuhr();
    Weckuhr(const Weckuhr&) = delete;
    Weckuhr& operator=(const Weckuhr&) = delete;
    ~Weckuhr();

    /// Whether it is fine by itself. Another one is so only while a Zeitaufloesung lives.
    bool IstFein() const { return fein; }
    /// Lets it ring in so long, and not before.
    void Stelle(Zeit dauer);
    /// What the system's waiting functions take.
    void* Griff() const { return griff; }

private:
    void* griff = nullptr;
    bool fein = true;
};

/// Has the system look at its timers every millisecond, which costs a laptop some of its battery, while it
/// lives.
class Zeitaufloesung {
public:
    Zeitaufloesung();
    Zeitaufloesung(const Zeitaufloesung&) = delete;
    Zeitaufloesung& operator=(const Zeitaufloesung&) = delete;
    ~Zeitaufloesung();
};

} // namespace varnoth
