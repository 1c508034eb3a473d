#pragma once

#include "startzustand.h"

#include <gtest/gtest.h>

namespace varnoth::pruefung {

/// Before each test, and before its fixture is made, every module goes back to its start: no test inherits
/// from another. A main function calls it once.
inline void BeginneJedenTestImStartzustand() {
    class Anfang : public testing::EmptyTestEventListener {
        void OnTestStart(const testing::TestInfo& /*test*/) override { const Startzustand anfang; }
    };
    testing::UnitTest::GetInstance()->listeners().Append(new Anfang);
}

} // namespace varnoth::pruefung
