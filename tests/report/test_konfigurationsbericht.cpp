#include "konfigurationsbericht.h"

#include "abbildproben.h"
#include "muster.h"
#include "pruefsumme.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <regex>

namespace varnoth {

namespace {

using pruefung::EnthaeltMuster;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const Berichtsangaben AlleAngaben{.anlage = "Walzwerk 3",
                                  .maschine = "Bandlauf",
                                  .person = "E. Muster",
                                  .ausgestellt = "01.02.2026 10:00",
                                  .quelle = "Steuergerät",
                                  .geraetename = "Varnoth",
                                  .copyright = "(C) 2004",
                                  .geraetezustand = "PNP-Ausgang aktiv",
                                  .programmversion = "1.2.3"};

std::string Deutscher(const Abbild& abbild = abbildproben::Vierteilig(),
                      const Berichtsangaben& angaben = AlleAngaben) {
    return Bericht(abbild, angaben, Deutsch);
}

/// The document between two pieces of it.
std::string Zwischen(const std::string& html, std::string_view von, std::string_view bis) {
    const auto anfang = html.find(von);
    EXPECT_NE(anfang, std::string::npos) << von;
    return anfang == std::string::npos ? std::string()
                                       : html.substr(anfang, html.find(bis, anfang + 1) - anfang);
}

std::size_t Anzahl(const std::string& text, std::string_view stueck) {
    std::size_t anzahl = 0;
    for (auto stelle = text.find(stueck); stelle != std::string::npos; stelle = text.find(stueck, stelle + 1))
        ++anzahl;
    return anzahl;
}

/// How often each element begins and ends.
std::map<std::string, int> Offene(const std::string& html) {
    std::map<std::string, int> offene;
    const std::regex marke(
        "<(/?)([a-z][a-z0-9]*)"); // no further: a picture in it is longer than any stack is deep
    for (std::sregex_iterator treffer(html.begin(), html.end(), marke), ende; treffer != ende; ++treffer)
        offene[(*treffer)[2]] += (*treffer)[1].length() == 0 ? 1 : -1;
    for (const char* leeres : {"meta", "img", "br"})
        offene.erase(leeres);
    return offene;
}

} // namespace

TEST(BerichtTest, The_head_tells_plant_machine_person_checksum_and_version) {
    const std::string kopf = Zwischen(Deutscher(), "<h1>", "<h2>");
    for (const char* text : {"Walzwerk 3", "Bandlauf", "E. Muster", "Steuergerät", "1.2.3"})
        EXPECT_THAT(kopf, HasSubstr(std::string(">") + text + "</td>"));
    EXPECT_THAT(kopf, HasSubstr("CRC-32 " + Konfigurationspruefsumme(abbildproben::Vierteilig())));
}

TEST(BerichtTest, The_document_is_the_same_whenever_it_is_issued) {
    Berichtsangaben spaeter = AlleAngaben;
    spaeter.ausgestellt = "02.02.2026 11:11";
    EXPECT_EQ(Deutscher(abbildproben::Vierteilig(), spaeter), Deutscher());
}

TEST(BerichtTest, A_field_without_text_keeps_its_place_and_what_is_not_known_is_left_out) {
    const std::string html = Deutscher(Standardkonfiguration(), {});
    EXPECT_THAT(html, EnthaeltMuster("Anlage</td><td width=\"68%\"></td>"));
    for (const char* name :
         {"Konfiguration aus", "Programmversion", "Hersteller", "Zustand beim letzten Lesen"})
        EXPECT_THAT(html, Not(HasSubstr(name)));
}

TEST(BerichtTest, The_controller_is_told_with_texts_serial_number_date_versions_and_state) {
    const std::string teil = Zwischen(Deutscher(), "<h2>Steuergerät</h2>", "<h2>Schaltausgang</h2>");
    for (const char* text :
         {"Varnoth", "13.05.2026", "2.3", "1.10", "RS485 Modbus", "(C) 2004", "PNP-Ausgang aktiv"})
        EXPECT_THAT(teil, HasSubstr(std::string(">") + text + "</td>"));
}

TEST(BerichtTest, Texts_of_device_and_person_are_shown_letter_by_letter) {
    Berichtsangaben angaben = AlleAngaben;
    angaben.anlage = "<script>alert('x')</script>";
    angaben.geraetename = "\"<img src=http://x>\" & \x01\x7F";
    const std::string html = Deutscher(abbildproben::Vierteilig(), angaben);
    EXPECT_THAT(html, AllOf(HasSubstr("&lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt;"),
                            HasSubstr("&quot;&lt;img src=http://x&gt;&quot; &amp; </td>"),
                            HasSubstr("VN-&lt;2026&gt; &amp; &quot;K4&quot; / 7")));
    EXPECT_THAT(html, Not(HasSubstr("<script")));
}

TEST(BerichtTest, Nothing_outside_the_file_is_named) {
    const std::string html = Deutscher();
    for (const char* verweis :
         {"http:", "https:", "file:", "<link", "<script", "url(", "@import", "<iframe", "href"})
        EXPECT_THAT(html, Not(HasSubstr(verweis)));
    EXPECT_EQ(Anzahl(html, "src=\""), Anzahl(html, "src=\"data:image/svg+xml;base64,"));
    EXPECT_EQ(Anzahl(html, "<img"), 4U);
}

TEST(BerichtTest, Every_element_that_begins_also_ends) {
    for (const Abbild& abbild :
         {abbildproben::Vierteilig(), Standardkonfiguration(), abbildproben::Beliebig(3)})
        for (const auto& [name, offen] : Offene(Deutscher(abbild)))
            EXPECT_EQ(offen, 0) << name;
}

TEST(BerichtTest, The_same_configuration_and_fields_give_the_same_bytes) {
    Abbild abbild = abbildproben::Vierteilig();
    const std::string html = Deutscher(abbild);
    EXPECT_EQ(Deutscher(abbild), html);
    ASSERT_TRUE(abbild.SetzeParameter(Spezifisch, spezifisch::Messwerte, Werte(18, 7), 1));
    ASSERT_TRUE(abbild.SetzeRegister(Global, global::Geraetestatus, 2));
    EXPECT_EQ(Deutscher(abbild), html);
    EXPECT_NE(Bericht(abbild, AlleAngaben, Englisch), html);
}

TEST(BerichtTest, A_setting_that_differs_from_the_default_is_bold_and_has_the_default_beside_it) {
    const std::string teil = Zwischen(Deutscher(), ">Optikteil 2</h3>", ">Optikteil 3</h3>");
    EXPECT_THAT(teil, EnthaeltMuster("Auflösung</td><td[^>]*><b>20mm</b></td><td[^>]*>5mm</td>"));
    EXPECT_THAT(teil, EnthaeltMuster("Blankingmuster</td><td[^>]*><b>11-15, 37</b></td><td[^>]*>keine</td>"));
}

TEST(BerichtTest, A_setting_like_the_default_is_plain_and_alone) {
    Abbild abbild = Standardkonfiguration();
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
    EXPECT_THAT(Deutscher(abbild), EnthaeltMuster("Auflösung</td><td[^>]*>5mm</td><td[^>]*>&nbsp;</td>"));
    EXPECT_THAT(Deutscher(abbild), HasSubstr("Keine Einstellung weicht von der Werkseinstellung ab."));
}

TEST(BerichtTest, The_settings_that_differ_are_counted_those_of_missing_parts_left_out) {
    Abbild abbild = Standardkonfiguration();
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 40, 0));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 40, 1));
    ASSERT_TRUE(abbild.SetzeRegister(Kommunikation, kommunikation::Pausenzeit, 40));
    EXPECT_THAT(Deutscher(abbild), HasSubstr("(fett gedruckt): 2</p>"));
}

