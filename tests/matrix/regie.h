#pragma once

#include "handlung.h"

#include <QElapsedTimer>
#include <QTimer>

#include <coroutine>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>

namespace varnoth::pruefung {

/// Directs what the user does: looks every few milliseconds, also while the program waits or shows a dialog,
/// whether what he waits for has come.
class Regie {
public:
    Regie();

    /// Begins.
    void Spiele(Handlung stueck);
    bool Zuende() const { return !handlung || handlung->Zuende(); }
    /// What went wrong in the end; empty when nothing did.
    std::string Fehler() const;
    /// Looked at with every look; a text that it gives ends the play with that error.
    void SetzeWaechter(std::function<std::string()> neuer) { waechter = std::move(neuer); }

    /// Called when the play ends with an error, so that the program can be brought to its end.
    void SetzeAbbruch(std::function<void()> wie) { abbruch = std::move(wie); }

    class Wartepunkt {
    public:
        explicit Wartepunkt(Regie& wartende) : regie(wartende) {}
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> wer) const { regie.wartender = wer; }
        void await_resume() const { regie.WirfVersaeumnis(); }

    private:
        Regie& regie;
    };

    /// Waits until the condition holds, at least till the next look. After so long without it the play ends
    /// with an error that names what did not come.
    template<class Bedingung>
    Wartepunkt Bis(const char* was, Bedingung bedingung, int hoechstensMs = 60000) {
        static_assert(std::is_trivially_destructible_v<Bedingung>,
                      "g++ 12 destroys such an operand of co_await twice: capture references");
        worauf = was;
        erfuellt = std::move(bedingung);
        frist = hoechstensMs;
        seit.start();
        return Wartepunkt(*this);
    }
    /// Waits for some time.
    Wartepunkt Nach(int ms);

private:
    void Blicke();
    void WirfVersaeumnis() const;

    QTimer takt;
    std::optional<Handlung> handlung;
    std::coroutine_handle<> wartender;
    std::function<bool()> erfuellt;
    std::function<std::string()> waechter;
    std::function<void()> abbruch;
    std::string worauf;
    std::string versaeumt;
    QElapsedTimer seit;
    qint64 frist = 0;
};

} // namespace varnoth::pruefung
