#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <string>

namespace varnoth::pruefung {

/// This test program once more, as a process of its own that runs one test which is disabled otherwise. What
/// that writes to standard error is what it has to say: standard output is taken by the report.
class Kindprogramm {
public:
    explicit Kindprogramm(const QString& test, const QStringList& worte = {}) {
        prozess.setProgram(QCoreApplication::applicationFilePath());
        prozess.setArguments(QStringList{QStringLiteral("--gtest_also_run_disabled_tests"),
                                         QStringLiteral("--gtest_filter=") + test} +
                             worte);
        prozess.start();
        EXPECT_TRUE(prozess.waitForStarted(HoechstensMs));
    }
    Kindprogramm(const Kindprogramm&) = delete;
    Kindprogramm& operator=(const Kindprogramm&) = delete;
    ~Kindprogramm() {
        prozess.kill();
        prozess.waitForFinished(HoechstensMs);
    }

    void Gib(const QByteArray& eingabe) {
        prozess.write(eingabe);
        prozess.closeWriteChannel();
    }
    /// Waits until it has said something.
    void WarteAufWort() {
        prozess.setReadChannel(QProcess::StandardError);
        while (prozess.bytesAvailable() == 0 && prozess.waitForReadyRead(HoechstensMs)) {
        }
        EXPECT_GT(prozess.bytesAvailable(), 0);
    }
    void Toete() {
        prozess.kill();
        EXPECT_TRUE(prozess.waitForFinished(HoechstensMs));
    }
    /// All that it said until its end.
    std::string Ende() {
        EXPECT_TRUE(prozess.state() == QProcess::NotRunning || prozess.waitForFinished(HoechstensMs));
        return prozess.readAllStandardError().toStdString();
    }
    int Exitcode() const { return prozess.exitCode(); }

private:
    static constexpr int HoechstensMs = 60000;

    QProcess prozess;
};

} // namespace varnoth::pruefung
