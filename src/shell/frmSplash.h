#pragma once

#include <QWidget>

#include <memory>

namespace varnoth {

namespace Ui {
class frmSplash;
}

/// The window that shows name and version while the program starts, in the middle of the screen.
class frmSplash : public QWidget {
    Q_OBJECT

public:
    frmSplash();
    ~frmSplash() override;

private:
    std::unique_ptr<Ui::frmSplash> ui;
};

} // namespace varnoth
