#pragma once

#include "sicherungen.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>

class QTreeWidgetItem;

namespace varnoth {

namespace Ui {
class frmSicherungen;
}

/// What can be done with a backup beyond this window.
struct Sicherungsbefehle {
    std::function<void(const Sicherung& sicherung)> oeffne;
    std::function<void(const Sicherung& sicherung)> speichere;    ///< a copy elsewhere, where the user says
    std::function<void(const Sicherung& sicherung)> vergleiche{}; ///< none: it cannot be compared here
};

/// The backups, by controller and time, with what differs from the configuration in use. It stays open beside
/// the main window and shows the present state whenever it comes to the front.
class frmSicherungen : public QDialog {
public:
    /// The backups must outlive the window.
    frmSicherungen(Sicherungen& sicherungen, Sicherungsbefehle befehle, QWidget* parent = nullptr);
    ~frmSicherungen() override;

    /// Texts in the current language, and the backups as they are now.
    void Erneuere();

protected:
    void changeEvent(QEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;

private:
    void Fuelle();
    void FuegeGruppe(const std::string& name, const std::vector<Sicherung>& gruppe,
                     const std::string& gewaehlte);
    QTreeWidgetItem* Eintrag(const Sicherung& sicherung) const;
    void ZeigeAuswahl();
    const Sicherung* Gewaehlte() const;
    void Tue(const std::function<void(const Sicherung&)>& befehl);
    void Loesche();

    std::unique_ptr<Ui::frmSicherungen> ui;
    Sicherungen& bestand;
    Sicherungsbefehle befehle;
    std::vector<Sicherung> gezeigte;
};

} // namespace varnoth
