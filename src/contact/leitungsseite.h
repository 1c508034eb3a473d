#pragma once

#include "anschlussstand.h"
#include "leitungspruefung.h"
#include "portangabe.h"

#include <QElapsedTimer>
#include <QWidget>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace varnoth {

namespace Ui {
class Leitungsseite;
}

class Verbindungsanbieter;

/// The line check: its numbers while it runs, and what they mean; the latency timer of the adapter.
class Leitungsseite : public QWidget {
public:
    explicit Leitungsseite(QWidget* eltern = nullptr);
    ~Leitungsseite() override;

    /// Sets who checks the line; it must outlive the page.
    void SetzeAnbieter(Verbindungsanbieter& neuer) { anbieter = &neuer; }
    /// Shows the line that would be checked. Numbers of another one look old, and so do those of a port that
    /// was away since.
    void Zeige(const std::vector<Portangabe>& neuePorts, const Anschlussstand& neuerStand);
    /// Numbers of the check under way; shown ten times a second at most.
    void ZeigeZwischenstand(const Pruefbefund& bisher);
    /// The check has ended.
    void Beende(const Pruefbefund& ergebnis);
    /// The check that was asked for will not begin.
    void Entfalle();
    /// Whether a check is under way or asked for.
    bool Laeuft() const { return lage == Lage::Verlangt || lage == Lage::Laeuft; }
    /// Fills what the form's texts do not cover in the current language again.
    void Lokalisiere();

private:
    enum class Lage { Unbegonnen, Verlangt, Laeuft, Beendet };

    void Beginne();
    void Kopiere();
    void StelleVerzoegerung();
    void ZeigeLage();
    void ZeigeZahlen();
    void ZeigeVerzoegerung();
    bool IstAlt() const;
    std::string Lagetext() const;
    std::string Deutungstext() const;

    std::unique_ptr<Ui::Leitungsseite> ui;
    Verbindungsanbieter* anbieter = nullptr;
    std::vector<Portangabe> ports;
    Anschlussstand stand;
    Lage lage = Lage::Unbegonnen;
    Pruefbefund befund;
    QElapsedTimer seitAnzeige;
    std::chrono::system_clock::time_point zeit; ///< when the check ended
    bool portWarWeg = false;                    ///< since the check ended
    std::string verzoegerungsfehler;            ///< why the latency timer could not be set
    std::string fehlergeraet;                   ///< and of which device
};

} // namespace varnoth
