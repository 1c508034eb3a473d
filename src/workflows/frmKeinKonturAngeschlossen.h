#pragma once

#include "boolean.h"
#include "verbindungsauskunft.h"

#include <QDialog>

#include <memory>

namespace varnoth {

namespace Ui {
class frmKeinKonturAngeschlossen;
}

/// Asks how to come to a configuration when that of the controller is not known.
class frmKeinKonturAngeschlossen : public QDialog {
public:
    enum class Wahl {
        LetzterDatensatz, ///< load the file of LetzterDatensatz()
        DateiOeffnen,     ///< run the open command
        Strahlenanzahl,   ///< the dialog has made a new configuration in the register image
        Abgebrochen,
    };

    explicit frmKeinKonturAngeschlossen(QWidget* parent = nullptr);
    ~frmKeinKonturAngeschlossen() override;

    /// Says above the choices why there is no connection; what was looked at stands in the tip.
    void ZeigeUrsache(const Verbindungsauskunft& auskunft);
    /// What the user chose; what follows from it is the caller's business. Abgebrochen until OK is accepted.
    Wahl GetWahl() const;
    Boolean GetCancel() const { return AlsBoolean(GetWahl() == Wahl::Abgebrochen); }

private:
    void BieteLetztenDatensatzAn();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmKeinKonturAngeschlossen> ui;
};

} // namespace varnoth
