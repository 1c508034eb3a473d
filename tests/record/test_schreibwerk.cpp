#include "schreibwerk.h"

#include "ortszone.h"
#include "pruefablage.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

namespace varnoth {
namespace {

using namespace std::chrono_literals;
using pruefung::PruefAblage;

/// A form whose bytes tell what it was asked for: "<beams of part 1>", then "[seconds of each pass]" and "!"
/// for each event, at the end "E".
class Wortform : public Aufzeichnungsform {
public:
    explicit Wortform(std::size_t welcheLaenge) : laenge(welcheLaenge) {}

    std::string Beginne(const Messangaben& angaben, std::shared_ptr<const Abbild> konfiguration) override {
        return "B" + angaben.seriennummer + (konfiguration == nullptr ? "-" : "");
    }
    std::string Nimm(const Messpaket& paket, std::shared_ptr<const Abbild> konfiguration) override {
        std::string bytes;
        for (const Messereignis& ereignis : paket.ereignisse)
            bytes += "!" + ereignis.text;
        for (const Messdurchgang& durchgang : paket.durchgaenge)
            bytes += "[" + std::to_string(durchgang.uhr / 1s) + "]";
        if (konfiguration != nullptr && konfiguration->Bereich(Speicherbereich::GlobaleGeraetedaten)[0] != 0)
            bytes += "k";
        return bytes + std::string(laenge, '.');
    }
    std::string Beende() override { return "E"; }

private:
    std::size_t laenge;
};

class SchreibwerkTest : public testing::Test {
protected:
    Schreibwerk& Werk(Aufzeichnungswahl wahl = {}, std::size_t fuelle = 0) {
        Aufzeichnungsauftrag auftrag{.wahl = wahl, .ordner = "/o", .name = "n"};
        auftrag.angaben.seriennummer = "S";
        for (const char* endung : {".a", ".b"})
            auftrag.formen.push_back({endung, [fuelle] { return std::make_unique<Wortform>(fuelle); }});
        auftrag.formen.resize(formen);
        werk = std::make_unique<Schreibwerk>(ablage, std::move(auftrag));
        return *werk;
    }
    Augenblick Um(Zeit uhr) const { return {.uhr = 1000s + uhr, .zeit = mitternacht - 100s + uhr}; }
    int Beginne() { return werk->Beginne(Um(0s), std::make_shared<Abbild>()); }
    Aufnahmestueck Stueck(std::initializer_list<Zeit> uhren, int ereignisse = 0) const {
        Aufnahmestueck stueck;
        for (const Zeit uhr : uhren)
            stueck.inhalt.durchgaenge.push_back({.zeit = Um(uhr).zeit, .uhr = Um(uhr).uhr});
        for (int i = 0; i < ereignisse; ++i)
            stueck.inhalt.ereignisse.push_back({.art = Messereignisart::Notiz,
                                                .laufzeit = stueck.inhalt.durchgaenge.back().uhr,
                                                .text = "n"});
        return stueck;
    }
    /// A second of the recording with one pass at its end.
    void Schreibe(Zeit uhr, std::uint64_t verworfene = 0) {
        werk->Schreibe({Stueck({uhr})}, verworfene, Um(uhr));
    }

    const Ortszone zone{"UTC"};
    const Systemzeit mitternacht = std::chrono::sys_days(std::chrono::year(2026) / 3 / 1);
    PruefAblage ablage;
    std::size_t formen = 1;
    std::unique_ptr<Schreibwerk> werk;
};

TEST_F(SchreibwerkTest, A_recording_is_a_file_from_its_beginning_to_its_end) {
    Werk();
    ASSERT_EQ(Beginne(), 0);
    Schreibe(1s);
    Schreibe(2s);
    werk->Beende(Um(3s));
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1][2]E");
    EXPECT_TRUE(ablage.offene.empty());
}

TEST_F(SchreibwerkTest, Both_forms_are_written_at_once) {
    formen = 2;
    Werk();
    Beginne();
    Schreibe(1s);
    werk->Beende(Um(2s));
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1]E");
    EXPECT_EQ(ablage.Inhalt("/o/n.b"), "BS[1]E");
    EXPECT_EQ(werk->Stand().pfade, (std::vector<std::string>{"/o/n.a", "/o/n.b"}));
}

TEST_F(SchreibwerkTest, What_was_handed_over_is_with_the_system_when_the_call_is_over) {
    Werk();
    Beginne();
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS");
    Schreibe(1s);
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1]");
}

TEST_F(SchreibwerkTest, The_disk_holds_it_every_ten_seconds) {
    Werk();
    Beginne();
    for (int s = 1; s <= 9; ++s)
        Schreibe(std::chrono::seconds(s));
    EXPECT_EQ(ablage.sicherungen, 0);
    Schreibe(10s);
    EXPECT_EQ(ablage.sicherungen, 1);
    Schreibe(19s);
    EXPECT_EQ(ablage.sicherungen, 1);
    Schreibe(20s);
    EXPECT_EQ(ablage.sicherungen, 2);
}

