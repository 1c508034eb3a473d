#pragma once

#include "einstellungen.h"
#include "initext.h"

#include <QString>

namespace varnoth {

/// Settings in an INI file of the classic kind, unquoted. Each change is stored at once and whole: a reader
/// finds the old file or the new one, with every other line as it was, also those that others wrote
/// meanwhile. A file that is no text (it holds NULs or is far too large) gives the defaults and is set aside
/// under its name and ".defekt" before the first change. What cannot be read at all is left alone, and
/// changes last for the run.
class IniEinstellungen : public Einstellungen {
public:
    explicit IniEinstellungen(const QString& pfad);
    ~IniEinstellungen() override;

    int LiesZahl(const std::string& abschnitt, const std::string& schluessel, int standard) override;
    std::string LiesText(const std::string& abschnitt, const std::string& schluessel,
                         const std::string& standard) override;
    bool SchreibText(const std::string& abschnitt, const std::string& schluessel,
                     const std::string& text) override;

private:
    bool Speichere(const std::string& abschnitt, const std::string& schluessel,
                   const std::string& text) const;

    std::string pfad;
    Initext inhalt;
};

/// Where the settings file of a program lies: `<ordner>/<name>.ini`, or in the user's configuration folder
/// under the same name when that place cannot be written.
QString Einstellungspfad(const QString& ordner, const QString& name);

} // namespace varnoth
