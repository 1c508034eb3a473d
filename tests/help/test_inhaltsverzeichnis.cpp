#include "inhaltsverzeichnis.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

const QByteArray Liste = "0\thaupt\tDas Menü\tfrmMain\n"
                         "1\tansicht\tDie Ansicht\tfrmDocument,frmDocument_9\n"
                         "0\tglossar\tGlossar\t\n";

const Inhaltsverzeichnis& Inhalt() {
    static const Inhaltsverzeichnis inhalt = LiesInhalt(Liste);
    return inhalt;
}

QString SeiteZu(const char* objectName) {
    const Hilfeseite* const seite = SeiteZuFenster(Inhalt(), QLatin1String(objectName));
    return seite == nullptr ? QString() : seite->name;
}

} // namespace

TEST(Inhaltsverzeichnis, A_line_gives_level_name_title_and_windows) {
    const Hilfeseite erwartet{1, "ansicht", "Die Ansicht", {"frmDocument", "frmDocument_9"}};
    ASSERT_EQ(Inhalt().size(), 3);
    EXPECT_EQ(Inhalt()[1], erwartet);
}

TEST(Inhaltsverzeichnis, Titles_are_read_as_UTF_8) {
    EXPECT_EQ(Inhalt()[0].titel, QStringLiteral("Das Menü"));
}

TEST(Inhaltsverzeichnis, A_page_may_tell_of_no_window) {
    EXPECT_TRUE(Inhalt()[2].fenster.isEmpty());
}

TEST(Inhaltsverzeichnis, A_line_with_a_field_missing_is_passed_over) {
    EXPECT_EQ(LiesInhalt("0\thaupt\tDas Menü\n\n0\tglossar\tGlossar\t\n").size(), 1);
}

TEST(Inhaltsverzeichnis, Line_ends_of_Windows_do_no_harm) {
    EXPECT_EQ(LiesInhalt("0\thaupt\tDas Menü\tfrmMain\r\n")[0].fenster, QStringList{"frmMain"});
}

TEST(Inhaltsverzeichnis, A_window_leads_to_its_page) {
    EXPECT_EQ(SeiteZu("frmMain"), "haupt");
}

TEST(Inhaltsverzeichnis, An_index_behind_a_window_does_not_count) {
    EXPECT_EQ(SeiteZu("frmDocument_2"), "ansicht");
}

TEST(Inhaltsverzeichnis, An_unknown_window_has_no_page) {
    EXPECT_EQ(SeiteZu("frmOther"), QString());
}

TEST(Inhaltsverzeichnis, A_window_without_a_name_has_no_page) {
    EXPECT_EQ(SeiteZu(""), QString());
}

TEST(Inhaltsverzeichnis, Only_a_number_at_the_end_is_an_index) {
    EXPECT_EQ(OhneIndex("Option1_0"), "Option1");
    EXPECT_EQ(OhneIndex("frm_Main"), "frm_Main");
}

} // namespace varnoth
