#include "schreibvorgang.h"

#include "ablauftest.h"
#include "geraetestand.h"
#include "registerabbild.h"
#include "seriennummer.h"
#include "texte.h"
#include "transfermitschrift.h"

#include <algorithm>
#include <ostream>
#include <span>

namespace varnoth {

namespace {

using pruefung::Mitschrift;
using pruefung::PruefGeraet;
using pruefung::Schritt;

using Schreibvorgaenge = std::vector<PruefGeraet::Schreibvorgang>;

/// A parameter by device address and count.
struct Schreibziel {
    int adresse;
    int anzahl;
};

constexpr Schreibziel Globale[] = {{193, 1}};
constexpr Schreibziel Spezifische[] = {{0x2000 + 13, 1}, {0x2000 + 14, 1}, {0x2000 + 19, 1},
                                       {0x2000 + 24, 1}, {0x2000 + 25, 1}, {0x2000 + 26, 1},
                                       {0x2000 + 27, 1}, {0x2000 + 52, 32}};
constexpr Schreibziel Kommunikation[] = {
    {0x4000 + 4, 1}, {0x4000 + 8, 1}, {0x4000 + 74, 1}, {0x4000 + 75, 30}, {0x4000 + 126, 1}};

/// A value that differs from one register to the next.
constexpr int Pruefwert(int teil, int adresse) {
    return 1000 * (teil + 1) + adresse % 0x1000;
}

void FuelleAbbild() {
    for (const Speicherbereich bereich : AlleSpeicherbereiche) {
        Werte werte(modDaten::Bereich(bereich).size());
        for (std::int16_t adresse = 0; adresse < AnzahlAdressen(bereich); ++adresse)
            for (int teil = 0; teil < Exemplare(bereich); ++teil)
                werte[Stelle(bereich, adresse, teil)] = Pruefwert(teil, adresse);
        modDaten::ErsetzeBereich(bereich, werte);
    }
}

void HaengeAn(Schreibvorgaenge& folge, int auswahl, int teil, std::span<const Schreibziel> parameter) {
    for (const auto& [adresse, anzahl] : parameter) {
        PruefGeraet::Schreibvorgang vorgang{auswahl, adresse, {}};
        for (int i = 0; i < anzahl; ++i)
            vorgang.werte.push_back(Pruefwert(teil, adresse + i));
        folge.push_back(vorgang);
    }
}

/// The whole sequence of writes as a controller sees it: the part that is selected, the address, the values.
Schreibvorgaenge GanzeFolge() {
    Schreibvorgaenge folge;
    HaengeAn(folge, 0, 0, Globale);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        folge.push_back({std::max(teil - 1, 0), 212, {teil}});
        HaengeAn(folge, teil, teil, Spezifische);
    }
    folge.push_back({3, 213, {0}});
    HaengeAn(folge, 3, 0, Kommunikation);
    return folge;
}

Schreibvorgaenge Anfang(std::size_t anzahl) {
    Schreibvorgaenge folge = GanzeFolge();
    folge.resize(anzahl);
    return folge;
}

} // namespace

class SchreibvorgangTest : public pruefung::AblaufTest {
protected:
    SchreibvorgangTest() { FuelleAbbild(); }

    bool Geschrieben(int adresse) const {
        return std::ranges::count(geraet.geschrieben, adresse, &PruefGeraet::Schreibvorgang::adresse) > 0;
    }

    Mitschrift anzeige;
};

TEST_F(SchreibvorgangTest,
       Every_writable_parameter_is_written_once_in_the_order_of_ranges_parts_and_addresses) {
    EXPECT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
    EXPECT_EQ(geraet.geschrieben, GanzeFolge());
}

TEST_F(SchreibvorgangTest, Storing_writes_1_to_register_189_after_everything_else) {
    EXPECT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Dauerhaft));
    Schreibvorgaenge erwartet = GanzeFolge();
    erwartet.push_back({3, 189, {1}});
    EXPECT_EQ(geraet.geschrieben, erwartet);
}

TEST_F(SchreibvorgangTest, Without_storing_register_189_is_never_written) {
    SchreibeKonfiguration(anzeige, Ablage::Fluechtig);
    EXPECT_FALSE(Geschrieben(189));
}

TEST_F(SchreibvorgangTest, The_data_format_in_communication_register_2_is_never_written) {
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    EXPECT_FALSE(Geschrieben(0x4002));
}

TEST_F(SchreibvorgangTest, Nothing_is_read) {
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    EXPECT_TRUE(geraet.gelesen.empty());
}

