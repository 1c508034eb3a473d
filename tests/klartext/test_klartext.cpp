#include "klartext.h"

#include "registeradressen.h"
#include "texte.h"
#include "werteproben.h"
#include "zykluszeiten.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace varnoth {

namespace {

using testing::HasSubstr;
using namespace werteproben;

Lesart In(std::int16_t sprache, std::int32_t zyklus = 1500) {
    return {.sprache = sprache, .zyklus = zyklus};
}

std::string Worte(const Ort& ort, const Werte& werte, const Lesart& lesart = In(Deutsch)) {
    return Klartext(ort.bereich, ort.adresse, werte, lesart);
}

std::optional<Werte> Aus(const Ort& ort, std::string_view worte, const Lesart& lesart = In(Deutsch)) {
    return WerteAus(ort.bereich, ort.adresse, worte, lesart);
}

} // namespace

TEST(KlartextTest, Every_parameter_of_the_controller_has_a_name_in_both_languages) {
    for (const Ort& ort : AlleOrte())
        for (const std::int16_t sprache : {Deutsch, Englisch}) {
            const std::string name = Parametername(ort.bereich, ort.adresse, sprache);
            EXPECT_FALSE(name.empty()) << ort.adresse;
            EXPECT_EQ(name.find_last_of(": ") + 1 == name.size(), false) << name;
        }
}

TEST(KlartextTest, No_two_parameters_of_a_range_have_the_same_name) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        std::set<std::pair<Speicherbereich, std::string>> namen;
        for (const Ort& ort : AlleOrte())
            EXPECT_TRUE(namen.insert({ort.bereich, Parametername(ort.bereich, ort.adresse, sprache)}).second);
    }
}

TEST(KlartextTest, Names_are_the_captions_of_the_windows_without_their_colon) {
    EXPECT_EQ(Parametername(Global, global::PnpAusgang, Deutsch), "PNP-Ausgang");
    EXPECT_EQ(Parametername(Spezifisch, spezifisch::Reichweite, Englisch), "Sensing distance");
    EXPECT_EQ(Parametername(Kommunikation, kommunikation::Format, Deutsch), "Format zwischen Master/Slave");
    EXPECT_EQ(Parametername(Kommunikation, kommunikation::Pausenzeit, Englisch), "Pause time for answer");
}

TEST(KlartextTest, The_language_of_the_moment_is_taken_where_none_is_given) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Parametername(Global, global::Seriennummer), "Serial number");
    EXPECT_EQ(Klartext(Kommunikation, kommunikation::Bustyp, {7}), "7 (0x7)");
    EXPECT_EQ(Klartext(Global, global::Hardwareversion, {0}), "unknown");
}

TEST(KlartextTest, Where_no_parameter_starts_there_are_neither_name_nor_words) {
    for (const Ort& ort : {Ort{Global, 1}, Ort{Spezifisch, 53}, Ort{Kommunikation, -1}}) {
        EXPECT_EQ(Parametername(ort.bereich, ort.adresse, Deutsch), "");
        EXPECT_EQ(Worte(ort, {1}), "");
        EXPECT_EQ(Aus(ort, "1"), std::nullopt);
        EXPECT_TRUE(Wahlmoeglichkeiten(ort.bereich, ort.adresse).empty());
    }
}

TEST(KlartextTest, A_wrong_number_of_registers_has_no_words) {
    EXPECT_EQ(Worte({Global, global::PnpAusgang}, {}), "");
    EXPECT_EQ(Worte({Global, global::PnpAusgang}, {1, 2}), "");
    EXPECT_EQ(Worte({Spezifisch, spezifisch::Blankingmuster}, Werte(31)), "");
    EXPECT_EQ(Aus({Global, global::Herstelldatum}, "0x1 0x2"), std::nullopt);
}

