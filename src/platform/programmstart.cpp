#include "programmstart.h"

#include "systemfehler.h"

#include <QFileInfo>
#include <QProcess>

#include <cerrno>

namespace varnoth {

namespace {

std::string Grund(const QFileInfo& programm, const QProcess& prozess) {
    if (!programm.exists())
        return Systemfehler(ENOENT);
    return programm.isExecutable() ? prozess.errorString().toStdString() : Systemfehler(EACCES);
}

} // namespace

std::string StarteProgramm(const QString& programm, const QString& parameter) {
    QProcess prozess;
    prozess.setProgram(programm);
#ifdef Q_OS_WIN
    prozess.setNativeArguments(parameter);
#else
    prozess.setArguments(QProcess::splitCommand(parameter));
#endif
    if (prozess.startDetached())
        return {};
    return programm.toStdString() + ": " + Grund(QFileInfo(programm), prozess);
}

} // namespace varnoth
