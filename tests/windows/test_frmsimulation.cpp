#include "untereditortest.h"

#include "frmSimulation.h"
#include "kurvenbild.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "strahlfarben.h"
#include "texte.h"
#include "zykluszeiten.h"

#include <QLineEdit>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

class FrmSimulationTest : public pruefung::UntereditorTest {
protected:
    static void SetzeTeil(std::int16_t teil, std::int32_t strahlen, std::int32_t abstand) {
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, teil, {strahlen});
        modDaten::SetzeSpezifischeDaten(spezifisch::Aufloesung, 1, teil, {abstand});
    }
    static void SetzeBaudcode(std::int32_t code) {
        modDaten::SetzeKommunikationsdaten(kommunikation::Autosendformat, 1, {code});
    }
    /// With the image as it is.
    void Oeffne(const QLocale& gebiet = QLocale(QLocale::German, QLocale::Germany)) {
        modHilfsFunktionen::BerechneZykluszeiten();
        modDaten::LoescheGeaendert();
        geoeffnet = std::make_unique<frmSimulation>(nullptr, gebiet);
        ZeigeAktiv(*geoeffnet);
    }
    /// With one part C1 of 32 beams: tz is 1.75 ms.
    void OeffneMit(std::int32_t strahlabstand) {
        SetzeTeil(0, 32, strahlabstand);
        Oeffne();
    }
    frmSimulation& Dialog() { return *geoeffnet; }
    QLineEdit& Feld(const char* name) { return Kind<QLineEdit>(Dialog(), name); }
    void Tippe(const char* name, const char* text) {
        Feld(name).setText({});
        QTest::keyClicks(&Feld(name), QString::fromUtf8(text));
    }
    /// The text of a label or button, the title of a group.
    static std::string Worte(const QWidget& element) {
        const char* const eigenschaft = element.inherits("QGroupBox") ? "title" : "text";
        return element.property(eigenschaft).toString().toStdString();
    }
    QString Wert(const char* name) { return Beschriftung(Dialog(), name); }
    /// The results of length, speed, hole diameter and hole speed.
    QStringList Ergebnisse() {
        return {Wert("lblFormel1vmax"), Wert("lblFormel2Lmin"), Wert("lblFormel4vmax"),
                Wert("lblMinimalerLochdurchmesser")};
    }
    void TippeAlles() {
        Tippe("txtFormel1L", "40");
        Tippe("txtFormel2v", "4");
        Tippe("txtFormel4", "36");
        Tippe("txtlblGeschwindigkeit", "8");
    }
    /// The index of the part chosen, -1 when none is.
    int GewaehlterTeil() {
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            if (Knopf(Dialog(), ("optKx_" + std::to_string(teil)).c_str()).isChecked())
                return teil;
        return -1;
    }
    /// What the dialog paints, and what it would paint with the given diagram.
    void ErwarteDiagramm(const Diagramm& diagramm) {
        auto& bild = Kind<Kurvenbild>(Dialog(), "Bild");
        const QImage gezeigtes = bild.grab().toImage();
        bild.Zeige(diagramm);
        EXPECT_EQ(gezeigtes, bild.grab().toImage());
    }

    std::unique_ptr<frmSimulation> geoeffnet;
};

TEST_F(FrmSimulationTest, Every_heading_formula_field_and_unit_bears_its_own_words) {
    const std::pair<const char*, std::int16_t> beschriftungen[] = {
        {"lblOptikteil", 8020},
        {"optKx_0", 8021},
        {"optKx_1", 8022},
        {"optKx_2", 8023},
        {"optKx_3", 8024},
        {"lblZykluszeit", 8025},
        {"lblZykluszeitEinheit", 8018},
        {"lblStrahlabstand", 8026},
        {"lblStrahlabstandEinheit", 8008},
        {"Objekterfassung", 8038},
        {"lblFormel1Titel", 8013},
        {"lblFormel1", 8005},
        {"lblFormel1Eingabe", 8016},
        {"lblFormel1Eingabeeinheit", 8008},
        {"lblFormel1Einheit", 8007},
        {"lblFormel2Titel", 8014},
        {"lblFormel2", 8006},
        {"lblFormel2Eingabe", 8017},
        {"lblFormel2Eingabeeinheit", 8010},
        {"lblFormel2Einheit", 8009},
        {"Locherkennung", 8039},
        {"lblFormel3Titel", 8028},
        {"lblFormel3", 8032},
        {"lblFormel3Eingabe", 8029},
        {"lblFormel3Eingabeeinheit", 8010},
        {"lblFormel3Einheit", 8030},
        {"lblFormel4Titel", 8033},
        {"lblFormel4", 8037},
        {"lblFormel4Eingabe", 8034},
        {"lblFormel4Eingabeeinheit", 8008},
        {"lblFormel4Einheit", 8035},
        {"lblAutosendBaudrate", 8003},
        {"lblAutosendBaudrateEinheit", 8019},
        {"lblZykluszeitLaengste", 8004},
        {"lblZykluszeitLaengsteEinheit", 8018},
        {"lblBmaxTitel", 8015},
        {"lblBmaxFormel", 8012},
        {"lblBmaxEinheit", 8011},
        {"cmdCancel", 8002},
    };
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Oeffne();
        EXPECT_EQ(Dialog().windowTitle().toStdString(), LadeText(8000));
        for (const auto& [name, text] : beschriftungen)
            EXPECT_EQ(Worte(Kind<QWidget>(Dialog(), name)), LadeText(text)) << name;
    }
}

