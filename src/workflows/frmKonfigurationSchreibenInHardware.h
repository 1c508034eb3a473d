#pragma once

#include "ablaufdialog.h"

#include <memory>

namespace varnoth {

namespace Ui {
class frmKonfigurationSchreibenInHardware;
}

/// Writes the configuration of the register image to the controller and, if the user leaves that checked, has
/// the controller store it. It begins when the user presses Start and closes by itself at the end.
class frmKonfigurationSchreibenInHardware : public Ablaufdialog {
public:
    explicit frmKonfigurationSchreibenInHardware(QWidget* parent = nullptr);
    ~frmKonfigurationSchreibenInHardware() override;

private:
    bool Ablauf() override;

    std::unique_ptr<Ui::frmKonfigurationSchreibenInHardware> ui;
};

} // namespace varnoth
