#pragma once

#include <cstdlib>
#include <ctime>

namespace varnoth {

/// Lets this process live in a zone of time, named as the variable TZ does, for as long as the object lives.
class Ortszone {
public:
    explicit Ortszone(const char* zone) {
#ifdef _WIN32
        ::_putenv_s("TZ", zone);
#else
        ::setenv("TZ", zone, 1); // tests have one thread that asks for the zone
#endif
        ::tzset();
    }
    ~Ortszone() {
#ifdef _WIN32
        ::_putenv_s("TZ", "");
#else
        ::unsetenv("TZ");
#endif
        ::tzset();
    }
    Ortszone(const Ortszone&) = delete;
    Ortszone& operator=(const Ortszone&) = delete;
};

} // namespace varnoth
