#pragma once

#include "ablaufdialog.h"
#include "schreibfolge.h"

#include <memory>
#include <optional>

namespace varnoth {

namespace Ui {
class frmKonfigurationSchreibenInHardware;
}

class Transferansicht;

/// Writes a configuration to the controller and, if the user leaves that checked, has the controller store
/// it; if the user has chosen so, everything written is then read again and compared. It begins when the user
/// presses Start and closes by itself at the end. Before the first request what the controller held goes into
/// a backup; where that fails, the user may go on all the same.
class frmKonfigurationSchreibenInHardware : public Ablaufdialog {
public:
    /// @param auftrag what is written; nothing = every writable parameter of the image in use
    explicit frmKonfigurationSchreibenInHardware(QWidget* parent = nullptr,
                                                 std::optional<Schreibauftrag> auftrag = std::nullopt);
    ~frmKonfigurationSchreibenInHardware() override;

    /// What has come of it so far.
    const Schreibergebnis& Ergebnis() const { return ergebnis; }

private:
    bool Ablauf() override;

    Schreibauftrag Auftrag() const;
    void ZeigeVorausschau();
    void ZeigeAenderungen();
    void cmdStart_Click();
    bool Pruefe(Transferansicht& ansicht);

    std::unique_ptr<Ui::frmKonfigurationSchreibenInHardware> ui;
    std::optional<Schreibauftrag> vorgegebener;
    Schreibergebnis ergebnis;
};

} // namespace varnoth
