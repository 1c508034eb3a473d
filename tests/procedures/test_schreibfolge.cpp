#include "schreibfolge.h"

#include "ablauftest.h"
#include "leitungswarnung.h"
#include "registeradressen.h"
#include "texte.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace varnoth {

namespace {

const Parameterstelle Reichweite{Spezifisch, spezifisch::Reichweite, 1};
const Parameterstelle Pause{Kommunikation, kommunikation::Pausenzeit, 0};

Abbild Mit(const Parameterstelle& stelle, std::int32_t wert, Abbild abbild = {}) {
    EXPECT_TRUE(abbild.SetzeRegister(stelle.bereich, stelle.adresse, wert, stelle.optikteil));
    return abbild;
}

Geraetestand Stand(const Abbild& abbild) {
    Geraetestand stand;
    stand.abbild = abbild;
    return stand;
}

std::vector<Parameterstelle> Stellen(const Registerbefund& befund) {
    std::vector<Parameterstelle> stellen;
    for (const Registerzeile& zeile : befund.zeilen)
        stellen.push_back(zeile.stelle);
    return stellen;
}

using Stellenliste = std::vector<Parameterstelle>;

} // namespace

TEST(Aenderungsbefund, Exactly_what_differs_is_listed_with_both_values_in_words) {
    const Schreibauftrag auftrag{.abbild = Mit(Pause, 1234, Mit(Reichweite, 3))};
    const auto befund = BefundVorDemSchreiben(auftrag, Stand(Mit(Reichweite, 2)), "today");
    ASSERT_EQ(Stellen(befund), (Stellenliste{Reichweite, Pause}));
    EXPECT_EQ(befund.zeilen[0].bereich, "Optikteil 2");
    EXPECT_EQ(befund.zeilen[0].ort, "2000H + 14");
    EXPECT_NE(befund.zeilen[0].links, befund.zeilen[0].rechts);
    EXPECT_FALSE(befund.zeilen[0].name.empty());
    EXPECT_EQ(befund.zeilen[1].bereich, "Kommunikation");
    EXPECT_EQ(befund.text,
              "Das Schreiben ändert 2 Einstellungen gegenüber dem, was das Gerät zuletzt enthielt (today).");
    EXPECT_TRUE(befund.weiter.empty());
}

TEST(Aenderungsbefund, That_nothing_changes_is_said) {
    const auto befund = BefundVorDemSchreiben({.abbild = Mit(Pause, 7)}, Stand(Mit(Pause, 7)), "today");
    EXPECT_TRUE(befund.zeilen.empty());
    EXPECT_EQ(befund.text,
              "Das Schreiben ändert nichts: das Gerät enthielt zuletzt (today) schon alle Werte.");
}

TEST(Aenderungsbefund, What_a_write_does_not_send_is_no_change) {
    const Parameterstelle strahlen{Spezifisch, spezifisch::Strahlenzahl, 0};
    EXPECT_TRUE(BefundVorDemSchreiben({.abbild = Mit(strahlen, 32)}, Stand({}), "").zeilen.empty());
    const Schreibauftrag nurPause{.abbild = Mit(Pause, 1, Mit(Reichweite, 3)), .stellen = {Pause}};
    EXPECT_EQ(Stellen(BefundVorDemSchreiben(nurPause, Stand({}), "")), Stellenliste{Pause});
}

TEST(Aenderungsbefund, An_unknown_controller_is_said_and_every_row_says_unknown) {
    const auto befund = BefundVorDemSchreiben({.abbild = {}}, std::nullopt, "");
    EXPECT_EQ(befund.zeilen.size(), AlleStellen(IstSchreibbar).size());
    for (const Registerzeile& zeile : befund.zeilen)
        EXPECT_EQ(zeile.links, "unbekannt");
    EXPECT_TRUE(befund.text.starts_with("Es ist nicht bekannt, was das Gerät enthält.")) << befund.text;
}

TEST(Aenderungsbefund, A_value_that_is_not_known_is_never_called_equal) {
    Geraetestand stand = Stand({});
    stand.unbekannt = {Pause};
    const auto befund = BefundVorDemSchreiben({.abbild = {}}, stand, "today");
    EXPECT_EQ(Stellen(befund), Stellenliste{Pause});
    EXPECT_NE(befund.text.find("Von 1 Einstellung ist nicht bekannt"), std::string::npos) << befund.text;
    EXPECT_EQ(befund.text.find("ändert nichts"), std::string::npos) << befund.text;
}