TEST(KlartextTest, Words_are_those_of_the_editor) {
    const std::pair<Probe, std::pair<const char*, const char*>> faelle[] = {
        {{Global, global::Geraetetyp, {50}}, {"Varnoth", "Varnoth"}},
        {{Global, global::Hardwareversion, {0x0203}}, {"2.3", "2.3"}},
        {{Global, global::PnpAusgang, {0x8120}},
         {"aktiv bei einem Loch; K2; H-aktiv", "active if hole recognized; C2; H-active"}},
        {{Global, global::PnpAusgang, {0}}, {"nicht aktiv; K1; L-aktiv", "not active; C1; L-active"}},
        {{Spezifisch, spezifisch::Strahlenzahl, {128}}, {"128", "128"}},
        {{Spezifisch, spezifisch::Aufloesung, {20}}, {"20mm", "20mm"}},
        {{Spezifisch, spezifisch::Reichweite, {3}}, {"1,00 - 2,5m", "1,00 - 2,5m"}},
        {{Spezifisch, spezifisch::Filterdurchlaeufe, {3}}, {"4,5ms", "4.5ms"}},
        {{Spezifisch, spezifisch::Gruppenzaehler, {0x8005}}, {"5; ODER", "5; OR"}},
        {{Spezifisch, spezifisch::Lochgroesse, {255}}, {"255", "255"}},
        {{Kommunikation, kommunikation::Bustyp, {1}}, {"ProfibusDp", "ProfibusDp"}},
        {{Kommunikation, kommunikation::Format, {0x30F}},
         {"38,4 KB; Stopbits: 2; Parität: kein", "38,4 KB; Stop bits: 2; Parity: no"}},
        {{Kommunikation, kommunikation::Stationsadresse, {240}}, {"F0H", "F0H"}},
        {{Kommunikation, kommunikation::Pausenzeit, {125}}, {"125 * 0,8µs", "125 * 0.8µs"}},
        {{Kommunikation, kommunikation::Autosend, {0}}, {"kein Autosend", "no autosend"}},
        {{Kommunikation, kommunikation::Autosend, {0x0283}},
         {"Autosend mit Daten im Modbusformat; Wiederholzeit: 3ms; unterbrochene Strahldaten merken bis "
          "übertragen",
          "Autosend with data in Modbus format; Repetition time: 3ms; remember interrupted beam until send "
          "to "
          "host"}},
        {{Kommunikation, kommunikation::Autosend, {0x0104}},
         {"Gesteuerte Datenübertragung; Trigger startet Datenübertrag. nach vollständigem Scan",
          "Controled Datatransfer; Trigger starts data transfer after a complete scan"}},
        {{Kommunikation, kommunikation::Autosendformat, {783}},
         {"38,4 KB; 2 Stopbits, ohne Parität", "38,4 KB; 2 stop bits, no parity"}},
    };
    for (const auto& [probe, worte] : faelle) {
        EXPECT_EQ(Worte(probe.ort, probe.werte, In(Deutsch)), worte.first);
        EXPECT_EQ(Worte(probe.ort, probe.werte, In(Englisch)), worte.second);
    }
}

TEST(KlartextTest, A_value_outside_its_list_is_told_in_decimal_and_hexadecimal) {
    const std::pair<Probe, const char*> faelle[] = {
        {{Global, global::Geraetetyp, {51}}, "51 (0x33)"},
        {{Global, global::PnpAusgang, {0x3F}}, "63 (0x3F)"},
        {{Spezifisch, spezifisch::Strahlenzahl, {513}}, "513 (0x201)"},
        {{Spezifisch, spezifisch::Aufloesung, {99}}, "99 (0x63)"},
        {{Spezifisch, spezifisch::Reichweite, {-1}}, "-1 (0xFFFF)"},
        {{Spezifisch, spezifisch::Filterdurchlaeufe, {65}}, "65 (0x41)"},
        {{Spezifisch, spezifisch::Gruppenzaehler, {128}}, "128 (0x80)"},
        {{Kommunikation, kommunikation::Format, {0x40F}}, "1039 (0x40F)"},
        {{Kommunikation, kommunikation::Stationsadresse, {241}}, "241 (0xF1)"},
        {{Kommunikation, kommunikation::Pausenzeit, {-5}}, "-5 (0xFFFB)"},
        {{Kommunikation, kommunikation::Autosend, {2}}, "2 (0x2)"},
        {{Kommunikation, kommunikation::Autosend, {0x0100}}, "256 (0x100)"},
        {{Kommunikation, kommunikation::Autosendformat, {15}}, "15 (0xF)"},
    };
    for (const auto& [probe, worte] : faelle)
        EXPECT_EQ(Worte(probe.ort, probe.werte), worte);
}

TEST(KlartextTest, A_bus_type_of_1_ends_addresses_at_126_and_rates_at_127) {
    Lesart profibus = In(Deutsch);
    profibus.bustyp = bustyp::Profibus;
    EXPECT_EQ(Worte({Kommunikation, kommunikation::Stationsadresse}, {126}, profibus), "7EH");
    EXPECT_EQ(Worte({Kommunikation, kommunikation::Stationsadresse}, {127}, profibus), "127 (0x7F)");
    EXPECT_THAT(Worte({Kommunikation, kommunikation::Autosend}, {0x7F03}, profibus), HasSubstr("190,5ms"));
    EXPECT_EQ(Worte({Kommunikation, kommunikation::Autosend}, {0x8003}, profibus), "32771 (0x8003)");
}

