#include "ctlprobe.h"
#include "konfigurationsdatei.h"

#include <algorithm>

namespace varnoth::ctl {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class Schreibbefehl : public CtlTest {
protected:
    Schreibbefehl() {
        vorlage = Standardkonfiguration();
        EXPECT_TRUE(vorlage.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
        EXPECT_TRUE(vorlage.SetzeRegister(Spezifisch, spezifisch::Lochgroesse, 9, 0));
        SpeichereVorlage();
    }
    void SpeichereVorlage() const { Schreibe(Pfad("a.con"), AlsKonfigurationsdatei(vorlage)); }

    Ende SchreibeDatei(std::vector<std::string> weitere) {
        weitere.insert(weitere.begin(), {"write", Pfad("a.con")});
        return Fuehre(weitere);
    }
    /// Whether that is being done, and between 60 and 69 % of it are through.
    bool IstBei(const std::string& was) const {
        const std::string zuletzt = konsole.fortschritt.empty() ? std::string() : konsole.fortschritt.back();
        return zuletzt.starts_with(was + " 6") && zuletzt.size() == was.size() + std::string(" 60 %").size();
    }
    int Lochgroesse() { return geraet.Spezifisch(0, spezifisch::Lochgroesse); }
    bool Speicherte() const {
        return std::ranges::any_of(geraet.geschrieben, [](const auto& einer) {
            return einer.adresse == global::Kommando && einer.werte == std::vector{1};
        });
    }
    /// The controller keeps what a register of the first part held, and confirms the write all the same.
    void Vergiss(int adresse) {
        geraet.beimSchreiben = [this, adresse](int geschriebene) {
            if (geschriebene == 0x2000 + adresse)
                geraet.Spezifisch(0, adresse) = 1;
        };
    }

    Abbild vorlage;
};

} // namespace

TEST_F(Schreibbefehl, Writes_the_file_after_a_backup_and_says_what_it_changes) {
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Erledigt);
    EXPECT_EQ(Lochgroesse(), 9);
    EXPECT_FALSE(Speicherte());
    ASSERT_THAT(sicherungen.gelegte, SizeIs(1));
    EXPECT_EQ(sicherungen.gelegte[0].second.HoleRegister(Spezifisch, spezifisch::Lochgroesse, 0), 1);
    EXPECT_EQ(sicherungen.gelegte[0].first.angaben.anlass, Sicherungsanlass::VorDemSchreiben);
    EXPECT_THAT(konsole.meldungen,
                HasSubstr("The write will change 1 setting from what the controller held last (read "
                          "just now).\n  Optical part 1 / Hole size/width: 1 -> 9\n"));
    EXPECT_THAT(konsole.meldungen, HasSubstr("Backup: backup 1\n"));
    EXPECT_THAT(konsole.daten, HasSubstr(": 191 registers written, not stored permanently"));
}

TEST_F(Schreibbefehl, The_backup_comes_before_the_first_write_request) {
    std::size_t vorher = 99;
    sicherungen.beimLegen = [&] {
        vorher = static_cast<std::size_t>(std::ranges::count_if(geraet.geschrieben, [](const auto& einer) {
            return einer.adresse != 212 && einer.adresse != 213;
        }));
    };
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Erledigt);
    EXPECT_EQ(vorher, 0U);
}

TEST_F(Schreibbefehl, Names_its_own_backup_where_another_controller_is_backed_up_at_the_same_time) {
    struct : pruefung::PruefSicherungen {
        std::string Lege(const Abbild& abbild, const Sicherungsangaben& angaben) override {
            Sicherungsangaben nachbar = angaben;
            nachbar.seriennummer = "0815";
            EXPECT_EQ(PruefSicherungen::Lege(abbild, angaben), "");
            return PruefSicherungen::Lege(abbild, nachbar);
        }
    } zweier;
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Erledigt);
    EXPECT_THAT(konsole.meldungen, HasSubstr("Backup: backup 1\n"));
}

