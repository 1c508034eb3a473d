#include "qttexte.h"

#include "startzustand.h"
#include "texte.h"

#include <QCoreApplication>
#include <QTranslator>

#include <memory>

/// The resources of a static library have to be asked for, and Qt wants that done outside of any namespace.
static void InitRessourcen() {
    Q_INIT_RESOURCE(qttexte);
}

namespace varnoth {

namespace {

std::unique_ptr<QTranslator> deutsch; // in force while it is there
const Startwert startwert(deutsch);

} // namespace

void LadeQtTexte(std::int16_t sprachoffset) {
    deutsch.reset();
    if (sprachoffset == Englisch)
        return;
    InitRessourcen();
    deutsch = std::make_unique<QTranslator>();
    static_cast<void>(deutsch->load(QStringLiteral(":/qttexte/qtbase_de.qm")));
    QCoreApplication::installTranslator(deutsch.get());
}

} // namespace varnoth
