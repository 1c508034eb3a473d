#pragma once

#include "ablaufdialog.h"

#include <memory>

namespace varnoth {

namespace Ui {
class frmKonfigurationLesenAusHardware;
}

/// Reads the whole configuration of the controller into the register image.
class frmKonfigurationLesenAusHardware : public Ablaufdialog {
public:
    explicit frmKonfigurationLesenAusHardware(QWidget* parent = nullptr);
    ~frmKonfigurationLesenAusHardware() override;

private:
    bool Ablauf() override;

    std::unique_ptr<Ui::frmKonfigurationLesenAusHardware> ui;
};

} // namespace varnoth
