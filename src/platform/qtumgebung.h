#pragma once

#include "malaufschub.h"
#include "umgebung.h"

#include <QTimer>

#include <array>
#include <functional>

namespace varnoth {

/// The environment of the running program: Qt's events, message boxes and clock.
class QtUmgebung : public Umgebung {
public:
    QtUmgebung();
    ~QtUmgebung() override;

    int LasseEreignisseLaufen() override;
    void WarteAufEreignis(Zeit hoechstens) override;
    Zeit Uhr() override;
    Antwort ZeigeMeldung(const Meldung& meldung) override;
    void ZeigeStatustext(int feld, const std::string& text) override;

    /// Sets what counts the open forms; without it there is none.
    void SetzeFormularzaehler(std::function<int()> zaehler);
    /// Sets who shows status texts; panels are numbered from 1.
    void SetzeStatusanzeige(std::function<void(int feld, const std::string& text)> anzeige);
    /// Sets who answers message boxes instead of a real box (an empty function: the box again).
    void SetzeMeldungsweg(std::function<Antwort(const Meldung&)> weg);

private:
    void SchlafeBis(Zeit ende);

    QTimer wecker;
    Malaufschub malen;
    Zeit weckdauer{0};
    std::function<int()> formularzaehler;
    std::function<void(int, const std::string&)> statusanzeige;
    std::function<Antwort(const Meldung&)> meldungsweg;
};

} // namespace varnoth
