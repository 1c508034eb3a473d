#pragma once

#include "einstellungen.h"

#include <QString>

#include <memory>

namespace varnoth {

/// Settings in an INI file of the classic kind, unquoted, with comments and order kept. Each change is stored
/// at once and whole: a reader finds the old file or the new one. A file that is no such file is set aside
/// under its name and ".defekt" before the first change.
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
    struct Inhalt;

    void Lade();
    bool Speichere();

    QString pfad;
    std::unique_ptr<Inhalt> inhalt;
    bool unleserlich = false;
};

/// Where the settings file of a program lies: `<ordner>/<name>.ini`, or in the user's configuration folder
/// under the same name when that place cannot be written.
QString Einstellungspfad(const QString& ordner, const QString& name);

} // namespace varnoth
