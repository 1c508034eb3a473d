#pragma once

#include "ablaufdialog.h"
#include "einzelwert.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace varnoth {

namespace Ui {
class frmEinzelwerteLesenSchreiben;
}

/// Reads and writes single registers of the controller, past the register image. It stays open until the user
/// closes it; while an exchange runs, that takes effect when the exchange has ended.
class frmEinzelwerteLesenSchreiben : public Ablaufdialog {
public:
    explicit frmEinzelwerteLesenSchreiben(QWidget* parent = nullptr);
    ~frmEinzelwerteLesenSchreiben() override;

private:
    bool Ablauf() override;

    void OptAdressOffset_Click(int index);
    void cmdLesen_Click();
    void cmdSchreiben_Click();
    void Tausche(std::function<std::string()> was);
    void SetzeKnoepfe(bool bereit);
    Einzelregister GewaehltesRegister() const;

    std::unique_ptr<Ui::frmEinzelwerteLesenSchreiben> ui;
    std::int32_t AdressOffset = 0;
    std::function<std::string()> austausch; ///< the exchange to run; gives the text to show
};

} // namespace varnoth