TEST_F(SchreibvorgangTest, A_value_over_16_bits_travels_with_its_low_16_bits) {
    modDaten::SetzeKommunikationsdaten(kommunikation::Pausenzeit, 1, {0x12345});
    EXPECT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
    EXPECT_EQ(geraet.Register(0x4008), 0x2345);
}

TEST_F(SchreibvorgangTest, The_changed_mark_stays_as_it_was) {
    modDaten::LoescheGeaendert();
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    modDaten::SetzeGeaendert();
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

struct Abbruchfall {
    const char* name;
    Schritt bei;
    int selektionen;         ///< how many parts were selected when the step comes
    std::size_t geschrieben; ///< how many writes the controller has received
};

void PrintTo(const Abbruchfall& fall, std::ostream* aus) {
    *aus << fall.name;
}

class SchreibabbruchTest : public SchreibvorgangTest, public testing::WithParamInterface<Abbruchfall> {};

TEST_P(SchreibabbruchTest, A_cancel_leaves_what_was_written_and_writes_nothing_more) {
    const Abbruchfall& fall = GetParam();
    anzeige.abbruchBei = [&](const Schritt& schritt) {
        const auto gewaehlt =
            std::ranges::count(geraet.geschrieben, 212, &PruefGeraet::Schreibvorgang::adresse);
        return schritt == fall.bei && gewaehlt == fall.selektionen;
    };
    EXPECT_FALSE(SchreibeKonfiguration(anzeige, Ablage::Dauerhaft));
    EXPECT_EQ(geraet.geschrieben, Anfang(fall.geschrieben));
    EXPECT_EQ(anzeige.ende, "");
}

/// The write during which the user cancels still goes through.
INSTANTIATE_TEST_SUITE_P(
    Bereiche, SchreibabbruchTest,
    testing::Values(
        Abbruchfall{"global_range", {"Globale Gerätedaten", "193", 1, 1}, 0, 1},
        Abbruchfall{"selection_of_part_0", {"Optikteil 0", "212", 1, 1}, 0, 2},
        Abbruchfall{"first_parameter_of_part_0", {"Spezifische Gerätedaten", "2000H + 13", 1, 1}, 1, 3},
        Abbruchfall{"selection_of_part_1", {"Optikteil 1", "212", 1, 1}, 1, 11},
        Abbruchfall{"pattern_of_part_3", {"Spezifische Gerätedaten", "2000H + 52", 32, 1}, 4, 37},
        Abbruchfall{"selection_of_the_channel", {"Kommunikations Kanal 0", "213", 1, 1}, 4, 38},
        Abbruchfall{"first_of_communication", {"Kommunikationsdaten", "4000H + 4", 1, 1}, 4, 39},
        Abbruchfall{"last_of_communication", {"Kommunikationsdaten", "4000H + 126", 1, 1}, 4, 43}),
    [](const auto& fall) { return std::string(fall.param.name); });

TEST_F(
    SchreibvorgangTest,
    A_cancel_in_the_specific_range_of_part_1_leaves_part_0_written_and_nothing_of_the_communication_range) {
    anzeige.abbruchBei = [this](const Schritt& schritt) {
        return Geschrieben(212) && geraet.geschrieben.back().teil == 1 &&
               schritt.registertext == "2000H + 24";
    };
    EXPECT_FALSE(SchreibeKonfiguration(anzeige, Ablage::Dauerhaft));
    EXPECT_EQ(geraet.Spezifisch(0, 83), Pruefwert(0, 83));
    EXPECT_EQ(geraet.Spezifisch(1, 24), Pruefwert(1, 24));
    EXPECT_EQ(geraet.Spezifisch(1, 25), 0);
    EXPECT_EQ(geraet.Spezifisch(2, 13), 0);
    EXPECT_EQ(geraet.Register(0x4004), 0);
    EXPECT_FALSE(Geschrieben(189));
}

TEST_F(SchreibvorgangTest, A_cancel_while_storing_ends_the_retries) {
    geraet.schweige = [](const std::string& anforderung) { return pruefung::Wort(anforderung, 2) == 189; };
    anzeige.abbruchBei = [](const Schritt& schritt) {
        return schritt.registertext == "189" && schritt.versuch == 5;
    };
    EXPECT_FALSE(SchreibeKonfiguration(anzeige, Ablage::Dauerhaft));
    EXPECT_EQ(anzeige.schritte.back(), (Schritt{"Konfigurationsdaten speichern", "189", 1, 5}));
    EXPECT_EQ(anzeige.ende, "");
}

TEST_F(SchreibvorgangTest, With_no_device_answering_the_attempt_rises_without_limit_and_without_a_message) {
    SchweigeImmer();
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.versuch == 25; };
    EXPECT_FALSE(SchreibeKonfiguration(anzeige, Ablage::Dauerhaft));
    ASSERT_EQ(anzeige.schritte.size(), 25U);
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(anzeige.schritte[static_cast<std::size_t>(i)],
                  (Schritt{"Globale Gerätedaten", "193", 1, i + 1}));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(SchreibvorgangTest, A_failed_write_is_repeated_with_the_same_values) {
    int verschluckt = 0;
    geraet.schweige = [&](const std::string& anforderung) {
        return pruefung::Wort(anforderung, 2) == 0x2034 && verschluckt++ < 3;
    };
    EXPECT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
    EXPECT_EQ(geraet.geschrieben, GanzeFolge());
    EXPECT_EQ(AnzahlAnforderungen(), static_cast<int>(GanzeFolge().size()) + 3);
}

TEST_F(SchreibvorgangTest, The_attempt_starts_at_1_again_with_each_write) {
    SchweigeBei(2);
    SchreibeKonfiguration(anzeige, Ablage::Fluechtig);
    EXPECT_EQ(anzeige.schritte[2], (Schritt{"Globale Gerätedaten", "193", 1, 3}));
    EXPECT_EQ(anzeige.schritte[3], (Schritt{"Optikteil 0", "212", 1, 1}));
}

TEST_F(SchreibvorgangTest, Ranges_parts_and_registers_are_shown_by_their_texts) {
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    const std::vector<Schritt> erwartet{{"Globale Gerätedaten", "193", 1, 1},
                                        {"Optikteil 0", "212", 1, 1},
                                        {"Spezifische Gerätedaten", "2000H + 13", 1, 1},
                                        {"Spezifische Gerätedaten", "2000H + 52", 32, 1},
                                        {"Optikteil 3", "212", 1, 1},
                                        {"Kommunikations Kanal 0", "213", 1, 1},
                                        {"Kommunikationsdaten", "4000H + 75", 30, 1},
                                        {"Konfigurationsdaten speichern", "189", 1, 1}};
    auto stelle = anzeige.schritte.begin();
    for (const Schritt& schritt : erwartet) {
        stelle = std::find(stelle, anzeige.schritte.end(), schritt);
        ASSERT_NE(stelle, anzeige.schritte.end()) << schritt.bereich << ", " << schritt.registertext;
    }
}

TEST_F(SchreibvorgangTest, English_texts_stand_while_the_language_is_English) {
    SetzeSprachoffset(Englisch);
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    std::vector<std::string> bereiche;
    for (const Schritt& schritt : anzeige.schritte)
        if (std::ranges::find(bereiche, schritt.bereich) == bereiche.end())
            bereiche.push_back(schritt.bereich);
    const std::vector<std::string> erwartet{
        "Globale device data",      "Optical part 0",     "Specific device data",
        "Optical part 1",           "Optical part 2",     "Optical part 3",
        "Communication  channel 0", "Communication data", "Save configuration data"};
    EXPECT_EQ(bereiche, erwartet);
    EXPECT_EQ(anzeige.ende, "Transfer ready.");
}

TEST_F(SchreibvorgangTest, The_progress_runs_over_all_writes) {
    SchreibeKonfiguration(anzeige, Ablage::Fluechtig);
    ASSERT_EQ(anzeige.fortschritt.size(), GanzeFolge().size() + 1);
    EXPECT_EQ(anzeige.fortschritt.front(), std::make_pair(0, 43));
    EXPECT_EQ(anzeige.fortschritt.back(), std::make_pair(43, 43));
}

TEST_F(SchreibvorgangTest, The_progress_counts_storing_where_it_is_asked_for) {
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    EXPECT_EQ(anzeige.fortschritt.front(), std::make_pair(0, 44));
    EXPECT_EQ(anzeige.fortschritt.back(), std::make_pair(44, 44));
}

TEST_F(SchreibvorgangTest, A_complete_transfer_ends_with_its_text) {
    SchreibeKonfiguration(anzeige, Ablage::Dauerhaft);
    EXPECT_EQ(anzeige.ende, "Übertragung beendet.");
}

TEST_F(SchreibvorgangTest, What_a_complete_write_has_told_the_controller_is_remembered) {
    FuelleAbbild();
    Mitschrift mitschrift;
    EXPECT_TRUE(SchreibeKonfiguration(mitschrift, Ablage::Fluechtig));
    const auto stand = modGeraetestand::HoleGeraetestand();
    ASSERT_TRUE(stand);
    EXPECT_EQ(stand->seriennummer, "4711");
    for (const auto& [bereich, adresse, teil] : AlleStellen(IstSchreibbar)) {
        EXPECT_FALSE(stand->unbekannt.contains({bereich, adresse, teil}));
        EXPECT_EQ(stand->abbild.HoleParameter(bereich, adresse, teil),
                  modDaten::HoleParameter(bereich, adresse, teil));
    }
    EXPECT_FALSE(stand->IstVollstaendig()) << "nothing was read";
}

TEST_F(SchreibvorgangTest, Of_a_write_that_is_cancelled_what_was_confirmed_is_remembered) {
    constexpr Parameterstelle Letzter{Speicherbereich::Kommunikationsdaten, kommunikation::Autosendformat, 0};
    geraet.schweige = [](const std::string& anforderung) { return pruefung::Wort(anforderung, 2) == 0x407E; };
    Mitschrift mitschrift;
    mitschrift.abbruchBei = [](const Schritt& schritt) { return schritt.registertext == "4000H + 126"; };
    EXPECT_FALSE(SchreibeKonfiguration(mitschrift, Ablage::Fluechtig));
    const auto stand = modGeraetestand::HoleGeraetestand();
    ASSERT_TRUE(stand);
    for (const Parameterstelle& stelle : AlleStellen(IstSchreibbar))
        EXPECT_EQ(stand->unbekannt.contains(stelle), stelle == Letzter);
}

TEST_F(SchreibvorgangTest, Of_a_parameter_that_was_sent_and_not_confirmed_no_old_value_counts_as_known) {
    constexpr Parameterstelle Erster{Speicherbereich::SpezifischeGeraetedaten, spezifisch::Aufloesung, 0};
    modGeraetestand::MerkeGelesen(modDaten::DasAbbild(), GeraeteSeriennummer());
    geraet.schweige = [](const std::string& anforderung) { return pruefung::Wort(anforderung, 2) == 0x200D; };
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.versuch == 3; };
    EXPECT_FALSE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
    EXPECT_EQ(modGeraetestand::HoleGeraetestand()->unbekannt, Parametermenge{Erster});
}

