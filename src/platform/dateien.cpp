#include "dateien.h"

#include "dauerhaft.h"
#include "systemfehler.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace varnoth {

namespace {

/// Why the path is no place for a file; empty when it is one or nothing is there yet.
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

/// Where a link leads, the path itself when it is none.
QString Linkziel(const QString& pfad) {
    const QFileInfo info(pfad);
    if (!info.isSymLink())
        return pfad;
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

/// A name beside a file, free and not too long whatever the file is called.
QString FreierName(const QString& ordner) {
    const quint64 zahl = QRandomGenerator::system()->generate64();
    return QDir(ordner).filePath(QStringLiteral(".varnoth-%1.neu").arg(zahl, 16, 16, QLatin1Char('0')));
}

/// Removes what programs that died while they wrote have left in a folder. What is younger may be another
/// program's that writes just now.
void EntferneReste(const QString& ordner) {
    constexpr qint64 mindestalter = 60;
    const QString muster = QStringLiteral(".varnoth-") + QString(16, QLatin1Char('?')) + ".neu";
    const auto jetzt = QDateTime::currentDateTimeUtc();
    for (const QFileInfo& rest : QDir(ordner).entryInfoList({muster}, QDir::Files | QDir::Hidden))
        if (std::abs(rest.lastModified().secsTo(jetzt)) > mindestalter)
            QFile::remove(rest.filePath());
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

std::string BenenneUm(const QString& von, const QFileInfo& nach) {
    std::error_code fehler;
    std::filesystem::rename(QFileInfo(von).filesystemFilePath(), nach.filesystemFilePath(), fehler);
    return fehler ? Systemfehler(fehler.value()) : std::string();
}

} // namespace

Leseergebnis LiesDatei(const std::string& pfad, std::size_t hoechstens) {
    const QString name = QString::fromStdString(pfad);
    if (auto hindernis = Hindernis(name); !hindernis.empty())
        return {.fehlertext = std::move(hindernis)};
    QFile datei(name);
    errno = 0;
    if (!datei.open(QIODevice::ReadOnly))
        return {.fehlertext = Fehlertext(datei)};
    errno = 0;
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
    const QFileInfo ziel(Linkziel(name));
    if (ziel.exists() && !ziel.isWritable())
        return Systemfehler(EACCES);
    EntferneReste(ziel.path());
    QFile neue(FreierName(ziel.path()));
    errno = 0;
    if (!neue.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return Fehlertext(neue);
    std::string fehler = Fuelle(neue, bytes, ziel);
    if (fehler.empty())
        fehler = BenenneUm(neue.fileName(), ziel);
    if (fehler.empty())
        BringeOrdnerAufDatentraeger(ziel.path());
    else
        neue.remove();
    return fehler;
}

Anhaengeergebnis HaengeAnDatei(const std::string& pfad, std::string_view bytes, std::size_t hoechstens) {
    const QString name = QString::fromStdString(pfad);
    if (auto hindernis = Hindernis(name); !hindernis.empty())
        return {.fehlertext = std::move(hindernis)};
    QFile datei(name);
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

} // namespace varnoth
