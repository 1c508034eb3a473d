#include "eigenerordner.h"

#include <QDir>

namespace varnoth {

QString ErsterEigenerOrdner(const QStringList& kandidaten) {
    for (const QString& ordner : kandidaten) {
        if (!QDir::isAbsolutePath(ordner))
            continue;
        LegeEigenenOrdnerAn(ordner);
        if (GehoertNurMir(ordner))
            return ordner;
    }
    return {};
}

} // namespace varnoth
