#include "busmodell.h"

#include "busfarben.h"
#include "busprobe.h"
#include "darstellung.h"
#include "pruefumgebung.h"
#include "servicetext.h"
#include "strahlfarben.h"
#include "texte.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

namespace varnoth {

using namespace busprobe;

class BusmodellTest : public testing::Test {
protected:
    BusmodellTest() { protokoll.Beginne(); }

    std::string Text(int zeile, Busmodell::Spalte spalte, int rolle = Qt::DisplayRole) {
        return modell.data(modell.index(zeile, spalte), rolle).toString().toStdString();
    }

    pruefung::PruefUmgebung umgebung;
    Busprotokoll protokoll;
    Busmodell modell{protokoll};
    QAbstractItemModelTester pruefer{&modell, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(BusmodellTest, Has_a_row_for_each_exchange_once_it_is_told_to_look) {
    protokoll.Hoere(Gelesen(193, {1}));
    EXPECT_EQ(modell.rowCount(), 0);
    modell.Hole(100);
    ASSERT_EQ(modell.rowCount(), 1);
    EXPECT_EQ(Text(0, Busmodell::Funktion), "Lesen (03)");
    EXPECT_EQ(Text(0, Busmodell::Richtung), "vom Gerät");
    EXPECT_EQ(Text(0, Busmodell::Register), "Global: PNP-Ausgang");
    EXPECT_EQ(Text(0, Busmodell::Umlauf), "12,3 ms");
    EXPECT_EQ(Text(0, Busmodell::Ergebnis), "beantwortet");
    EXPECT_EQ(Text(0, Busmodell::Zeitspalte).size(), std::string("11:17:23,456").size());
}

TEST_F(BusmodellTest, Tells_bytes_and_on_request_values_in_words) {
    protokoll.Hoere(Gelesen(0x2000 + 14, {3}));
    modell.Hole(100);
    EXPECT_EQ(Text(0, Busmodell::Inhalt), "→ 01 03 20 0E 00 01 EE 09  ← 01 03 02 00 03 F8 45");
    modell.ZeigeWorte(true);
    EXPECT_EQ(Text(0, Busmodell::Inhalt), "1,00 - 2,5m");
    modell.ZeigeWorte(false);
    EXPECT_EQ(Text(0, Busmodell::Inhalt).substr(0, 3), "→");
}

TEST_F(BusmodellTest, Speaks_the_language_of_the_moment_once_it_is_told) {
    protokoll.Hoere(Gelesen(193, {1}));
    modell.Hole(100);
    EXPECT_EQ(Text(0, Busmodell::Ergebnis), "beantwortet");
    SetzeSprachoffset(Englisch);
    modell.Lokalisiere();
    EXPECT_EQ(Text(0, Busmodell::Ergebnis), "answered");
    EXPECT_EQ(modell.headerData(Busmodell::Ergebnis, Qt::Horizontal, Qt::DisplayRole).toString(), "Result");
}

TEST_F(BusmodellTest, Looks_at_so_many_at_a_time) {
    for (int i = 0; i < 10; ++i)
        protokoll.Hoere(Gelesen(193, {1}));
    modell.Hole(4);
    EXPECT_EQ(modell.rowCount(), 4);
    EXPECT_EQ(modell.Ausstehend(), 6U);
}

TEST_F(BusmodellTest, Rows_that_the_log_forgets_go_when_it_is_told_and_say_so_until_then) {
    for (std::size_t i = 0; i < Busprotokoll::Hoechstzahl; ++i)
        protokoll.Hoere(Gelesen(193, {1}));
    modell.Hole(Busprotokoll::Hoechstzahl);
    EXPECT_EQ(modell.rowCount(), 100'000);
    for (int i = 0; i < 3; ++i)
        protokoll.Hoere(Unbeantwortet(193));
    EXPECT_EQ(Text(2, Busmodell::Ergebnis), "nicht mehr im Protokoll");
    EXPECT_EQ(Text(2, Busmodell::Register), "");
    EXPECT_EQ(Text(3, Busmodell::Ergebnis), "beantwortet");
    EXPECT_EQ(modell.Vergiss(), 3);
    EXPECT_EQ(modell.rowCount(), 99'997);
    EXPECT_EQ(Text(0, Busmodell::Ergebnis), "beantwortet");
    modell.Hole(100);
    EXPECT_EQ(Text(99'999, Busmodell::Ergebnis), "keine Antwort");
}

TEST_F(BusmodellTest, A_filter_leaves_what_is_wanted) {
    protokoll.Hoere(Gelesen(193, {1}));
    protokoll.Hoere(Unbeantwortet(193));
    modell.Setze({.nurFehler = true});
    modell.Hole(100);
    ASSERT_EQ(modell.rowCount(), 1);
    EXPECT_EQ(modell.Nummern(), std::vector<std::uint64_t>{2});
}

TEST_F(BusmodellTest, Tips_show_text_of_the_controller_letter_by_letter) {
    Probe probe = Ungefragtes("x");
    protokoll.Hoere(probe);
    modell.Hole(1);
    EXPECT_EQ(Text(0, Busmodell::Inhalt, Qt::ToolTipRole).find("<b>"), std::string::npos);
    EXPECT_NE(Text(0, Busmodell::Inhalt, Qt::ToolTipRole), "");
}

TEST_F(BusmodellTest, The_result_has_a_colour_of_its_own_only_where_something_went_wrong) {
    protokoll.Hoere(Gelesen(193, {1}));
    protokoll.Hoere(Unbeantwortet(193));
    modell.Hole(100);
    const auto farbe = [&](int zeile, int spalte) {
        return modell.data(modell.index(zeile, spalte), Qt::ForegroundRole);
    };
    EXPECT_EQ(farbe(0, Busmodell::Ergebnis).value<QColor>(), QPalette().color(QPalette::Text));
    EXPECT_NE(farbe(1, Busmodell::Ergebnis).value<QColor>(), QPalette().color(QPalette::Text));
    EXPECT_FALSE(farbe(1, Busmodell::Register).isValid());
}

TEST(Busfarben, Can_be_read_on_light_dark_and_high_contrast_and_tell_two_kinds_of_error_apart) {
    for (const Erscheinung erscheinung :
         {Erscheinung::Hell, Erscheinung::Dunkel, Erscheinung::HoherKontrast}) {
        const QPalette palette = *PaletteFuer(erscheinung);
        for (const auto ergebnis : {Austauschergebnis::Zeitueberschreitung, Austauschergebnis::Fremd,
                                    Austauschergebnis::Beantwortet})
            EXPECT_GE(Kontrast(Ergebnisfarbe(ergebnis, palette), palette.color(QPalette::Base)), 4.5);
        EXPECT_NE(Ergebnisfarbe(Austauschergebnis::Pruefsumme, palette),
                  Ergebnisfarbe(Austauschergebnis::Verspaetet, palette));
    }
}

} // namespace varnoth
