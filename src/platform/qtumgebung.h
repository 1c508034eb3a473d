#pragma once

#include "aufenthaltsmesser.h"
#include "ereignispumpe.h"
#include "umgebung.h"

#include <functional>

namespace varnoth {

/// The environment of a running program: Qt's events and clock. It needs no window.
class QtUmgebung : public Umgebung {
public:
    QtUmgebung();
    ~QtUmgebung() override;

    int LasseEreignisseLaufen() override;
    void NutzeWartezeit() override;
    bool BrauchtWartezeit() override { return pumpe.HatAufgeschobenes(); }
    void FuerWartezeit(std::function<void()> arbeit) override;
    void WarteAufEreignis(Zeit hoechstens) override;
    Zeit Uhr() override;
    Aufenthalt GetAufenthalt() override { return messer.Stand(Uhr()); }
    Antwort ZeigeMeldung(const Meldung& meldung) override;
    void ZeigeStatustext(int feld, const std::string& text) override;

    /// Sets what counts the open forms; without it there is none.
    void SetzeFormularzaehler(std::function<int()> zaehler);
    /// Sets who shows status texts; panels are numbered from 1.
    void SetzeStatusanzeige(std::function<void(int feld, const std::string& text)> anzeige);
    /// Sets who answers messages (an empty function: whoever this environment asks by itself).
    void SetzeMeldungsweg(std::function<Antwort(const Meldung&)> weg);
    /// Sets who hears of each message before it is answered.
    void SetzeMeldungszeuge(std::function<void(const Meldung&)> zeuge);

protected:
    Ereignispumpe& Pumpe() { return pumpe; }
    /// Asks a person. Nobody is there without windows: the answer is that of a box that is closed.
    virtual Antwort Frage(const Meldung& meldung);

private:
    void LasseFaelligesLaufen();
    void SchlafeBis(Zeit ende);
    template<class Runde>
    void Messe(Zeit wartezeit, Runde runde);

    Ereignispumpe pumpe;
    Aufenthaltsmesser messer;
    Zeit naechsteRunde{0}; ///< until then events have run a moment ago
    Zeit weckdauer{0};
    std::function<int()> formularzaehler;
    std::function<void(int, const std::string&)> statusanzeige;
    std::function<Antwort(const Meldung&)> meldungsweg;
    std::function<void(const Meldung&)> meldungszeuge;
};

} // namespace varnoth