TEST(BerichtTest, The_line_format_that_no_write_changes_is_no_difference) {
    Abbild abbild = Standardkonfiguration();
    ASSERT_TRUE(abbild.SetzeRegister(Kommunikation, kommunikation::Format, 0x30F));
    EXPECT_THAT(Deutscher(abbild), HasSubstr("Keine Einstellung weicht"));
    EXPECT_THAT(Deutscher(abbild), HasSubstr("38,4 KB; Stopbits: 2"));
}

TEST(BerichtTest, Optical_parts_are_told_with_beams_spacing_field_cycle_and_blanked_beams) {
    const std::string teil = Zwischen(Deutscher(), "<h2>Optikteile</h2>", "<h3");
    EXPECT_THAT(teil,
                EnthaeltMuster("Optikteil 1</td><td[^>]*>128</td><td[^>]*>10 mm</td><td[^>]*>1270 mm</td>"
                               "<td[^>]*>26,2 ms</td><td[^>]*>6</td>"));
    EXPECT_THAT(teil, HasSubstr("Längste Zykluszeit: 26,2 ms"));
}

TEST(BerichtTest, An_optical_part_says_its_state_where_it_is_known_and_nothing_where_it_is_not) {
    Berichtsangaben angaben = AlleAngaben;
    angaben.teilzustaende = {"Zustand am 1.2.: <gut>", "", "", ""};
    const std::string html = Deutscher(abbildproben::Vierteilig(), angaben);
    EXPECT_THAT(html, HasSubstr("Optikteil 1</h3><p>Zustand am 1.2.: &lt;gut&gt;</p>\n<p><img"));
    EXPECT_THAT(html, HasSubstr("Optikteil 2</h3><p><img"));
}

