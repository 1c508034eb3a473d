#pragma once

#include <coroutine>
#include <exception>
#include <utility>

namespace varnoth::pruefung {

/// What a user does and waits for, one after the other: a coroutine that the director (`Regie`) lets go on. A
/// part of it may be a Handlung of its own, which is awaited.
class Handlung {
public:
    struct promise_type;
    using Griff = std::coroutine_handle<promise_type>;

    /// Lets whoever awaited the coroutine go on once it has ended.
    struct Uebergabe {
        bool await_ready() const noexcept { return false; }
        std::coroutine_handle<> await_suspend(Griff zuende) const noexcept;
        void await_resume() const noexcept {}
    };

    struct promise_type {
        Handlung get_return_object() { return Handlung(Griff::from_promise(*this)); }
        std::suspend_always initial_suspend() const noexcept { return {}; }
        Uebergabe final_suspend() const noexcept { return {}; }
        void return_void() const {}
        void unhandled_exception() { fehler = std::current_exception(); }

        std::coroutine_handle<> danach = std::noop_coroutine();
        std::exception_ptr fehler;
    };

    Handlung(Handlung&& andere) noexcept : griff(std::exchange(andere.griff, nullptr)) {}
    Handlung(const Handlung&) = delete;
    Handlung& operator=(const Handlung&) = delete;
    ~Handlung() {
        if (griff)
            griff.destroy();
    }

    void Beginne() { griff.resume(); }
    bool Zuende() const { return griff.done(); }
    /// Throws what the coroutine threw, if anything.
    void WirfFehler() const {
        if (griff.promise().fehler)
            std::rethrow_exception(griff.promise().fehler);
    }

    bool await_ready() const noexcept { return false; }
    std::coroutine_handle<> await_suspend(std::coroutine_handle<> wer) {
        griff.promise().danach = wer;
        return griff;
    }
    void await_resume() const { WirfFehler(); }

private:
    explicit Handlung(Griff neuer) : griff(neuer) {}

    Griff griff;
};

inline std::coroutine_handle<> Handlung::Uebergabe::await_suspend(Griff zuende) const noexcept {
    return zuende.promise().danach;
}

} // namespace varnoth::pruefung
