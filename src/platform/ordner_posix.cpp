#include "ordner.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace varnoth {

int LegeOrdnerAn(const std::string& pfad) {
    std::error_code fehler;
    std::filesystem::create_directories(pfad, fehler);
    if (fehler)
        return fehler.value();
    return std::filesystem::is_directory(pfad, fehler) ? 0 : ENOTDIR;
}

bool IstBeschreibbar(const QString& ordner) {
    return QFileInfo(ordner).isWritable();
}

QString Einstellungsordner() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

} // namespace varnoth
