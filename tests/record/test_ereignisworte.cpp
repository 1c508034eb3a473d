#include "ereignisworte.h"

#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

namespace {

/// The words in German and English.
std::pair<std::string, std::string> Worte(const Ereignis& ereignis) {
    SetzeSprachoffset(Englisch);
    const std::string englisch = Ereignissatz(ereignis);
    SetzeSprachoffset(Deutsch);
    return {Ereignissatz(ereignis), englisch};
}

using Paar = std::pair<std::string, std::string>;

} // namespace

TEST(Ereignisworte, Tell_what_has_happened_to_the_connection) {
    EXPECT_EQ(Worte({.art = Ereignisart::Verloren}),
              Paar("Das Steuergerät antwortet nicht mehr", "The controller no longer answers"));
    EXPECT_EQ(Worte({.art = Ereignisart::Zurueck, .dauer = 12'340ms}),
              Paar("Das Steuergerät antwortet wieder [12,3 s]", "The controller answers again [12.3 s]"));
    EXPECT_EQ(Worte({.art = Ereignisart::Zustand, .alt = 1, .neu = 1, .text = "COM1"}),
              Paar("Simuliert: Live (COM1)", "Simulated: Live (COM1)"));
    EXPECT_EQ(Worte({.art = Ereignisart::Zustand, .neu = 6}), Paar("Offline", "Offline"));
}

TEST(Ereignisworte, Tell_of_a_state_that_went_to_and_fro_only_the_last) {
    EXPECT_EQ(Worte({.art = Ereignisart::Zustand, .anzahl = 5, .neu = 1, .dauer = 8s, .text = "COM1"}),
              Paar("zuletzt: Live (COM1) [5 (30,0/min), 8,0 s]", "last: Live (COM1) [5 (30.0/min), 8.0 s]"));
}

TEST(Ereignisworte, Tell_of_parts_their_status_and_the_output) {
    EXPECT_EQ(Worte({.art = Ereignisart::TeilGewechselt, .teil = 1, .neu = 0}),
              Paar("K2 fehlt", "C2 is gone"));
    EXPECT_EQ(Worte({.art = Ereignisart::TeilGewechselt, .teil = 3, .neu = 1}),
              Paar("K4 ist da", "C4 is there"));
    EXPECT_EQ(Worte({.art = Ereignisart::TeilStatus, .teil = 0, .neu = 0x24}),
              Paar("K1: Bahn in Mitte, Loch erkannt", "C1: run in middle, hole recognized"));
    EXPECT_EQ(Worte({.art = Ereignisart::TeilStatus, .teil = 0}),
              Paar("K1: kein Merkmal gesetzt", "C1: no feature set"));
    EXPECT_EQ(Worte({.art = Ereignisart::GeraeteStatus, .neu = (1 << 2) | (1 << 5) | (1 << 12)}),
              Paar("Gerätestatus: kein Optikteil angeschlossen, Konfiguration nicht lesbar: K1, "
                   "Strahlenanzahl geändert: K2",
                   "Device status: no optical part connected, configuration not readable: C1, "
                   "beam count changed: C2"));
    EXPECT_EQ(Worte({.art = Ereignisart::AusgangGeschaltet, .neu = 1}),
              Paar("PNP-Ausgang aktiv", "PNP output active"));
}

TEST(Ereignisworte, Tell_of_a_burst_how_often_how_fast_and_what_held_last) {
    EXPECT_EQ(Worte({.art = Ereignisart::AusgangGeschaltet, .anzahl = 16, .neu = 0, .dauer = 10s}),
              Paar("zuletzt: PNP-Ausgang nicht aktiv [16 (1,5/s), 10,0 s]",
                   "last: PNP output not active [16 (1.5/s), 10.0 s]"));
    EXPECT_EQ(Haeufigkeitstext({.art = Ereignisart::Fehlgeschlagen, .anzahl = 3, .dauer = 60s}),
              "3 (2,0/min)");
    EXPECT_EQ(Haeufigkeitstext({.art = Ereignisart::Fehlgeschlagen, .anzahl = 3}), "3");
    EXPECT_EQ(Haeufigkeitstext({.art = Ereignisart::Fehlgeschlagen, .anzahl = 1}), "");
    EXPECT_EQ(Haeufigkeitstext({.art = Ereignisart::KonfigurationGeschrieben, .anzahl = 30}), "");
}

TEST(Ereignisworte, Tell_of_writes_backups_and_recordings) {
    EXPECT_EQ(Worte({.art = Ereignisart::KonfigurationGeschrieben, .anzahl = 30}),
              Paar("Konfiguration geschrieben, Register: 30", "Configuration written, registers: 30"));
    EXPECT_EQ(Worte({.art = Ereignisart::KonfigurationGeschrieben, .gelungen = false, .anzahl = 3}).second,
              "Writing of the configuration cancelled, registers written: 3");
    EXPECT_EQ(Worte({.art = Ereignisart::RegisterGeschrieben, .anzahl = 2, .alt = 0x200E}),
              Paar("Register ab 200EH geschrieben, Anzahl: 2", "Registers from 200EH on written, number: 2"));
    EXPECT_EQ(Worte({.art = Ereignisart::RegisterGeschrieben, .gelungen = false, .alt = 5}).second,
              "Registers from 5H on not written, number: 1");
    EXPECT_EQ(Worte({.art = Ereignisart::Neustart}).second, "Restart of the controller requested");
    EXPECT_EQ(Worte({.art = Ereignisart::Neustart, .gelungen = false}).second,
              "Restart of the controller requested, not confirmed");
    EXPECT_EQ(Worte({.art = Ereignisart::Werksdaten}).second, "Factory data written");
    EXPECT_EQ(Worte({.art = Ereignisart::Werksdaten, .gelungen = false}).second,
              "Factory data not written completely");
    EXPECT_EQ(Worte({.art = Ereignisart::Gesichert}).first, "Sicherung angelegt");
    EXPECT_EQ(Worte({.art = Ereignisart::Gesichert, .gelungen = false, .text = "kein Platz"}).first,
              "Sicherung misslungen: kein Platz");
    EXPECT_EQ(Worte({.art = Ereignisart::AufzeichnungBegonnen, .text = "/tmp/a.vrec"}).first,
              "Aufzeichnung begonnen: /tmp/a.vrec");
    EXPECT_EQ(Worte({.art = Ereignisart::AufzeichnungBeendet,
                     .anzahl = 178000,
                     .dauer = 8h + 5min,
                     .text = "/tmp/a.vrec"}),
              Paar("Aufzeichnung beendet: /tmp/a.vrec, Durchgänge: 178000 [8 h 05 min]",
                   "Recording ended: /tmp/a.vrec, passes: 178000 [8 h 05 min]"));
    EXPECT_EQ(Worte({.art = Ereignisart::Verworfen, .anzahl = 17}).second,
              "Passes that could not be recorded: 17");
}

TEST(Ereignisworte, Tell_failures_by_how_the_exchanges_ended) {
    const char* const enden[] = {"no port", "no answer", "not understood", "echo"};
    for (int ende = 1; ende <= 4; ++ende)
        EXPECT_EQ(Worte({.art = Ereignisart::Fehlgeschlagen, .neu = ende}).second,
                  std::string("Exchanges failed: ") + enden[ende - 1]);
}

TEST(Ereignisworte, Tell_a_command_by_its_text_in_the_language_of_the_moment_else_by_its_code) {
    EXPECT_EQ(Worte({.art = Ereignisart::Befehl, .neu = 6601}), Paar("Ereignisse", "Events"));
    EXPECT_EQ(Worte({.art = Ereignisart::Befehl, .text = "&Neu"}), Paar("Neu", "Neu"));
    EXPECT_EQ(Worte({.art = Ereignisart::Befehl, .alt = 101}), Paar("(101)", "(101)"));
}

TEST(Ereignisworte, Keep_what_somebody_wrote_as_it_stands) {
    EXPECT_EQ(Worte({.art = Ereignisart::Notiz, .text = "%1 <b>"}).first, "%1 <b>");
    EXPECT_EQ(Worte({.art = Ereignisart::Meldung, .text = "=1+1"}).first, "=1+1");
}

TEST(Ereignisworte, Every_kind_has_words_and_a_group_with_a_name_in_both_languages) {
    for (int art = 0; art <= static_cast<int>(Ereignisart::Notiz); ++art) {
        const Ereignis ereignis{.art = static_cast<Ereignisart>(art), .teil = 0, .text = "x"};
        const Paar worte = Worte(ereignis);
        EXPECT_NE(worte.first, "") << art;
        EXPECT_NE(worte.second, "") << art;
        EXPECT_NE(Gruppentext(GruppeVon(ereignis.art)), "") << art;
    }
}

TEST(Ereignisworte, Durations_are_told_in_units_that_can_be_read) {
    EXPECT_EQ(Dauertext(0s), "");
    EXPECT_EQ(Dauertext(59'900ms), "59,9 s");
    EXPECT_EQ(Dauertext(61s), "1 min 01 s");
    EXPECT_EQ(Dauertext(3h + 2min), "3 h 02 min");
}

TEST(Ereignisworte, A_line_of_csv_has_plain_numbers_and_no_formula) {
    const Ereignis ereignis{.art = Ereignisart::Notiz, .anzahl = 1, .dauer = 1500ms, .text = "=1+1;"};
    EXPECT_THAT(EreignisAlsCsv(ereignis), testing::EndsWith(";Notiz;\"'=1+1;\";\"1,5\";1\r\n"));
    EXPECT_EQ(Ereigniskopf(), "\xEF\xBB\xBFZeit;Art;Was;Dauer (s);Anzahl\r\n");
    SetzeSprachoffset(Englisch);
    EXPECT_THAT(EreignisAlsCsv(ereignis), testing::EndsWith(",Note,\"'=1+1;\",1.5,1\r\n"));
}

TEST(Ereignisworte, A_line_of_text_tells_time_kind_and_all) {
    EXPECT_THAT(EreignisAlsText({.art = Ereignisart::Zurueck, .dauer = 2s}),
                testing::EndsWith("  Verbindung: Das Steuergerät antwortet wieder [2,0 s]\n"));
}

} // namespace varnoth
