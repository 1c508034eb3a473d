#pragma once

#include "vergleichspaar.h"

#include <QWidget>

#include <memory>
#include <vector>

class QComboBox;
class QLabel;
class QTreeWidgetItem;

namespace varnoth {

namespace Ui {
class frmVergleich;
}

class Vergleichsanbieter;

/// Compares two configurations, parameter by parameter in words, in a window of its own beside the main
/// window. It never talks to the controller itself.
class frmVergleich : public QWidget {
    Q_OBJECT

public:
    /// `anbieter` must outlive the window.
    explicit frmVergleich(Vergleichsanbieter& anbieter);
    ~frmVergleich() override;

    /// Puts another side in place.
    void Setze(Seitenwahl wahl, const Vergleichsseite& seite);
    const Vergleichspaar& Paar() const { return paar; }
    /// Sides that follow what the program knows are fetched anew. What is ticked stays ticked.
    void Erneuere();
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// Shows the window or brings it to the front.
    void ZeigeVor();

protected:
    void changeEvent(QEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    QComboBox& Quellenliste(Seitenwahl wahl) const;
    QLabel& Einzelheit(Seitenwahl wahl) const;
    void BemisSpalten();
    void VerbindeKnoepfe();
    void VerbindeTasten();
    void WaehleQuelle(Seitenwahl wahl, int platz);
    void FuelleQuellen(Seitenwahl wahl);
    void Zeige();
    void ZeigeKopf();
    void FuelleBaum();
    QTreeWidgetItem* NeueZeile(std::size_t nummer, bool angekreuzt);
    void WendeFilterAn();
    void ZeigeAuswahl();
    void Springe(int richtung);
    void KreuzeGezeigteAn();
    void Uebernimm();
    void Kopiere();
    void Drucke();

    bool IstGezeigt(const Vergleichsworte& zeile) const;
    std::vector<Vergleichsworte> Gezeigte() const;
    std::vector<Vergleichsworte> Markierte() const;
    std::vector<QTreeWidgetItem*> AlleZeilen() const;
    const Vergleichsworte& Worte(const QTreeWidgetItem& zeile) const;
    Parametermenge Angekreuzte() const;

    std::unique_ptr<Ui::frmVergleich> ui;
    Vergleichsanbieter& anbieter;
    Vergleichspaar paar;
    std::vector<Vergleichsworte> zeilen; ///< what the tree shows, by number
};

} // namespace varnoth