TEST_F(SchreibwerkTest, A_file_that_is_there_is_never_touched) {
    ablage.LegeHin("/o/n.b", "old");
    formen = 2;
    Werk();
    ASSERT_EQ(Beginne(), 0);
    EXPECT_EQ(ablage.Inhalt("/o/n.b"), "old");
    EXPECT_EQ(ablage.Pfade(), (std::set<std::string>{"/o/n.b", "/o/n_002.a", "/o/n_002.b"}));
}

TEST_F(SchreibwerkTest, A_beginning_that_fails_leaves_nothing_behind) {
    Werk();
    ablage.Versage(EROFS);
    EXPECT_EQ(Beginne(), EROFS);
    EXPECT_TRUE(ablage.Pfade().empty());
}

TEST_F(SchreibwerkTest, A_file_that_can_be_made_but_holds_nothing_goes_again) {
    formen = 2;
    Werk();
    ablage.fehlerBeimAnhaengen = ENOSPC;
    EXPECT_EQ(Beginne(), ENOSPC);
    EXPECT_TRUE(ablage.Pfade().empty());
}

TEST_F(SchreibwerkTest, A_next_file_that_cannot_be_begun_is_tried_again_and_what_was_lost_is_told) {
    Werk({.mitternacht = true});
    Beginne();
    Schreibe(99s);
    ablage.Versage(ENOSPC);
    Schreibe(100s);
    EXPECT_EQ(werk->Stand().fehler, ENOSPC);
    ablage.Versage(0);
    Schreibe(106s);
    EXPECT_EQ(werk->Stand().fehler, 0);
    EXPECT_EQ(ablage.Inhalt("/o/n_002.a"), "BS!1[0]");
    EXPECT_EQ(werk->Stand().verworfen, 1U);
}

TEST_F(SchreibwerkTest, Only_the_passes_that_are_due_are_written) {
    Werk({.rhythmus = Rhythmus::AlleSekunden, .sekunden = 2});
    Beginne();
    for (int s = 1; s <= 5; ++s)
        Schreibe(std::chrono::seconds(s));
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1][3][5]");
    EXPECT_EQ(werk->Stand().durchgaenge, 3U);
}

TEST_F(SchreibwerkTest, The_first_pass_behind_an_event_is_written_whatever_it_holds) {
    Werk({.rhythmus = Rhythmus::BeiAenderung});
    Beginne();
    Schreibe(1s);
    Schreibe(2s);
    werk->Schreibe({Stueck({3s}, 1)}, 0, Um(3s));
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1]!n[3]");
}

TEST_F(SchreibwerkTest, A_new_file_begins_when_one_holds_as_much_as_was_chosen) {
    Werk({.megabyte = 1}, 400'000);
    Beginne();
    for (int s = 1; s <= 4; ++s)
        Schreibe(std::chrono::seconds(s));
    EXPECT_EQ(ablage.Pfade(), (std::set<std::string>{"/o/n.a", "/o/n_002.a"}));
    EXPECT_EQ(ablage.Inhalt("/o/n.a").back(), 'E');
    EXPECT_TRUE(ablage.Inhalt("/o/n_002.a").starts_with("BS[0]"));
    EXPECT_EQ(werk->Stand().dateien, 2);
    EXPECT_EQ(ablage.offene, (std::set<std::string>{"/o/n_002.a"}));
}

TEST_F(SchreibwerkTest, A_new_file_begins_at_midnight) {
    Werk({.mitternacht = true});
    Beginne();
    Schreibe(99s);
    EXPECT_EQ(werk->Stand().dateien, 1);
    Schreibe(100s);
    EXPECT_EQ(werk->Stand().dateien, 2);
    Schreibe(101s);
    EXPECT_EQ(werk->Stand().dateien, 2);
}

TEST_F(SchreibwerkTest, Without_that_choice_midnight_is_like_any_other_time) {
    Werk();
    Beginne();
    Schreibe(99s);
    Schreibe(100s);
    EXPECT_EQ(werk->Stand().dateien, 1);
}

TEST_F(SchreibwerkTest, The_times_in_a_file_count_from_its_beginning) {
    Werk({.mitternacht = true});
    Beginne();
    Schreibe(99s);
    Schreibe(110s);
    Schreibe(115s);
    EXPECT_EQ(ablage.Inhalt("/o/n_002.a"), "BS[0][5]");
}

TEST_F(SchreibwerkTest, It_ends_when_the_time_is_up_and_takes_nothing_more) {
    Werk({.endeMinuten = 1});
    Beginne();
    Schreibe(59s);
    EXPECT_FALSE(werk->Stand().fertig);
    Schreibe(60s);
    EXPECT_TRUE(werk->Stand().fertig);
    Schreibe(61s);
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[59][60]E");
}

TEST_F(SchreibwerkTest, Of_the_last_hours_only_those_are_kept_and_only_its_own_files_go) {
    ablage.LegeHin("/o/other.a", "other");
    ablage.LegeHin("/o/n_004.a", "there before");
    Werk({.behalteStunden = 1});
    Beginne();
    for (int minute = 1; minute <= 68; ++minute)
        Schreibe(std::chrono::minutes(minute));
    EXPECT_FALSE(ablage.Pfade().contains("/o/n.a"));
    EXPECT_TRUE(ablage.Pfade().contains("/o/n_002.a"));
    EXPECT_TRUE(ablage.Pfade().contains("/o/other.a"));
    EXPECT_EQ(ablage.Inhalt("/o/n_004.a"), "there before");
    for (int minute = 69; minute <= 140; ++minute)
        Schreibe(std::chrono::minutes(minute));
    EXPECT_LE(ablage.Pfade().size(), 2 + 14U);
    EXPECT_EQ(ablage.offene.size(), 1U);
}

TEST_F(SchreibwerkTest, Passes_lost_on_their_way_are_told_of_where_they_are_missing) {
    Werk();
    Beginne();
    Schreibe(1s);
    Schreibe(2s, 7);
    Schreibe(3s);
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1]!7[2][3]");
    EXPECT_EQ(werk->Stand().verworfen, 7U);
}

