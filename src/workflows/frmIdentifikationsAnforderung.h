#pragma once

#include "ablaufdialog.h"
#include "identifizierung.h"

#include <memory>

namespace varnoth {

namespace Ui {
class frmIdentifikationsAnforderung;
}

/// Asks the controller who it is and shows what it says.
class frmIdentifikationsAnforderung : public Ablaufdialog, private Identifikationsanzeige {
public:
    explicit frmIdentifikationsAnforderung(QWidget* parent = nullptr);
    ~frmIdentifikationsAnforderung() override;

private:
    bool Ablauf() override;
    void ZeigeVerbleibend(int versuche) override;
    void ZeigeUrsache(const Verbindungsauskunft& auskunft) override;
    void ZeigeIdentifikation() override;
    bool Abgebrochen() override { return GetCancel() != False; }

    std::unique_ptr<Ui::frmIdentifikationsAnforderung> ui;
};

} // namespace varnoth
