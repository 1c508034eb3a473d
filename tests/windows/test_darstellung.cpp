#include "darstellung.h"

#include "farbensehen.h"
#include "strahlfarben.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

using pruefung::DieSehweisen;
using pruefung::Farbabstand;
using pruefung::Sehweise;

namespace {

constexpr Erscheinung EigeneFarben[] = {Erscheinung::Hell, Erscheinung::Dunkel, Erscheinung::HoherKontrast};
constexpr Strahlfarbsatz FuerFarbenblinde[] = {Strahlfarbsatz::BlauUndOrange, Strahlfarbsatz::GruenUndMagenta,
                                               Strahlfarbsatz::Graustufen};

/// The lowest distances that colours may have: of free and interrupted beams, of blanked ones from either, of
/// each from the ground.
struct Mindestens {
    double freiUndUnterbrochen;
    double geblankt;
    double grund;
};

std::vector<QPalette> Paletten() {
    std::vector<QPalette> paletten;
    for (const Erscheinung erscheinung : EigeneFarben)
        paletten.push_back(PaletteFuer(erscheinung).value());
    return paletten;
}

void ErwarteAbstaende(Strahlfarbsatz satz, std::span<const Sehweise> sehweisen, const Mindestens& grenzen) {
    for (const QPalette& palette : Paletten())
        for (const Sehweise& sehweise : sehweisen) {
            const Strahlfarben f = FarbenAus(palette, Datenstand::Gueltig, satz);
            const auto abstand = [&](const QColor& a, const QColor& b) {
                return Farbabstand(a, b, sehweise);
            };
            const std::string stelle = std::string(sehweise.name) + ", set " +
                                       std::to_string(static_cast<int>(satz)) + " on " +
                                       f.grund.name().toStdString();
            EXPECT_GE(abstand(f.frei, f.unterbrochen), grenzen.freiUndUnterbrochen) << stelle;
            EXPECT_GE(abstand(f.frei, f.geblankt), grenzen.geblankt) << stelle;
            EXPECT_GE(abstand(f.unterbrochen, f.geblankt), grenzen.geblankt) << stelle;
            for (const QColor& farbe : {f.frei, f.unterbrochen, f.geblankt})
                EXPECT_GE(abstand(farbe, f.grund), grenzen.grund) << stelle;
        }
}

} // namespace

TEST(Strahlfarbsatz, Three_sets_are_told_apart_without_red_green_or_blue) {
    for (const Strahlfarbsatz satz : FuerFarbenblinde)
        ErwarteAbstaende(satz, DieSehweisen, {.freiUndUnterbrochen = 45, .geblankt = 15, .grund = 23});
}

TEST(Strahlfarbsatz, Shades_of_grey_are_told_apart_without_any_colour) {
    ErwarteAbstaende(Strahlfarbsatz::Graustufen, {&pruefung::NurHelligkeit, 1},
                     {.freiUndUnterbrochen = 45, .geblankt = 18, .grund = 23});
}

TEST(Strahlfarbsatz, The_usual_set_is_told_apart_too_though_by_less) {
    ErwarteAbstaende(Strahlfarbsatz::GruenUndRot, DieSehweisen,
                     {.freiUndUnterbrochen = 20, .geblankt = 9, .grund = 23});
}

TEST(Strahlfarbsatz, The_four_sets_differ) {
    for (const QPalette& palette : Paletten())
        for (const Strahlfarbsatz eine : DieFarbsaetze)
            for (const Strahlfarbsatz andere : DieFarbsaetze)
                EXPECT_EQ(FarbenAus(palette, Datenstand::Gueltig, eine).unterbrochen ==
                              FarbenAus(palette, Datenstand::Gueltig, andere).unterbrochen,
                          eine == andere);
}

TEST(Strahlfarbsatz, Interrupted_beams_stand_out_most_in_every_set) {
    for (const QPalette& palette : Paletten())
        for (const Strahlfarbsatz satz : FuerFarbenblinde) {
            const Strahlfarben f = FarbenAus(palette, Datenstand::Gueltig, satz);
            EXPECT_GE(Kontrast(f.unterbrochen, f.grund), 4.5) << f.grund.name().toStdString();
            EXPECT_GE(Kontrast(f.frei, f.grund), 1.8) << f.grund.name().toStdString();
        }
}

