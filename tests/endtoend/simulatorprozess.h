#pragma once

#include <QLocalSocket>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <string>

namespace varnoth::pruefung {

/// The simulated controller as a program of its own: it serves a pseudo terminal and takes commands at its
/// control channel. It ends with this object.
class Simulatorprozess {
public:
    /// Starts it with further options; its files lie in `ordner`. Returns once it serves.
    explicit Simulatorprozess(const QString& ordner, const QStringList& optionen = {});
    ~Simulatorprozess();
    Simulatorprozess(const Simulatorprozess&) = delete;
    Simulatorprozess& operator=(const Simulatorprozess&) = delete;

    /// The path under which the line is found while it is plugged in.
    QString Geraet() const { return geraet; }
    /// Gives a command and returns what the answer says behind "ok"; a refused command fails the test.
    std::string Befehl(const std::string& zeile);
    /// The value of a register, named as the control channel does: "global 0", "specific 2 335".
    int Register(const std::string& name);

private:
    QString geraet;
    QProcess prozess;
    QLocalSocket kanal;
};

} // namespace varnoth::pruefung
