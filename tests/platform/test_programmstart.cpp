#include "programmstart.h"

#include "systemfehler.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <cerrno>

namespace varnoth {

using testing::HasSubstr;

TEST(Programmstart, A_missing_program_is_named_with_the_reason_of_the_system) {
    const QTemporaryDir ordner;
    const std::string fehler = StarteProgramm(ordner.filePath("Flasher.exe"), "COM1");
    EXPECT_THAT(fehler, HasSubstr("Flasher.exe"));
    EXPECT_THAT(fehler, HasSubstr(Systemfehler(ENOENT)));
}

} // namespace varnoth
