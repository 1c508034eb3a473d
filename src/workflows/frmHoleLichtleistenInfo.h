#pragma once

#include "ablaufdialog.h"
#include "optikteilinformation.h"
#include "werte.h"

#include <array>
#include <memory>

class QLabel;

namespace varnoth {

namespace Ui {
class frmHoleLichtleistenInfo;
}

/// Asks the controller which optical parts are present and shows a line for each.
class frmHoleLichtleistenInfo : public Ablaufdialog, private Optikteilanzeige {
public:
    explicit frmHoleLichtleistenInfo(QWidget* parent = nullptr);
    ~frmHoleLichtleistenInfo() override;

private:
    bool Ablauf() override;
    void ZeigeOptikteil(int optikteil, const std::string& text) override;
    void ZeigeFortschritt(int erledigt, int gesamt) override;
    bool Abgebrochen() override { return GetCancel() != False; }

    std::unique_ptr<Ui::frmHoleLichtleistenInfo> ui;
    std::array<QLabel*, AnzahlOptikteile> lblLichtleiste{};
};

} // namespace varnoth