TEST_F(FrmSimulationTest, The_first_part_with_a_cycle_time_is_chosen) {
    SetzeTeil(1, 32, 10);
    SetzeTeil(3, 32, 20);
    Oeffne();
    EXPECT_EQ(GewaehlterTeil(), 1);
    EXPECT_EQ(Wert("lblZykluszeitWert"), "3,5");
    EXPECT_EQ(Wert("lblStrahlabstandWert"), "10");
}

TEST_F(FrmSimulationTest, Without_a_cycle_time_no_part_is_chosen) {
    Oeffne();
    EXPECT_EQ(GewaehlterTeil(), -1);
    EXPECT_EQ(Wert("lblZykluszeitWert"), "");
}

TEST_F(FrmSimulationTest, Cycle_time_and_beam_distance_follow_the_part_chosen) {
    SetzeTeil(0, 16, 5);
    SetzeTeil(1, 64, 20);
    Oeffne();
    Klicke(Dialog(), "optKx_1");
    EXPECT_EQ(Wert("lblZykluszeitWert"), "6,7");
    EXPECT_EQ(Wert("lblStrahlabstandWert"), "20");
}

TEST_F(FrmSimulationTest, Each_result_follows_what_is_typed) {
    OeffneMit(10);
    TippeAlles();
    EXPECT_EQ(Ergebnisse(), QStringList({"20", "12", "20", "15"}));
}

TEST_F(FrmSimulationTest, Another_part_computes_all_results_anew) {
    SetzeTeil(0, 32, 10);
    SetzeTeil(1, 64, 10);
    Oeffne();
    TippeAlles();
    Klicke(Dialog(), "optKx_1");
    EXPECT_EQ(Ergebnisse(), QStringList({"5,22", "31,8", "5,22", "54,6"}));
}

TEST_F(FrmSimulationTest, A_length_of_5_gives_the_speed_0) {
    OeffneMit(10);
    Tippe("txtFormel1L", "5");
    EXPECT_EQ(Wert("lblFormel1vmax"), "0");
}

TEST_F(FrmSimulationTest, A_length_of_4_gives_an_empty_result) {
    OeffneMit(10);
    Tippe("txtFormel1L", "5");
    Tippe("txtFormel1L", "4");
    EXPECT_EQ(Wert("lblFormel1vmax"), "");
}

TEST_F(FrmSimulationTest, An_absent_part_can_be_chosen_and_empties_every_result) {
    OeffneMit(10);
    TippeAlles();
    Klicke(Dialog(), "optKx_2");
    EXPECT_EQ(GewaehlterTeil(), 2);
    EXPECT_EQ(Wert("lblZykluszeitWert"), "0");
    EXPECT_EQ(Ergebnisse(), QStringList({"", "", "", ""}));
}

TEST_F(FrmSimulationTest, Results_stay_empty_while_an_absent_part_is_chosen) {
    OeffneMit(10);
    Klicke(Dialog(), "optKx_2");
    TippeAlles();
    EXPECT_EQ(Ergebnisse(), QStringList({"", "", "", ""}));
}

TEST_F(FrmSimulationTest, A_hole_of_10_with_beam_distance_20_is_told_that_16_are_required) {
    OeffneMit(20);
    Tippe("txtFormel4", "36");
    Tippe("txtFormel4", "10");
    EXPECT_EQ(Wert("lblFormel4"), "D >= 16 erforderlich");
    EXPECT_EQ(Wert("lblFormel4vmax"), "");
}

