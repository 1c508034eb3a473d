#include "tabellenform.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <gtest/gtest.h>

namespace varnoth {

class TabellenformTest : public testing::Test {
protected:
    TabellenformTest() {
        tabelle.setModel(&modell);
        GibTabelleForm(tabelle, breiten);
    }

    static constexpr int breiten[] = {96, 192};
    QStandardItemModel modell{3, 3};
    QTableView tabelle;
};

TEST_F(TabellenformTest, Columns_have_the_widths_that_were_said_and_the_others_keep_theirs) {
    EXPECT_EQ(tabelle.columnWidth(0), tabelle.logicalDpiX());
    EXPECT_EQ(tabelle.columnWidth(1), 2 * tabelle.logicalDpiX());
    EXPECT_EQ(tabelle.columnWidth(2), tabelle.horizontalHeader()->defaultSectionSize());
}

TEST_F(TabellenformTest, A_row_has_room_above_and_below_its_text_and_nobody_drags_it) {
    EXPECT_EQ(tabelle.rowHeight(1), tabelle.fontMetrics().height() + 6);
    EXPECT_EQ(tabelle.verticalHeader()->sectionResizeMode(1), QHeaderView::Fixed);
}

TEST_F(TabellenformTest, A_chosen_cell_does_not_set_off_the_head_of_its_column) {
    EXPECT_FALSE(tabelle.horizontalHeader()->highlightSections());
}

} // namespace varnoth
