#include "dateiabwurf.h"

#include <QMimeData>
#include <QUrl>

namespace varnoth {

std::vector<std::string> GezogeneDateien(const QMimeData& daten) {
    std::vector<std::string> dateien;
    for (const QUrl& ort : daten.urls()) {
        if (!ort.isLocalFile())
            return {};
        dateien.push_back(ort.toLocalFile().toStdString());
    }
    return dateien;
}

} // namespace varnoth
