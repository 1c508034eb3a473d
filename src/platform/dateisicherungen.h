#pragma once

#include "sicherungen.h"

#include <QString>

#include <string>
#include <vector>

namespace varnoth {

/// Backups as files: ORDNER/sicherungen/SERIAL NUMBER/TIME.con, and beside each a text TIME.txt. Only files
/// with such names are ever listed or removed.
class Dateisicherungen : public Sicherungen {
public:
    /// So many stay, and so many bytes of files; the newest one always does.
    static constexpr int Hoechstens = 200;
    static constexpr qint64 HoechstensBytes = qint64{8} * 1024 * 1024;

    /// @param ordner the program's data folder, which is made with the first backup
    /// @param programmversion for the text beside a backup
    Dateisicherungen(const QString& ordner, std::string programmversion);

    std::string Lege(const Abbild& abbild, const Sicherungsangaben& angaben) override;
    std::vector<Sicherung> Alle() const override;
    std::optional<Abbild> Lies(const Sicherung& sicherung) const override;
    std::string Kopiere(const Sicherung& sicherung, const std::string& ziel) const override;
    std::string Loesche(const Sicherung& sicherung) override;

private:
    void EntferneUeberzaehlige(const QString& neueste) const;

    QString wurzel;
    std::string version;
};

/// The data folder that the system has for this program and this user.
QString UeblicherDatenordner();

} // namespace varnoth
