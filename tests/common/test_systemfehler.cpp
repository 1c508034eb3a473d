#include "systemfehler.h"

#include "texte.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <system_error>

namespace varnoth {

class SystemfehlerTest : public testing::Test {
protected:
    ~SystemfehlerTest() override { SetzeSprachoffset(Deutsch); }
};

TEST_F(SystemfehlerTest, An_error_is_told_in_the_language_in_use) {
    EXPECT_EQ(Systemfehler(ENOSPC), "Auf dem Datenträger ist kein Platz mehr.");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Systemfehler(ENOSPC), "The disk is full.");
    EXPECT_EQ(KeineGewoehnlicheDatei(), "It is not an ordinary file.");
}

TEST_F(SystemfehlerTest, Every_common_error_has_a_text_of_its_own) {
    for (const int nummer : {ENOENT, EACCES, EPERM, EISDIR, ENOTDIR, ENOSPC, EROFS, EIO, ENAMETOOLONG, EMFILE,
                             ENFILE, EBUSY, ENODEV, ENXIO, EFBIG, ENOTTY, EILSEQ}) {
        EXPECT_FALSE(Systemfehler(nummer).empty()) << nummer;
        EXPECT_NE(Systemfehler(nummer), std::generic_category().message(nummer));
    }
}

TEST_F(SystemfehlerTest, A_rare_error_is_told_in_the_systems_words) {
    EXPECT_EQ(Systemfehler(EXDEV), std::generic_category().message(EXDEV));
}

} // namespace varnoth
