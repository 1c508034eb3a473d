#include "programmsymbol.h"

#include "symbolbild.h"

/// The resources of a static library have to be asked for, and Qt wants that done outside of any namespace.
static void InitRessourcen() {
    Q_INIT_RESOURCE(shell);
}

namespace varnoth {

QIcon Programmsymbol() {
    InitRessourcen();
    return FarbigesBild(QStringLiteral(":/symbole/varnoth.svg"));
}

} // namespace varnoth
