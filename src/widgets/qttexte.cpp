#include "qttexte.h"

#include "texte.h"

#include <QCoreApplication>
#include <QTranslator>

/// The resources of a static library have to be asked for, and Qt wants that done outside of any namespace.
static void InitRessourcen() {
    Q_INIT_RESOURCE(qttexte);
}

namespace varnoth {

void LadeQtTexte(std::int16_t sprachoffset) {
    static QTranslator deutsch;
    if (deutsch.isEmpty()) {
        InitRessourcen();
        static_cast<void>(deutsch.load(QStringLiteral(":/qttexte/qtbase_de.qm")));
    }
    QCoreApplication::removeTranslator(&deutsch);
    if (sprachoffset != Englisch)
        QCoreApplication::installTranslator(&deutsch);
}

} // namespace varnoth
