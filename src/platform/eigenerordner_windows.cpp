#include "eigenerordner.h"

#include "griff_windows.h"
#include "nutzer_windows.h"
#include "systempfad_windows.h"

#include <QDir>
#include <QStandardPaths>

#include <windows.h>

namespace varnoth {

bool GehoertNurMir(const QString& ordner) {
    constexpr DWORD mitAllen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    constexpr DWORD flaggen = FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT;
    const std::wstring systempfad = Systempfad(ordner.toStdString());
    const DWORD merkmale = ::GetFileAttributesW(systempfad.c_str());
    if (merkmale == INVALID_FILE_ATTRIBUTES || (merkmale & FILE_ATTRIBUTE_DIRECTORY) == 0 ||
        (merkmale & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        return false;
    const Griff offener(
        ::CreateFileW(systempfad.c_str(), READ_CONTROL, mitAllen, nullptr, OPEN_EXISTING, flaggen, nullptr));
    return offener && GehoertMir(offener.Wert(), true) && SchreibenNurEigene(offener.Wert());
}

/// Below the user's own folders it inherits that only this user, the system and administrators may enter.
void LegeEigenenOrdnerAn(const QString& ordner) {
    ::CreateDirectoryW(Systempfad(ordner.toStdString()).c_str(), nullptr);
}

QString LaufzeitOrdner() {
    const QString name = QStringLiteral("varnoth");
    const QDir lokale(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return ErsterEigenerOrdner({lokale.filePath(name), QDir::temp().filePath(name)});
}

} // namespace varnoth