TEST(Aenderungsbefund, What_is_older_than_this_connection_is_said_to_be) {
    Geraetestand stand = Stand({});
    EXPECT_EQ(BefundVorDemSchreiben({.abbild = {}}, stand, "").text.find("älter"), std::string::npos);
    stand.ausDieserVerbindung = false;
    EXPECT_NE(BefundVorDemSchreiben({.abbild = {}}, stand, "").text.find("älter"), std::string::npos);
}

TEST(Aenderungsbefund, What_was_only_written_and_not_read_back_is_said_of_what_this_write_sends) {
    Geraetestand stand = Stand({});
    stand.ungeprueft = {Reichweite, Pause};
    const auto text = [&stand](const Schreibauftrag& auftrag) {
        return BefundVorDemSchreiben(auftrag, stand, "today").text;
    };
    EXPECT_TRUE(
        text({.abbild = {}})
            .ends_with("2 Einstellungen davon wurden zuletzt geschrieben, aber nicht zurückgelesen."));
    EXPECT_TRUE(text({.abbild = {}, .stellen = {Pause}})
                    .ends_with("1 Einstellung davon wurde zuletzt geschrieben, aber nicht zurückgelesen."));
    stand.ungeprueft.clear();
    EXPECT_EQ(text({.abbild = {}}).find("zurückgelesen"), std::string::npos);
}

TEST(Aenderungsbefund, English_texts_stand_while_the_language_is_English) {
    SetzeSprachoffset(Englisch);
    const auto befund = BefundVorDemSchreiben({.abbild = Mit(Reichweite, 3)}, Stand({}), "today");
    EXPECT_EQ(befund.titel, "Changes in the controller");
    EXPECT_EQ(befund.zeilen.at(0).bereich, "Optical part 2");
}

TEST(Schreibfolgen, A_write_that_did_what_it_should_has_no_sequel) {
    const Schreibergebnis ergebnis{.vollstaendig = true, .spur = {.geschrieben = {Pause}}};
    EXPECT_FALSE(FolgeAus(ergebnis, Stand({})));
}

TEST(Schreibfolgen, A_write_that_sent_nothing_has_no_sequel) {
    EXPECT_FALSE(FolgeAus({}, Stand({})));
}

TEST(Schreibfolgen, A_broken_write_tells_what_is_written_what_not_and_what_is_uncertain) {
    const Schreibergebnis ergebnis{
        .auftrag = {.abbild = {}, .stellen = {{Global, global::PnpAusgang, 0}, Reichweite, Pause}},
        .spur = {.geschrieben = {{Global, global::PnpAusgang, 0}}, .ungewiss = {Reichweite}}};
    const auto folge = FolgeAus(ergebnis, Stand({}));
    ASSERT_TRUE(folge);
    ASSERT_EQ(folge->befund.zeilen.size(), 3U);
    EXPECT_EQ(folge->befund.zeilen[0].links, "geschrieben");
    EXPECT_EQ(folge->befund.zeilen[1].links, "ungewiss");
    EXPECT_EQ(folge->befund.zeilen[2].links, "nicht geschrieben");
    EXPECT_EQ(folge->befund.text,
              "Das Schreiben wurde nicht beendet. Register: 1 von 3 geschrieben, 1 nicht geschrieben, "
              "1 ungewiss.");
}

TEST(Schreibfolgen, After_a_broken_write_all_that_the_controller_held_can_be_written_back) {
    const Schreibergebnis ergebnis{.spur = {.ungewiss = {Pause}}};
    const Abbild vorher = Mit(Pause, 7);
    const auto folge = FolgeAus(ergebnis, Stand(vorher));
    ASSERT_TRUE(folge);
    EXPECT_FALSE(folge->befund.weiter.empty());
    EXPECT_EQ(folge->naechster.abbild, vorher);
    EXPECT_EQ(folge->naechster.stellen, AlleStellen(IstSchreibbar));
}

