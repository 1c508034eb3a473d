#include "dateien.h"

#include "dateizugriff.h"
#include "systemfehler.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdlib>
#include <utility>

namespace varnoth {

namespace {

/// Where a link leads, the path itself when it is none.
QString Linkziel(const QString& pfad) {
    const QFileInfo info(pfad);
    if (!info.isSymbolicLink())
        return pfad;
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

constexpr QLatin1String Vorsilbe(".varnoth-");
constexpr QLatin1String Nachsilbe(".neu");
constexpr int Ziffern = 16;

/// A name beside a file, free and not too long whatever the file is called.
QString FreierName(const QString& ordner) {
    const quint64 zahl = QRandomGenerator::system()->generate64();
    return QDir(ordner).filePath(
        Vorsilbe + QString::number(zahl, 16).rightJustified(Ziffern, QLatin1Char('0')) + Nachsilbe);
}

bool IstUnserName(const QString& name) {
    return name.size() == Vorsilbe.size() + Ziffern + Nachsilbe.size() && name.startsWith(Vorsilbe) &&
           name.endsWith(Nachsilbe);
}

/// Removes what programs that died while they wrote have left in a folder. What is younger may be another
/// program's that writes just now. Qt is given no pattern: it would leave with the thread something that
/// brings the program down on Windows when a thread other than the window's ends.
void EntferneReste(const QString& ordner) {
    constexpr qint64 mindestalter = 60;
    const auto jetzt = QDateTime::currentDateTimeUtc();
    for (const QFileInfo& rest : QDir(ordner).entryInfoList(QDir::Files | QDir::Hidden))
        if (IstUnserName(rest.fileName()) && std::abs(rest.lastModified().secsTo(jetzt)) > mindestalter)
            QFile::remove(rest.filePath());
}

} // namespace

Leseergebnis LiesDatei(const std::string& pfad, std::size_t hoechstens) {
    const QString name = QString::fromStdString(pfad);
    if (auto hindernis = dateizugriff::Hindernis(name); !hindernis.empty())
        return {.fehlertext = std::move(hindernis)};
    return dateizugriff::Lies(name, hoechstens);
}

bool GibtEsDatei(const std::string& pfad) {
    return QFileInfo::exists(QString::fromStdString(pfad));
}

bool IstGewoehnlicheDatei(const std::string& pfad) {
    return QFileInfo(QString::fromStdString(pfad)).isFile();
}

bool IstDieselbeDatei(const std::string& eine, const std::string& andere) {
    return dateizugriff::IstDieselbe(QString::fromStdString(eine), QString::fromStdString(andere));
}

std::string ErsetzeDatei(const std::string& pfad, std::string_view bytes) {
    const QString name = QString::fromStdString(pfad);
    if (auto hindernis = dateizugriff::Hindernis(name); !hindernis.empty())
        return hindernis;
    const QFileInfo ziel(Linkziel(name));
    if (ziel.exists() && !ziel.isWritable())
        return Systemfehler(EACCES);
    EntferneReste(ziel.path());
    const QString neue = FreierName(ziel.path());
    if (auto fehler = dateizugriff::LegeGefuellteAn(neue, bytes, ziel); !fehler.empty())
        return fehler;
    std::string fehler = dateizugriff::BenenneUm(neue, ziel);
    if (!fehler.empty())
        QFile::remove(neue);
    return fehler;
}

Anhaengeergebnis HaengeAnDatei(const std::string& pfad, std::string_view bytes, std::size_t hoechstens) {
    const QString name = QString::fromStdString(pfad);
    if (auto hindernis = dateizugriff::Hindernis(name); !hindernis.empty())
        return {.fehlertext = std::move(hindernis)};
    return dateizugriff::HaengeAn(name, bytes, hoechstens);
}

std::string EntferneDatei(const std::string& pfad) {
    return dateizugriff::Entferne(QString::fromStdString(pfad));
}

} // namespace varnoth
