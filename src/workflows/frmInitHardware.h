#pragma once

#include "ablaufdialog.h"
#include "hardwareinitialisierung.h"

#include <QDate>

#include <memory>

namespace varnoth {

namespace Ui {
class frmInitHardware;
}

/// Writes the controller's factory data: serial number, date of manufacture and hardware version. It closes
/// by itself at the end, and at once when there is no service password of 16 characters.
class frmInitHardware : public Ablaufdialog, private Initialisierungsanzeige {
public:
    /// `heute` is the date of manufacture that is offered.
    explicit frmInitHardware(QWidget* parent = nullptr, QDate heute = QDate::currentDate());
    ~frmInitHardware() override;

private:
    bool Ablauf() override;
    void ZeigeSchritt(const std::string& text) override;
    void ZeigeVersuch(int versuch) override;
    bool Abgebrochen() override { return GetCancel() != False; }

    void BegrenzeEingaben();
    void FuelleFelder(QDate heute);
    void SperreEingaben();
    Werksdaten Eingaben() const;

    std::unique_ptr<Ui::frmInitHardware> ui;
};

} // namespace varnoth
