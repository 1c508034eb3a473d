#pragma once

#include "dateien.h"

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace varnoth::pruefung {

constexpr std::size_t Laenge = 10262;

/// A folder to put files into.
class Dateiprobe : public testing::Test {
protected:
    std::string Pfad(const char* name) const {
        return ordner.filePath(QString::fromUtf8(name)).toStdString();
    }
    static std::string Inhalt(const std::string& pfad) { return LiesDatei(pfad, 1 << 20).bytes; }
    QStringList Namen() const {
        return QDir(ordner.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir ordner;
    const std::string alt = std::string(Laenge, 'a');
    const std::string neu = std::string(Laenge, 'n');
};

} // namespace varnoth::pruefung
