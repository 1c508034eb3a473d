#include "eingabedialog.h"

#include "texte.h"
#include "umgebung.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

namespace varnoth {

namespace {

constexpr std::int16_t TextVerwerfen = 9400;

bool IstEnter(const QKeyEvent& taste) {
    return taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
}

} // namespace

void Eingabedialog::NimmVorgabenWeg() {
    for (QPushButton* const knopf : findChildren<QPushButton*>()) {
        knopf->setAutoDefault(false);
        knopf->setDefault(false);
    }
}

bool Eingabedialog::DarfSchliessen() const {
    return !IstGeaendert() || DieUmgebung().ZeigeMeldung({.text = LadeText(TextVerwerfen),
                                                          .titel = LadeText(TextAchtung),
                                                          .knoepfe = Knoepfe::OkAbbrechen,
                                                          .abbrechenVorgegeben = true}) == Antwort::Ok;
}

void Eingabedialog::keyPressEvent(QKeyEvent* ereignis) {
    if (IstEnter(*ereignis))
        focusNextChild();
    else if (!ereignis->matches(QKeySequence::Cancel) || DarfSchliessen())
        QDialog::keyPressEvent(ereignis);
}

void Eingabedialog::closeEvent(QCloseEvent* ereignis) {
    if (DarfSchliessen())
        QDialog::closeEvent(ereignis);
    else
        ereignis->ignore();
}

} // namespace varnoth
