#include "lesevorgang.h"

#include "ablauftest.h"
#include "austausch.h"
#include "geraetestand.h"
#include "gewissheit.h"
#include "optikteilinformation.h"
#include "registerabbild.h"
#include "schreibvorgang.h"
#include "texte.h"
#include "transfermitschrift.h"

#include <algorithm>

namespace varnoth {

namespace {

using pruefung::Mitschrift;
using pruefung::Schritt;
using pruefung::Wort;

std::vector<std::pair<int, int>> Parameterliste(std::initializer_list<std::pair<int, int>> spezifische) {
    std::vector<std::pair<int, int>> alle{{0, 1}, {9, 10}, {20, 4}, {24, 1}, {25, 1}, {193, 1}, {196, 1}};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        for (const auto& [adresse, anzahl] : spezifische)
            alle.emplace_back(0x2000 + adresse, anzahl);
    for (const auto& [adresse, anzahl] : std::initializer_list<std::pair<int, int>>{
             {0, 1}, {2, 1}, {4, 1}, {8, 1}, {74, 1}, {75, 30}, {126, 1}})
        alle.emplace_back(0x4000 + adresse, anzahl);
    return alle;
}

} // namespace

class LesevorgangTest : public pruefung::AblaufTest {
protected:
    static std::vector<std::int32_t> GanzesAbbild() {
        std::vector<std::int32_t> alles;
        for (const Speicherbereich bereich : AlleSpeicherbereiche) {
            const auto werte = modDaten::Bereich(bereich);
            alles.insert(alles.end(), werte.begin(), werte.end());
        }
        return alles;
    }
    static std::int32_t SpezifischerWert(int adresse, int teil) {
        const auto werte = modDaten::Bereich(Speicherbereich::SpezifischeGeraetedaten);
        return werte[Stelle(Speicherbereich::SpezifischeGeraetedaten, static_cast<std::int16_t>(adresse),
                            teil)];
    }
    static std::int32_t Wert(Speicherbereich bereich, int adresse) {
        return modDaten::Bereich(bereich)[Stelle(bereich, static_cast<std::int16_t>(adresse))];
    }
    /// The first step shown in a range.
    Schritt ErsterSchritt(const std::string& bereich) const {
        for (const Schritt& schritt : anzeige.schritte)
            if (schritt.bereich == bereich)
                return schritt;
        return {};
    }

    Mitschrift anzeige;
};

TEST_F(LesevorgangTest, Every_readable_parameter_is_read_once_in_the_order_of_ranges_parts_and_addresses) {
    EXPECT_TRUE(LiesKonfiguration(anzeige));
    EXPECT_EQ(
        geraet.gelesen,
        Parameterliste({{12, 1}, {13, 1}, {14, 1}, {19, 1}, {24, 1}, {25, 1}, {26, 1}, {27, 1}, {52, 32}}));
}

TEST_F(LesevorgangTest, The_parts_and_the_channel_are_selected_before_they_are_read) {
    LiesKonfiguration(anzeige);
    const std::vector<pruefung::PruefGeraet::Schreibvorgang> erwartet{
        {0, 212, {0}}, {0, 212, {1}}, {1, 212, {2}}, {2, 212, {3}}, {3, 213, {0}}};
    EXPECT_EQ(geraet.geschrieben, erwartet);
    const auto gesendetVor = [this](int adresse) {
        for (std::size_t i = 0; i < port.gesendet.size(); ++i)
            if (Wort(port.gesendet[i], 2) == adresse)
                return i;
        return port.gesendet.size();
    };
    EXPECT_EQ(gesendetVor(212) + 1, gesendetVor(0x200C));
    EXPECT_EQ(gesendetVor(213) + 1, gesendetVor(0x4000));
}

TEST_F(LesevorgangTest, What_was_read_lies_in_the_image) {
    geraet.Register(193) = 5;
    geraet.Spezifisch(0, 52 + 31) = 0xFFFF;
    geraet.Spezifisch(3, 13) = 40;
    geraet.Register(0x4000 + 104) = 7;
    LiesKonfiguration(anzeige);
    EXPECT_EQ(Wert(Speicherbereich::GlobaleGeraetedaten, 193), 5);
    EXPECT_EQ(SpezifischerWert(83, 0), 0xFFFF);
    EXPECT_EQ(SpezifischerWert(13, 3), 40);
    EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 104), 7);
}

