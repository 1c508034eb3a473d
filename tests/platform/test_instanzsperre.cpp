#include "instanzsperre.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

const QString Name = QStringLiteral("varnoth");

} // namespace

class InstanzsperreTest : public testing::Test {
protected:
    QTemporaryDir ordner;
};

TEST_F(InstanzsperreTest, A_second_instance_of_the_same_program_is_refused_while_the_first_lives) {
    Instanzsperre zweite(Name, ordner.path());
    {
        Instanzsperre erste(Name, ordner.path());
        EXPECT_TRUE(erste.Belege());
        EXPECT_FALSE(zweite.Belege());
    }
    EXPECT_TRUE(zweite.Belege());
}

TEST_F(InstanzsperreTest, Another_program_is_not_in_the_way) {
    Instanzsperre erste(Name, ordner.path());
    Instanzsperre andere(QStringLiteral("other"), ordner.path());
    EXPECT_TRUE(erste.Belege());
    EXPECT_TRUE(andere.Belege());
}

TEST_F(InstanzsperreTest, A_program_that_holds_the_lock_may_ask_for_it_again) {
    Instanzsperre erste(Name, ordner.path());
    EXPECT_TRUE(erste.Belege());
    EXPECT_TRUE(erste.Belege());
}

TEST_F(InstanzsperreTest, A_folder_in_which_no_lock_can_lie_does_not_keep_the_program_from_starting) {
    EXPECT_TRUE(Instanzsperre(Name, ordner.filePath(QStringLiteral("not/there"))).Belege());
}

} // namespace varnoth
