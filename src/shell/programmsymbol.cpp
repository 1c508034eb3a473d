#include "programmsymbol.h"

/// The resources of a static library have to be asked for, and Qt wants that done outside of any namespace.
static void InitRessourcen() {
    Q_INIT_RESOURCE(shell);
}

namespace varnoth {

QIcon Programmsymbol() {
    InitRessourcen();
    return QIcon(QStringLiteral(":/symbole/varnoth.svg"));
}

} // namespace varnoth
