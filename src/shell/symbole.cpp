#include "symbole.h"

/// The resources of a static library have to be asked for, and Qt wants that done outside of any namespace.
static void InitRessourcen() {
    Q_INIT_RESOURCE(shell);
}

namespace varnoth {

QIcon Programmsymbol() {
    return Symbolbild(QStringLiteral("varnoth"));
}

QIcon Symbolbild(const QString& name) {
    InitRessourcen();
    return QIcon(QStringLiteral(":/symbole/%1.svg").arg(name));
}

} // namespace varnoth