TEST_F(LesevorgangTest,
       With_no_device_answering_the_attempt_rises_at_global_register_0_and_the_image_is_unchanged) {
    SchweigeImmer();
    const auto davor = GanzesAbbild();
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.versuch == 25; };
    EXPECT_FALSE(LiesKonfiguration(anzeige));
    ASSERT_EQ(anzeige.schritte.size(), 25U);
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(anzeige.schritte[static_cast<std::size_t>(i)],
                  (Schritt{"Globale Gerätedaten", "0", 1, i + 1}));
    EXPECT_EQ(GanzesAbbild(), davor);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(LesevorgangTest, A_cancel_in_the_specific_range_of_part_2_keeps_what_was_read_and_leaves_the_rest) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        geraet.Spezifisch(teil, 19) = 60 + teil;
    geraet.Register(25) = 9;
    geraet.Register(0x4004) = 77;
    anzeige.abbruchBei = [this](const Schritt& schritt) {
        return geraet.geschrieben.size() == 3 && schritt.registertext == "2000H + 19";
    };
    EXPECT_FALSE(LiesKonfiguration(anzeige));
    EXPECT_EQ(Wert(Speicherbereich::GlobaleGeraetedaten, 25), 9);
    EXPECT_EQ((std::vector{SpezifischerWert(19, 0), SpezifischerWert(19, 1), SpezifischerWert(19, 2),
                           SpezifischerWert(19, 3)}),
              (std::vector{60, 61, 0, 0}));
    EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 4), 0);
    EXPECT_EQ(anzeige.ende, "");
}

TEST_F(LesevorgangTest, A_part_that_reports_600_beams_ends_with_beam_count_0) {
    geraet.Spezifisch(1, 12) = 600;
    geraet.Spezifisch(2, 12) = 512;
    geraet.Spezifisch(3, 12) = 513;
    LiesKonfiguration(anzeige);
    EXPECT_EQ(modDaten::Strahlenzahl(1), 0);
    EXPECT_EQ(modDaten::Strahlenzahl(2), 512);
    EXPECT_EQ(modDaten::Strahlenzahl(3), 0);
}

TEST_F(LesevorgangTest, An_impossible_beam_count_is_left_alone_when_the_transfer_is_cancelled) {
    geraet.Spezifisch(0, 12) = 600;
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.registertext == "4000H + 126"; };
    EXPECT_FALSE(LiesKonfiguration(anzeige));
    EXPECT_EQ(SpezifischerWert(12, 0), 600);
}

TEST_F(LesevorgangTest, The_range_shows_Optikteil_0_while_the_first_part_is_selected) {
    LiesKonfiguration(anzeige);
    EXPECT_EQ(ErsterSchritt("Optikteil 0"), (Schritt{"Optikteil 0", "212", 1, 1}));
    EXPECT_EQ(ErsterSchritt("Optikteil 3"), (Schritt{"Optikteil 3", "212", 1, 1}));
}

TEST_F(LesevorgangTest, The_range_shows_Communication_two_blanks_channel_0_in_English) {
    SetzeSprachoffset(Englisch);
    LiesKonfiguration(anzeige);
    EXPECT_EQ(ErsterSchritt("Communication  channel 0"), (Schritt{"Communication  channel 0", "213", 1, 1}));
    EXPECT_EQ(ErsterSchritt("Optical part 2").registertext, "212");
}

TEST_F(LesevorgangTest, Registers_are_shown_with_the_base_of_their_range) {
    LiesKonfiguration(anzeige);
    EXPECT_EQ(ErsterSchritt("Globale Gerätedaten"), (Schritt{"Globale Gerätedaten", "0", 1, 1}));
    EXPECT_EQ(ErsterSchritt("Spezifische Gerätedaten"),
              (Schritt{"Spezifische Gerätedaten", "2000H + 12", 1, 1}));
    EXPECT_EQ(ErsterSchritt("Kommunikationsdaten"), (Schritt{"Kommunikationsdaten", "4000H + 0", 1, 1}));
}

TEST_F(LesevorgangTest, A_failed_selection_is_repeated_and_its_attempts_are_counted) {
    int verschluckt = 0;
    geraet.schweige = [&](const std::string& anforderung) {
        return Wort(anforderung, 2) == 212 && verschluckt++ < 2;
    };
    EXPECT_TRUE(LiesKonfiguration(anzeige));
    std::vector<int> versuche;
    for (const Schritt& schritt : anzeige.schritte)
        if (schritt.bereich == "Optikteil 0")
            versuche.push_back(schritt.versuch);
    EXPECT_EQ(versuche, (std::vector{1, 2, 3}));
}

