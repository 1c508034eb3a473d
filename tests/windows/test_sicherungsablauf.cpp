#include "sicherungsablauf.h"

#include "dateidialog.h"
#include "pruefsicherungen.h"
#include "pruefumgebung.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <QApplication>
#include <QPushButton>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <stdexcept>

namespace varnoth {

/// The window of backups with one backup in it.
class SicherungsablaufTest : public testing::Test {
protected:
    ~SicherungsablaufTest() override { SetzeDateiantwort({}); }
    SicherungsablaufTest() {
        sicherungen.gelegte.emplace_back(Sicherung{"/backups/a.con", {}}, Standardkonfiguration());
        ablauf.Zeige();
    }

    static QTreeWidget* Liste() {
        for (QWidget* const fenster : QApplication::topLevelWidgets())
            if (fenster->objectName() == "frmSicherungen")
                return fenster->findChild<QTreeWidget*>("lstSicherungen");
        throw std::runtime_error("no window");
    }
    static QTreeWidgetItem* WaehleDieErste() {
        QTreeWidgetItem* const eintrag = Liste()->topLevelItem(0)->child(0);
        Liste()->setCurrentItem(eintrag);
        return eintrag;
    }
    static void DoppelklickeAufDieErste() { emit Liste()->itemDoubleClicked(WaehleDieErste(), 0); }
    static void KlickeAn(const char* knopf) {
        WaehleDieErste();
        Liste()->window()->findChild<QPushButton*>(QLatin1String(knopf))->click();
    }
    static int Gezeigte() { return Liste()->topLevelItem(0)->childCount(); }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefSicherungen sicherungen;
    pruefung::PruefEinstellungen einstellungen;
    std::vector<std::string> verglichen;
    int geoeffnete = 0;
    Sicherungsablauf ablauf{
        {.oeffne = [this] { ++geoeffnete; },
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

TEST_F(SicherungsablaufTest, A_backup_is_opened_by_a_command_that_learns_which_one) {
    KlickeAn("cmdOeffnen");
    EXPECT_EQ(geoeffnete, 1);
    EXPECT_EQ(ablauf.ZuOeffnende(), "/backups/a.con");
}

TEST_F(SicherungsablaufTest, A_copy_goes_where_the_user_says_and_nowhere_when_he_cancels) {
    std::optional<Dateifrage> gefragt;
    std::optional<std::string> ziel;
    SetzeDateiantwort([&](const Dateifrage& frage) {
        gefragt = frage;
        return ziel;
    });
    KlickeAn("cmdSpeichern");
    ASSERT_TRUE(gefragt);
    EXPECT_EQ(gefragt->art, Dateiwahl::Speichern);
    EXPECT_EQ(gefragt->titel, LadeText(9826));
    EXPECT_EQ(gefragt->filter, LadeText(2000));
    EXPECT_TRUE(sicherungen.kopiert.empty());
    ziel = "/tmp/no such folder/copy.con";
    KlickeAn("cmdSpeichern");
    ASSERT_EQ(sicherungen.kopiert.size(), 1U);
    EXPECT_EQ(sicherungen.kopiert[0].first, "/backups/a.con");
    EXPECT_EQ(sicherungen.kopiert[0].second, *ziel);
    EXPECT_TRUE(umgebung.meldungen.empty());
    sicherungen.fehler = "Kein Platz.";
    KlickeAn("cmdSpeichern");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Kein Platz.\n/tmp/no such folder/copy.con");
}

TEST_F(SicherungsablaufTest, The_window_shows_new_backups_follows_the_language_and_closes_with_the_program) {
    sicherungen.gelegte.emplace_back(Sicherung{"/backups/b.con", {}}, Standardkonfiguration());
    ablauf.Erneuere();
    EXPECT_EQ(Gezeigte(), 2);
    SetzeSprachoffset(Englisch);
    ablauf.Lokalisiere();
    EXPECT_EQ(Liste()->window()->findChild<QPushButton*>("cmdSchliessen")->text().toStdString(),
              LadeText(9799));
    ablauf.Schliesse();
    EXPECT_FALSE(Liste()->isVisible());
    sicherungen.gelegte.clear();
    ablauf.Erneuere();
    EXPECT_EQ(Gezeigte(), 2) << "nobody sees it";
}

} // namespace varnoth
