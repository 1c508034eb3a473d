#include "strahlmodell.h"

#include <QFont>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::vector<Strahlverdacht> VerdachtGegen(int strahl) {
    return {{.art = {}, .von = strahl, .bis = strahl, .werte = {}}};
}

} // namespace

TEST(Strahlmodell, New_numbers_and_another_language_change_every_cell) {
    Strahlmodell modell;
    modell.Setze(std::vector<Strahlwerte>(3), {}, 0, {});
    QSignalSpy geaendert(&modell, &QAbstractItemModel::dataChanged);
    modell.Setze(std::vector<Strahlwerte>(3), {}, 10, {});
    modell.Lokalisiere();
    ASSERT_EQ(geaendert.count(), 2);
    for (const auto& signal : geaendert) {
        EXPECT_EQ(signal[0].value<QModelIndex>(), modell.index(0, 0));
        EXPECT_EQ(signal[1].value<QModelIndex>(), modell.index(2, modell.columnCount() - 1));
    }
}

TEST(Strahlmodell, Only_suspicious_beams_are_told_in_bold) {
    Strahlmodell modell;
    modell.Setze(std::vector<Strahlwerte>(3), VerdachtGegen(1), 0, {});
    EXPECT_TRUE(modell.index(1, 0).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(modell.index(1, 0).data(Strahlmodell::Verdachtsrolle).toBool());
    EXPECT_FALSE(modell.index(0, 0).data(Qt::FontRole).isValid());
    EXPECT_FALSE(modell.index(2, 0).data(Strahlmodell::Verdachtsrolle).toBool());
}

} // namespace varnoth