TEST_F(SchreibvorgangTest, A_write_of_which_nothing_was_confirmed_is_not_remembered) {
    SchweigeImmer();
    Mitschrift mitschrift;
    mitschrift.abbruchBei = [](const Schritt&) { return true; };
    EXPECT_FALSE(SchreibeKonfiguration(mitschrift, Ablage::Fluechtig));
    EXPECT_FALSE(modGeraetestand::HoleGeraetestand());
}

TEST_F(SchreibvorgangTest, The_track_tells_what_was_confirmed_and_what_only_sent) {
    constexpr Parameterstelle Ausgangsparameter{Speicherbereich::GlobaleGeraetedaten, global::PnpAusgang, 0};
    constexpr Parameterstelle Erster{Speicherbereich::SpezifischeGeraetedaten, spezifisch::Aufloesung, 0};
    geraet.schweige = [](const std::string& anforderung) { return pruefung::Wort(anforderung, 2) == 0x200D; };
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.versuch == 3; };
    Schreibspur spur;
    EXPECT_FALSE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig, {.abbild = modDaten::DasAbbild()}, spur));
    EXPECT_EQ(spur.geschrieben, Parametermenge{Ausgangsparameter});
    EXPECT_EQ(spur.ungewiss, Parametermenge{Erster});
}