TEST(KlartextTest, Without_a_cycle_time_durations_are_told_in_cycles) {
    EXPECT_EQ(Worte({Spezifisch, spezifisch::MinMaxHaltezeit}, {12}, In(Deutsch, 0)), "Zyklen: 12");
    EXPECT_EQ(Worte({Spezifisch, spezifisch::MinMaxHaltezeit}, {12}, In(Englisch, 0)), "Cycles: 12");
}

TEST(KlartextTest, A_number_can_be_written_as_the_system_writes_it) {
    Lesart lesart = In(Deutsch);
    lesart.zahlformat = [](double zahl) { return std::to_string(static_cast<int>(zahl * 10)) + "/10"; };
    EXPECT_EQ(Worte({Spezifisch, spezifisch::MinMaxHaltezeit}, {1}, lesart), "15/10ms");
    EXPECT_EQ(Aus({Spezifisch, spezifisch::MinMaxHaltezeit}, "15/10ms", lesart), Werte{1});
}

TEST(KlartextTest, An_image_is_read_with_the_cycle_times_of_its_beam_counts_and_its_bus_type) {
    Abbild abbild;
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 64, 1));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 128, 2));
    ASSERT_TRUE(abbild.SetzeRegister(Kommunikation, kommunikation::Bustyp, bustyp::Profibus));
    const Zykluszeiten zeiten = ZykluszeitenFuer({0, 64, 128, 0});
    EXPECT_EQ(LesartFuer(abbild, Spezifisch, 0).zyklus, 0);
    EXPECT_EQ(LesartFuer(abbild, Spezifisch, 1).zyklus, zeiten.zyklus.at(1));
    EXPECT_EQ(LesartFuer(abbild, Spezifisch, 2).zyklus, zeiten.zyklus.at(2));
    EXPECT_EQ(LesartFuer(abbild, Kommunikation).zyklus, zeiten.gesamt);
    EXPECT_EQ(LesartFuer(abbild, Kommunikation).bustyp, bustyp::Profibus);
}

TEST(KlartextTest, A_status_tells_what_is_set) {
    EXPECT_EQ(Worte({Global, global::Geraetestatus}, {0}), "PNP-Ausgang nicht aktiv");
    EXPECT_EQ(
        Worte({Global, global::Geraetestatus}, {0x2 | 0x4 | 0x20 | 0x8000}),
        "PNP-Ausgang aktiv; kein Optikteil angeschlossen; Strahlenanzahl geändert: K2; Konfiguration nicht "
        "lesbar: K4");
    EXPECT_EQ(Worte({Global, global::Geraetestatus}, {1}), "1 (0x1)");
    EXPECT_EQ(Worte({Spezifisch, spezifisch::Optikteilstatus}, {0x80 | 0x20}, In(Englisch)),
              "available; hole recognized");
    EXPECT_EQ(Worte({Spezifisch, spezifisch::Optikteilstatus}, {0}), "nicht vorhanden");
}

TEST(KlartextTest, Everything_the_editor_can_store_reads_back_from_its_words_in_either_language) {
    for (const Probe& probe : AllesAusDemEditor())
        for (const std::int16_t sprache : {Deutsch, Englisch})
            for (const std::int16_t leser : {Deutsch, Englisch}) {
                const std::string worte = Worte(probe.ort, probe.werte, In(sprache));
                ASSERT_EQ(Aus(probe.ort, worte, In(leser)), probe.werte) << worte;
            }
}

TEST(KlartextTest, What_the_editor_offers_is_told_without_a_number_of_the_register) {
    for (const Probe& probe : AllesWasDerEditorAnbietet())
        for (const std::int16_t sprache : {Deutsch, Englisch})
            ASSERT_EQ(Worte(probe.ort, probe.werte, In(sprache)).find("(0x"), std::string::npos)
                << probe.ort.adresse << ": " << probe.werte[0];
}

TEST(KlartextTest, Any_value_of_any_register_reads_back_from_its_words) {
    for (const Probe& probe : Beliebige(40))
        for (const std::int16_t sprache : {Deutsch, Englisch}) {
            const std::string worte = Worte(probe.ort, probe.werte, In(sprache));
            ASSERT_EQ(Aus(probe.ort, worte, In(sprache)), probe.werte) << worte;
        }
}

