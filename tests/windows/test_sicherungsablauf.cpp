#include "sicherungsablauf.h"

#include "pruefsicherungen.h"
#include "pruefumgebung.h"
#include "standardkonfiguration.h"

#include <QApplication>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace varnoth {

/// The window of backups with one backup in it.
class SicherungsablaufTest : public testing::Test {
protected:
    SicherungsablaufTest() {
        sicherungen.gelegte.emplace_back(Sicherung{"/backups/a.con", {}}, Standardkonfiguration());
        ablauf.Zeige();
    }

    static QTreeWidget* Liste() {
        for (QWidget* const fenster : QApplication::topLevelWidgets())
            if (fenster->objectName() == "frmSicherungen")
                return fenster->findChild<QTreeWidget*>("lstSicherungen");
        return nullptr;
    }
    static void DoppelklickeAufDieErste() {
        QTreeWidget* const liste = Liste();
        ASSERT_NE(liste, nullptr);
        QTreeWidgetItem* const eintrag = liste->topLevelItem(0)->child(0);
        liste->setCurrentItem(eintrag);
        emit liste->itemDoubleClicked(eintrag, 0);
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefSicherungen sicherungen;
    std::vector<std::string> verglichen;
    Sicherungsablauf ablauf{
        {.oeffne = [] {},
         .vergleiche = [this](const Sicherung& sicherung,
                              const Abbild& /*abbild*/) { verglichen.push_back(sicherung.pfad); }}};
};

TEST_F(SicherungsablaufTest, A_double_click_compares_the_backup) {
    DoppelklickeAufDieErste();
    EXPECT_EQ(verglichen, std::vector<std::string>{"/backups/a.con"});
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(SicherungsablaufTest, A_backup_that_has_vanished_or_cannot_be_read_is_told_when_it_is_to_be_compared) {
    sicherungen.unlesbar = true;
    DoppelklickeAufDieErste();
    EXPECT_TRUE(verglichen.empty());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Die Sicherung lässt sich nicht lesen:\n/backups/a.con");
}

} // namespace varnoth
