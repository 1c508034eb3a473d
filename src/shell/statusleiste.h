#pragma once

#include <array>
#include <memory>
#include <string>

class QLabel;
class QStatusBar;

namespace varnoth {

class Ausgangsanzeige;

/// The three panels of the main window's status bar.
class Statusleiste {
public:
    /// Makes the panels; the bar must outlive this object.
    explicit Statusleiste(QStatusBar& leiste);
    ~Statusleiste();

    /// Writes into panel 1..3.
    void Zeige(int feld, const std::string& text);
    /// Shows the state of the switching output at another time, as in a replay.
    void ZeigeAusgangVon(const std::string& text, const std::string& uhrzeit);
    /// Shows the serial port in use, with the system's name of it as the tool tip; on a line to the built-in
    /// controller that.
    void ZeigePort();
    /// The line leads to the built-in controller or to the serial ports.
    void SetzeSimuliert(bool ist);

private:
    std::array<QLabel*, 3> felder{};
    std::unique_ptr<Ausgangsanzeige> ausgang;
    bool simuliert = false;
};

} // namespace varnoth
