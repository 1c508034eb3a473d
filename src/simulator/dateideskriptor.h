#pragma once

#include <unistd.h>

#include <utility>

namespace varnoth::simulator {

/// A file descriptor that closes itself; -1 = none.
class Dateideskriptor {
public:
    Dateideskriptor() = default;
    explicit Dateideskriptor(int nummer) : nummer_(nummer) {}
    Dateideskriptor(Dateideskriptor&& anderer) noexcept : nummer_(std::exchange(anderer.nummer_, -1)) {}
    Dateideskriptor& operator=(Dateideskriptor&& anderer) noexcept {
        std::swap(nummer_, anderer.nummer_);
        return *this;
    }
    ~Dateideskriptor() { Schliesse(); }

    int Nummer() const { return nummer_; }
    void Schliesse() {
        if (nummer_ >= 0)
            ::close(std::exchange(nummer_, -1));
    }

private:
    int nummer_ = -1;
};

} // namespace varnoth::simulator
