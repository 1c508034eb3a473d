#pragma once

#include "dateisicherungen.h"

#include "konfigurationsdatei.h"
#include "registeradressen.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace varnoth::pruefung {

using namespace std::chrono;

inline system_clock::time_point Zeit(int sekunden) {
    return sys_days{2026y / 11 / 22} + seconds(sekunden);
}

inline Abbild MitReichweite(std::int32_t wert) {
    Abbild abbild;
    EXPECT_TRUE(
        abbild.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Reichweite, wert, 0));
    return abbild;
}

inline Sicherungsangaben Angaben(int sekunden, const std::string& nummer = "SIM-0001") {
    return {.zeit = Zeit(sekunden), .anlass = Sicherungsanlass::VorDemSchreiben, .seriennummer = nummer};
}

class Sicherungsprobe : public testing::Test {
protected:
    QString Pfad(const QString& name) const { return QDir(wurzel).filePath(name); }
    QStringList Namen(const QString& unterordner) const {
        return QDir(Pfad("sicherungen/" + unterordner))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    void Schreibe(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(Pfad(name)).path());
        QFile datei(Pfad(name));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(bytes);
    }
    std::vector<system_clock::time_point> Zeiten() const {
        std::vector<system_clock::time_point> zeiten;
        for (const Sicherung& sicherung : sicherungen.Alle())
            zeiten.push_back(sicherung.angaben.zeit);
        return zeiten;
    }

    QTemporaryDir ordner;
    const QString wurzel = ordner.filePath("does/not/exist/yet");
    Dateisicherungen sicherungen{wurzel, "1.2.3"};
};

} // namespace varnoth::pruefung
