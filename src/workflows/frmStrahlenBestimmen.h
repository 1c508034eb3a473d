#pragma once

#include "boolean.h"

#include <QDialog>

#include <memory>

namespace varnoth {

namespace Ui {
class frmStrahlenBestimmen;
}

/// Makes a new configuration from beam counts alone, without a controller.
class frmStrahlenBestimmen : public QDialog {
public:
    explicit frmStrahlenBestimmen(QWidget* parent = nullptr);
    ~frmStrahlenBestimmen() override;

    /// False once the new configuration is in the register image.
    Boolean GetCancel() const { return AlsBoolean(result() != Accepted); }

private:
    void cmdOK_Click();

    std::unique_ptr<Ui::frmStrahlenBestimmen> ui;
};

} // namespace varnoth