TEST(BerichtTest, Three_parts_stand_on_a_page) {
    const std::string umbruch = "<h3 style=\"page-break-before: always;\">";
    Abbild abbild = abbildproben::Vierteilig();
    EXPECT_THAT(Deutscher(abbild),
                AllOf(HasSubstr(umbruch + "Optikteil 1</h3>"), HasSubstr("<h3>Optikteil 2</h3>"),
                      HasSubstr("<h3>Optikteil 3</h3>"), HasSubstr(umbruch + "Optikteil 4</h3>")));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 0, 0));
    EXPECT_THAT(Deutscher(abbild),
                AllOf(HasSubstr(umbruch + "Optikteil 2</h3>"), HasSubstr("<h3>Optikteil 4</h3>")));
}

TEST(BerichtTest, A_part_that_is_not_there_has_one_line_and_no_settings) {
    Abbild abbild = abbildproben::Vierteilig();
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 0, 2));
    const std::string html = Deutscher(abbild);
    EXPECT_THAT(html, HasSubstr("<td>Optikteil 3</td><td colspan=\"5\">nicht vorhanden</td>"));
    EXPECT_THAT(html, Not(HasSubstr(">Optikteil 3</h3>")));
    EXPECT_EQ(Anzahl(html, "<img"), 3U);
}

TEST(BerichtTest, The_data_block_is_a_table_in_the_order_in_which_it_is_sent) {
    const std::string teil = Zwischen(Deutscher(), "<h2>Datenblock</h2>", "<h2>Unter");
    EXPECT_THAT(teil, EnthaeltMuster(">1</td><td>TU:K1</td><td[^>]*>75</td><td[^>]*>0x102</td>"));
    EXPECT_THAT(teil, EnthaeltMuster(">2</td><td>HU:K2</td><td[^>]*>76</td><td[^>]*>0x203</td>"));
    EXPECT_EQ(Anzahl(teil, "<tr>"), 30U);
}

TEST(BerichtTest, An_entry_that_nobody_can_choose_is_told_as_a_number_and_an_empty_block_in_words) {
    Abbild abbild = Standardkonfiguration();
    Werte block(30);
    block[0] = 0x7FFF;
    ASSERT_TRUE(abbild.SetzeParameter(Kommunikation, kommunikation::Datenblock, block));
    EXPECT_THAT(Deutscher(abbild), HasSubstr("<td>32767 (0x7FFF)</td>"));
    ASSERT_TRUE(abbild.SetzeParameter(Kommunikation, kommunikation::Datenblock, Werte(30)));
    EXPECT_THAT(Deutscher(abbild), HasSubstr("Der Datenblock ist leer."));
}

TEST(BerichtTest, The_budget_of_autosend_is_that_of_the_calculator) {
    EXPECT_THAT(Deutscher(), AllOf(HasSubstr("4800 Bd"), HasSubstr(">10 byte</td>")));
    EXPECT_THAT(Deutscher(Standardkonfiguration()), HasSubstr("nicht zu berechnen"));
}

TEST(BerichtTest, The_appendix_has_every_register_in_decimal_and_hexadecimal) {
    const std::string anhang = Zwischen(Deutscher(), "Anhang: alle Register", "</body>");
    EXPECT_THAT(anhang, HasSubstr("<td>Optikteil 2</td><td>Auflösung</td><td align=\"right\">13 (0x200D)</td>"
                                  "<td align=\"right\">20</td><td align=\"right\">0x14</td>"));
    EXPECT_THAT(anhang, HasSubstr("<td>Global</td><td>Seriennummer [0]</td><td align=\"right\">9 (0x9)</td>"
                                  "<td align=\"right\">22094</td><td align=\"right\">0x564E</td>"));
}

TEST(BerichtTest, In_the_appendix_three_equal_registers_of_a_parameter_share_a_row_and_two_do_not) {
    Abbild abbild = Standardkonfiguration();
    Werte muster(32, 0);
    muster[0] = muster[1] = 7;
    muster[2] = muster[3] = muster[4] = 8;
    muster[31] = 9;
    ASSERT_TRUE(abbild.SetzeParameter(Spezifisch, spezifisch::Blankingmuster, muster, 0));
    const std::string anhang = Zwischen(Deutscher(abbild), "Anhang: alle Register", "</body>");
    for (const char* zeile :
         {"Blankingmuster [0]</td><td align=\"right\">52 (0x2034)</td><td align=\"right\">7<",
          "Blankingmuster [1]</td><td align=\"right\">53 (0x2035)</td><td align=\"right\">7<",
          "Blankingmuster [2-4]</td><td align=\"right\">54-56 (0x2036-0x2038)</td>"
          "<td align=\"right\">8<",
          "Blankingmuster [5-30]</td><td align=\"right\">57-82 (0x2039-0x2052)</td>"
          "<td align=\"right\">0<",
          "Blankingmuster [31]</td><td align=\"right\">83 (0x2053)</td><td align=\"right\">9<"})
        EXPECT_THAT(anhang, HasSubstr(zeile));
    const std::size_t global = 1 + 1 + 1 + 1 + 1 + 1;
    const std::size_t teil = 8 + 1;
    const std::size_t kommunikation = 5 + 9 + 1;
    EXPECT_EQ(Anzahl(anhang, "<tr>"), 1 + global + (teil + 4) + 3 * teil + kommunikation);
}

