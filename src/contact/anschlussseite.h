#pragma once

#include "anschlussstand.h"
#include "portangabe.h"

#include <QWidget>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QRadioButton;

namespace varnoth {

namespace Ui {
class Anschlussseite;
}

class Verbindungsanbieter;

/// The serial ports of the machine, what COM1 to COM4 mean, which of them is used and with which line format.
class Anschlussseite : public QWidget {
public:
    explicit Anschlussseite(QWidget* eltern = nullptr);
    ~Anschlussseite() override;

    /// Sets who knows the ports and puts choices in force; it must outlive the page.
    void SetzeAnbieter(Verbindungsanbieter& neuer);
    /// Shows the ports and what is in force; what a person has entered and not put in force yet stays.
    void Zeige(const std::vector<Portangabe>& neuePorts, const Anschlussstand& neuerStand);
    /// Says what the entries mean now, and offers what can be done with them.
    void ZeigeEingabe();
    /// Says that what was chosen is in force.
    void MeldeUebernommen();
    /// Fills what the form's texts do not cover in the current language again.
    void Lokalisiere();
    /// What a person has entered.
    Anschlusswahl Eingabe() const;

private:
    struct Comzeile {
        QRadioButton* wahl;
        QComboBox* geraet;
        QLabel* befund;
    };

    void VerbindeElemente();
    void FuelleListe();
    void FuelleNamen();
    void SetzeEingabe(const Anschlusswahl& eingabe);
    void Bearbeitet();
    void ZeigeComzeile(int com, const std::string& name);
    void ZeigeAuswahl();
    void ZeigeHinweis();
    const Portangabe* Gewaehlter() const;
    void GibGeraet();
    void Uebernimm(bool verbinde);

    std::unique_ptr<Ui::Anschlussseite> ui;
    std::array<Comzeile, AnzahlCom> comzeilen;
    Verbindungsanbieter* anbieter = nullptr;
    std::vector<Portangabe> ports;
    Anschlussstand stand;
};

} // namespace varnoth