TEST_F(Schreibbefehl, Nothing_is_written_where_the_backup_fails) {
    sicherungen.fehler = "disk full";
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Datei);
    EXPECT_EQ(Lochgroesse(), 1);
    EXPECT_THAT(konsole.meldungen, HasSubstr("disk full"));
    EXPECT_EQ(SchreibeDatei({"--yes", "--no-backup"}), Ende::Erledigt);
    EXPECT_EQ(Lochgroesse(), 9);
}

TEST_F(Schreibbefehl, Without_a_backup_nothing_is_read_before) {
    EXPECT_EQ(SchreibeDatei({"--yes", "--no-backup"}), Ende::Erledigt);
    EXPECT_THAT(geraet.gelesen, IsEmpty());
    EXPECT_THAT(sicherungen.gelegte, IsEmpty());
    EXPECT_THAT(konsole.meldungen, HasSubstr("What the controller holds is not known."));
}

TEST_F(Schreibbefehl, Needs_a_yes_where_nobody_can_be_asked) {
    EXPECT_EQ(SchreibeDatei({}), Ende::Bedienung);
    EXPECT_THAT(konsole.meldungen, HasSubstr("--yes"));
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(Schreibbefehl, Asks_and_takes_a_no_for_an_answer) {
    konsole.antwort = false;
    EXPECT_EQ(SchreibeDatei({}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.fragen, ElementsAre("Write " + Pfad("a.con") + " to the controller 4711?"));
    EXPECT_EQ(Lochgroesse(), 1);
    EXPECT_THAT(sicherungen.gelegte, IsEmpty());
    konsole.antwort = true;
    EXPECT_EQ(SchreibeDatei({}), Ende::Erledigt);
    EXPECT_EQ(Lochgroesse(), 9);
}

TEST_F(Schreibbefehl, Has_the_controller_store_it_when_told_so) {
    EXPECT_EQ(SchreibeDatei({"--yes", "--store"}), Ende::Erledigt);
    EXPECT_TRUE(Speicherte());
    EXPECT_THAT(konsole.daten, HasSubstr("written and stored in the controller"));
}

TEST_F(Schreibbefehl, Tells_beforehand_when_the_controller_will_answer_differently) {
    ASSERT_TRUE(vorlage.SetzeRegister(Kommunikation, kommunikation::Stationsadresse, 7));
    SpeichereVorlage();
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Erledigt);
    EXPECT_THAT(konsole.meldungen, Not(HasSubstr("The station address becomes")));
    geraet.Register(0x4004) = 1;
    EXPECT_EQ(SchreibeDatei({"--yes", "--store", "--quiet"}), Ende::Erledigt);
    EXPECT_THAT(konsole.meldungen, HasSubstr("The station address becomes 7H instead of 1H."));
}

TEST_F(Schreibbefehl, Reads_back_when_told_so) {
    EXPECT_EQ(SchreibeDatei({"--yes", "--verify"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten, HasSubstr("191 of 191 registers read back equal."));
}

TEST_F(Schreibbefehl, A_register_that_is_not_as_it_was_written_is_told_by_name) {
    Vergiss(spezifisch::Lochgroesse);
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Erledigt);
    EXPECT_EQ(SchreibeDatei({"--yes", "--verify"}), Ende::Abgelehnt);
    EXPECT_THAT(konsole.daten, HasSubstr("190 of 191 registers read back equal."));
    EXPECT_THAT(konsole.daten, HasSubstr("\n  Optical part 1 / Hole size/width: 9 -> 1"));
}

TEST_F(Schreibbefehl, An_interrupted_write_says_what_is_written_and_leads_back) {
    konsole.beiFortschritt = [this] { konsole.unterbrochen = IstBei("Writing"); };
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.daten, HasSubstr("The write was not completed. Registers: "));
    EXPECT_THAT(konsole.daten, HasSubstr("  Optical part 1 / Hole size/width: 9 (written)\n"));
    EXPECT_THAT(konsole.daten, HasSubstr("  Communication / Station address: 1H (not written)\n"));
    EXPECT_THAT(konsole.meldungen, HasSubstr("varnothctl write: Interrupted.\n"));
    EXPECT_THAT(konsole.meldungen, HasSubstr("The way back: varnothctl write backup 1\n"));
}

TEST_F(Schreibbefehl, A_controller_that_falls_silent_in_the_middle_is_told_with_what_is_written) {
    geraet.schweige = [this](const std::string&) { return geraet.geschrieben.size() > 30; };
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::KeineAntwort);
    EXPECT_THAT(konsole.daten, HasSubstr("The write was not completed."));
    EXPECT_THAT(konsole.meldungen, HasSubstr("No connection over"));
}

