#include "ansichten.h"

#include "ansichtstitel.h"
#include "fenstertest.h"
#include "frmDocument.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <gtest/gtest.h>

namespace varnoth {

/// The views in an area of 1300 x 700 logical pixels.
class AnsichtenTest : public testing::Test {
protected:
    AnsichtenTest() {
        modDaten::InitRegisterbeschreibung();
        modDaten::LadeStandardkonfiguration();
        bereich.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        bereich.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        bereich.resize(1300, 700);
        bereich.show();
    }

    void Merke(int teil, const QRect& platz) {
        const std::string abschnitt = std::to_string(teil) + "Form";
        einstellungen.texte[{abschnitt, "WindowState"}] = "0";
        einstellungen.texte[{abschnitt, "Left"}] = std::to_string(platz.x() * 15);
        einstellungen.texte[{abschnitt, "Top"}] = std::to_string(platz.y() * 15);
        einstellungen.texte[{abschnitt, "Width"}] = std::to_string(platz.width() * 15);
        einstellungen.texte[{abschnitt, "Height"}] = std::to_string(platz.height() * 15);
    }
    Ansichten& DieAnsichten() {
        if (!ansichten)
            ansichten = std::make_unique<Ansichten>(bereich);
        return *ansichten;
    }
    /// Shows these parts, arranged where the views ask for it.
    void Zeige(std::initializer_list<int> teile) {
        for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
            modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, teil,
                                            {std::ranges::find(teile, teil) != teile.end() ? 32 : 0});
        if (DieAnsichten().BaueAuf())
            DieAnsichten().OrdneWieZuvor();
        QCoreApplication::processEvents();
    }
    QMdiSubWindow& Rahmen(int teil) {
        return *qobject_cast<QMdiSubWindow*>(DieAnsichten().Ansicht(teil).parentWidget());
    }
    QRect Platz(int teil) { return Rahmen(teil).geometry(); }
    int Breite() const { return bereich.viewport()->width(); }
    void Vergroessere(QSize groesse) {
        bereich.resize(groesse);
        QCoreApplication::processEvents();
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    QMdiArea bereich;
    std::unique_ptr<Ansichten> ansichten;
};

TEST_F(AnsichtenTest, No_view_is_made_before_one_is_needed) {
    Zeige({});
    DieAnsichten().ZeigeAlleOffline();
    DieAnsichten().Lokalisiere();
    DieAnsichten().SchalteGrossanzeige();
    DieAnsichten().SpeicherePlaetze();
    EXPECT_EQ(DieAnsichten().AnzahlGezeigter(), 0);
    EXPECT_TRUE(bereich.subWindowList().isEmpty());
}

TEST_F(AnsichtenTest, A_caption_given_before_the_view_was_made_is_there_with_it) {
    DieAnsichten().SetzeTitel(2, TextNichtVorhanden);
    EXPECT_EQ(Rahmen(2).windowTitle(), Ansichtstitel(2, TextNichtVorhanden));
    EXPECT_EQ(Rahmen(1).windowTitle(), Ansichtstitel(1, TextOffline));
}

TEST_F(AnsichtenTest, Views_without_a_place_stand_side_by_side) {
    Zeige({0, 1});
    EXPECT_EQ(Platz(0), QRect(0, 0, 650, bereich.viewport()->height()));
    EXPECT_EQ(Platz(1), QRect(650, 0, 650, bereich.viewport()->height()));
}

TEST_F(AnsichtenTest, Where_only_some_have_a_place_those_keep_it) {
    const QRect platz(40, 30, 400, 450);
    Merke(0, platz);
    Zeige({0, 1});
    EXPECT_EQ(Platz(0), platz);
    EXPECT_TRUE(bereich.viewport()->rect().contains(Platz(1)));
}

TEST_F(AnsichtenTest, Where_only_some_have_a_place_a_tiling_of_an_earlier_run_moves_none) {
    const QRect platz(0, 0, 650, 690);
    Merke(0, platz);
    einstellungen.texte[{"Ansichten", "Anordnung"}] = "Nebeneinander";
    Zeige({0, 1});
    EXPECT_EQ(Platz(0), platz);
    Vergroessere({1500, 800});
    EXPECT_EQ(Platz(0), platz) << "nor does a larger area";
}

TEST_F(AnsichtenTest, A_tiling_takes_a_new_view_in) {
    Zeige({0});
    Zeige({0, 1});
    EXPECT_EQ(Platz(0).width(), 650);
    EXPECT_EQ(Platz(1).left(), 650);
}

TEST_F(AnsichtenTest, Tiled_views_follow_the_size_of_the_area) {
    Zeige({0, 1});
    Vergroessere({1500, 800});
    EXPECT_EQ(Platz(0).width(), 750);
    EXPECT_EQ(Platz(1), QRect(750, 0, 750, bereich.viewport()->height()));
    Vergroessere({1000, 600});
    EXPECT_EQ(Platz(1), QRect(500, 0, 500, bereich.viewport()->height()));
}

TEST_F(AnsichtenTest, A_view_that_the_user_has_moved_or_sized_is_never_tiled_over) {
    const std::pair<const char*, std::function<void(QMdiSubWindow&)>> taten[] = {
        {"moved", [](QMdiSubWindow& rahmen) { rahmen.move(30, 20); }},
        {"sized", [](QMdiSubWindow& rahmen) { rahmen.resize(500, 400); }}};
    for (const auto& [name, tat] : taten) {
        ansichten.reset();
        for (QMdiSubWindow* alt : bereich.subWindowList())
            delete alt;
        bereich.resize(1300, 700);
        Zeige({0, 1});
        tat(Rahmen(0));
        const QRect platz = Platz(0);
        const QRect daneben = Platz(1);
        Vergroessere({1500, 800});
        EXPECT_EQ(Platz(0), platz) << name;
        EXPECT_EQ(Platz(1), daneben) << name;
        Zeige({0, 1, 2});
        EXPECT_EQ(Platz(0), platz) << name;
    }
}

TEST_F(AnsichtenTest, Cascaded_views_do_not_follow_the_size_of_the_area) {
    Zeige({0, 1});
    DieAnsichten().Staffle();
    const QRect platz = Platz(0);
    Vergroessere({1500, 800});
    EXPECT_EQ(Platz(0), platz);
}

TEST_F(AnsichtenTest, A_tiling_survives_a_view_that_was_maximised_meanwhile) {
    Zeige({0, 1});
    Rahmen(0).showMaximized();
    Vergroessere({1500, 800});
    EXPECT_TRUE(Rahmen(0).isMaximized());
    Rahmen(0).showNormal();
    EXPECT_TRUE(pruefung::WarteBis([this] { return Platz(0).width() == 750; })) << Platz(0).width();
}

TEST_F(AnsichtenTest, A_tiling_is_remembered_and_followed_in_the_next_run) {
    Zeige({0, 1});
    DieAnsichten().SpeicherePlaetze();
    EXPECT_EQ((einstellungen.texte[{"Ansichten", "Anordnung"}]), "Nebeneinander");
    ansichten.reset();
    for (QMdiSubWindow* alt : bereich.subWindowList())
        delete alt;
    Zeige({0, 1});
    Vergroessere({1500, 800});
    EXPECT_EQ(Platz(1).left(), 750);
}

TEST_F(AnsichtenTest, An_arrangement_of_the_users_own_is_remembered_as_one) {
    einstellungen.texte[{"Ansichten", "Anordnung"}] = "Untereinander";
    Zeige({0, 1});
    Rahmen(0).move(30, 20);
    DieAnsichten().SpeicherePlaetze();
    EXPECT_EQ((einstellungen.texte[{"Ansichten", "Anordnung"}]), "");
}

TEST_F(AnsichtenTest, Stacked_views_stand_one_below_the_other_in_a_window_that_is_high_enough) {
    Zeige({0, 1});
    DieAnsichten().Ordne(Anordnung::Untereinander);
    EXPECT_EQ(Platz(0).left(), Platz(1).left());
    EXPECT_EQ(Platz(0).width(), Breite());
    EXPECT_GE(Platz(1).top(), Platz(0).bottom());
}

TEST_F(AnsichtenTest, Stacking_that_was_chosen_is_followed_by_a_higher_area) {
    Zeige({0, 1});
    DieAnsichten().Ordne(Anordnung::Untereinander);
    Vergroessere({1300, 1200});
    EXPECT_EQ(Platz(0).left(), Platz(1).left());
    EXPECT_EQ(Platz(1).top(), bereich.viewport()->height() / 2);
}

TEST_F(AnsichtenTest, Views_without_a_place_are_tiled_as_in_the_last_run) {
    einstellungen.texte[{"Ansichten", "Anordnung"}] = "Untereinander";
    Zeige({0, 1});
    EXPECT_EQ(Platz(0).left(), Platz(1).left());
    EXPECT_GT(Platz(1).top(), Platz(0).top());
}

TEST_F(AnsichtenTest, The_first_view_lies_above_the_others) {
    Zeige({0, 1, 2});
    EXPECT_EQ(bereich.subWindowList(QMdiArea::StackingOrder).last(), &Rahmen(0));
}

TEST_F(AnsichtenTest, A_minimised_view_has_no_place_in_a_tiling_and_breaks_none) {
    Zeige({0, 1, 2});
    Rahmen(1).showMinimized();
    QCoreApplication::processEvents();
    Vergroessere({1500, 800});
    EXPECT_TRUE(Rahmen(1).isMinimized());
    EXPECT_EQ(Platz(0).width(), 750);
    EXPECT_EQ(Platz(2).left(), 750);
}

TEST_F(AnsichtenTest, A_view_shown_again_takes_its_part_of_a_tiling) {
    Zeige({0, 1});
    const Ansichten::Stand beide = DieAnsichten().HoleStand();
    Zeige({0});
    EXPECT_EQ(Platz(0).width(), 1300);
    DieAnsichten().StelleHer(beide);
    EXPECT_TRUE(Rahmen(1).isVisible());
    EXPECT_TRUE(pruefung::WarteBis([this] { return Platz(0).width() == 650; }));
    EXPECT_EQ(Platz(1).left(), 650);
}

} // namespace varnoth