TEST(KlartextTest, No_words_of_a_list_say_two_things) {
    for (const Ort& ort : AlleOrte())
        for (const std::int16_t sprache : {Deutsch, Englisch})
            for (const Felder& felder : Wahlmoeglichkeiten(ort.bereich, ort.adresse, In(sprache, 1)))
                for (const Feld& feld : felder) {
                    std::set<std::string> gesehen;
                    for (const Wahl& wahl : feld.wahlen) {
                        EXPECT_TRUE(gesehen.insert(wahl.worte).second) << wahl.worte;
                        EXPECT_EQ(wahl.worte.find(';'), std::string::npos) << wahl.worte;
                        EXPECT_EQ(wahl.wert & ~feld.maske, 0) << wahl.worte;
                    }
                }
}

TEST(KlartextTest, The_choices_of_a_list_are_its_items) {
    const auto fuegungen = Wahlmoeglichkeiten(Spezifisch, spezifisch::Aufloesung, In(Deutsch));
    ASSERT_EQ(fuegungen.size(), 1U);
    ASSERT_EQ(fuegungen[0].size(), 1U);
    EXPECT_EQ(fuegungen[0][0].wahlen,
              (std::vector<Wahl>{{5, "5mm"}, {10, "10mm"}, {20, "20mm"}, {40, "40mm"}}));
}

TEST(KlartextTest, Of_the_autosend_register_each_mode_has_choices_of_its_own) {
    const auto fuegungen = Wahlmoeglichkeiten(Kommunikation, kommunikation::Autosend, In(Englisch));
    std::vector<std::size_t> zusaetze;
    for (const Felder& felder : fuegungen)
        zusaetze.push_back(felder.at(1).wahlen.size());
    EXPECT_EQ(zusaetze, (std::vector<std::size_t>{1, 255, 255, 2}));
}

TEST(KlartextTest, Blanks_case_and_the_decimal_separator_do_not_count) {
    EXPECT_EQ(Aus({Spezifisch, spezifisch::Filterdurchlaeufe}, " 4.5 MS "), Werte{3});
    EXPECT_EQ(Aus({Spezifisch, spezifisch::Gruppenzaehler}, "5;oder"), Werte{0x8005});
    EXPECT_EQ(Aus({Kommunikation, kommunikation::Stationsadresse}, "f0h"), Werte{240});
    EXPECT_EQ(Aus({Kommunikation, kommunikation::Pausenzeit}, "125"), Werte{125});
}

TEST(KlartextTest, A_number_with_its_hexadecimal_or_that_alone_is_the_register) {
    const Ort aufloesung{Spezifisch, spezifisch::Aufloesung};
    EXPECT_EQ(Aus(aufloesung, "99 (0x63)"), Werte{99});
    EXPECT_EQ(Aus(aufloesung, "0x63"), Werte{99});
    EXPECT_EQ(Aus(aufloesung, "99 (0x64)"), std::nullopt);
    EXPECT_EQ(Aus(aufloesung, "99"), std::nullopt);
    EXPECT_EQ(Aus(aufloesung, "0x10000"), std::nullopt);
    EXPECT_EQ(Aus(aufloesung, "0x14 0x15"), std::nullopt);
}

TEST(KlartextTest, Words_that_mean_nothing_give_nothing) {
    for (const Ort& ort : AlleOrte())
        for (const char* worte :
             {"", " ", ";", ",", "-", "5mm5", "aktiv", "0x", "0xG", "()", "\xFF\xFE", "K1; K1; K1",
              "99999999999999999999", "nichts davon; nichts davon; und so"}) {
            if (ort.adresse == global::Seriennummer && ort.bereich == Global)
                continue;
            EXPECT_EQ(Aus(ort, worte), std::nullopt) << ort.adresse << ": " << worte;
        }
    EXPECT_EQ(Aus({Spezifisch, spezifisch::Gruppenzaehler}, "ODER; 5"), std::nullopt);
    EXPECT_EQ(Aus({Spezifisch, spezifisch::Gruppenzaehler}, "5"), std::nullopt);
    EXPECT_EQ(Aus({Kommunikation, kommunikation::Autosend}, "kein Autosend; Wiederholzeit: 3ms"),
              std::nullopt);
}

TEST(KlartextTest, Whatever_random_words_are_read_as_is_told_in_words_that_mean_the_same) {
    int gelesen = 0;
    for (const auto& [ort, worte] : VerdrehteWorte(3000)) {
        const auto werte = Aus(ort, worte);
        if (!werte)
            continue;
        ++gelesen;
        ASSERT_EQ(Aus(ort, Worte(ort, *werte)), werte) << worte;
    }
    EXPECT_GT(gelesen, 100);
}

} // namespace varnoth
