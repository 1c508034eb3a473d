#include "transferansicht.h"

#include "ablaufdialog.h"
#include "feldtext.h"
#include "umgebung.h"

#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>

#include <utility>

namespace varnoth {

Transferansicht::Transferansicht(Ablaufdialog& ablaufdialog, const Transferfelder& transferfelder)
    : dialog(ablaufdialog), felder(transferfelder) {}

Transferansicht::~Transferansicht() {
    Zeige();
}

void Transferansicht::ZeigeBereich(const std::string& text) {
    stand.bereich = QString::fromStdString(text);
    ZeigeSpaeter();
}

void Transferansicht::ZeigeRegister(const std::string& registertext, int anzahl, int versuch) {
    stand.registertext = QString::fromStdString(registertext);
    stand.anzahl = QString::number(anzahl);
    stand.versuch = QString::number(versuch);
    ZeigeSpaeter();
}

void Transferansicht::ZeigeFortschritt(int erledigt, int gesamt) {
    stand.erledigt = erledigt;
    stand.gesamt = gesamt;
    ZeigeSpaeter();
}

void Transferansicht::ZeigeEnde(const std::string& text) {
    stand.bereich = QString::fromStdString(text);
    stand.registertext.clear();
    stand.anzahl.clear();
    stand.versuch.clear();
    ausstehend = true;
    Zeige();
}

void Transferansicht::ZeigeSpaeter() {
    if (std::exchange(ausstehend, true))
        return;
    DieUmgebung().FuerWartezeit([diese = QPointer<Transferansicht>(this)] {
        if (diese != nullptr)
            diese->Zeige();
    });
}

void Transferansicht::Zeige() {
    if (!std::exchange(ausstehend, false))
        return;
    ZeigeText(*felder.speicherbereich, stand.bereich);
    ZeigeText(*felder.aktuellesRegister, stand.registertext);
    ZeigeText(*felder.registeranzahl, stand.anzahl);
    ZeigeText(*felder.versuch, stand.versuch);
    felder.fortschritt->setMaximum(stand.gesamt);
    ZeigeStand(*felder.fortschritt, stand.erledigt);
}

bool Transferansicht::Abgebrochen() {
    return dialog.GetCancel() != False;
}

} // namespace varnoth