TEST_F(FrmSimulationTest, A_hole_of_16_5_with_beam_distance_20_uses_the_formula_of_the_smallest) {
    OeffneMit(20);
    Tippe("txtFormel4", "16,5");
    EXPECT_EQ(Wert("lblFormel4"), "vmax = 1mm / (tz * 2);  für Löcher von 16 - 16,9mm");
    EXPECT_EQ(Wert("lblFormel4vmax"), "0,285714285714286");
}

TEST_F(FrmSimulationTest, A_larger_hole_shows_the_general_formula_again) {
    OeffneMit(20);
    Tippe("txtFormel4", "10");
    Tippe("txtFormel4", "36");
    EXPECT_EQ(Wert("lblFormel4"), "vmax = (D - 1mm) / tz");
    EXPECT_EQ(Wert("lblFormel4vmax"), "20");
}

TEST_F(FrmSimulationTest, Other_beam_distances_give_no_hole_result_and_the_general_formula) {
    OeffneMit(15);
    Tippe("txtFormel4", "36");
    EXPECT_EQ(Wert("lblFormel4"), "vmax = (D - 1mm) / tz");
    EXPECT_EQ(Wert("lblFormel4vmax"), "");
}

TEST_F(FrmSimulationTest, Nine_digits_compute_nothing) {
    OeffneMit(10);
    for (const char* name : {"txtFormel1L", "txtFormel2v", "txtFormel4", "txtlblGeschwindigkeit"})
        Tippe(name, "123456789");
    EXPECT_EQ(Ergebnisse(), QStringList({"", "", "", ""}));
}

TEST_F(FrmSimulationTest, A_text_that_is_no_number_leaves_no_result_of_an_earlier_one) {
    OeffneMit(10);
    Tippe("txtFormel1L", "40");
    Tippe("txtFormel1L", "40x");
    EXPECT_EQ(Wert("lblFormel1vmax"), "");
}

TEST_F(FrmSimulationTest, A_text_that_is_no_number_stands_out_until_it_is_corrected) {
    OeffneMit(10);
    const auto farbe = [this] { return Feld("txtFormel1L").palette().color(QPalette::Text); };
    const QColor gewohnt = farbe();
    Tippe("txtFormel1L", "4.5");
    EXPECT_EQ(farbe(), FarbenAus(Dialog().palette()).unterbrochen);
    Tippe("txtFormel1L", "4,5");
    EXPECT_EQ(farbe(), gewohnt);
}

TEST_F(FrmSimulationTest, Numbers_are_typed_and_shown_as_the_system_writes_them) {
    SetzeTeil(0, 32, 10);
    Oeffne(QLocale::c());
    Tippe("txtFormel2v", "8.5");
    EXPECT_EQ(Wert("lblZykluszeitWert"), "1.75");
    EXPECT_EQ(Wert("lblFormel2Lmin"), "19.875");
}

TEST_F(FrmSimulationTest, The_autosend_capacity_is_shown_when_the_form_opens) {
    SetzeTeil(0, 32, 10);
    SetzeBaudcode(0x030F);
    Oeffne();
    EXPECT_EQ(Wert("lblAutosendBaudrateWert"), "38400");
    EXPECT_EQ(Wert("lblZykluszeitLaengsteWert"), "1,75");
    EXPECT_EQ(Wert("lblBmax"), "3");
}

TEST_F(FrmSimulationTest, The_autosend_capacity_follows_the_longest_cycle_whatever_part_is_chosen) {
    SetzeTeil(0, 16, 10);
    SetzeTeil(1, 64, 10);
    SetzeBaudcode(15);
    Oeffne();
    Klicke(Dialog(), "optKx_0");
    EXPECT_EQ(Wert("lblZykluszeitLaengsteWert"), "6,7");
    EXPECT_EQ(Wert("lblBmax"), "20");
}

TEST_F(FrmSimulationTest, A_capacity_below_0_is_shown) {
    SetzeTeil(0, 37, 10);
    SetzeBaudcode(12);
    Oeffne();
    EXPECT_EQ(Wert("lblZykluszeitLaengsteWert"), "2");
    EXPECT_EQ(Wert("lblBmax"), "-1");
}

