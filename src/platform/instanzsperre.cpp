#include "instanzsperre.h"

#include "eigenerordner.h"

#include <QDir>

namespace varnoth {

namespace {

const QString Endung = QStringLiteral(".lock");

/// The lock's file; empty where there is no folder for it.
QString Sperrdatei(const QString& name, const QString& ordner) {
    const QString wo = ordner.isEmpty() ? LaufzeitOrdner() : ordner;
    const QString wer = QString::number(qHash(QDir::homePath()), 16);
    return wo.isEmpty() ? QString() : QDir(wo).filePath(name + QLatin1Char('-') + wer + Endung);
}

} // namespace

Instanzsperre::Instanzsperre(const QString& name, const QString& ordner) : pfad(Sperrdatei(name, ordner)) {}

QString Instanzsperre::Briefkasten() const {
    return pfad.isEmpty() ? QString() : pfad.chopped(Endung.size()) + QStringLiteral(".socket");
}

} // namespace varnoth
