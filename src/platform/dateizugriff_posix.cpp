#include "dateizugriff.h"

#include "dauerhaft_posix.h"
#include "systemfehler.h"

#include <QFile>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace varnoth::dateizugriff {

namespace {

/// Unbuffered and to the last byte: a disk that fills up in the middle then tells at once, and why.
bool SchreibAlles(QFile& datei, std::string_view bytes) {
    errno = 0;
    while (!bytes.empty()) {
        const qint64 geschrieben = datei.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (geschrieben <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return true;
}

/// Why a call on a file has just failed; errno was 0 before it.
std::string Fehlertext(const QFileDevice& datei) {
    return errno != 0 ? Systemfehler(errno) : datei.errorString().toStdString();
}

/// Fills a new file that is to take the place of an old one, and closes it.
std::string Fuelle(QFile& datei, std::string_view bytes, const QFileInfo& alte) {
    if (alte.exists())
        datei.setPermissions(alte.permissions());
    if (!SchreibAlles(datei, bytes))
        return Fehlertext(datei);
    if (auto fehler = BringeAufDatentraeger(datei); !fehler.empty())
        return fehler;
    errno = 0;
    datei.close();
    return datei.error() == QFileDevice::NoError ? std::string() : Fehlertext(datei);
}

} // namespace

std::string Hindernis(const QString& pfad) {
    const QFileInfo info(pfad);
    if (pfad.isEmpty())
        return Systemfehler(ENOENT);
    if (info.isDir())
        return Systemfehler(EISDIR);
    if (info.exists() && !info.isFile())
        return KeineGewoehnlicheDatei();
    return {};
}

Leseergebnis Lies(const QString& pfad, std::size_t hoechstens) {
    QFile datei(pfad);
    errno = 0;
    if (!datei.open(QIODevice::ReadOnly))
        return {.fehlertext = Fehlertext(datei)};
    errno = 0;
    const QByteArray bytes = datei.read(static_cast<qint64>(hoechstens));
    if (datei.error() != QFileDevice::NoError)
        return {.fehlertext = Fehlertext(datei)};
    return {.gelungen = true, .bytes = bytes.toStdString()};
}

std::string LegeGefuellteAn(const QString& pfad, std::string_view bytes, const QFileInfo& alte) {
    QFile neue(pfad);
    errno = 0;
    if (!neue.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return Fehlertext(neue);
    std::string fehler = Fuelle(neue, bytes, alte);
    if (!fehler.empty())
        neue.remove();
    return fehler;
}

std::string BenenneUm(const QString& von, const QFileInfo& nach) {
    std::error_code fehler;
    std::filesystem::rename(QFileInfo(von).filesystemFilePath(), nach.filesystemFilePath(), fehler);
    if (fehler)
        return Systemfehler(fehler.value());
    BringeOrdnerAufDatentraeger(nach.path());
    return {};
}

Anhaengeergebnis HaengeAn(const QString& pfad, std::string_view bytes, std::size_t hoechstens) {
    QFile datei(pfad);
    errno = 0;
    if (!datei.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return {.fehlertext = Fehlertext(datei)};
    const qint64 vorher = datei.size();
    if (static_cast<std::size_t>(vorher) + bytes.size() > hoechstens)
        return {.voll = true};
    if (SchreibAlles(datei, bytes))
        return {};
    std::string fehler = Fehlertext(datei);
    datei.resize(vorher);
    return {.fehlertext = std::move(fehler)};
}

std::string Entferne(const QString& pfad) {
    errno = 0;
    if (QFile::remove(pfad) || !QFileInfo::exists(pfad))
        return {};
    return Systemfehler(errno != 0 ? errno : EACCES);
}

bool IstDieselbe(const QString& eine, const QString& andere) {
    std::error_code fehler;
    return std::filesystem::equivalent(eine.toStdString(), andere.toStdString(), fehler);
}

} // namespace varnoth::dateizugriff
