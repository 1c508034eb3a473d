#pragma once

#include "autosend.h"
#include "autosendbedienung.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace varnoth {

namespace Ui {
class Kommunikationsseite;
}

class Vorgabemarken;

/// The page of the bus: station address, pause time, and how the controller sends without being asked.
class Kommunikationsseite : public QWidget {
    Q_OBJECT

public:
    explicit Kommunikationsseite(QWidget* eltern = nullptr);
    ~Kommunikationsseite() override;

    /// Lets the label beside the rate show the value that the selection sends.
    void ZeigeUebertrageneWerte();

    /// Shows the registers as the bus type demands.
    void Fuelle(std::int32_t typ);
    /// Stores what the controls show.
    void SchreibeZurueck() const;
    /// Looks again at which settings differ from the factory default.
    void AktualisiereMarken();
    /// Lets what can be used follow the mode that is selected.
    void FolgeArt();

signals:
    /// Filling found a mode in which the controller can be told to start sending, or one in which it cannot.
    void AutosendStartbar(bool startbar);
    /// The user wants to edit the order of the data block.
    void ReihenfolgeVerlangt();

private:
    void BaueMarken();
    void BaueAutosendmarken();
    void Verbinde();
    void FuelleStationsadresse();
    void FuelleAutosend();
    void FuelleAutosendformat();
    void PasseAnBusAn();
    void WaehleArt();
    void Sperre(const Autosendbedienung& bedienung);
    std::int32_t Autosendwert() const;
    std::optional<Autosendart> Art() const;

    std::unique_ptr<Ui::Kommunikationsseite> ui;
    Vorgabemarken* marken;
    std::int32_t derBustyp = 0;
};

} // namespace varnoth
