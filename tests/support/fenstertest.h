#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>
#include <QThread>

namespace varnoth::pruefung {

/// Lets a warning whose text contains the given part pass in the running test; any other warning fails it.
void ErwarteWarnung(const QString& teil);

/// Serves events until the condition holds or the time is up; gives whether it holds.
template<class Bedingung>
bool WarteBis(Bedingung bedingung, int hoechstensMs = 10000) {
    QElapsedTimer uhr;
    uhr.start();
    while (!bedingung()) {
        if (uhr.elapsed() > hoechstensMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(1); // a test beside this one needs the processor
    }
    return true;
}

} // namespace varnoth::pruefung
