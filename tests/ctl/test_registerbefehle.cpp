#include "ctlprobe.h"

namespace varnoth::ctl {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Schreibvorgang = pruefung::PruefGeraet::Schreibvorgang;

class Registerbefehle : public CtlTest {
protected:
    /// Writes but the selection of an optical part.
    std::vector<Schreibvorgang> Geschriebenes() const {
        std::vector<Schreibvorgang> alle = geraet.geschrieben;
        std::erase_if(alle,
                      [](const Schreibvorgang& einer) { return einer.adresse == global::Optikteilauswahl; });
        for (Schreibvorgang& einer : alle)
            einer.teil *=
                einer.adresse / 0x2000 == 1 ? 1 : 0; // elsewhere it does not matter which part is selected
        return alle;
    }
};

} // namespace

TEST_F(Registerbefehle, Get_tells_name_and_words_of_each_register) {
    EXPECT_EQ(Fuehre({"get", "1/Resolution", "Station address", "1/Blanking pattern", "250"}),
              Ende::Erledigt);
    EXPECT_EQ(konsole.daten, "Optical part 1 / Resolution: 5mm\nCommunication / Station address: 1H\n"
                             "Optical part 1 / Blanking pattern: none\nGlobal / 250: 0 (0x0)\n");
    EXPECT_THAT(Geschriebenes(), IsEmpty());
}

TEST_F(Registerbefehle, Get_tells_durations_in_the_cycles_of_the_controller) {
    geraet.Spezifisch(0, spezifisch::MinMaxHaltezeit) = 2;
    EXPECT_EQ(Fuehre({"get", "1/Min/Max hold time"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten, HasSubstr("ms\n"));
}

TEST_F(Registerbefehle, Get_reads_the_part_that_is_meant) {
    geraet.Spezifisch(2, spezifisch::Aufloesung) = 40;
    EXPECT_EQ(Fuehre({"get", "1/Resolution", "3/Resolution"}), Ende::Erledigt);
    EXPECT_EQ(konsole.daten, "Optical part 1 / Resolution: 5mm\nOptical part 3 / Resolution: 40mm\n");
}

TEST_F(Registerbefehle, Get_in_JSON_tells_place_words_and_numbers) {
    EXPECT_EQ(Fuehre({"get", "2/13", "--json"}), Ende::Erledigt);
    EXPECT_EQ(
        konsole.daten,
        R"({"command": "get", "registers": [{"group": "Optical part 2", "name": "Resolution", "range": "specific", )"
        R"("part": 2, "register": 13, "deviceAddress": 8205, "words": "5mm", "values": [5]}]})"
        "\n");
}

TEST_F(Registerbefehle, A_register_that_there_is_not_is_told_before_anything_is_sent) {
    EXPECT_EQ(Fuehre({"get", "1/Resolution", "1/Resolutoin"}), Ende::Bedienung);
    EXPECT_THAT(konsole.meldungen, HasSubstr("Perhaps \"Optical part 1 / Resolution\" was meant."));
    EXPECT_EQ(Fuehre({"set", "Nonsense", "1", "--yes"}), Ende::Bedienung);
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(Registerbefehle, A_controller_that_refuses_a_register_is_told_apart_from_a_silent_one) {
    geraet.schweige = [](const std::string& anforderung) {
        return anforderung.at(1) == 0x03 && pruefung::Wort(anforderung, 2) == 250;
    };
    EXPECT_EQ(Fuehre({"get", "250", "--timeout", "2"}), Ende::Abgelehnt);
    geraet.schweige = [](const std::string& anforderung) { return anforderung.at(1) != 0x11; };
    EXPECT_EQ(Fuehre({"get", "250", "--timeout", "2"}), Ende::Abgelehnt);
    int identifikationen = 0;
    geraet.schweige = [&](const std::string& anforderung) {
        return anforderung.at(1) != 0x11 || ++identifikationen > 1;
    };
    EXPECT_EQ(Fuehre({"get", "250", "--timeout", "2"}), Ende::KeineAntwort);
}

TEST_F(Registerbefehle, Set_writes_a_value_in_words_of_either_language_and_reads_it_back) {
    EXPECT_EQ(Fuehre({"set", "2/Resolution", "20 mm", "--yes"}), Ende::Erledigt);
    EXPECT_THAT(Geschriebenes(), ElementsAre(Schreibvorgang{1, 0x2000 + spezifisch::Aufloesung, {20}}));
    EXPECT_EQ(konsole.daten, "Optical part 2 / Resolution: 20mm (written and read back)\n");
    EXPECT_EQ(Fuehre({"set", "1/Blankingmuster", "keine", "--yes"}), Ende::Erledigt);
}

TEST_F(Registerbefehle, Set_understands_numbers_too) {
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "40", "--yes"}), Ende::Erledigt);
    EXPECT_EQ(geraet.Spezifisch(0, spezifisch::Aufloesung), 40);
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "0x0A", "--yes"}), Ende::Erledigt);
    EXPECT_EQ(geraet.Spezifisch(0, spezifisch::Aufloesung), 10);
}

