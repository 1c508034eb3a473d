#include "supporttext.h"

#include "dateisicherungen.h"
#include "texte.h"
#include "textmitwerten.h"
#include "versionstext.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>

#include <initializer_list>

namespace varnoth {

namespace {

constexpr std::int16_t TextQt = 8800;
constexpr std::int16_t TextCompiler = 8801;
constexpr std::int16_t TextSystem = 8805;
constexpr std::int16_t TextSchirm = 8806;
constexpr std::int16_t TextSprache = 8807;
constexpr std::int16_t TextEinstellungen = 8808;
constexpr std::int16_t TextSicherungen = 8809;

QString Mit(std::int16_t id, std::initializer_list<std::string> werte) {
    return QString::fromStdString(LadeTextMit(id, werte));
}

std::string Compiler() {
#if defined(__clang__)
    return "Clang " __clang_version__;
#elif defined(__GNUC__)
    return "GCC " __VERSION__;
#else
    return "?";
#endif
}

std::string System() {
    const QString teile[] = {
        QSysInfo::prettyProductName(),
        QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion(),
        QSysInfo::currentCpuArchitecture(),
    };
    return QStringList(std::begin(teile), std::end(teile)).join(QStringLiteral(", ")).toStdString();
}

/// Size in the system's own dots, and how many of them a logical dot takes.
QString Schirm(const QScreen& schirm) {
    const QSize groesse = schirm.size() * schirm.devicePixelRatio();
    return QStringLiteral("%1 x %2 (%3)")
        .arg(groesse.width())
        .arg(groesse.height())
        .arg(schirm.devicePixelRatio());
}

std::string Schirme() {
    QStringList alle{QGuiApplication::platformName()};
    for (const QScreen* schirm : QGuiApplication::screens())
        alle += Schirm(*schirm);
    return alle.join(QStringLiteral(", ")).toStdString();
}

std::string Sprache() {
    return std::string(GetSprachoffset() == Englisch ? "English" : "Deutsch") + " (" +
           QLocale::system().name().toStdString() + ')';
}

} // namespace

QString Qtzeile() {
    return Mit(TextQt, {qVersion(), QT_VERSION_STR});
}

QString Compilerzeile() {
    return Mit(TextCompiler, {Compiler()});
}

QString Supporttext(const QString& einstellungsdatei) {
    const QStringList zeilen{
        Produktzeile(),
        Qtzeile(),
        Compilerzeile(),
        Mit(TextSystem, {System()}),
        Mit(TextSchirm, {Schirme()}),
        Mit(TextSprache, {Sprache()}),
        Mit(TextEinstellungen, {einstellungsdatei.toStdString()}),
        Mit(TextSicherungen, {UeblicherDatenordner().toStdString()}),
    };
    return zeilen.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace varnoth
