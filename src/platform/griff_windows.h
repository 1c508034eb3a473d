#pragma once

namespace varnoth {

/// A handle of the system that closes itself. Only the *_windows.cpp files use it.
class Griff {
public:
    Griff() = default;
    /// @param offener an open one, or one of the values that stand for none
    explicit Griff(void* offener);
    Griff(Griff&& anderer) noexcept;
    Griff& operator=(Griff&& anderer) noexcept;
    ~Griff();

    explicit operator bool() const { return griff != nullptr; }
    void* Wert() const { return griff; }
    void Schliesse();

private:
    void* griff = nullptr;
};

} // namespace varnoth