TEST_F(Schreibbefehl, A_check_that_breaks_off_says_what_was_not_compared) {
    konsole.beiFortschritt = [this] { konsole.unterbrochen = IstBei("Checking"); };
    EXPECT_EQ(SchreibeDatei({"--yes", "--verify"}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.daten, HasSubstr("were not compared."));
}

TEST_F(Schreibbefehl, A_file_that_no_controller_takes_is_refused_before_anything_is_sent) {
    ASSERT_TRUE(vorlage.SetzeRegister(Spezifisch, spezifisch::Lochgroesse, 0, 0));
    SpeichereVorlage();
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Datei);
    EXPECT_THAT(konsole.meldungen, HasSubstr("Hole size/width: 0"));
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(Schreibbefehl, The_newest_backup_of_this_controller_leads_back) {
    EXPECT_EQ(SchreibeDatei({"--yes"}), Ende::Erledigt);
    EXPECT_EQ(Fuehre({"write", "backup", "--yes"}), Ende::Erledigt);
    EXPECT_EQ(Lochgroesse(), 1);
    EXPECT_THAT(sicherungen.gelegte, SizeIs(2));
}

TEST_F(Schreibbefehl, The_default_is_written_as_that_of_this_controller) {
    geraet.Spezifisch(0, spezifisch::Lochgroesse) = 5;
    EXPECT_EQ(Fuehre({"write", "default", "--yes", "--no-backup"}), Ende::Erledigt);
    EXPECT_EQ(Lochgroesse(), 1);
}

TEST_F(Schreibbefehl, The_controller_itself_is_no_source) {
    EXPECT_EQ(Fuehre({"write", "device", "--yes"}), Ende::Bedienung);
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(Schreibbefehl, In_JSON_it_tells_changes_counts_and_check) {
    EXPECT_EQ(SchreibeDatei({"--yes", "--store", "--verify", "--json"}), Ende::Erledigt);
    for (const char* const feld :
         {R"("complete": true, "stored": true, "backup": "backup 1", "changes": [{)",
          R"("before": "1", "after": "9"}])",
          R"("registers": {"all": 191, "written": 191, "uncertain": 0}, "unfinished": [])",
          R"("check": {"registers": 191, "equal": 191, "rows": []}})"})
        EXPECT_THAT(konsole.daten, HasSubstr(feld));
}

TEST_F(Schreibbefehl, In_JSON_what_is_broken_off_is_neither_complete_nor_stored) {
    konsole.beiFortschritt = [this] { konsole.unterbrochen = IstBei("Writing"); };
    EXPECT_EQ(SchreibeDatei({"--yes", "--store", "--json"}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.daten, HasSubstr(R"("complete": false, "stored": false, "backup": "backup 1")"));
    EXPECT_THAT(konsole.daten, HasSubstr(R"("state": "written", "value": )"));
    EXPECT_THAT(konsole.daten, HasSubstr(R"("state": "not written", "value": )"));
}

TEST_F(Schreibbefehl, In_JSON_what_a_check_finds_is_told_by_row) {
    Vergiss(spezifisch::Lochgroesse);
    EXPECT_EQ(SchreibeDatei({"--yes", "--verify", "--json"}), Ende::Abgelehnt);
    EXPECT_THAT(konsole.daten, HasSubstr(R"("equal": 190, "rows": [{)"));
    EXPECT_THAT(konsole.daten, HasSubstr(R"("written": "9", "readBack": "1"}])"));
}

} // namespace varnoth::ctl
