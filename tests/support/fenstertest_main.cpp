// The main function of every test program that opens windows: an application on the offscreen platform, and a
// failed test for every warning that nobody expected.

#include "jedertest.h"
#include "logwaechter.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    varnoth::pruefung::BeginneJedenTestImStartzustand();
    varnoth::pruefung::UeberwacheLog();
    return RUN_ALL_TESTS();
}
