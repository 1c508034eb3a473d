#include "ablaufdialog.h"

#include "feldtext.h"
#include "lokalisiereform.h"
#include "schnittstelle.h"

#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace varnoth {

namespace {
constexpr int Feldbreite = 34; // characters of a field that shows a step
}

Ablaufdialog::Ablaufdialog(Beginn wann, QWidget* parent) : QDialog(parent), beginn(wann) {}

Ablaufdialog::~Ablaufdialog() {
    Entlade();
}

void Ablaufdialog::Lade(QPushButton& abbrechen) {
    abbruchknopf = &abbrechen;
    connect(abbruchknopf, &QPushButton::clicked, this, &Ablaufdialog::reject);
    abbruchknopf->setFocus();
    for (QLineEdit* const feld : findChildren<QLineEdit*>())
        if (feld->isReadOnly()) {
            MacheZurAnzeige(*feld);
            BietePlatz(*feld, Feldbreite);
        }
    LokalisiereForm(*this);
    modSchnittstelle::OpenCommPort();
    geladen = true;
}

void Ablaufdialog::Entlade() {
    if (std::exchange(geladen, false))
        modSchnittstelle::CloseCommPort();
}

void Ablaufdialog::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    if (beginn != Beginn::BeimZeigen || angestossen)
        return;
    angestossen = true;
    QMetaObject::invokeMethod(
        this, [this] { FuehreAus(); }, Qt::QueuedConnection);
}

void Ablaufdialog::FuehreAus() {
    if (abbruch == False) {
        laeuft = true;
        vollstaendig = AlsBoolean(Ablauf());
        laeuft = false;
    }
    if (vollstaendig == False)
        abbruch = True;
    if (abbruch != False)
        done(Rejected);
    else if (weiter != False)
        done(Accepted);
}

void Ablaufdialog::reject() {
    if (vollstaendig == False || abbruchknopf->isEnabled())
        abbruch = True;
    done(Rejected);
}

void Ablaufdialog::done(int ergebnis) {
    if (laeuft) {
        abbruch = True;
        abbruchknopf->setEnabled(false);
        return;
    }
    Entlade();
    QDialog::done(ergebnis);
}

} // namespace varnoth
