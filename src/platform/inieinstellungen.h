#pragma once

#include "einstellungen.h"
#include "initext.h"

#include <QString>

#include <functional>
#include <string>

namespace varnoth {

/// Settings in an INI file of the classic kind, unquoted. Each change is stored at once and whole: a reader
/// finds the old file or the new one, with every other line as it was, also those that others wrote
/// meanwhile. A file that is no text (it holds NULs or is far too large) gives the defaults and is set aside
/// under its name and ".defekt" before the first change; a few such files are kept, and with that many there
/// it stays where it is. What cannot be read at all is left alone. A change that cannot be stored, be it that
/// it would make the file too large, lasts for the run.
class IniEinstellungen : public Einstellungen {
public:
    explicit IniEinstellungen(const QString& pfad);
    ~IniEinstellungen() override;

    int LiesZahl(const std::string& abschnitt, const std::string& schluessel, int standard) override;
    std::string LiesText(const std::string& abschnitt, const std::string& schluessel,
                         const std::string& standard) override;
    bool SchreibText(const std::string& abschnitt, const std::string& schluessel,
                     const std::string& text) override;

    QString Pfad() const { return QString::fromStdString(pfad); }

    /// Sets who hears, once in a run, that changes are not stored: the file and the reason (UTF-8). Hears at
    /// once of one that happened before.
    void SetzeFehlermeldung(std::function<void(const std::string& text)> wohin);

private:
    std::string Speichere(const std::string& abschnitt, const std::string& schluessel,
                          const std::string& text) const;
    void Melde(const std::string& grund);

    std::string pfad;
    Initext inhalt;
    std::string fehler; ///< what was or is to be told; empty while all went well
    std::function<void(const std::string&)> fehlermeldung;
};

/// The data folder of an installed program whose executable lies in this one. A program is installed where it
/// exists.
QString Programmdaten(const QString& ordner);

/// Where the settings file of a program lies. `<ordner>/<name>.ini` when it is there or the program is not
/// installed, as long as that place can be written. Otherwise `<name>/<name>.ini` in the user's configuration
/// folder (~/.config, on Windows %APPDATA%), or `<name>.ini` there when an earlier version has left only
/// that.
QString Einstellungspfad(const QString& ordner, const QString& name);

} // namespace varnoth
