#include "ctlprozess.h"

#include <QFile>
#include <QJsonDocument>

#include <filesystem>

namespace varnoth::pruefung {

namespace {

constexpr int Frist = 30000; // milliseconds

namespace fs = std::filesystem;

/// The executable looks for its settings file where it lies itself.
QString LegeProgrammAn(const QString& ziel) {
    std::error_code fehler;
    fs::create_hard_link(CTLPROGRAMM, ziel.toStdString(), fehler);
    if (fehler)
        fs::copy_file(CTLPROGRAMM, ziel.toStdString());
    return ziel;
}

} // namespace

CtlProgrammTest::CtlProgrammTest()
    : programm(LegeProgrammAn(ordner.filePath("varnothctl"))),
      umwelt(QProcessEnvironment::systemEnvironment()) {
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LC_CTYPE", "LANGUAGE"})
        umwelt.remove(name);
    umwelt.insert("LANG", "C.UTF-8");
    umwelt.insert("XDG_DATA_HOME", ordner.filePath("data"));
    umwelt.insert("XDG_CONFIG_HOME", ordner.filePath("config"));
    umwelt.insert("CTL", programm + " --port " + ordner.filePath("line"));
    umwelt.insert("VARNOTHCTL", programm);
}

void CtlProgrammTest::SchliesseGeraetAn(const QStringList& optionen) {
    geraet.emplace(ordner.path(), optionen);
}

void CtlProgrammTest::Schreibe(const QString& name, const QByteArray& inhalt) const {
    QFile datei(Pfad(name));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(inhalt);
}

QByteArray CtlProgrammTest::Inhalt(const QString& name) const {
    QFile datei(Pfad(name));
    EXPECT_TRUE(datei.open(QIODevice::ReadOnly)) << qPrintable(name);
    return datei.readAll();
}

void CtlProgrammTest::Starte(QProcess& prozess, const QStringList& worte) const {
    prozess.setProcessEnvironment(umwelt);
    prozess.setWorkingDirectory(ordner.path());
    prozess.start(programm, QStringList{"--port", "line"} + worte);
    EXPECT_TRUE(prozess.waitForStarted()) << qPrintable(prozess.errorString());
}

Laufergebnis CtlProgrammTest::WarteAufEnde(QProcess& prozess) {
    prozess.closeWriteChannel();
    const bool beendet = prozess.state() == QProcess::NotRunning || prozess.waitForFinished(Frist);
    EXPECT_TRUE(beendet) << "it does not end";
    EXPECT_EQ(prozess.exitStatus(), QProcess::NormalExit);
    return {prozess.exitCode(), prozess.readAllStandardOutput().toStdString(),
            prozess.readAllStandardError().toStdString()};
}

Laufergebnis CtlProgrammTest::Fuehre(const QStringList& worte) {
    QProcess prozess;
    Starte(prozess, worte);
    return WarteAufEnde(prozess);
}

Laufergebnis CtlProgrammTest::FuehreOhnePort(const QStringList& worte) {
    QProcess prozess;
    prozess.setProcessEnvironment(umwelt);
    prozess.setWorkingDirectory(ordner.path());
    prozess.start(programm, worte);
    return WarteAufEnde(prozess);
}

Laufergebnis CtlProgrammTest::InSchale(const QString& befehl) {
    QProcess prozess;
    prozess.setProcessEnvironment(umwelt);
    prozess.setWorkingDirectory(ordner.path());
    prozess.start("bash", {"-c", befehl});
    return WarteAufEnde(prozess);
}

QJsonObject CtlProgrammTest::InJson(const QStringList& worte, int erwarteterCode) {
    const auto ergebnis = Fuehre(worte + QStringList{"--json"});
    EXPECT_EQ(ergebnis.code, erwarteterCode) << ergebnis.meldungen;
    return Geprueft(QByteArray::fromStdString(ergebnis.daten));
}

QJsonObject Geprueft(const QByteArray& zeile) {
    static const Schemapruefer pruefer = LiesSchema(CTLSCHEMA);
    QJsonParseError fehler{};
    const auto dokument = QJsonDocument::fromJson(zeile, &fehler);
    EXPECT_TRUE(dokument.isObject()) << qPrintable(fehler.errorString()) << "\n" << zeile.constData();
    EXPECT_EQ(zeile.count('\n'), 1) << "it is not one line";
    EXPECT_EQ(pruefer.Mangel(dokument.object()), "");
    return dokument.object();
}

} // namespace varnoth::pruefung
