#pragma once

#include "ablaufdialog.h"

#include <memory>

namespace varnoth {

namespace Ui {
class frmKonfigurationLesenAusHardware;
}

struct Geraeteabzug;

/// Reads the whole configuration of the controller into the register image, or into one aside.
class frmKonfigurationLesenAusHardware : public Ablaufdialog {
public:
    /// @param abzug takes what is read instead of the image in use; it must outlive the dialog
    explicit frmKonfigurationLesenAusHardware(QWidget* parent = nullptr, Geraeteabzug* abzug = nullptr);
    ~frmKonfigurationLesenAusHardware() override;

private:
    bool Ablauf() override;

    std::unique_ptr<Ui::frmKonfigurationLesenAusHardware> ui;
    Geraeteabzug* abzug;
};

} // namespace varnoth
