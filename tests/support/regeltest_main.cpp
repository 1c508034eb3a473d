// The main function of every test program without windows.

#include "jedertest.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    varnoth::pruefung::BeginneJedenTestImStartzustand();
    return RUN_ALL_TESTS();
}
