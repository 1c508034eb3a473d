#include "ansager.h"
#include "fenstertest.h"

#include <QLabel>
#include <gtest/gtest.h>

#include <vector>

namespace varnoth {

namespace {

using std::chrono::milliseconds;

class AnsagerTest : public testing::Test {
protected:
    AnsagerTest() {
        Ansager::SetzeHoerer(
            [this](const QAccessibleEvent& ereignis) { gehoert.push_back(ereignis.type()); });
        ansager.Beobachte(feld, QAccessible::NameChanged, [this] { return text; });
    }
    ~AnsagerTest() override { Ansager::SetzeHoerer({}); }

    std::vector<QAccessible::Event> gehoert;
    QLabel feld;
    QString text = "TU 1";
    Ansager ansager;
};

} // namespace

TEST_F(AnsagerTest, A_change_raises_its_event) {
    EXPECT_TRUE(ansager.Melde(Zeit{0}));
    text = "TU 2";
    EXPECT_TRUE(ansager.Melde(milliseconds(500)));
    EXPECT_EQ(gehoert, std::vector(2, QAccessible::NameChanged));
}

TEST_F(AnsagerTest, What_has_not_changed_is_not_told_again) {
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(ansager.Melde(milliseconds(500 * i)));
    EXPECT_EQ(gehoert.size(), 1U);
}

TEST_F(AnsagerTest, Changes_without_end_raise_two_events_a_second) {
    for (int ms = 0; ms < 10000; ms += 20) {
        text = QString::number(ms);
        ansager.Melde(milliseconds(ms));
    }
    EXPECT_EQ(gehoert.size(), 20U);
}

TEST_F(AnsagerTest, A_change_too_early_is_kept_for_its_time) {
    ansager.Melde(Zeit{0});
    text = "TU 2";
    EXPECT_FALSE(ansager.Melde(milliseconds(499)));
    EXPECT_EQ(gehoert.size(), 1U);
    EXPECT_TRUE(ansager.Melde(milliseconds(500)));
    EXPECT_EQ(gehoert.size(), 2U);
}

TEST_F(AnsagerTest, Without_a_screen_reader_nothing_is_read_or_told) {
    Ansager::SetzeHoerer({});
    bool gelesen = false;
    ansager.Beobachte(feld, QAccessible::NameChanged, [&] {
        gelesen = true;
        return QString();
    });
    EXPECT_TRUE(ansager.Melde(Zeit{0}));
    EXPECT_FALSE(gelesen);
    EXPECT_TRUE(gehoert.empty());
}

} // namespace varnoth
