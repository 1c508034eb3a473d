#pragma once

#include "ereignisauftrag.h"
#include "ereignislauf.h"
#include "ereignismodell.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace varnoth {

namespace Ui {
class frmEreignisse;
}

class Ereignisanbieter;
class Messanbieter;

/// Shows what has happened: in this run or, while a record is replayed, in the record. What takes long is
/// done in short pieces while the line is busy anyway.
class frmEreignisse : public QWidget {
    Q_OBJECT

public:
    /// Both must outlive the window.
    frmEreignisse(Messanbieter& messungen, Ereignisanbieter& anbieter);
    ~frmEreignisse() override;

    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// Shows the window or brings it to the front.
    void ZeigeVor();

protected:
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    struct Suchlage {
        int zeile = 0;
        int offen = 0; ///< rows that are still to be looked at
        int schritt = 1;
    };

    void RichteTabelleEin();
    void StelleAuswahlHer();
    void BewahreAuswahl() const;
    void VerbindeFilter();
    void VerbindeKnoepfe();
    void VerbindeTasten();
    void FuelleArten();

    const Ereignisspeicher& Speicher() const;
    void BlickeNach();
    void BlickeAufQuelle();
    void Plane();
    void Arbeite();
    void SiehWeiterDurch();
    void Folge();
    void SucheWeiter();
    void SchreibeWeiter();

    Ereignisfilter GewaehlterFilter() const;
    void BeginneNeu();
    void Rolle(int wert);
    void Suche(int schritt);
    void Springe(const QModelIndex& stelle);
    void Leere();
    void Kopiere();
    void Speichere();
    std::vector<std::uint64_t> GezeigteNummern() const;
    void Beginne(Ereignisauftrag neuer);
    void BrichAb();
    void SchalteMitschrift(bool an);
    void WaehleOrdner();
    void ZeigeMitschrift();
    void ZeigeMeldung(const std::string& text);
    void ZeigeStand();

    std::unique_ptr<Ui::frmEreignisse> ui;
    Messanbieter& messungen;
    Ereignisanbieter& anbieter;
    Ereignismodell* modell;
    QTimer takt{this};
    std::optional<Ereignislauf> lauf; ///< over the record that is replayed
    std::optional<Ereignisauftrag> auftrag;
    Suchlage suche;
    std::string gesucht;
    int quellenzahl = -1;
    std::uint64_t ab = 0; ///< what was before has been hidden
    std::uint64_t gesehen = ~std::uint64_t{0};
    bool geplant = false;
    bool rolltSelbst = false;
};

} // namespace varnoth
