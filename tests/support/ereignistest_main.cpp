// The main function of every test program that runs Qt's events and opens no window: it is linked without
// widgets. A warning that nobody expected fails the running test.

#include "jedertest.h"
#include "logwaechter.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication anwendung(argc, argv);
    varnoth::pruefung::BeginneJedenTestImStartzustand();
    varnoth::pruefung::UeberwacheLog();
    return RUN_ALL_TESTS();
}