TEST_F(Registerbefehle, Set_writes_several_registers_of_a_parameter_at_once) {
    EXPECT_EQ(Fuehre({"set", "1/Blanking pattern", "3-5, 9", "--yes"}), Ende::Erledigt);
    EXPECT_EQ(geraet.Spezifisch(0, spezifisch::Blankingmuster), 0x1C01);
}

TEST_F(Registerbefehle, Set_writes_a_single_register_within_a_parameter_and_leaves_the_others) {
    geraet.Register(0x4000 + kommunikation::Datenblock) = 20;
    EXPECT_EQ(Fuehre({"set", "0x404C", "258", "--yes"}), Ende::Erledigt);
    EXPECT_THAT(Geschriebenes(), ElementsAre(Schreibvorgang{0, 0x404C, {258}}));
    EXPECT_EQ(konsole.daten, "Communication / 4000H + 76: 258 (0x102) (written and read back)\n");
}

TEST_F(Registerbefehle, Set_stores_when_told_so) {
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "40mm", "--yes", "--store"}), Ende::Erledigt);
    EXPECT_THAT(Geschriebenes(), Contains(Schreibvorgang{0, global::Kommando, {1}}));
    EXPECT_THAT(konsole.daten, HasSubstr("(written, stored and read back)"));
}

TEST_F(Registerbefehle, Set_asks_with_both_values) {
    konsole.antwort = false;
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "40mm"}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.fragen, ElementsAre("Set Optical part 1 / Resolution from 5mm to 40mm?"));
    EXPECT_THAT(Geschriebenes(), IsEmpty());
    konsole.antwort.reset();
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "40mm"}), Ende::Bedienung);
    EXPECT_THAT(Geschriebenes(), IsEmpty());
}

TEST_F(Registerbefehle, A_value_that_means_nothing_is_told_with_what_can_be_chosen) {
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "wide", "--yes"}), Ende::Bedienung);
    EXPECT_THAT(konsole.meldungen, HasSubstr("\"wide\" is no value for Optical part 1 / Resolution.\n"
                                             "To choose from: 5mm, 10mm, 20mm, 40mm\n"));
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "70000", "--yes"}), Ende::Bedienung);
    EXPECT_THAT(Geschriebenes(), IsEmpty());
}

TEST_F(Registerbefehle, A_value_that_no_controller_takes_is_refused) {
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "17", "--yes"}), Ende::Bedienung);
    EXPECT_THAT(konsole.meldungen,
                HasSubstr("No controller takes the value \"17\" as Optical part 1 / Resolution."));
    EXPECT_EQ(Fuehre({"set", "1/26", "0", "--yes"}), Ende::Bedienung);
    EXPECT_THAT(Geschriebenes(), IsEmpty());
}

TEST_F(Registerbefehle, What_can_only_be_read_is_not_set) {
    for (const char* const name :
         {"Serial number", "1/Count of beams/segments", "189", "250", "1/335", "10"}) {
        EXPECT_EQ(Fuehre({"set", name, "1", "--yes"}), Ende::Bedienung) << name;
        EXPECT_THAT(konsole.meldungen, HasSubstr("can only be read")) << name;
    }
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(Registerbefehle, A_register_that_holds_something_else_afterwards_is_told) {
    geraet.beimSchreiben = [this](int adresse) {
        if (adresse == 0x2000 + spezifisch::Aufloesung)
            geraet.Spezifisch(0, spezifisch::Aufloesung) = 5;
    };
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "40mm", "--yes"}), Ende::Abgelehnt);
    EXPECT_THAT(konsole.meldungen, HasSubstr("Optical part 1 / Resolution should be 40mm and is 5mm."));
    EXPECT_EQ(konsole.daten, "Optical part 1 / Resolution: 5mm\n");
}

TEST_F(Registerbefehle, A_new_station_address_that_is_stored_is_warned_of) {
    EXPECT_EQ(Fuehre({"set", "Station address", "7", "--yes"}), Ende::Erledigt);
    EXPECT_THAT(konsole.meldungen, Not(HasSubstr("station address becomes")));
    EXPECT_EQ(Fuehre({"set", "Station address", "8", "--yes", "--store"}), Ende::Erledigt);
    EXPECT_THAT(konsole.meldungen, HasSubstr("The station address becomes 8H instead of 1H."));
}

TEST_F(Registerbefehle, Set_in_JSON_tells_before_written_and_read_back) {
    EXPECT_EQ(Fuehre({"set", "1/Resolution", "40mm", "--yes", "--json"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten,
                HasSubstr(R"("before": {"words": "5mm", "values": [5]}, "written": {"words": "40mm", )"
                          R"("values": [40]}, "readBack": {"words": "40mm", "values": [40]}, )"
                          R"("equal": true, "stored": false})"));
}

} // namespace varnoth::ctl
