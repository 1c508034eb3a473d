#pragma once

#include "ansichten.h"
#include "aufzeichnungsleser.h"
#include "hauptteile.h"
#include "messablauf.h"
#include "vergleichsseite.h"
#include "wiedergabe.h"
#include "wiedergabesteuerung.h"

#include <QPointer>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QDockWidget;
class QMainWindow;

namespace varnoth {

class frmWiedergabe;

/// The replay as the main window runs it: a record is opened, shown by the views as if it were live, and left
/// again. The configuration in use, what is known of the controller and the line are not touched meanwhile;
/// what was shown is put aside and comes back.
class Wiedergabeablauf : private Wiedergabesteuerung, private Wiedergabestand {
public:
    struct Ziel {
        QMainWindow& fenster;
        Hauptteile teile;
        /// The user wants to leave the replay.
        std::function<void()> verlange;
        /// Compares two configurations in the window for that.
        std::function<void(const Vergleichsseite& a, const Vergleichsseite& b)> vergleiche;
        /// What is looked at over time is from now on the record; nullptr: live data again.
        std::function<void(Wiedergabestand* aufzeichnung)> setzeWiedergabe;
        Aufzeichnungsleser oeffne;
    };

    explicit Wiedergabeablauf(Ziel ziel);
    ~Wiedergabeablauf() override;

    /// Whether a path is that of a record, by its ending.
    static bool IstAufzeichnung(const std::string& pfad);

    /// Asks for a record and replays it; live data must not run. A replay goes on where nothing was opened.
    void Oeffne();
    /// Replays a record (UTF-8 path).
    void Oeffne(const std::string& pfad);
    /// Whether a record is replayed.
    bool Laeuft() const { return aufzeichnung != nullptr; }
    /// Leaves the replay; nothing happens when there is none.
    void Beende();

    /// The time of the record that is shown.
    Zeit Jetzt() const override { return stand ? stand->Position() : Zeit{0}; }
    /// Goes on from a time.
    void SpringeZu(Zeit laufzeit) override;
    /// Shows the view of optical part 0..3.
    void ZeigeAnsicht(int optikteil);
    /// Fills all texts in the current language again.
    void Lokalisiere();

private:
    /// What the replay puts aside.
    struct Vorher {
        Ansichten::Stand ansichten;
        std::array<bool, AnzahlOptikteile> menue{};
    };

    const Messquelle& Quelle() const override { return *aufzeichnung; }
    Wiedergabe& Stand() override { return *stand; }
    Wiedergabelage Zeige() override;
    void Verlasse() override { ziel.verlange(); }
    void BerichteKonfiguration() override;
    void VergleicheKonfiguration() override;
    void SpeichereKonfiguration() override;

    GeoeffneteAufzeichnung OeffneMitFortschritt(const std::string& pfad);
    void Beginne(std::shared_ptr<const Messquelle> quelle, const std::string& pfad);
    void StelleAuf();
    void MacheLeiste();
    void ZeigeTitel();
    void ZeigeStelle(const Wiedergabestelle& stelle);
    void ZeigeTeil(int optikteil, const Messdurchgang* durchgang);
    void ZeigeAusgang(const Messdurchgang* durchgang);
    bool PasstZuDenAnsichten() const;
    std::shared_ptr<const Abbild> HoleKonfiguration();
    std::string Herkunft() const;
    std::string Dateiname() const;

    Ziel ziel;
    std::shared_ptr<const Messquelle> aufzeichnung;
    std::optional<Wiedergabe> stand;
    std::string pfad;
    Abbild abbild; ///< that the views show
    std::optional<Wiedergabestelle> gezeigt;
    std::vector<std::pair<std::int32_t, std::int32_t>> aufgebaut; ///< beams and spacing of the views
    std::optional<Vorher> vorher;
    QPointer<QDockWidget> rahmen;
    QPointer<frmWiedergabe> leiste;
    QString titel; ///< of the main window, without the mark
};

} // namespace varnoth