TEST_F(LesevorgangTest, The_attempt_starts_at_1_again_with_each_parameter) {
    SchweigeBei(2);
    LiesKonfiguration(anzeige);
    EXPECT_EQ(anzeige.schritte[2], (Schritt{"Globale Gerätedaten", "0", 1, 3}));
    EXPECT_EQ(anzeige.schritte[3], (Schritt{"Globale Gerätedaten", "9", 10, 1}));
}

TEST_F(LesevorgangTest, A_parameter_whose_read_succeeds_after_the_cancel_is_not_stored) {
    geraet.Register(25) = 9;
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.registertext == "25"; };
    EXPECT_FALSE(LiesKonfiguration(anzeige));
    EXPECT_EQ(geraet.gelesen.back(), std::make_pair(25, 1));
    EXPECT_EQ(Wert(Speicherbereich::GlobaleGeraetedaten, 25), 0);
}

TEST_F(LesevorgangTest, A_complete_transfer_ends_with_its_text_and_every_exchange_counted) {
    EXPECT_TRUE(LiesKonfiguration(anzeige));
    EXPECT_EQ(anzeige.ende, "Übertragung beendet.");
    ASSERT_EQ(anzeige.fortschritt.size(), 56U);
    EXPECT_EQ(anzeige.fortschritt.front(), std::make_pair(0, 55));
    EXPECT_EQ(anzeige.fortschritt.back(), std::make_pair(55, 55));
}

TEST_F(LesevorgangTest, What_a_complete_read_has_found_is_remembered_with_the_serial_number) {
    geraet.Register(193) = 5;
    geraet.Spezifisch(1, 12) = 600;
    LiesKonfiguration(anzeige);
    const auto stand = modGeraetestand::HoleGeraetestand();
    ASSERT_TRUE(stand);
    EXPECT_EQ(stand->abbild, modDaten::DasAbbild());
    EXPECT_EQ(stand->seriennummer, "4711");
    EXPECT_TRUE(stand->IstVollstaendig());
}

TEST_F(LesevorgangTest, A_read_that_is_cancelled_leaves_what_was_remembered) {
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.registertext == "4000H + 126"; };
    LiesKonfiguration(anzeige);
    EXPECT_FALSE(modGeraetestand::HoleGeraetestand());
}

TEST_F(LesevorgangTest,
       Reading_aside_asks_the_same_with_what_cannot_be_mistaken_last_and_leaves_image_mark_and_memory_alone) {
    LiesKonfiguration(anzeige);
    auto anfragen = port.gesendet;
    std::rotate(anfragen.begin() + 1, anfragen.begin() + 3, anfragen.end());
    umgebung.uhr += Gewissheit::LangeRuhe;
    modDaten::LoescheGeaendert();
    const auto davor = GanzesAbbild();
    const auto stand = modGeraetestand::HoleGeraetestand()->zeit;
    port.gesendet.clear();
    geraet.Spezifisch(2, 14) = 4;
    Geraeteabzug abzug;
    EXPECT_TRUE(LiesGeraeteabzug(anzeige, abzug));
    EXPECT_EQ(port.gesendet, anfragen);
    EXPECT_EQ(abzug.abbild.HoleRegister(Speicherbereich::SpezifischeGeraetedaten, 14, 2), 4);
    EXPECT_TRUE(abzug.ungelesen.empty());
    EXPECT_EQ(GanzesAbbild(), davor);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_EQ(modGeraetestand::HoleGeraetestand()->zeit, stand);
}

TEST_F(LesevorgangTest, Reading_aside_takes_an_impossible_beam_count_as_a_part_that_is_not_connected) {
    geraet.Spezifisch(1, 12) = 600;
    Geraeteabzug abzug;
    LiesGeraeteabzug(anzeige, abzug);
    EXPECT_EQ(abzug.abbild.HoleRegister(Speicherbereich::SpezifischeGeraetedaten, 12, 1), 0);
}

