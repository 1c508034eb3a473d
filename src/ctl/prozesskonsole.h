#pragma once

#include "konsole.h"

#include "terminal.h"

namespace varnoth::ctl {

/// The streams of this process: data on standard output, messages and progress on standard error, the answer
/// to a question from standard input. What a person reads has no effect on a terminal, wherever it comes
/// from.
class Prozesskonsole : public Konsole {
public:
    explicit Prozesskonsole(Zeichenvorrat zeichenvorrat) : vorrat(zeichenvorrat) {}

    void Daten(std::string_view bytes) override;
    void Zeile(std::string_view text) override;
    bool WirdGelesen() const override { return fehlernummer == 0; }
    void Meldung(std::string_view text) override;
    void Fortschritt(std::string_view text) override;
    bool KannFragen() const override;
    bool Frage(std::string_view text) override;
    bool Unterbrochen() const override;

    /// Why data could not be written, as the system's error number; 0 when all were. A reader who has gone
    /// away is none.
    int Fehlernummer() const;

private:
    std::string Anzeigbar(std::string_view text) const;
    void RaeumeFortschritt();

    Zeichenvorrat vorrat;
    int fehlernummer = 0;
    int fortschrittsbreite = 0;
};

} // namespace varnoth::ctl
