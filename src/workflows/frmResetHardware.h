#pragma once

#include "ablaufdialog.h"
#include "hardwarereset.h"

#include <memory>

namespace varnoth {

namespace Ui {
class frmResetHardware;
}

/// Asks whether the controller is to restart as at power-up, and has it do so. It closes by itself at the
/// end.
class frmResetHardware : public Ablaufdialog, private Resetanzeige {
public:
    explicit frmResetHardware(QWidget* parent = nullptr);
    ~frmResetHardware() override;

private:
    bool Ablauf() override;
    void ZeigeWiederholung(int versuch) override;
    bool Abgebrochen() override { return GetCancel() != False; }

    std::unique_ptr<Ui::frmResetHardware> ui;
};

} // namespace varnoth
