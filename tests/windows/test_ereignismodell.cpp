#include "ereignismodell.h"

#include "texte.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

class EreignismodellTest : public testing::Test {
protected:
    EreignismodellTest() { modell.Setze(&speicher, 0, {}); }

    void Notiere(const std::string& text) {
        speicher.Merke({.art = Ereignisart::Notiz, .zeit = Systemzeit(1h), .text = text});
    }
    std::string Text(int zeile, int spalte, int rolle = Qt::DisplayRole) {
        return modell.data(modell.index(zeile, spalte), rolle).toString().toStdString();
    }
    void Zeige(const Ereignisfilter& filter) {
        modell.Setze(&speicher, 0, filter);
        modell.Hole(100'000);
    }

    Ereignisspeicher speicher;
    Ereignismodell modell;
    QAbstractItemModelTester pruefer{&modell, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(EreignismodellTest, Has_a_row_for_each_event_once_it_is_told_to_look) {
    speicher.Merke(
        {.art = Ereignisart::AusgangGeschaltet, .zeit = Systemzeit(1h), .anzahl = 11, .neu = 1, .dauer = 5s});
    EXPECT_EQ(modell.rowCount(), 0);
    modell.Hole(10);
    ASSERT_EQ(modell.rowCount(), 1);
    EXPECT_EQ(Text(0, Ereignismodell::Zeitspalte).size(), std::string("2026-11-22 11:17:23.456").size());
    EXPECT_EQ(Text(0, Ereignismodell::Art), "Schaltausgang");
    EXPECT_EQ(Text(0, Ereignismodell::Was), "zuletzt: PNP-Ausgang aktiv");
    EXPECT_EQ(Text(0, Ereignismodell::Dauer), "5,0 s");
    EXPECT_EQ(Text(0, Ereignismodell::Anzahl), "11 (2,0/s)");
}

TEST_F(EreignismodellTest, Speaks_the_language_of_the_moment_once_it_is_told) {
    speicher.Merke({.art = Ereignisart::Verloren});
    modell.Hole(10);
    EXPECT_EQ(Text(0, Ereignismodell::Was), "Das Steuergerät antwortet nicht mehr");
    SetzeSprachoffset(Englisch);
    modell.Lokalisiere();
    EXPECT_EQ(Text(0, Ereignismodell::Was), "The controller no longer answers");
    EXPECT_EQ(modell.headerData(Ereignismodell::Art, Qt::Horizontal, Qt::DisplayRole).toString(), "Kind");
}

TEST_F(EreignismodellTest, Shows_what_an_event_has_become_once_it_is_told) {
    const auto nummer = speicher.Merke({.art = Ereignisart::Fehlgeschlagen, .offen = true, .neu = 2});
    modell.Hole(10);
    EXPECT_EQ(Text(0, Ereignismodell::Anzahl), "");
    Ereignis mehr = speicher.Hole(nummer);
    mehr.anzahl = 7;
    speicher.Aendere(nummer, mehr);
    modell.Erneuere();
    EXPECT_EQ(Text(0, Ereignismodell::Anzahl), "7");
}

TEST_F(EreignismodellTest, A_filter_leaves_kinds_and_words_that_are_wanted) {
    Notiere("Bahn gewechselt");
    speicher.Merke({.art = Ereignisart::Verloren});
    Notiere("Pause");
    Zeige({.gruppe = Ereignisgruppe::Notiz});
    EXPECT_EQ(modell.rowCount(), 2);
    Zeige({.gruppe = Ereignisgruppe::Notiz, .text = "BAHN"});
    ASSERT_EQ(modell.rowCount(), 1);
    EXPECT_EQ(modell.Nummer(0), 0U);
    Zeige({.text = "steuergerät"});
    ASSERT_EQ(modell.rowCount(), 1);
    EXPECT_EQ(modell.Nummer(0), 1U);
    Zeige({.gruppe = Ereignisgruppe::Ausgang});
    EXPECT_EQ(modell.rowCount(), 0);
}

TEST_F(EreignismodellTest, Looks_at_so_many_at_a_time) {
    for (int i = 0; i < 10; ++i)
        Notiere("x");
    modell.Hole(4);
    EXPECT_EQ(modell.rowCount(), 4);
    EXPECT_EQ(modell.Ausstehend(), 6U);
}

TEST_F(EreignismodellTest, Begins_where_it_is_told) {
    for (int i = 0; i < 10; ++i)
        Notiere(std::to_string(i));
    modell.Setze(&speicher, 7, {});
    modell.Hole(100);
    EXPECT_EQ(modell.rowCount(), 3);
    EXPECT_EQ(Text(0, Ereignismodell::Was), "7");
}

TEST_F(EreignismodellTest, Rows_that_the_store_forgets_are_empty_until_it_is_told_and_then_go) {
    for (int i = 0; i < 10'000; ++i)
        Notiere(std::to_string(i));
    modell.Hole(100'000);
    EXPECT_EQ(modell.rowCount(), 10'000);
    for (int i = 0; i < 3; ++i)
        Notiere("neu");
    EXPECT_EQ(modell.Hinter(2), nullptr);
    EXPECT_EQ(Text(2, Ereignismodell::Was), "");
    EXPECT_EQ(Text(3, Ereignismodell::Was), "3");
    EXPECT_EQ(modell.Vergiss(), 3);
    EXPECT_EQ(modell.rowCount(), 9'997);
    modell.Hole(100);
    EXPECT_EQ(modell.rowCount(), 10'000);
    EXPECT_EQ(Text(9'999, Ereignismodell::Was), "neu");
}

TEST_F(EreignismodellTest, Tips_show_text_letter_by_letter) {
    Notiere("<b>fett</b>");
    modell.Hole(1);
    EXPECT_EQ(Text(0, Ereignismodell::Was), "<b>fett</b>");
    EXPECT_EQ(Text(0, Ereignismodell::Was, Qt::ToolTipRole).find("<b>"), std::string::npos);
}

} // namespace varnoth
