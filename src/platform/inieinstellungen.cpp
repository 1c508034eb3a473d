#include "inieinstellungen.h"

#include "dateien.h"
#include "ordner.h"
#include "systemfehler.h"
#include "zahlen.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

namespace varnoth {

namespace {

// A settings file has some hundred bytes; what is larger than this is something else.
constexpr std::size_t HoechsteGroesse = 1 << 20;

constexpr const char* ZusatzDefekt = ".defekt";

enum class Befund { Fehlt, Gut, Unlesbar, KeinText };

struct Dateistand {
    Befund befund = Befund::Fehlt;
    Initext inhalt{};
};

Dateistand Lies(const std::string& pfad) {
    if (!GibtEsDatei(pfad))
        return {};
    auto datei = LiesDatei(pfad, HoechsteGroesse + 1);
    if (!datei.gelungen)
        return {.befund = Befund::Unlesbar};
    if (datei.bytes.size() > HoechsteGroesse || datei.bytes.find('\0') != std::string::npos)
        return {.befund = Befund::KeinText};
    return {.befund = Befund::Gut, .inhalt = Initext(std::move(datei.bytes))};
}

/// Renames a file to the first free name of its own, ".defekt", ".defekt2" ...; false when that is not
/// possible or enough of them are there.
bool LegeBeiseite(const std::string& pfad) {
    constexpr int hoechsteNummer = 5;
    for (int nummer = 1; nummer <= hoechsteNummer; ++nummer) {
        const std::string name = pfad + ZusatzDefekt + (nummer > 1 ? std::to_string(nummer) : "");
        if (!GibtEsDatei(name))
            return QFile::rename(QString::fromStdString(pfad), QString::fromStdString(name));
    }
    return false;
}

} // namespace

IniEinstellungen::IniEinstellungen(const QString& datei)
    : pfad(datei.toStdString()), inhalt(Lies(pfad).inhalt) {
    SetzeEinstellungen(this);
}

IniEinstellungen::~IniEinstellungen() {
    SetzeEinstellungen(nullptr);
}

/// @return why the change is not on the disk; empty when it is
std::string IniEinstellungen::Speichere(const std::string& abschnitt, const std::string& schluessel,
                                        const std::string& text) const {
    Dateistand stand = Lies(pfad);
    if (stand.befund == Befund::Unlesbar)
        return LiesDatei(pfad, 1).fehlertext;
    if (stand.befund == Befund::KeinText && !LegeBeiseite(pfad))
        return DateiIstBeschaedigt();
    if (stand.befund != Befund::Gut)
        stand.inhalt = inhalt;
    stand.inhalt.Setze(abschnitt, schluessel, text);
    if (stand.inhalt.Text().size() > HoechsteGroesse)
        return Systemfehler(EFBIG);
    return ErsetzeDatei(pfad, stand.inhalt.Text());
}

void IniEinstellungen::Melde(const std::string& grund) {
    if (!std::exchange(fehler, pfad + ": " + grund).empty() || !fehlermeldung)
        return;
    fehlermeldung(fehler);
}

void IniEinstellungen::SetzeFehlermeldung(std::function<void(const std::string&)> wohin) {
    fehlermeldung = std::move(wohin);
    if (fehlermeldung && !fehler.empty())
        fehlermeldung(fehler);
}

int IniEinstellungen::LiesZahl(const std::string& abschnitt, const std::string& schluessel, int standard) {
    const auto text = inhalt.Lies(abschnitt, schluessel);
    if (!text)
        return standard;
    constexpr double kleinste = std::numeric_limits<int>::min();
    constexpr double groesste = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(Val(*text), kleinste, groesste));
}

std::string IniEinstellungen::LiesText(const std::string& abschnitt, const std::string& schluessel,
                                       const std::string& standard) {
    return inhalt.Lies(abschnitt, schluessel).value_or(standard);
}

bool IniEinstellungen::SchreibText(const std::string& abschnitt, const std::string& schluessel,
                                   const std::string& text) {
    if (inhalt.Lies(abschnitt, schluessel) == text)
        return true;
    if (!inhalt.Setze(abschnitt, schluessel, text))
        return false;
    const std::string grund = Speichere(abschnitt, schluessel, text);
    if (!grund.empty())
        Melde(grund);
    return grund.empty();
}

QString Programmdaten(const QString& ordner) {
    return QDir(ordner).filePath(QStringLiteral("../share/varnoth"));
}

QString Einstellungspfad(const QString& ordner, const QString& name) {
    const QString datei = name + QStringLiteral(".ini");
    const QFileInfo daneben(QDir(ordner), datei);
    const bool beschreibbar = IstBeschreibbar(ordner) && (!daneben.exists() || daneben.isWritable());
    if (beschreibbar && (daneben.exists() || !QDir(Programmdaten(ordner)).exists()))
        return daneben.filePath();
    const QDir konfiguration(Einstellungsordner());
    konfiguration.mkpath(name);
    const QDir eigene(konfiguration.filePath(name));
    return !eigene.exists(datei) && konfiguration.exists(datei) ? konfiguration.filePath(datei)
                                                                : eigene.filePath(datei);
}

} // namespace varnoth
