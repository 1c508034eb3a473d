#pragma once

#include <QLocalSocket>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <string>

namespace varnoth::pruefung {

/// The simulated controller as a program of its own: it serves a pseudo terminal, and ends with this object.
/// What it refuses and what takes longer than ten seconds throws std::runtime_error.
class Simulatorprozess {
public:
    /// Starts it with these options. Returns once it serves.
    explicit Simulatorprozess(const QStringList& optionen);
    /// The same with a path that outlives a pulled plug, and with a control channel; both lie in `ordner`.
    explicit Simulatorprozess(const QString& ordner, const QStringList& optionen = {});
    ~Simulatorprozess();
    Simulatorprozess(const Simulatorprozess&) = delete;
    Simulatorprozess& operator=(const Simulatorprozess&) = delete;

    /// The path under which the line is found while it is plugged in.
    const QString& Geraet() const { return geraet; }
    /// Waits until it has printed so many lines that contain the text; its log must go to standard output.
    /// False after half a minute.
    bool WarteAufZeilen(const QByteArray& text, int anzahl);
    /// Ends the process: its terminal is gone.
    void Beende();

    /// Gives a command to the control channel and returns what the answer says behind "ok".
    std::string Befehl(const std::string& zeile);
    /// The value of a register, named as the control channel does: "global 0", "specific 2 335".
    int Register(const std::string& name);

private:
    QProcess prozess;
    QString geraet;
    QLocalSocket kanal;
};

} // namespace varnoth::pruefung
