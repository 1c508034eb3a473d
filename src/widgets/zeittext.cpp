#include "zeittext.h"

#include "texte.h"

#include <QDateTime>

namespace varnoth {

QString Zeittext(std::chrono::system_clock::time_point zeit) {
    const auto ms = std::chrono::floor<std::chrono::milliseconds>(zeit.time_since_epoch()).count();
    return QDateTime::fromMSecsSinceEpoch(ms).toString(GetSprachoffset() == Englisch
                                                           ? QStringLiteral("yyyy-MM-dd hh:mm")
                                                           : QStringLiteral("dd.MM.yyyy hh:mm"));
}

} // namespace varnoth
