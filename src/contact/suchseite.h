#pragma once

#include "anschlussstand.h"
#include "portangabe.h"
#include "suchlauf.h"

#include <QWidget>

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QTreeWidgetItem;

namespace varnoth {

namespace Ui {
class Suchseite;
}

class Verbindungsanbieter;

/// The search for the controller: which ports are tried, each try with its result, what was found and how it
/// is used.
class Suchseite : public QWidget {
public:
    explicit Suchseite(QWidget* eltern = nullptr);
    ~Suchseite() override;

    /// Sets who searches; it must outlive the page.
    void SetzeAnbieter(Verbindungsanbieter& neuer) { anbieter = &neuer; }
    /// Shows the ports to choose from. Results of a former search look old once ports have come or gone.
    void Zeige(const std::vector<Portangabe>& neuePorts, const Anschlussstand& neuerStand);
    /// A try begins or has ended.
    void ZeigeVersuch(const Suchstand& versuch);
    /// The search has ended.
    void Beende(const Suchfund& ergebnis);
    /// The search that was asked for will not begin.
    void Entfalle();
    /// Whether a search is under way or asked for.
    bool Laeuft() const { return lage == Lage::Verlangt || lage == Lage::Laeuft; }
    /// Fills what the form's texts do not cover in the current language again.
    void Lokalisiere();

private:
    enum class Lage { Unbegonnen, Verlangt, Laeuft, Beendet };

    void FuellePorts();
    QTreeWidgetItem* Eintrag(const Portangabe& port) const;
    void MerkeHaken(const QTreeWidgetItem& eintrag);
    std::vector<std::string> Gewaehlte() const;
    void Beginne();
    void Verwende();
    void Altere(const std::vector<Portangabe>& neuePorts);
    void ZeigeLage();
    void ZeigeVersuche();
    void ZeigeZeile(const Suchstand& versuch);
    void ZeigeFund();
    std::string Lagetext() const;

    std::unique_ptr<Ui::Suchseite> ui;
    Verbindungsanbieter* anbieter = nullptr;
    std::vector<Portangabe> ports;
    Anschlussstand stand;
    std::map<std::string, bool> haken; ///< what the user has ticked or unticked, by device
    Lage lage = Lage::Unbegonnen;
    std::vector<Suchstand> versuche;
    Suchfund fund;
    std::int16_t sprache = 0;                   ///< of the words in tries and outcome
    std::chrono::system_clock::time_point zeit; ///< when the search ended
    bool veraltet = false;                      ///< ports have come or gone since
    bool fundWeg = false;                       ///< and the one with the controller was away
};

} // namespace varnoth