TEST_F(SchreibwerkTest, A_full_disk_ends_the_file_and_a_new_one_begins_when_there_is_room) {
    Werk();
    Beginne();
    Schreibe(1s);
    ablage.Versage(ENOSPC);
    Schreibe(2s);
    EXPECT_EQ(werk->Stand().fehler, ENOSPC);
    Schreibe(3s);
    ablage.Versage(0);
    Schreibe(4s);
    EXPECT_EQ(werk->Stand().fehler, ENOSPC); // it is tried every few seconds
    Schreibe(7s);
    EXPECT_EQ(werk->Stand().fehler, 0);
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1]");
    EXPECT_EQ(ablage.Inhalt("/o/n_002.a"), "BS!3[0]");
    EXPECT_EQ(werk->Stand().verworfen, 3U);
}

TEST_F(SchreibwerkTest, A_disk_that_is_nearly_full_is_not_filled_with_small_files) {
    Werk();
    Beginne();
    Schreibe(1s);
    ablage.Versage(ENOSPC);
    Schreibe(2s);
    ablage.Versage(0);
    ablage.platz = 7'000'000;
    for (int s = 3; s < 30; ++s)
        Schreibe(std::chrono::seconds(s));
    EXPECT_EQ(werk->Stand().dateien, 1);
    ablage.platz = 8'000'000;
    for (int s = 30; s < 40; ++s)
        Schreibe(std::chrono::seconds(s));
    EXPECT_EQ(werk->Stand().dateien, 2);
}

TEST_F(SchreibwerkTest, What_has_happened_while_nothing_could_be_written_is_told_by_the_next_file) {
    Werk();
    Beginne();
    Schreibe(1s);
    ablage.Versage(ENODEV);
    werk->Schreibe({Stueck({2s}, 1)}, 0, Um(2s));
    ablage.Versage(0);
    Schreibe(8s);
    EXPECT_EQ(ablage.Inhalt("/o/n_002.a"), "BS!n!1[0]");
}

TEST_F(SchreibwerkTest, A_disk_that_fails_at_the_sync_only_is_noticed_too) {
    Werk();
    Beginne();
    Schreibe(1s);
    werk->Schreibe({}, 0, Um(9s));
    ablage.Versage(EIO);
    werk->Schreibe({}, 0, Um(11s));
    EXPECT_EQ(werk->Stand().fehler, EIO);
}

TEST_F(SchreibwerkTest, A_file_that_holds_nothing_yet_goes_when_nothing_can_be_written) {
    Werk();
    Beginne();
    ablage.Versage(ENOSPC);
    Schreibe(1s);
    EXPECT_TRUE(ablage.Pfade().empty());
    EXPECT_TRUE(werk->Stand().pfade.empty());
}

TEST_F(SchreibwerkTest, A_change_of_the_configuration_reaches_the_packets_behind_it) {
    Werk();
    Beginne();
    auto andere = std::make_shared<Abbild>();
    andere->Bereich(Speicherbereich::GlobaleGeraetedaten)[0] = 1;
    Aufnahmestueck zweites = Stueck({2s});
    zweites.konfiguration = andere;
    werk->Schreibe({Stueck({1s}), zweites}, 0, Um(2s));
    Schreibe(3s);
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[1][2]k[3]k");
}

TEST_F(SchreibwerkTest, A_clock_that_jumps_back_leaves_no_time_that_does) {
    Werk();
    Beginne();
    werk->Schreibe({Stueck({5s, 3s, 6s})}, 0, Um(6s));
    EXPECT_EQ(ablage.Inhalt("/o/n.a"), "BS[5][5][6]");
}

} // namespace
} // namespace varnoth