TEST_F(LesevorgangTest, A_controller_that_goes_silent_while_it_is_read_aside_leaves_the_rest_unread) {
    geraet.Spezifisch(0, 14) = 4;
    geraet.schweige = [this](const std::string& /*anforderung*/) { return geraet.geschrieben.size() == 2; };
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.versuch == 3; };
    Geraeteabzug abzug;
    EXPECT_FALSE(LiesGeraeteabzug(anzeige, abzug));
    EXPECT_EQ(abzug.abbild.HoleRegister(Spezifisch, 14, 0), 4);
    EXPECT_FALSE(abzug.ungelesen.contains({Spezifisch, 52, 0}));
    EXPECT_TRUE(abzug.ungelesen.contains({Spezifisch, 12, 1}));
    EXPECT_TRUE(abzug.ungelesen.contains({Speicherbereich::Kommunikationsdaten, 126}));
    EXPECT_EQ(abzug.ungelesen.size(), 3 * 9 + 7 + 2U);
    EXPECT_EQ(anzeige.ende, "");
}

/// Replies that take 5 ms and come in their order; any can come once more.
class LesevorgangMitWiederholungTest : public LesevorgangTest {
protected:
    static constexpr int Lesungen = 55, Optikteilfragen = 8;

    LesevorgangMitWiederholungTest() {
        const auto antworte = port.antworte;
        port.antworte = [this, antworte](const std::string& anforderung) {
            auto stuecke = antworte(anforderung);
            frei = std::max(frei, umgebung.uhr) + std::chrono::milliseconds(5);
            stuecke[0].nach = frei - umgebung.uhr;
            antworten.push_back(stuecke[0].bytes);
            if (AnzahlAnforderungen() != doppelte)
                return stuecke;
            frei += nach;
            stuecke.push_back({frei - umgebung.uhr, *(antworten.end() - 1 - zurueck)});
            return stuecke;
        };
        for (int adresse = 0; adresse < 256; ++adresse) {
            geraet.Register(adresse) = adresse;
            geraet.Register(0x4000 + adresse) = 300 + adresse;
            for (int teil = 0; teil < AnzahlOptikteile; ++teil)
                geraet.Spezifisch(teil, adresse) = 600 + 100 * teil + adresse % 100;
        }
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            geraet.Spezifisch(teil, 12) = 32 + teil;
    }
    /// Reads with the n-th reply coming twice, and asks for the optical parts.
    void LiesMitDoppelter(int welche, std::chrono::milliseconds wann) {
        modDaten::LeereAbbild();
        port.gesendet.clear();
        doppelte = welche;
        nach = wann;
        EXPECT_TRUE(LiesKonfiguration(anzeige));
        modSchnittstelle::OpenCommPort();
        EXPECT_TRUE(HoleOptikteilInformation(teile));
        doppelte = 0;
        umgebung.uhr += std::chrono::seconds(5);
        modAustausch::Vergewissere();
    }

    std::ptrdiff_t Kanalauswahlen() const {
        return std::ranges::count_if(geraet.geschrieben,
                                     [](const auto& eines) { return eines.adresse == global::Kanalauswahl; });
    }

    void VergissBeschreibbares() {
        for (const Speicherbereich bereich : AlleSpeicherbereiche)
            for (const Parameter& parameter : ParameterMit(bereich, IstSchreibbar))
                for (int i = 0; i < parameter.beschreibung.Laenge; ++i)
                    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
                        (bereich == Speicherbereich::SpezifischeGeraetedaten
                             ? geraet.Spezifisch(teil, parameter.adresse + i)
                             : geraet.Register(Geraeteadresse(bereich, parameter.adresse) + i)) = 9;
    }

    struct Teilanzeige : Optikteilanzeige {
        void ZeigeOptikteil(int /*optikteil*/, const std::string& /*text*/) override {}
        void ZeigeFortschritt(int /*erledigt*/, int /*gesamt*/) override {}
        bool Abgebrochen() override { return abbruch || (abbruchNach && abbruchNach()); }
        bool abbruch = false;
        std::function<bool()> abbruchNach;
    };
    Teilanzeige teile;
    Zeit frei{0};
    std::vector<std::string> antworten;
    int doppelte = 0;
    int zurueck = 0; ///< not that reply comes again but the one before it by so many
    std::chrono::milliseconds nach{0};
};

