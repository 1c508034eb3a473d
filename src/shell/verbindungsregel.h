#pragma once

#include "durchgangsrate.h"
#include "umgebung.h"

#include <QDateTime>

#include <chrono>
#include <optional>

namespace varnoth {

/// What is known of the connection at a moment.
struct Verbindungstatsachen {
    Zeit jetzt{0};
    QDateTime uhrzeit{};
    bool verbindet = false; ///< the connection flow runs
    bool liveDaten = false; ///< polling is on
    bool verloren = false;  ///< polling is on, but its last pass has given up
    bool portOffen = false;
    bool simuliert = false;      ///< the built-in controller answers
    bool fehlgeschlagen = false; ///< the last exchange had no reply
    bool unterwegs = false;      ///< a reply is waited for
    bool aufgehalten = false;    ///< the window keeps the program from listening
    std::optional<Zeit> letzteAntwort{};
    std::optional<Zeit> wartetSeit{}; ///< since when no request has had a reply, while somebody listened
    unsigned durchgaenge = 0;         ///< polling passes since polling was started
    int fehlschlaege = 0;             ///< failed exchanges of the last minute
};

enum class Verbindungszustand {
    Verbindet,
    Live,
    Wartet,     ///< no reply for so many seconds
    Pausiert,   ///< live data is on, but nothing was asked for so many seconds: a box or dialog is open,
                ///< or a window is being dragged
    PortOffen,  ///< a dialog has the line for itself
    Angehalten, ///< live data was stopped
    Offline,
    Wiedergabe, ///< a record is shown; nothing is connected
};

/// How the connection is shown.
struct Verbindungsbild {
    Verbindungszustand zustand = Verbindungszustand::Offline;
    bool simuliert = false;
    std::chrono::seconds dauer{0};   ///< of Wartet and Pausiert
    QDateTime seit{};                ///< of Angehalten and Offline: when live data ended, else the first look
    double durchgaengeJeSekunde = 0; ///< of Live, another at most once a second; 0 while none is known
    int fehlschlaege = 0;
    bool startBieten = false; ///< live data is neither on nor about to be
    bool sucheBieten = false; ///< and the last attempt to reach the controller has failed

    bool operator==(const Verbindungsbild&) const = default;
};

/// Tells from what is known how the connection is to be shown. It remembers when live data ended, and how.
class Verbindungsregel {
public:
    /// To be called several times a second; the clock must not run backwards.
    Verbindungsbild Betrachte(const Verbindungstatsachen& tatsachen);

private:
    double NimmRate(const Verbindungstatsachen& tatsachen, Verbindungszustand zustand);
    void MerkeEnde(const Verbindungstatsachen& tatsachen);
    void Unterscheide(const Verbindungstatsachen& tatsachen, Verbindungsbild& bild) const;

    Durchgangsrate rate;
    double gezeigteRate = 0;
    Zeit rateGenommen{0};
    QDateTime seit;
    bool warLive = false;
    bool angehalten = false;
};

} // namespace varnoth
