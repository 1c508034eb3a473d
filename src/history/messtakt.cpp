#include "messtakt.h"

#include "messanbieter.h"
#include "umgebung.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace varnoth {

namespace {

constexpr std::chrono::milliseconds Schritt{100};

} // namespace

Messtakt::Messtakt(Messanbieter& woher, QWidget& fenster) : QObject(&fenster), anbieter(woher) {
    gesehen = Lage();
    fenster.installEventFilter(this);
    connect(&uhrwerk, &QTimer::timeout, this, [this] {
        if (std::exchange(geplant, true))
            return;
        DieUmgebung().FuerWartezeit([takt = QPointer(this)] {
            if (takt == nullptr)
                return;
            takt->geplant = false;
            takt->Sieh();
        });
    });
    if (fenster.isVisible())
        uhrwerk.start(Schritt);
}

void Messtakt::Sieh() {
    const Gesehenes vorher = std::exchange(gesehen, Lage());
    if (vorher.quelle != gesehen.quelle)
        emit Ersetzt();
    else if (vorher != gesehen)
        emit Gewachsen();
}

bool Messtakt::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == parent() && ereignis->type() == QEvent::Show) {
        uhrwerk.start(Schritt);
        Sieh();
    }
    if (objekt == parent() && ereignis->type() == QEvent::Hide)
        uhrwerk.stop();
    return QObject::eventFilter(objekt, ereignis);
}

Messtakt::Gesehenes Messtakt::Lage() const {
    const Messquelle& quelle = anbieter.Quelle();
    return {.quelle = anbieter.Quellenzahl(),
            .erstes = quelle.Erstes(),
            .ende = quelle.Ende(),
            .bis = quelle.Spanne().bis.count(),
            .jetzt = anbieter.Jetzt().count()};
}

} // namespace varnoth
