#include "eingabe.h"

#include <cmath>

namespace varnoth {

std::optional<double> LiesEingabe(const QString& text, const QLocale& gebiet) {
    if (text.size() > LaengsteEingabe)
        return std::nullopt;
    QLocale streng = gebiet;
    streng.setNumberOptions(QLocale::RejectGroupSeparator);
    bool lesbar = false;
    const double zahl = streng.toDouble(text, &lesbar);
    if (!lesbar || !std::isfinite(zahl))
        return std::nullopt;
    return zahl;
}

} // namespace varnoth
