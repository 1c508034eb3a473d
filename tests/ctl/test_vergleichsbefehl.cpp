#include "ctlprobe.h"
#include "konfigurationsdatei.h"
#include "standtext.h"

namespace varnoth::ctl {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class Vergleichsbefehl : public CtlTest {
protected:
    /// What the controller of these tests holds, with a hole size.
    static Abbild MitLochgroesse(int groesse) {
        Abbild abbild = Standardkonfiguration();
        EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
        EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Lochgroesse, groesse, 0));
        return abbild;
    }
    std::string Datei(const std::string& name, const Abbild& abbild) const {
        Schreibe(Pfad(name), AlsKonfigurationsdatei(abbild));
        return Pfad(name);
    }
    void Sichere(const Abbild& abbild, const std::string& seriennummer) {
        Sicherungsangaben angaben;
        angaben.seriennummer = seriennummer;
        EXPECT_EQ(sicherungen.Lege(abbild, angaben), "");
    }
};

} // namespace

TEST_F(Vergleichsbefehl, Tells_differences_with_both_values_and_counts_per_class) {
    const auto a = Datei("a.con", MitLochgroesse(1));
    const auto b = Datei("b.con", MitLochgroesse(9));
    EXPECT_EQ(Fuehre({"compare", a, b}), Ende::Unterschiede);
    EXPECT_THAT(konsole.daten, StartsWith("A: " + a + "\nB: " + b +
                                          "\n\nOptical part 1\n  Hole size/width (2000H + 26)\n"
                                          "    A: 1\n    B: 9\n"));
    EXPECT_THAT(konsole.daten, HasSubstr("\n1 difference."));
    EXPECT_THAT(konsole.daten, HasSubstr("Different: 1; "));
}

TEST_F(Vergleichsbefehl, Tells_the_counts_of_two_equal_sides_too) {
    const auto a = Datei("a.con", MitLochgroesse(1));
    EXPECT_EQ(Fuehre({"compare", a, "device"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten, HasSubstr("Different: 0; "));
}

TEST_F(Vergleichsbefehl, Reads_a_configuration_as_text_like_a_file) {
    Schreibe(Pfad("a.txt"), Standtext(MitLochgroesse(9)));
    EXPECT_EQ(Fuehre({"compare", Pfad("a.txt"), "device"}), Ende::Unterschiede);
    EXPECT_THAT(konsole.daten, HasSubstr("A: 9\n    B: 1\n"));
}

TEST_F(Vergleichsbefehl, The_default_is_that_of_a_controller_like_the_other_side) {
    const auto a = Datei("a.con", MitLochgroesse(9));
    EXPECT_EQ(Fuehre({"compare", "default", a}), Ende::Unterschiede);
    EXPECT_THAT(konsole.daten, HasSubstr("Different: 1; "));
}

TEST_F(Vergleichsbefehl, A_backup_beside_the_controller_is_the_newest_of_that_controller) {
    Sichere(MitLochgroesse(9), "4711");
    Sichere(MitLochgroesse(7), "0815");
    EXPECT_EQ(Fuehre({"compare", "backup", "device"}), Ende::Unterschiede);
    EXPECT_THAT(konsole.daten, HasSubstr("A: 9\n    B: 1\n"));
    EXPECT_EQ(Fuehre({"compare", "backup:0815", "device"}), Ende::Unterschiede);
    EXPECT_THAT(konsole.daten, HasSubstr("A: 7\n    B: 1\n"));
}

TEST_F(Vergleichsbefehl, A_backup_beside_a_file_is_the_newest_of_all) {
    Sichere(MitLochgroesse(9), "4711");
    Sichere(MitLochgroesse(7), "0815");
    EXPECT_EQ(Fuehre({"compare", Datei("a.con", MitLochgroesse(1)), "backup"}), Ende::Unterschiede);
    EXPECT_THAT(konsole.daten, HasSubstr("A: 1\n    B: 7\n"));
}

TEST_F(Vergleichsbefehl, A_backup_that_there_is_not_is_told) {
    EXPECT_EQ(Fuehre({"compare", "backup", "default"}), Ende::Datei);
    EXPECT_THAT(konsole.meldungen, HasSubstr("There is no backup yet."));
    EXPECT_EQ(Fuehre({"compare", "backup:1", "default"}), Ende::Datei);
    EXPECT_THAT(konsole.meldungen, HasSubstr("There is no backup of the controller 1."));
}

TEST_F(Vergleichsbefehl, A_side_given_twice_is_refused_however_it_is_written) {
    const auto a = Datei("a.con", MitLochgroesse(1));
    EXPECT_EQ(Fuehre({"compare", a, Pfad("./a.con")}), Ende::Bedienung);
    EXPECT_EQ(Fuehre({"compare", "device", "device"}), Ende::Bedienung);
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(Vergleichsbefehl, A_part_on_one_side_alone_is_a_difference_of_its_own_class) {
    Abbild zwei = MitLochgroesse(1);
    ASSERT_TRUE(zwei.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 16, 1));
    EXPECT_EQ(Fuehre({"compare", "device", Datei("b.con", zwei), "--json"}), Ende::Unterschiede);
    EXPECT_THAT(konsole.daten, HasSubstr(R"("class": "onlyInB", "a": null, "b": ")"));
    EXPECT_THAT(konsole.daten, HasSubstr(R"("missingParts": [3, 4])"));
    EXPECT_THAT(konsole.daten, HasSubstr(R"("onlyInA": 0, "onlyInB": )"));
}

TEST_F(Vergleichsbefehl, A_controller_that_falls_silent_gives_no_comparison) {
    int lesungen = 0;
    geraet.schweige = [&lesungen](const std::string& anforderung) {
        lesungen += anforderung.at(1) == 0x03 ? 1 : 0;
        return lesungen > 5;
    };
    EXPECT_EQ(Fuehre({"compare", "device", "default"}), Ende::KeineAntwort);
    EXPECT_EQ(konsole.daten, "");
}

} // namespace varnoth::ctl
