#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <map>
#include <string>

namespace varnoth::pruefung {

/// The monitor as a process of its own, in a folder where its settings file and the lock of its single
/// instance lie too. It ends with this object.
class Programmprozess {
public:
    /// Starts it with its switches, and with variables of its environment that differ from those here.
    Programmprozess(const QString& ordner, const QStringList& schalter,
                    const std::map<QString, QString>& variablen = {});
    ~Programmprozess();
    Programmprozess(const Programmprozess&) = delete;
    Programmprozess& operator=(const Programmprozess&) = delete;

    /// Waits until it has ended by itself.
    /// @return its exit code, -1 when it does not end or crashes
    int WarteAufEnde();
    std::string Ausgabe() { return prozess.readAllStandardOutput().toStdString(); }
    std::string Fehlerausgabe() { return prozess.readAllStandardError().toStdString(); }

private:
    QProcess prozess;
};

} // namespace varnoth::pruefung
