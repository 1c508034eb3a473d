#include "strahlhinweis.h"

#include <QEvent>

namespace varnoth {

Strahlhinweis::Strahlhinweis(QWidget& strahlen) : Schild(QStringLiteral("lblHinweis"), strahlen) {
    strahlen.installEventFilter(this);
}

void Strahlhinweis::Zeige(const QString& neuer) {
    if (neuer == text())
        return;
    SetzeText(neuer);
    Ordne();
}

bool Strahlhinweis::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize)
        Ordne();
    return Schild::eventFilter(ziel, ereignis);
}

void Strahlhinweis::Ordne() {
    PasseGroesseAn();
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}

} // namespace varnoth