TEST(BerichtTest, There_is_a_place_to_sign_and_the_browser_numbers_the_pages) {
    EXPECT_THAT(Deutscher(), AllOf(HasSubstr("<h2>Unterschrift</h2>"),
                                   HasSubstr("\"Seite \" counter(page) \" von \" counter(pages)")));
    EXPECT_THAT(Bericht(Abbild(), {}, Englisch),
                HasSubstr("\"Page \" counter(page) \" of \" counter(pages)"));
}

TEST(BerichtTest, The_place_to_sign_is_one_line_so_that_no_page_ends_inside) {
    EXPECT_THAT(Deutscher(), EnthaeltMuster("<p>Ort, Datum&nbsp;_+ Name&nbsp;_+ Unterschrift&nbsp;_+ </p>"));
}

TEST(BerichtTest, In_English_every_word_is_English) {
    Berichtsangaben angaben = AlleAngaben;
    angaben.quelle = angaben.geraetezustand = "";
    const std::string html = Bericht(abbildproben::Vierteilig(), angaben, Englisch);
    for (const char* deutsch :
         {"Optikteil", "Anlage", "Strahl", "Werks", "Steuer", "ü", "ö", "ä", "Register "})
        EXPECT_THAT(html, Not(HasSubstr(deutsch)));
    EXPECT_THAT(html, HasSubstr("<html lang=\"en\">"));
}

TEST(BerichtTest, The_foot_tells_plant_machine_checksum_and_when_it_was_issued) {
    const std::string summe = Konfigurationspruefsumme(Abbild());
    EXPECT_EQ(Berichtsfuss(Abbild(), AlleAngaben, Deutsch),
              "Walzwerk 3  |  Bandlauf  |  Prüfsumme der Konfiguration: " + summe +
                  "  |  Ausgestellt: 01.02.2026 10:00");
    EXPECT_EQ(Berichtsfuss(Abbild(), {}, Englisch), "Checksum of the configuration: " + summe);
}

TEST(Konfigurationsbericht, Has_a_section_about_beams_only_when_there_is_one) {
    EXPECT_THAT(Deutscher(), Not(HasSubstr("Strahlstatistik")));
    Berichtsangaben angaben = AlleAngaben;
    angaben.strahlen = Strahlbericht{.zeitraum = "Optikteil 1, von bis",
                                     .verdacht = {"Strahl 13: <schmutzig>?"},
                                     .titel = {"Strahl", "Wechsel"},
                                     .zeilen = {{"13", "7"}},
                                     .anmerkung = "Der Rest war frei."};
    const std::string bericht = Deutscher(abbildproben::Vierteilig(), angaben);
    EXPECT_THAT(bericht, HasSubstr("<h2>Strahlstatistik</h2>"));
    EXPECT_THAT(bericht, HasSubstr("<p>Optikteil 1, von bis</p>"));
    EXPECT_THAT(bericht, HasSubstr("<p>Strahl 13: &lt;schmutzig&gt;?</p>"));
    EXPECT_THAT(bericht, HasSubstr("Der Rest war frei."));
    EXPECT_THAT(bericht, EnthaeltMuster("<td[^>]*>13</td><td[^>]*>7</td>"));
    EXPECT_LT(bericht.find("Strahlstatistik"), bericht.find("Unterschrift"));
    EXPECT_THAT(Bericht(abbildproben::Vierteilig(), angaben, Englisch),
                HasSubstr("<h2>Beam statistics</h2>"));
}

TEST(Konfigurationsbericht, A_section_about_beams_says_that_nothing_is_suspicious) {
    EXPECT_THAT(Strahlabschnitt({.zeitraum = "jetzt"}, Deutsch), HasSubstr("Nichts Verdächtiges."));
    EXPECT_THAT(Strahlabschnitt({.zeitraum = "jetzt", .verdacht = {"etwas"}}, Deutsch),
                Not(HasSubstr("Nichts Verdächtiges.")));
}

} // namespace varnoth
