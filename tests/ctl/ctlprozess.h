#pragma once

#include "schemapruefer.h"
#include "simulatorprozess.h"

#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace varnoth::pruefung {

/// How a run of the program has ended, and what it wrote.
struct Laufergebnis {
    int code = -1;
    std::string daten;
    std::string meldungen;
};

/// The program, in a folder of the test's own where its settings, its backups and the controller's line lie
/// too.
class CtlProgrammTest : public testing::Test {
protected:
    CtlProgrammTest();

    /// Connects the simulated controller, without the timing of a real line unless the options say otherwise.
    void SchliesseGeraetAn(const QStringList& optionen = {"--unpaced"});
    QString Pfad(const QString& name) const { return ordner.filePath(name); }
    void Schreibe(const QString& name, const QByteArray& inhalt) const;
    QByteArray Inhalt(const QString& name) const;

    /// Runs the program to its end with these words and the controller's port.
    Laufergebnis Fuehre(const QStringList& worte);
    /// The same without the port.
    Laufergebnis FuehreOhnePort(const QStringList& worte);
    /// Runs a shell command line in the folder, in which $CTL is the program with the port.
    Laufergebnis InSchale(const QString& befehl);
    /// Starts the program and lets it run.
    void Starte(QProcess& prozess, const QStringList& worte) const;
    /// Waits for its end.
    static Laufergebnis WarteAufEnde(QProcess& prozess);

    /// Runs a command with --json; the object that it writes, checked against the description.
    QJsonObject InJson(const QStringList& worte, int erwarteterCode = 0);

    QTemporaryDir ordner;
    QString programm;
    QProcessEnvironment umwelt;
    std::optional<Simulatorprozess> geraet;
};

/// Checks a line of output against the description of what the program writes.
QJsonObject Geprueft(const QByteArray& zeile);

} // namespace varnoth::pruefung
