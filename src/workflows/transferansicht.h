#pragma once

#include "konfigurationstransfer.h"

#include <QObject>
#include <QString>

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

/// Shows a transfer in the fields of its dialog and passes on the dialog's cancel. Steps are shown once a
/// request is under way: filling fields between a reply and the next request would make every transfer
/// slower.
class Transferansicht : public QObject, public Transferanzeige {
public:
    Transferansicht(Ablaufdialog& ablaufdialog, const Transferfelder& transferfelder);
    ~Transferansicht() override;

    void ZeigeBereich(const std::string& text) override;
    void ZeigeRegister(const std::string& registertext, int anzahl, int versuch) override;
    void ZeigeFortschritt(int erledigt, int gesamt) override;
    void ZeigeEnde(const std::string& text) override;
    bool Abgebrochen() override;

private:
    struct Stand {
        QString bereich;
        QString registertext;
        QString anzahl;
        QString versuch;
        int erledigt = 0;
        int gesamt = 1;
    };

    void ZeigeSpaeter();
    void Zeige();

    Ablaufdialog& dialog;
    Transferfelder felder;
    Stand stand;
    bool ausstehend = false;
};

} // namespace varnoth
