#include "instanzsperre.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace varnoth {

TEST(Instanzsperre, A_second_instance_of_the_same_program_is_refused_while_the_first_lives) {
    const QTemporaryDir ordner;
    Instanzsperre zweite(QStringLiteral("varnoth"), ordner.path());
    {
        Instanzsperre erste(QStringLiteral("varnoth"), ordner.path());
        EXPECT_TRUE(erste.Belege());
        EXPECT_FALSE(zweite.Belege());
    }
    EXPECT_TRUE(zweite.Belege());
}

TEST(Instanzsperre, Another_program_is_not_in_the_way) {
    const QTemporaryDir ordner;
    Instanzsperre erste(QStringLiteral("varnoth"), ordner.path());
    Instanzsperre andere(QStringLiteral("other"), ordner.path());
    EXPECT_TRUE(erste.Belege());
    EXPECT_TRUE(andere.Belege());
}

TEST(Instanzsperre, A_folder_without_room_for_a_lock_does_not_keep_the_program_from_starting) {
    const QTemporaryDir ordner;
    Instanzsperre sperre(QStringLiteral("varnoth"), ordner.filePath(QStringLiteral("not/there")));
    EXPECT_TRUE(sperre.Belege());
}

} // namespace varnoth
