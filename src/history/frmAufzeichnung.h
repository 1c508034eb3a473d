#pragma once

#include "aufzeichnungsanbieter.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <string>

namespace varnoth {

namespace Ui {
class frmAufzeichnung;
}

/// Shows what is recorded, how and where, in a window of its own beside the main window. A choice is in force
/// as soon as it is made; while a recording runs only that of the flight recorder can be changed.
class frmAufzeichnung : public QWidget {
    Q_OBJECT

public:
    /// `anbieter` must outlive the window.
    explicit frmAufzeichnung(Aufzeichnungsanbieter& anbieter);
    ~frmAufzeichnung() override;

    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// Shows the window or brings it to the front.
    void ZeigeVor();

protected:
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void RichteEin();
    void Verbinde();
    void ZeigeWahl();
    void NimmWahl();
    void NimmFlugschreiber();
    void WaehleOrdner();
    void Schalte();
    void Sichere();
    void Plane();
    void ZeigeStand();
    void ZeigeSpeicher();
    void ZeigeLetzte(const Aufzeichnungslage& lage);

    std::unique_ptr<Ui::frmAufzeichnung> ui;
    Aufzeichnungsanbieter& anbieter;
    QTimer takt{this};
    bool geplant = false;
    std::string letzte;    ///< files that were told last
    std::string gesichert; ///< what was saved of the memory last
};

} // namespace varnoth
