#pragma once

#include <tuple>

namespace varnoth {

/// Puts everything that the modules remember back to what the program starts with. Start-up makes one before
/// anything else, the test programs make one before every test.
struct Startzustand {
    Startzustand();
};

/// What a Startzustand puts back, one in a list with all others.
class Ruecksetzbares {
public:
    Ruecksetzbares(const Ruecksetzbares&) = delete;
    Ruecksetzbares& operator=(const Ruecksetzbares&) = delete;

protected:
    Ruecksetzbares();
    ~Ruecksetzbares() = default;

private:
    friend Startzustand;
    virtual void SetzeZurueck() const = 0;

    const Ruecksetzbares* naechstes;
};

/// Stands below the variables of a module and names them all: their start value is the one of their type. For
/// variables of namespace scope, which live as long as the program.
template<class... T>
class Startwert final : Ruecksetzbares {
public:
    explicit Startwert(T&... alle) : variablen(alle...) {}

private:
    void SetzeZurueck() const override {
        std::apply([](T&... eine) { ((eine = T{}), ...); }, variablen);
    }

    const std::tuple<T&...> variablen;
};

} // namespace varnoth
