#include "programmstart.h"

#include <QProcess>

namespace varnoth {

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
    return programm.toStdString() + ": " + prozess.errorString().toStdString();
}

} // namespace varnoth
