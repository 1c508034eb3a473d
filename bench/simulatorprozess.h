#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace varnoth::bench {

/// The simulated controller as a process of its own, for as long as the object lives.
class Simulatorprozess {
public:
    /// Starts it with the given words behind its name and waits until it serves its terminal.
    explicit Simulatorprozess(const QStringList& worte);
    ~Simulatorprozess();

    /// The terminal's path.
    const QString& Geraet() const { return geraet; }
    /// Waits until it has printed so many lines that contain the text; its log must go to standard output.
    /// False after half a minute.
    bool WarteAufZeilen(const QByteArray& text, int anzahl);
    /// Ends the process: its terminal is gone.
    void Beende();

private:
    QProcess prozess;
    QString geraet;
};

} // namespace varnoth::bench