TEST_F(LesevorgangMitWiederholungTest, The_image_is_right_whichever_reply_comes_twice_and_however_late) {
    LiesMitDoppelter(0, {});
    const auto richtig = GanzesAbbild();
    for (const int wann : {0, 3, 10, 25, 40, 60, 90, 120})
        for (int welche = 1; welche <= Lesungen + Optikteilfragen - 2; ++welche) {
            LiesMitDoppelter(welche, std::chrono::milliseconds(wann));
            EXPECT_EQ(GanzesAbbild() == richtig, true) << "reply " << welche << " after " << wann << " ms";
        }
}

TEST_F(LesevorgangMitWiederholungTest, What_is_read_aside_is_right_whichever_reply_comes_twice) {
    const auto gelesen = [this](int welche, std::chrono::milliseconds wann) {
        umgebung.uhr += std::chrono::seconds(5);
        modAustausch::Vergewissere();
        port.gesendet.clear();
        doppelte = welche;
        nach = wann;
        Geraeteabzug abzug;
        EXPECT_TRUE(LiesGeraeteabzug(anzeige, abzug));
        EXPECT_TRUE(abzug.ungelesen.empty());
        doppelte = 0;
        return abzug.abbild;
    };
    const Abbild richtig = gelesen(0, {});
    for (zurueck = 0; zurueck < 2; ++zurueck)
        for (const int wann : {0, 3, 10, 40})
            for (int welche = 1 + zurueck; welche <= Lesungen; ++welche)
                EXPECT_EQ(gelesen(welche, std::chrono::milliseconds(wann)) == richtig, true)
                    << "reply " << welche << " after " << wann << " ms, " << zurueck << " back";
}

TEST_F(LesevorgangMitWiederholungTest,
       What_the_end_of_a_read_took_from_an_earlier_reply_is_read_again_with_the_parts) {
    LiesMitDoppelter(0, {});
    const auto richtig = GanzesAbbild();
    zurueck = 1; // the order of the data block is longer than its neighbours
    for (const int ms : {0, 3, 10}) {
        LiesMitDoppelter(Lesungen - 1, std::chrono::milliseconds(ms));
        EXPECT_EQ(GanzesAbbild() == richtig, true) << ms;
        EXPECT_EQ(modGeraetestand::HoleGeraetestand()->abbild.HoleRegister(
                      Speicherbereich::Kommunikationsdaten, 126),
                  426);
    }
}

/// On a line without a disturbance so far the reply before the last one comes once more just when the last
/// one is due, and is taken for it.
class LesevorgangEndetFalschTest : public LesevorgangMitWiederholungTest {
protected:
    LesevorgangEndetFalschTest() {
        LiesMitDoppelter(0, {});
        richtig = GanzesAbbild();
        modDaten::LeereAbbild();
        port.gesendet.clear();
        zurueck = 1;
        doppelte = Lesungen - 1;
        nach = std::chrono::milliseconds(7);
        EXPECT_TRUE(LiesKonfiguration(anzeige));
        EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 126), 374);
        modSchnittstelle::OpenCommPort();
    }
    std::vector<std::int32_t> richtig;
};

TEST_F(LesevorgangEndetFalschTest, What_the_parts_show_wrong_is_read_again_behind_them) {
    EXPECT_TRUE(HoleOptikteilInformation(teile));
    EXPECT_EQ(GanzesAbbild() == richtig, true);
    EXPECT_EQ(modGeraetestand::HoleGeraetestand()->abbild, modDaten::DasAbbild());
    std::string funktionen;
    for (const std::string& anforderung : port.gesendet)
        funktionen += anforderung[1];
    EXPECT_EQ(funktionen.substr(funktionen.size() - 5), "\x11\x03\x11\x03\x11")
        << "each between two identifications";
    const auto vorher = port.gesendet.size();
    EXPECT_TRUE(HoleOptikteilInformation(teile));
    EXPECT_EQ(std::ranges::count_if(port.gesendet.begin() + static_cast<std::ptrdiff_t>(vorher),
                                    port.gesendet.end(),
                                    [](const std::string& anforderung) {
                                        return anforderung[1] == 3 && Wort(anforderung, 2) == 0x407E;
                                    }),
              0)
        << "once is enough";
}

TEST_F(LesevorgangEndetFalschTest, What_the_user_does_not_wait_for_is_emptied) {
    teile.abbruchNach = [this] {
        return std::ranges::count_if(port.gesendet, [](const std::string& anforderung) {
                   return anforderung[1] == 3 && Wort(anforderung, 2) == 0x404B;
               }) > 1;
    };
    EXPECT_FALSE(HoleOptikteilInformation(teile));
    EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 126), 0);
}

