#include "transferansicht.h"

#include "ablaufdialog.h"
#include "feldtext.h"

#include <QLineEdit>
#include <QProgressBar>

namespace varnoth {

void Transferansicht::ZeigeBereich(const std::string& text) {
    ZeigeText(*felder.speicherbereich, QString::fromStdString(text));
}

void Transferansicht::ZeigeRegister(const std::string& registertext, int anzahl, int versuch) {
    ZeigeText(*felder.aktuellesRegister, QString::fromStdString(registertext));
    ZeigeText(*felder.registeranzahl, QString::number(anzahl));
    ZeigeText(*felder.versuch, QString::number(versuch));
}

void Transferansicht::ZeigeFortschritt(int erledigt, int gesamt) {
    felder.fortschritt->setMaximum(gesamt);
    ZeigeStand(*felder.fortschritt, erledigt);
}

void Transferansicht::ZeigeEnde(const std::string& text) {
    ZeigeBereich(text);
    for (QLineEdit* const feld : {felder.aktuellesRegister, felder.registeranzahl, felder.versuch})
        ZeigeText(*feld, {});
}

bool Transferansicht::Abgebrochen() {
    return dialog.GetCancel() != False;
}

} // namespace varnoth
