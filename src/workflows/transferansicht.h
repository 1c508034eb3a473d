#pragma once

#include "konfigurationstransfer.h"

class QLineEdit;
class QProgressBar;

namespace varnoth {

class Ablaufdialog;

/// The fields in which a dialog shows a transfer.
struct Transferfelder {
    QLineEdit* speicherbereich;
    QLineEdit* aktuellesRegister;
    QLineEdit* registeranzahl;
    QLineEdit* versuch;
    QProgressBar* fortschritt;
};

/// Shows a transfer in the fields of its dialog and passes on the dialog's cancel.
class Transferansicht : public Transferanzeige {
public:
    Transferansicht(const Ablaufdialog& der, const Transferfelder& die) : dialog(der), felder(die) {}

    void ZeigeBereich(const std::string& text) override;
    void ZeigeRegister(const std::string& registertext, int anzahl, int versuch) override;
    void ZeigeFortschritt(int erledigt, int gesamt) override;
    void ZeigeEnde(const std::string& text) override;
    bool Abgebrochen() override;

private:
    const Ablaufdialog& dialog;
    Transferfelder felder;
};

} // namespace varnoth
