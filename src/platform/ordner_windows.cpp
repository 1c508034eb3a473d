#include "ordner.h"

#include "fehlernummer_windows.h"
#include "griff_windows.h"
#include "systempfad_windows.h"

#include <QDir>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <cerrno>

#include <windows.h>

namespace varnoth {

namespace {

bool IstOrdner(const std::wstring& systempfad) {
    const DWORD merkmale = ::GetFileAttributesW(systempfad.c_str());
    return merkmale != INVALID_FILE_ATTRIBUTES && (merkmale & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// The folder, after those above it that are missing.
int LegeKetteAn(const std::wstring& systempfad) {
    if (IstOrdner(systempfad) || ::CreateDirectoryW(systempfad.c_str(), nullptr) != 0)
        return 0;
    const DWORD fehler = ::GetLastError();
    const auto trenner = systempfad.find_last_of(L'\\');
    if (fehler != ERROR_PATH_NOT_FOUND || trenner == std::wstring::npos)
        return fehler == ERROR_ALREADY_EXISTS ? ENOTDIR : FehlernummerVon(fehler);
    const std::wstring darueber = systempfad.substr(0, trenner);
    if (!KannDateiSein(darueber))
        return ENOENT;
    if (const int oben = LegeKetteAn(darueber); oben != 0)
        return oben;
    return ::CreateDirectoryW(systempfad.c_str(), nullptr) != 0 || IstOrdner(systempfad)
               ? 0
               : LetzteFehlernummer();
}

/// Whether a folder is one of those where programs are installed for all users, or lies below one.
bool LiegtBeiProgrammen(const QString& ordner) {
    const QString gesuchter = QDir::cleanPath(QDir(ordner).absolutePath()) + u'/';
    for (const char* const variable : {"ProgramFiles", "ProgramFiles(x86)", "ProgramW6432", "SystemRoot"}) {
        const QString wurzel = QDir::fromNativeSeparators(qEnvironmentVariable(variable));
        if (!wurzel.isEmpty() && gesuchter.startsWith(wurzel + u'/', Qt::CaseInsensitive))
            return true;
    }
    return false;
}

} // namespace

int LegeOrdnerAn(const std::string& pfad) {
    const std::wstring systempfad = Systempfad(pfad);
    return KannDateiSein(systempfad) ? LegeKetteAn(systempfad) : ENOTDIR;
}

/// What a file system allows is known once it has been tried.
bool IstBeschreibbar(const QString& ordner) {
    if (LiegtBeiProgrammen(ordner))
        return false;
    const QString name = QStringLiteral(".varnoth-%1.neu")
                             .arg(QRandomGenerator::system()->generate64(), 16, 16, QLatin1Char('0'));
    const std::wstring probe = Systempfad(QDir(ordner).filePath(name).toStdString());
    const Griff datei(::CreateFileW(probe.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    return static_cast<bool>(datei);
}

QString Einstellungsordner() {
    const QString eigener = QDir::fromNativeSeparators(qEnvironmentVariable("APPDATA"));
    return QDir::isAbsolutePath(eigener)
               ? eigener
               : QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

} // namespace varnoth
