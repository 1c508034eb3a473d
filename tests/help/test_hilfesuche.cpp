#include "hilfesuche.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

const QList<Seitentext> Seiten{
    {"erste", "Das Menü", "Hier steht vom Lichtgitter und von der Leitung."},
    {"zweite", "Die Leitung", "Baudrate, Parität und Stoppbits."},
    {"dritte", "Strahlen", "Ein Strahl im LICHTGITTER meldet sich über die Leitung."},
};

QStringList Gefunden(const QString& eingabe) {
    QStringList namen;
    for (const Fundstelle& fund : Suche(Seiten, Suchworte(eingabe)))
        namen.append(fund.seite);
    return namen;
}

QString Auszug(const QString& text, const QString& wort) {
    return Suche({{"seite", "Titel", text}}, {wort}).value(0).auszug;
}

} // namespace

TEST(Hilfesuche, Pages_that_hold_all_words_are_found) {
    EXPECT_EQ(Gefunden("strahl leitung"), QStringList{"dritte"});
}

TEST(Hilfesuche, Upper_and_lower_case_are_alike) {
    EXPECT_EQ(Gefunden("lichtGITTER"), (QStringList{"erste", "dritte"}));
    EXPECT_EQ(Gefunden("MENÜ"), QStringList{"erste"});
}

TEST(Hilfesuche, A_page_with_a_word_in_its_title_comes_first) {
    EXPECT_EQ(Gefunden("leitung"), (QStringList{"zweite", "erste", "dritte"}));
}

TEST(Hilfesuche, A_word_may_stand_in_the_title_and_another_in_the_text) {
    EXPECT_EQ(Gefunden("menü lichtgitter"), QStringList{"erste"});
}

TEST(Hilfesuche, A_word_may_be_part_of_a_longer_one) {
    EXPECT_EQ(Gefunden("baud"), QStringList{"zweite"});
}

TEST(Hilfesuche, Blanks_between_words_do_not_count) {
    EXPECT_EQ(Suchworte("  strahl\t leitung "), (QStringList{"strahl", "leitung"}));
}

TEST(Hilfesuche, A_word_typed_twice_counts_once) {
    EXPECT_EQ(Suchworte(QStringLiteral("port  com port")), QStringList({"port", "com"}));
}

TEST(Hilfesuche, No_word_finds_nothing) {
    EXPECT_EQ(Gefunden("   "), QStringList());
}

TEST(Hilfesuche, An_unknown_word_finds_nothing) {
    EXPECT_EQ(Gefunden("Zebra"), QStringList());
}

TEST(Hilfesuche, A_short_text_is_its_own_excerpt_in_one_line) {
    EXPECT_EQ(Auszug("Ein Strahl\nist frei.", "frei"), QStringLiteral("Ein Strahl ist frei."));
}

TEST(Hilfesuche, The_excerpt_of_a_long_text_holds_the_find_between_whole_words) {
    const QString text =
        QStringLiteral("vorher ").repeated(40) + "Ziel" + QStringLiteral(" danach").repeated(40);
    const QString auszug = Auszug(text, "Ziel");
    EXPECT_TRUE(auszug.startsWith(QStringLiteral("…vorher ")));
    EXPECT_TRUE(auszug.contains("Ziel"));
    EXPECT_TRUE(auszug.endsWith(QStringLiteral(" danach…")));
    EXPECT_LE(auszug.size(), 112);
}

TEST(Hilfesuche, The_excerpt_begins_with_the_text_where_only_the_title_has_the_word) {
    EXPECT_TRUE(Auszug(QStringLiteral("Der Text beginnt. ").repeated(20), "Titel").startsWith("Der Text"));
}

TEST(Hilfesuche, A_find_in_a_word_longer_than_the_excerpt_still_gives_one) {
    EXPECT_TRUE(Auszug(QString(500, u'x') + "Ziel", "Ziel").contains("Ziel"));
}

} // namespace varnoth
