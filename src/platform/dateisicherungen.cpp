#include "dateisicherungen.h"

#include "dateien.h"
#include "konfigurationsdatei.h"
#include "ordner.h"
#include "systemfehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr const char* Endung = ".con";
constexpr const char* Textendung = ".txt";
constexpr std::size_t LaengsterText = 4096;

QString AlsQString(const std::string& text) {
    return QString::fromStdString(text);
}

/// The path of the text beside a backup.
QString Textpfad(const QString& pfad) {
    return pfad.chopped(static_cast<int>(qstrlen(Endung))) + QLatin1String(Textendung);
}

/// A path in the folder that no file has yet.
QString FreierPfad(const QDir& ordner, const std::string& name) {
    QString pfad = ordner.filePath(AlsQString(name) + Endung);
    for (int nummer = 2; QFileInfo::exists(pfad); ++nummer)
        pfad = ordner.filePath(AlsQString(name + "_" + std::to_string(nummer)) + Endung);
    return pfad;
}

/// The files of all backups, the newest first.
QFileInfoList AlleDateien(const QString& wurzel) {
    QFileInfoList dateien;
    for (const QFileInfo& ordner :
         QDir(wurzel).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks))
        for (const QFileInfo& datei :
             QDir(ordner.filePath())
                 .entryInfoList({QStringLiteral("*") + Endung}, QDir::Files | QDir::NoSymLinks))
            if (ZeitAusName(datei.completeBaseName().toStdString()))
                dateien += datei;
    std::ranges::stable_sort(dateien, [](const QFileInfo& eine, const QFileInfo& andere) {
        return eine.fileName() > andere.fileName();
    });
    return dateien;
}

bool Entferne(const QString& pfad) {
    const bool entfernt = QFile::remove(pfad);
    if (entfernt)
        QFile::remove(Textpfad(pfad));
    return entfernt;
}

} // namespace

Dateisicherungen::Dateisicherungen(const QString& ordner, std::string programmversion)
    : wurzel(QDir(ordner).filePath(QStringLiteral("sicherungen"))), version(std::move(programmversion)) {}

/// The text comes first: a backup that is there always has its own.
std::string Dateisicherungen::Lege(const Abbild& abbild, const Sicherungsangaben& angaben) {
    const QDir ordner(QDir(wurzel).filePath(AlsQString(Sicherungsordnername(angaben.seriennummer))));
    const QString pfad = FreierPfad(ordner, Sicherungsname(angaben.zeit));
    Sicherungsangaben beschriebene = angaben;
    beschriebene.programm = version;
    const int ordnerfehler = LegeOrdnerAn(ordner.path().toStdString());
    std::string fehler = ordnerfehler == 0 ? std::string() : Systemfehler(ordnerfehler);
    if (fehler.empty())
        fehler = ErsetzeDatei(Textpfad(pfad).toStdString(), AlsSicherungstext(beschriebene));
    if (fehler.empty())
        fehler = ErsetzeDatei(pfad.toStdString(), AlsKonfigurationsdatei(abbild));
    if (!fehler.empty()) {
        QFile::remove(Textpfad(pfad));
        return fehler + "\n" + pfad.toStdString();
    }
    EntferneUeberzaehlige(pfad);
    return {};
}

void Dateisicherungen::EntferneUeberzaehlige(const QString& neueste) const {
    int anzahl = 1;
    qint64 bytes = QFileInfo(neueste).size();
    for (const QFileInfo& datei : AlleDateien(wurzel)) {
        if (datei.filePath() == neueste)
            continue;
        ++anzahl;
        bytes += datei.size();
        if (anzahl > Hoechstens || bytes > HoechstensBytes)
            Entferne(datei.filePath());
    }
}

std::vector<Sicherung> Dateisicherungen::Alle() const {
    std::vector<Sicherung> alle;
    for (const QFileInfo& datei : AlleDateien(wurzel)) {
        const auto text = LiesDatei(Textpfad(datei.filePath()).toStdString(), LaengsterText);
        Sicherung sicherung{datei.filePath().toStdString(), LiesSicherungstext(text.bytes)};
        sicherung.angaben.zeit = ZeitAusName(datei.completeBaseName().toStdString()).value();
        if (sicherung.angaben.seriennummer.empty() && !text.gelungen)
            sicherung.angaben.seriennummer = datei.dir().dirName().toStdString();
        alle.push_back(std::move(sicherung));
    }
    return alle;
}

std::optional<Abbild> Dateisicherungen::Lies(const Sicherung& sicherung) const {
    const auto datei = LiesDatei(sicherung.pfad, LaengeKonfigurationsdatei);
    Abbild abbild;
    if (!datei.gelungen || ZerlegeKonfigurationsdatei(datei.bytes, abbild) != Dateibefund::Gut)
        return std::nullopt;
    return abbild;
}

std::string Dateisicherungen::Kopiere(const Sicherung& sicherung, const std::string& ziel) const {
    const auto datei = LiesDatei(sicherung.pfad, LaengeKonfigurationsdatei);
    return datei.gelungen ? ErsetzeDatei(ziel, datei.bytes) : datei.fehlertext;
}

std::string Dateisicherungen::Loesche(const Sicherung& sicherung) {
    std::string fehler = EntferneDatei(sicherung.pfad);
    if (fehler.empty())
        QFile::remove(Textpfad(AlsQString(sicherung.pfad)));
    return fehler;
}

QString UeblicherDatenordner() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

} // namespace varnoth