TEST_F(FrmSimulationTest, Typed_sizes_and_speeds_are_marked_in_the_diagram) {
    OeffneMit(10);
    TippeAlles();
    const std::vector<Marke> marken{{Kurvenart::Objekt, {40, 20}},
                                    {Kurvenart::Objekt, {12, 4}},
                                    {Kurvenart::Loch, {36, 20}},
                                    {Kurvenart::Loch, {15, 8}}};
    ErwarteDiagramm(DiagrammFuer(1.75, 10, marken));
}

TEST_F(FrmSimulationTest, What_has_no_result_is_not_marked) {
    OeffneMit(10);
    Tippe("txtFormel1L", "40");
    Tippe("txtFormel1L", "4");
    Tippe("txtFormel4", "2");
    ErwarteDiagramm(DiagrammFuer(1.75, 10, {}));
}

TEST_F(FrmSimulationTest, The_diagram_shows_the_curves_of_the_part_chosen) {
    SetzeTeil(0, 32, 10);
    SetzeTeil(1, 64, 15);
    Oeffne();
    ErwarteDiagramm(DiagrammFuer(3.5, 10, {}));
    Klicke(Dialog(), "optKx_1");
    ErwarteDiagramm(DiagrammFuer(6.7, 15, {}));
    Klicke(Dialog(), "optKx_3");
    ErwarteDiagramm(DiagrammFuer(0, 10, {}));
}

TEST_F(FrmSimulationTest, The_form_changes_nothing) {
    OeffneMit(10);
    const auto kopie = [] {
        const auto werte = modDaten::Bereich(Speicherbereich::SpezifischeGeraetedaten);
        return std::vector<std::int32_t>(werte.begin(), werte.end());
    };
    const auto vorher = kopie();
    TippeAlles();
    Klicke(Dialog(), "optKx_3");
    Klicke(Dialog(), "cmdCancel");
    EXPECT_EQ(kopie(), vorher);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmSimulationTest, Cancel_closes) {
    OeffneMit(10);
    Klicke(Dialog(), "cmdCancel");
    EXPECT_FALSE(Dialog().isVisible());
}

TEST_F(FrmSimulationTest, Escape_closes) {
    OeffneMit(10);
    QTest::keyClick(&Feld("txtFormel1L"), Qt::Key_Escape);
    EXPECT_FALSE(Dialog().isVisible());
}

TEST_F(FrmSimulationTest, Enter_after_a_number_does_not_close) {
    OeffneMit(10);
    QTest::keyClick(&Feld("txtFormel1L"), Qt::Key_Return);
    EXPECT_TRUE(Dialog().isVisible());
}

TEST_F(FrmSimulationTest, Typing_can_begin_at_once_with_the_length) {
    OeffneMit(10);
    EXPECT_EQ(Dialog().focusWidget(), &Feld("txtFormel1L"));
}

TEST_F(FrmSimulationTest, Results_do_not_change_the_size_the_form_needs) {
    OeffneMit(10);
    const QSize vorher = Dialog().minimumSizeHint();
    Tippe("txtFormel1L", "12345678");
    Tippe("txtFormel2v", "0,000001");
    Tippe("txtFormel4", "6,5");
    Tippe("txtlblGeschwindigkeit", "3,456789");
    QCoreApplication::processEvents();
    EXPECT_EQ(Dialog().minimumSizeHint(), vorher);
}

TEST_F(FrmSimulationTest, The_texts_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    OeffneMit(20);
    EXPECT_EQ(Dialog().windowTitle(), "Simulation");
    EXPECT_EQ(Knopf(Dialog(), "optKx_3").text(), "C4");
    EXPECT_EQ(Knopf(Dialog(), "cmdCancel").text(), "Cancel");
    EXPECT_EQ(Kind<QWidget>(Dialog(), "Bild").accessibleName(), "Speed over object size");
    Tippe("txtFormel4", "10");
    EXPECT_EQ(Wert("lblFormel4"), "D >= 16 required");
}

TEST_F(FrmSimulationTest, Every_text_field_is_announced_by_its_label) {
    OeffneMit(10);
    const std::pair<const char*, const char*> felder[] = {{"lblFormel1Eingabe", "txtFormel1L"},
                                                          {"lblFormel2Eingabe", "txtFormel2v"},
                                                          {"lblFormel4Eingabe", "txtFormel4"},
                                                          {"lblFormel3Eingabe", "txtlblGeschwindigkeit"}};
    for (const auto& [beschriftung, feld] : felder)
        EXPECT_EQ(Kind<QLabel>(Dialog(), beschriftung).buddy(), &Feld(feld));
}

} // namespace varnoth
