#pragma once

#include <QDialog>
#include <QString>

#include <memory>

namespace varnoth {

namespace Ui {
class frmInfo;
}

/// The about box: name, version and owner, what the program was built with, and a button that copies what
/// whoever helps a user wants to know.
class frmInfo : public QDialog {
    Q_OBJECT

public:
    /// @param einstellungsdatei where this run keeps its settings
    explicit frmInfo(QWidget* besitzer, const QString& einstellungsdatei = {});
    ~frmInfo() override;

private:
    void Kopiere(const QString& einstellungsdatei);

    std::unique_ptr<Ui::frmInfo> ui;
};

} // namespace varnoth
