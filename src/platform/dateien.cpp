#include "dateien.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <system_error>

namespace varnoth {

namespace {

/// Why the path is no place for a file; empty when it is one or nothing is there yet.
std::string Hindernis(const QString& pfad) {
    const QFileInfo info(pfad);
    if (pfad.isEmpty())
        return std::make_error_code(std::errc::no_such_file_or_directory).message();
    if (info.isDir())
        return std::make_error_code(std::errc::is_a_directory).message();
    if (info.exists() && !info.isFile())
        return std::make_error_code(std::errc::operation_not_supported).message();
    return {};
}

/// Unbuffered and to the last byte: a disk that fills up in the middle then tells at once, and why.
bool SchreibAlles(QSaveFile& datei, std::string_view bytes) {
    while (!bytes.empty()) {
        const qint64 geschrieben = datei.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (geschrieben <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return true;
}

std::string Fehlertext(const QFileDevice& datei) {
    return datei.errorString().toStdString();
}

} // namespace

Leseergebnis LiesDatei(const std::string& pfad, std::size_t hoechstens) {
    const QString name = QString::fromStdString(pfad);
    if (auto hindernis = Hindernis(name); !hindernis.empty())
        return {.fehlertext = std::move(hindernis)};
    QFile datei(name);
    if (!datei.open(QIODevice::ReadOnly))
        return {.fehlertext = Fehlertext(datei)};
    const QByteArray bytes = datei.read(static_cast<qint64>(hoechstens));
    if (datei.error() != QFileDevice::NoError)
        return {.fehlertext = Fehlertext(datei)};
    return {.gelungen = true, .bytes = bytes.toStdString()};
}

bool GibtEsDatei(const std::string& pfad) {
    return QFileInfo::exists(QString::fromStdString(pfad));
}

std::string ErsetzeDatei(const std::string& pfad, std::string_view bytes) {
    const QString name = QString::fromStdString(pfad);
    if (auto hindernis = Hindernis(name); !hindernis.empty())
        return hindernis;
    QSaveFile datei(name);
    const bool gelungen = datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                          SchreibAlles(datei, bytes) && datei.commit();
    return gelungen ? std::string() : Fehlertext(datei);
}

} // namespace varnoth
