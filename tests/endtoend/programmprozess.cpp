#include "programmprozess.h"

#include <QDir>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

#include <filesystem>

namespace varnoth::pruefung {

namespace {

constexpr int Frist = 40000; // milliseconds

namespace fs = std::filesystem;

/// The executable looks for its settings file where it lies itself.
QString LegeProgrammAn(const QString& ordner) {
    QString programm = QDir(ordner).filePath("varnoth");
    const fs::path ziel = programm.toStdString();
    std::error_code fehler;
    if (!fs::exists(ziel))
        fs::create_hard_link(MONITORPROGRAMM, ziel, fehler);
    if (fehler)
        fs::copy_file(MONITORPROGRAMM, ziel);
    return programm;
}

} // namespace

Programmprozess::Programmprozess(const QString& ordner, const QStringList& schalter,
                                 const std::map<QString, QString>& variablen) {
    auto umwelt = QProcessEnvironment::systemEnvironment();
    umwelt.insert("QT_QPA_PLATFORM", "offscreen");
    umwelt.insert("TMPDIR", ordner);
    umwelt.insert("XDG_DATA_HOME", QDir(ordner).filePath("daten"));
    umwelt.remove("XDG_RUNTIME_DIR");
    for (const auto& [name, wert] : variablen)
        umwelt.insert(name, wert);
    prozess.setProcessEnvironment(umwelt);
    prozess.setWorkingDirectory(ordner);
    prozess.start(LegeProgrammAn(ordner), schalter);
    EXPECT_TRUE(prozess.waitForStarted()) << qPrintable(prozess.errorString());
}

Programmprozess::~Programmprozess() {
    prozess.kill();
    prozess.waitForFinished();
}

int Programmprozess::WarteAufEnde() {
    const bool beendet = prozess.state() == QProcess::NotRunning || prozess.waitForFinished(Frist);
    return beendet && prozess.exitStatus() == QProcess::NormalExit ? prozess.exitCode() : -1;
}

} // namespace varnoth::pruefung
