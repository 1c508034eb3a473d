#include "meldungsanker.h"

#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

class MeldungsankerTest : public testing::Test {
protected:
    static QString AnkerZu(std::int16_t id, const QString& zusatz = {}) {
        return Meldungsanker(zusatz + QString::fromStdString(LadeText(id)));
    }
};

TEST_F(MeldungsankerTest, A_message_leads_to_its_id) {
    EXPECT_EQ(AnkerZu(3000), "m3000");
    EXPECT_EQ(AnkerZu(3100), "m3100");
}

TEST_F(MeldungsankerTest, The_German_id_stands_for_the_English_message_too) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(AnkerZu(3000), "m3000");
}

TEST_F(MeldungsankerTest, A_path_beside_the_text_does_not_hide_the_message) {
    EXPECT_EQ(AnkerZu(2001, "/home/user/OK.con"), "m2001");
}

TEST_F(MeldungsankerTest, What_a_message_names_does_not_hide_it) {
    EXPECT_EQ(Meldungsanker("Die Sicherung ließ sich nicht löschen:\nvoll\n/x.con"), "m9825");
    EXPECT_EQ(Meldungsanker("Die Sicherung vor dem Schreiben ist misslungen:\nvoll\n\nSoll trotzdem in das "
                            "Gerät geschrieben werden?"),
              "m9763");
}

TEST_F(MeldungsankerTest, A_text_that_is_not_in_the_table_leads_nowhere) {
    EXPECT_EQ(Meldungsanker("zzz"), QString());
}

} // namespace varnoth