TEST(Schreibfolgen, What_was_not_known_before_is_not_written_back) {
    const Schreibergebnis ergebnis{.spur = {.ungewiss = {Pause}}};
    Geraetestand stand = Stand({});
    stand.unbekannt = {Reichweite};
    const auto folge = FolgeAus(ergebnis, stand);
    ASSERT_TRUE(folge);
    EXPECT_FALSE(folge->naechster.stellen.contains(Reichweite));
    EXPECT_TRUE(folge->naechster.stellen.contains(Pause));
    const auto ohneStand = FolgeAus(ergebnis, std::nullopt);
    ASSERT_TRUE(ohneStand);
    EXPECT_TRUE(ohneStand->befund.weiter.empty());
}

TEST(Schreibfolgen, Everything_written_and_not_stored_is_said) {
    const Schreibergebnis ergebnis{.auftrag = {.abbild = {}, .stellen = {Pause}},
                                   .spur = {.geschrieben = {Pause}}};
    const auto folge = FolgeAus(ergebnis, std::nullopt);
    ASSERT_TRUE(folge);
    EXPECT_EQ(folge->befund.text,
              "Alle Register sind geschrieben, doch das Gerät wurde nicht mehr zum Speichern aufgefordert.");
}

TEST(Schreibfolgen, A_check_that_found_differences_leads_to_writing_just_those_again) {
    Schreibergebnis ergebnis{.auftrag = {.abbild = Mit(Pause, 1234)},
                             .vollstaendig = true,
                             .pruefung = Pruefergebnis{.gleicheRegister = 189,
                                                       .alleRegister = 191,
                                                       .abweichend = {Pause},
                                                       .nichtVerglichen = {Reichweite}},
                             .ruecklesung = {.abbild = Mit(Pause, 7)}};
    const auto folge = FolgeAus(ergebnis, std::nullopt);
    ASSERT_TRUE(folge);
    EXPECT_EQ(folge->naechster.stellen, (Parametermenge{Pause, Reichweite}));
    EXPECT_EQ(folge->naechster.abbild, ergebnis.auftrag.abbild);
    ASSERT_EQ(Stellen(folge->befund), (Stellenliste{Reichweite, Pause}));
    EXPECT_EQ(folge->befund.zeilen[0].rechts, "nicht verglichen");
    EXPECT_NE(folge->befund.zeilen[1].links, folge->befund.zeilen[1].rechts);
    EXPECT_TRUE(folge->befund.text.starts_with("189 von 191 Registern zurückgelesen und gleich.\n"))
        << folge->befund.text;
    EXPECT_NE(folge->befund.text.find("1 Einstellung (1 Register) wurde nicht verglichen"),
              std::string::npos);
}

TEST(Schreibfolgen, One_setting_or_register_is_told_as_one) {
    SetzeSprachoffset(Englisch);
    const Schreibauftrag eine{.abbild = Mit(Pause, 1), .stellen = {Pause}};
    EXPECT_EQ(BefundVorDemSchreiben(eine, Stand({}), "today").text,
              "The write will change 1 setting from what the controller held last (today).");
    EXPECT_EQ(BefundVorDemSchreiben(eine, std::nullopt, "").text,
              "What the controller holds is not known. 1 setting will be written; whether it will change "
              "cannot be told.");
    EXPECT_EQ(BefundDerPruefung(eine, {.alleRegister = 1, .abweichend = {Pause}}, {}).text,
              "0 of 1 register read back equal.\n1 setting is not as it was written.");
    const Parameterstelle muster{Spezifisch, spezifisch::Blankingmuster, 2};
    EXPECT_EQ(BefundDerPruefung({.abbild = {}, .stellen = {muster}},
                                {.alleRegister = 32, .nichtVerglichen = {muster}}, {})
                  .text,
              "0 of 32 registers read back equal.\n"
              "The check was cancelled: 1 setting (32 registers) was not compared.");
}

TEST(Schreibfolgen, Each_finding_has_its_title_its_columns_and_what_can_be_done) {
    using Worte = std::array<std::string, 4>;
    const auto worte = [](const Registerbefund& befund) {
        return Worte{befund.titel, befund.links, befund.rechts, befund.weiter};
    };
    const Schreibauftrag auftrag{.abbild = Mit(Pause, 1), .stellen = {Pause}};
    EXPECT_EQ(worte(BefundVorDemSchreiben(auftrag, Stand({}), "")),
              (Worte{LadeText(9767), LadeText(9775), LadeText(9776), ""}));
    EXPECT_EQ(worte(BefundDerPruefung(auftrag, {}, {})),
              (Worte{LadeText(9782), LadeText(9785), LadeText(9786), LadeText(9788)}));
    EXPECT_EQ(worte(BefundDesAbbruchs(auftrag, {}, true)),
              (Worte{LadeText(9789), LadeText(9791), LadeText(9800), LadeText(9795)}));
}

