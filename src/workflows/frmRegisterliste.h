#pragma once

#include "registerbefund.h"

#include <QDialog>

#include <memory>

namespace varnoth {

namespace Ui {
class frmRegisterliste;
}

/// Shows a finding about parameters. Accepted when the user wants what can be done about it.
class frmRegisterliste : public QDialog {
public:
    explicit frmRegisterliste(const Registerbefund& befund, QWidget* parent = nullptr);
    ~frmRegisterliste() override;

private:
    void Fuelle(const Registerbefund& befund);

    std::unique_ptr<Ui::frmRegisterliste> ui;
};

} // namespace varnoth