TEST_F(SchreibvorgangTest, A_write_that_reached_the_controller_while_the_user_cancelled_is_certain) {
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.registertext == "193"; };
    Schreibspur spur;
    EXPECT_FALSE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig, {.abbild = modDaten::DasAbbild()}, spur));
    EXPECT_EQ(spur.geschrieben.size(), 1U);
    EXPECT_TRUE(spur.ungewiss.empty());
}

TEST_F(SchreibvorgangTest, Only_the_parameters_asked_for_are_written_from_the_image_given) {
    constexpr Parameterstelle Pause{Speicherbereich::Kommunikationsdaten, kommunikation::Pausenzeit, 0};
    Schreibauftrag auftrag{.abbild = {}, .stellen = {Pause}};
    EXPECT_TRUE(auftrag.abbild.SetzeRegister(Pause.bereich, Pause.adresse, 77));
    Schreibspur spur;
    EXPECT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig, auftrag, spur));
    EXPECT_EQ(spur.geschrieben, auftrag.stellen);
    EXPECT_EQ(geraet.Register(0x4008), 77);
    EXPECT_EQ(geraet.geschrieben.size(), 6U) << "the selections and one register";
    EXPECT_EQ(anzeige.fortschritt.back(), std::make_pair(6, 6));
}

} // namespace varnoth