TEST(Schreibfolgen, Of_a_value_beyond_16_bits_the_words_are_those_of_what_travels) {
    const Schreibauftrag gross{.abbild = Mit(Pause, 0x10007), .stellen = {Pause}};
    const Schreibauftrag klein{.abbild = Mit(Pause, 7), .stellen = {Pause}};
    EXPECT_EQ(BefundDesAbbruchs(gross, {}, false).zeilen.at(0).rechts,
              BefundDesAbbruchs(klein, {}, false).zeilen.at(0).rechts);
}

TEST(Schreibfolgen, A_check_that_found_equality_has_no_sequel) {
    const Schreibergebnis ergebnis{.vollstaendig = true,
                                   .pruefung = Pruefergebnis{.gleicheRegister = 191, .alleRegister = 191}};
    EXPECT_FALSE(FolgeAus(ergebnis, std::nullopt));
}

TEST(Leitungswarnungen, A_new_station_address_is_said_with_the_old_one) {
    const Parameterstelle adresse{Kommunikation, kommunikation::Stationsadresse, 0};
    const std::string warnung = Leitungswarnung({.abbild = Mit(adresse, 7)}, Stand(Mit(adresse, 1)));
    EXPECT_TRUE(warnung.starts_with("Die Stationsadresse wird ")) << warnung;
    EXPECT_NE(warnung.find('7'), std::string::npos) << warnung;
    EXPECT_NE(warnung.find('1'), std::string::npos) << warnung;
}

TEST(Leitungswarnungen, A_new_autosend_format_is_said) {
    const Parameterstelle format{Kommunikation, kommunikation::Autosendformat, 0};
    const std::string warnung = Leitungswarnung({.abbild = Mit(format, 0x30D)}, Stand(Mit(format, 0x30F)));
    EXPECT_TRUE(warnung.starts_with("Autosend sendet danach mit ")) << warnung;
}

TEST(Leitungswarnungen, Without_such_a_change_or_without_knowledge_nothing_is_said) {
    const Parameterstelle adresse{Kommunikation, kommunikation::Stationsadresse, 0};
    EXPECT_EQ(Leitungswarnung({.abbild = Mit(Pause, 1)}, Stand({})), "");
    EXPECT_EQ(Leitungswarnung({.abbild = Mit(adresse, 7)}, std::nullopt), "");
    EXPECT_EQ(Leitungswarnung({.abbild = Mit(adresse, 7), .stellen = {Pause}}, Stand({})), "");
    Geraetestand stand = Stand({});
    stand.unbekannt = {adresse};
    EXPECT_EQ(Leitungswarnung({.abbild = Mit(adresse, 7)}, stand), "");
}

class LeitungswarnungTest : public pruefung::AblaufTest {};

TEST_F(LeitungswarnungTest, The_address_that_answered_the_identification_is_the_old_one_where_none_was_read) {
    const Parameterstelle adresse{Kommunikation, kommunikation::Stationsadresse, 0};
    geraet.slaveAdresse = 3;
    modModbus::RTUModeH11IndentifikationsAnforderung();
    Geraetestand ohne = Stand({});
    ohne.unbekannt = {adresse, {Kommunikation, kommunikation::Autosendformat, 0}};
    for (const auto& stand : {std::optional<Geraetestand>(), std::optional(ohne)}) {
        const std::string warnung = Leitungswarnung({.abbild = Mit(adresse, 7)}, stand);
        EXPECT_TRUE(warnung.starts_with("Die Stationsadresse wird 7H statt 3H.")) << warnung;
        EXPECT_EQ(warnung.find('\n'), std::string::npos) << warnung;
        EXPECT_EQ(Leitungswarnung({.abbild = Mit(adresse, 3)}, stand), "");
    }
    EXPECT_EQ(Leitungswarnung({.abbild = Mit(adresse, 7)}, Stand(Mit(adresse, 7))), "");
}

} // namespace varnoth