TEST_F(LesevorgangEndetFalschTest, A_beam_count_that_is_read_again_is_corrected_like_any_other) {
    geraet.Spezifisch(1, 12) = 600;
    ASSERT_TRUE(modDaten::SetzeRegister(Spezifisch, 12, 600, 1));
    EXPECT_TRUE(HoleOptikteilInformation(teile));
    EXPECT_EQ(modDaten::Strahlenzahl(1), 0);
}

TEST_F(LesevorgangMitWiederholungTest,
       A_download_after_a_read_that_met_a_repeat_writes_what_the_controller_held) {
    LiesMitDoppelter(0, {});
    geraet.geschrieben.clear();
    ASSERT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
    const auto richtig = geraet.geschrieben;
    for (int ms = 10; ms <= 120; ms += 22)
        for (int welche = 1; welche <= Lesungen; welche += 3) {
            LiesMitDoppelter(welche, std::chrono::milliseconds(ms));
            geraet.geschrieben.clear();
            ASSERT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
            EXPECT_EQ(geraet.geschrieben == richtig, true) << "reply " << welche << " after " << ms << " ms";
        }
}

TEST_F(LesevorgangMitWiederholungTest,
       A_download_that_meets_a_repeat_leaves_the_whole_configuration_in_the_controller) {
    LiesMitDoppelter(0, {});
    const auto richtig = GanzesAbbild();
    for (const int ms : {0, 10, 60})
        for (int welche = 1; welche <= Lesungen; welche += 2) {
            LiesMitDoppelter(0, {});
            VergissBeschreibbares();
            port.gesendet.clear();
            doppelte = welche;
            nach = std::chrono::milliseconds(ms);
            ASSERT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
            LiesMitDoppelter(0, {});
            EXPECT_EQ(GanzesAbbild() == richtig, true) << "reply " << welche << " after " << ms << " ms";
        }
}

TEST_F(LesevorgangMitWiederholungTest,
       The_channel_is_selected_again_before_what_belongs_to_it_is_asked_again) {
    LiesMitDoppelter(0, {});
    EXPECT_EQ(Kanalauswahlen(), 1);
    geraet.geschrieben.clear();
    LiesMitDoppelter(Lesungen - 1, std::chrono::milliseconds(10)); // its selection is certain by then
    EXPECT_EQ(Kanalauswahlen(), 2);
}

TEST_F(LesevorgangMitWiederholungTest, A_read_and_the_parts_behind_it_are_the_requests_alone_at_their_times) {
    const Zeit beginn = umgebung.uhr;
    port.sendezeiten.clear();
    EXPECT_TRUE(LiesKonfiguration(anzeige));
    EXPECT_TRUE(HoleOptikteilInformation(teile));
    std::vector<Zeit> zeiten;
    for (int i = 0; i < Lesungen + Optikteilfragen; ++i)
        zeiten.push_back(beginn + std::chrono::milliseconds(2 + 7 * i));
    EXPECT_EQ(port.sendezeiten, zeiten);
}

TEST_F(LesevorgangMitWiederholungTest, What_the_read_left_open_is_emptied_when_the_parts_are_not_asked) {
    EXPECT_TRUE(LiesKonfiguration(anzeige));
    EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 126), 426);
    teile.abbruch = true;
    EXPECT_FALSE(HoleOptikteilInformation(teile));
    EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 126), 0);
    EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 74), 374);
}

TEST_F(LesevorgangMitWiederholungTest, What_the_parts_have_shown_right_stays_when_they_are_not_all_asked) {
    EXPECT_TRUE(LiesKonfiguration(anzeige));
    teile.abbruchNach = [this] { return AnzahlAnforderungen() == Lesungen + 2; };
    EXPECT_FALSE(HoleOptikteilInformation(teile));
    EXPECT_EQ(Wert(Speicherbereich::Kommunikationsdaten, 126), 426);
}

TEST_F(LesevorgangTest, Autosend_can_be_chosen_with_modes_1_and_3_only) {
    EXPECT_TRUE(AutosendWaehlbar(1));
    EXPECT_TRUE(AutosendWaehlbar(3));
    EXPECT_TRUE(AutosendWaehlbar(0x183));
    for (const int wert : {0, 2, 4, 0x100, 0x102, 0x7F})
        EXPECT_FALSE(AutosendWaehlbar(wert)) << wert;
}

} // namespace varnoth
