#include "inieinstellungen.h"

#include "dateien.h"
#include "zahlen.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <limits>

#define SI_NO_CONVERSION
#include <SimpleIni.h>

namespace varnoth {

namespace {

// A settings file has some hundred bytes; what is larger than this is something else.
constexpr qint64 HoechsteGroesse = 1 << 20;

constexpr const char* ZusatzDefekt = ".defekt";

} // namespace

struct IniEinstellungen::Inhalt {
    CSimpleIniA ini{true, false, false};
};

IniEinstellungen::IniEinstellungen(const QString& datei) : pfad(datei), inhalt(std::make_unique<Inhalt>()) {
    inhalt->ini.SetSpaces(false);
    Lade();
    SetzeEinstellungen(this);
}

IniEinstellungen::~IniEinstellungen() {
    SetzeEinstellungen(nullptr);
}

void IniEinstellungen::Lade() {
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly)) {
        unleserlich = datei.exists();
        return;
    }
    const QByteArray bytes = datei.read(HoechsteGroesse + 1);
    unleserlich = bytes.size() > HoechsteGroesse || bytes.contains('\0') ||
                  inhalt->ini.LoadData(bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0;
}

bool IniEinstellungen::Speichere() {
    if (unleserlich) {
        QFile::rename(pfad, pfad + QLatin1String(ZusatzDefekt));
        unleserlich = false;
    }
    std::string text;
    if (inhalt->ini.Save(text) < 0)
        return false;
    return ErsetzeDatei(pfad.toStdString(), text).empty();
}

int IniEinstellungen::LiesZahl(const std::string& abschnitt, const std::string& schluessel, int standard) {
    const char* text = inhalt->ini.GetValue(abschnitt.c_str(), schluessel.c_str());
    if (text == nullptr)
        return standard;
    constexpr double kleinste = std::numeric_limits<int>::min();
    constexpr double groesste = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(Val(text), kleinste, groesste));
}

std::string IniEinstellungen::LiesText(const std::string& abschnitt, const std::string& schluessel,
                                       const std::string& standard) {
    return inhalt->ini.GetValue(abschnitt.c_str(), schluessel.c_str(), standard.c_str());
}

bool IniEinstellungen::SchreibText(const std::string& abschnitt, const std::string& schluessel,
                                   const std::string& text) {
    const char* alt = inhalt->ini.GetValue(abschnitt.c_str(), schluessel.c_str());
    if (alt != nullptr && text == alt)
        return true;
    return inhalt->ini.SetValue(abschnitt.c_str(), schluessel.c_str(), text.c_str()) >= 0 && Speichere();
}

QString Einstellungspfad(const QString& ordner, const QString& name) {
    const QString datei = name + QStringLiteral(".ini");
    const QFileInfo daneben(QDir(ordner), datei);
    const bool beschreibbar = QFileInfo(ordner).isWritable() && (!daneben.exists() || daneben.isWritable());
    if (beschreibbar)
        return daneben.filePath();
    const QDir konfiguration(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    konfiguration.mkpath(QStringLiteral("."));
    return konfiguration.filePath(datei);
}

} // namespace varnoth