TEST(Strahlfarbsatz, Without_another_word_the_set_in_use_counts) {
    SetzeStrahlfarbsatz(Strahlfarbsatz::BlauUndOrange);
    EXPECT_EQ(FarbenAus(QPalette(Qt::white)).frei,
              FarbenAus(QPalette(Qt::white), Datenstand::Gueltig, Strahlfarbsatz::BlauUndOrange).frei);
}

TEST(Strahlfarbsatz, What_is_old_is_pale_in_every_set) {
    for (const QPalette& palette : Paletten())
        for (const Strahlfarbsatz satz : DieFarbsaetze) {
            const Strahlfarben neu = FarbenAus(palette, Datenstand::Gueltig, satz);
            const Strahlfarben alt = FarbenAus(palette, Datenstand::Veraltet, satz);
            for (const auto farbe :
                 {&Strahlfarben::frei, &Strahlfarben::unterbrochen, &Strahlfarben::geblankt})
                EXPECT_LT(Kontrast(alt.*farbe, alt.grund), 0.8 * Kontrast(neu.*farbe, neu.grund));
        }
}

TEST(Darstellung, The_system_has_no_palette_of_ours) {
    EXPECT_FALSE(PaletteFuer(Erscheinung::System));
}

TEST(Darstellung, Writing_is_readable_on_every_ground) {
    using Paar = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    for (const QPalette& palette : Paletten())
        for (const auto& [schrift, grund] : {Paar{QPalette::WindowText, QPalette::Window},
                                             {QPalette::Text, QPalette::Base},
                                             {QPalette::Text, QPalette::AlternateBase},
                                             {QPalette::ButtonText, QPalette::Button},
                                             {QPalette::HighlightedText, QPalette::Highlight},
                                             {QPalette::ToolTipText, QPalette::ToolTipBase},
                                             {QPalette::Link, QPalette::Base},
                                             {QPalette::LinkVisited, QPalette::Base}})
            EXPECT_GE(Kontrast(palette.color(schrift), palette.color(grund)), 4.5)
                << schrift << " on " << grund << ", window "
                << palette.color(QPalette::Window).name().toStdString();
}

TEST(Darstellung, What_cannot_be_chosen_is_paler_and_still_to_be_seen) {
    for (const QPalette& palette : Paletten()) {
        const QColor grund = palette.color(QPalette::Window);
        const double blass = Kontrast(palette.color(QPalette::Disabled, QPalette::WindowText), grund);
        EXPECT_GE(blass, 2.5);
        EXPECT_LT(blass, 0.6 * Kontrast(palette.color(QPalette::WindowText), grund));
    }
}

TEST(Darstellung, Lines_of_tables_are_seen_on_every_ground) {
    for (const QPalette& palette : Paletten())
        EXPECT_GE(Kontrast(palette.color(QPalette::Mid), palette.color(QPalette::Base)), 2.3)
            << palette.color(QPalette::Window).name().toStdString();
}

TEST(Darstellung, Only_high_contrast_is_white_on_black) {
    for (const Erscheinung erscheinung : EigeneFarben)
        EXPECT_EQ(IstHoherKontrast(*PaletteFuer(erscheinung)), erscheinung == Erscheinung::HoherKontrast);
    QPalette hoch = *PaletteFuer(Erscheinung::HoherKontrast);
    hoch.setCurrentColorGroup(QPalette::Disabled);
    EXPECT_TRUE(IstHoherKontrast(hoch));
    hoch.setCurrentColorGroup(QPalette::Active);
    EXPECT_GE(Kontrast(hoch.color(QPalette::WindowText), hoch.color(QPalette::Window)), 21);
}

TEST(Darstellung, Dark_and_high_contrast_are_dark) {
    EXPECT_FALSE(IstDunkel(*PaletteFuer(Erscheinung::Hell)));
    EXPECT_TRUE(IstDunkel(*PaletteFuer(Erscheinung::Dunkel)));
    EXPECT_TRUE(IstDunkel(*PaletteFuer(Erscheinung::HoherKontrast)));
}

TEST(Erscheinung, The_lines_of_tables_are_seen_on_their_ground) {
    for (const QPalette& palette : Paletten())
        EXPECT_GE(Kontrast(palette.color(QPalette::Mid), palette.color(QPalette::Base)), 2.5)
            << palette.color(QPalette::Base).name().toStdString();
}

} // namespace varnoth
