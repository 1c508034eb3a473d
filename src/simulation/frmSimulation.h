#pragma once

#include "kurven.h"
#include "werte.h"

#include <QDialog>
#include <QLocale>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

class QLabel;
class QLineEdit;
class QRadioButton;

namespace varnoth {

namespace Ui {
class frmSimulation;
}

/// The calculator: what the configured device can detect at which speed, and how much autosend can transmit.
/// It reads the cycle times and the image when it is made, changes nothing and needs no device.
class frmSimulation : public QDialog {
public:
    /// `gebiet`: how numbers are typed and shown.
    explicit frmSimulation(QWidget* parent = nullptr, const QLocale& gebiet = QLocale::system());
    ~frmSimulation() override;

private:
    /// What can be typed, in the order in which the formulas are computed.
    enum Feldindex { Laenge, Geschwindigkeit, Lochdurchmesser, Lochgeschwindigkeit, AnzahlFelder };

    std::array<QRadioButton*, AnzahlOptikteile> Optionen() const;
    void ReservierePlatz();
    void Verbinde();
    void ZeigeAutosend();
    void WaehleErstenTeil();
    void WaehleTeil(int optikteil);
    void RechneAlles();
    void RechneLaenge();
    void RechneGeschwindigkeit();
    void RechneLochdurchmesser();
    void RechneLochgeschwindigkeit();
    std::optional<double> Eingabe(QLineEdit& feld) const;
    void ZeigeZahl(QLabel& feld, std::optional<double> zahl) const;
    void Markiere(Feldindex feld, Kurvenart art, std::optional<double> groesse,
                  std::optional<double> geschwindigkeit);
    void ZeigeDiagramm();

    std::unique_ptr<Ui::frmSimulation> ui;
    QLocale gebiet;
    double tz = 0;                  ///< ms
    std::int32_t strahlabstand = 0; ///< mm
    std::array<std::optional<Marke>, AnzahlFelder> marken;
};

} // namespace varnoth
