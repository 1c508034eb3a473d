#pragma once

#include <QDialog>

#include <memory>

namespace varnoth {

namespace Ui {
class frmInfo;
}

/// The about box: name, version and owner.
class frmInfo : public QDialog {
    Q_OBJECT

public:
    explicit frmInfo(QWidget* besitzer);
    ~frmInfo() override;

private:
    std::unique_ptr<Ui::frmInfo> ui;
};

} // namespace varnoth
