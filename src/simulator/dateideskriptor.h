#pragma once

#include <unistd.h>

#include <utility>

namespace varnoth::simulator {

/// A file descriptor that closes itself; -1 = none.
class Dateideskriptor {
public:
    Dateideskriptor() = default;
    explicit Dateideskriptor(int offener) : nummer(offener) {}
    Dateideskriptor(Dateideskriptor&& anderer) noexcept : nummer(std::exchange(anderer.nummer, -1)) {}
    Dateideskriptor& operator=(Dateideskriptor&& anderer) noexcept {
        std::swap(nummer, anderer.nummer);
        return *this;
    }
    ~Dateideskriptor() { Schliesse(); }

    int Nummer() const { return nummer; }
    void Schliesse() {
        if (nummer >= 0)
            ::close(std::exchange(nummer, -1));
    }

private:
    int nummer = -1;
};

} // namespace varnoth::simulator
