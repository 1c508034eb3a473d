#include "texte.h"

#include "texte_daten.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

namespace {

std::string TextIn(std::int16_t sprache, std::int16_t id) {
    SetzeSprachoffset(sprache);
    return LadeText(id);
}

std::vector<std::int16_t> DeutscheIds() {
    std::vector<std::int16_t> ids;
    std::ranges::copy_if(AlleTextIds(), std::back_inserter(ids), [](auto id) { return id < Englisch; });
    return ids;
}

struct Block {
    std::int16_t von;
    std::int16_t bis;
};

constexpr Block Bloecke[] = {
    {1000, 1070}, {1100, 1180}, {1200, 1222}, {1400, 1460}, {1500, 1540}, {1600, 1603}, {1700, 1720},
    {2000, 2005}, {3000, 3004}, {3100, 3106}, {4000, 4021}, {5000, 5003}, {5100, 5127}, {5200, 5220},
    {5500, 5535}, {5600, 5623}, {6000, 6004}, {6100, 6109}, {6200, 6999}, {7000, 7010}, {7100, 7115},
    {7200, 7209}, {7300, 7309}, {7400, 7405}, {7500, 7513}, {7600, 7610}, {7700, 7710}, {7800, 7810},
    {7900, 7903}, {8000, 8047}, {8100, 8103}, {8200, 8899}, {9000, 9999},
};

struct Paar {
    std::int16_t id;
    const char* deutsch;
    const char* englisch;
};

constexpr Paar Meldungen[] = {
    {3000, "Die Verbindung zum Varnoth ist unterbrochen.", "The connection to the Varnoth is broken."},
    {3001, "Status: PNP-Ausgang ist aktiv", "Status: PNP-Output active"},
    {3002, "Status: PNP-Ausgang ist nicht aktiv", "Status: PNP-Ausgang not active"},
    {3004, "Die Anzahl der Optikteile hat sich geändert.", "The number of optical parts has changed."},
    {3100, "Unbekanntes Dateiformat", "Unknown file format"},
    {3101, "Unbekannte Dateiversion", "Unknown file version"},
    {4000, ". Optikteil online", ". Optical part online"},
    {4001, ". Optikteil nicht vorhanden", ". Optical part not available"},
    {4002, ". Optikteil offline", ". Optical part offline"},
    {6000, "Varnoth Monitor", "Varnoth Monitor"},
    {6001, "Das Programm wurde bereits gestartet", "The programm is already started"},
    {6002, "Möchten Sie die Änderungen in der Konfiguration speichern?",
     "Do you want to save changes in configuration?"},
    {6003, "Soll Autosend gestartet werden?", "Do you want to start autosend?"},
    {6004, "Soll das Firmware update durchgeführt werden?", "Do you want to update the firmware?"},
    {6109, "Achtung", "Attention"},
    {7209, "Es kann keine Verbindung zur Hardware aufgebaut werden.", "No connection to the Varnoth."},
    {7710, "Es dürfen nicht mehr als 512 Strahlen eingestellt werden.",
     "Not more than 512 beams are allowed."},
    {7810, "Es dürfen nicht mehr als 512 Strahlen eingestellt werden.",
     "Not more than 512 beams are allowed."},
    {7903, "Soll ein Neustart wie bei Powerup erfolgen?", "Do you want to make a new start like powerup?"},
};

constexpr Paar LangeMeldungen[] = {
    {3102,
     "Fehler in der Konfiguration (Varnoth Hardware).\n\n"
     "Die Standardkonfiguration wird für die PC-Software geladen.\n"
     "Bitte passen Sie diese Konfiguration ihren Anforderungen an.\n"
     "Über das Menü   'Azeige/Konfiguration'   können Sie diese zur Hardware senden.",
     "Configuration error (Varnoth Hardware).\n\n"
     "The default configuration is loaded for the PC-Software.\n"
     "Please adapt this Configuration to your requirements.\n"
     "With menu   'Display/Configuration'   you can send the configuration to the Varnoth."},
    {3103,
     "Es ist kein Optikteil am Varnoth angeschlossen!\n"
     "Schließen Sie bitte mindestens ein Optikteil an oder geben Sie über das Menü   "
     "'Datei/Neue Konfiguration'   eine Konfiguration für den Offlinemodus ein.\n",
     "No optical part connected to the Varnoth!\n"
     "Please connect at least one optical part or use the menu   "
     "'File/New Configuration'   to edit a configuration offline.\n"},
    {3104, "Optikteil", "Optikteil"},
    {3105,
     "   Die Strahlenanzahl eines Optikteiles hat sich geändert.\n"
     "   Die Strahlenanzahl wurde automatisch korrigiert.\n"
     "   Die übrigen Konfigurationsdaten müssen eventuell vom Anwender angepasst werden.\n",
     "   The beam count of at least one optical part has changed.\n"
     "   The beam count is automatically corrected.\n"
     "   Other configuration data must be corrected by user.\n"},
    {3106,
     "   Die Konfiguration eines Optikteiles konnte nicht gelesen werden.\n"
     "   Es wird die Defaultkonfiguration geladen und das EEPROM korrigiert.\n",
     "   The configuration at least one optical part can't be read.\n"
     "   The default configuration is loaded and saved in the EEPROM.\n"},
};

constexpr Paar Menuetexte[] = {
    {1000, "&Datei", "&File"},
    {1040, "&Neue Konfiguration...", "&New Configuration..."},
    {1050, "Konfiguration ö&ffnen...", "Configuration &Open..."},
    {1070, "Konfiguration speichern &unter...", "Configuration Save &As..."},
    {1010, "Druckerein&richtung...", "P&rint Setup..."},
    {1030, "&Drucken...", "&Print..."},
    {1020, "&Beenden", "&Exit"},
    {1100, "&Anzeige", "&Display"},
    {1140, "&Konfiguration...", "&Configuration..."},
    {1150, "&1.Optikteil", "&1.Optical Part"},
    {1160, "&2.Optikteil", "&2.Optical Part"},
    {1170, "&3.Optikteil", "&3.Optical Part"},
    {1180, "&4.Optikteil", "&4.Optical Part"},
    {1200, "&Messdaten", "&Measurement Data"},
    {1210, "&Aufzeichnen", "&Record"},
    {1220, "&Visualisieren...", "&View..."},
    {1221, "&Starten", "&Start"},
    {1222, "&Beenden", "Sto&p"},
    {1400, "E&xtras", "E&xtras"},
    {1420, "&Einzelwerte lesen / schreiben", "&Parameter Read/Wirte"},
    {1450, "&Simulation", "&Simulation"},
    {1430, "&Initialisierung der Hardware", "&Initialize Hardware"},
    {1440, "&Reset der Hardware", "&Reset Hardware"},
    {1410, "&Firmware update", "&Firmware Update"},
    {1460, "&Autosend starten", "&Autosend start"},
    {1500, "&Option", "&Option"},
    {1510, "&Sprache...", "&Language..."},
    {1511, "&Deutsch", "&German"},
    {1512, "&Englisch", "&English"},
    {1520, "&Farben...", "&Colours..."},
    {1530, "&Kommunikation...", "&Communication..."},
    {1531, "Com &1", "Com &1"},
    {1534, "Com &4", "Com &4"},
    {1540, "&Übertragener Wert", "&Transmitted Value"},
    {1600, "&Fenster", "&Window"},
    {1601, "&Untereinander", "Tile &Horizontally"},
    {1602, "&Nebeneinander", "&Tile Vertically"},
    {1603, "Ü&berlappend", "&Cascade"},
    {1700, "&?", "&?"},
    {1710, "&Hilfethemen", "&Help Index"},
    {1720, "Inf&o", "Inf&o"},
};

constexpr Paar Dateitexte[] = {
    {2000, "Konfiguration (*.con)|*.con|Alle Dateien|*.*", "Configuration (*.con)|*.con|All Files   |*.*"},
    {2001, " ist bereits vorhanden.\nVorhandene Datei ersetzen?",
     " already exists.\n Overwrite existing File?"},
    {2004, "Konfiguration öffnen", "Open Configuration"},
    {2005, "Konfiguration speichern unter", "Configuration save as"},
};

constexpr Paar Zusammengesetzte[] = {
    {4020, "Strahl: ", "beam: "},
    {5531, "Es sind nur maximal ", "At most "},
    {5532, " Einträge möglich.", " entries possible."},
    {5601, "Format zwischen Master/Slave:   ", "Format between Master/Slave:   "},
    {7002, "Speicherbereich: ", "Memory range: "},
    {7114, "Optikteil ", "Optical part "},
    {7115, "Kommunikations Kanal ", "Communication  channel "},
    {7203, "Slave Adresse: ", "Slave address: "},
    {7403, "Optikteil ", "Optical part "},
    {7404, "vorhanden,  ", "available,  "},
    {7405, "nicht vorhanden,  ", "not available,  "},
    {7610, "Strahl: ", "Beam: "},
    {7803, "Strahlenanzahl K1: ", "Beam count C1: "},
    {8101, "Varnoth  Softwareversion ", "Varnoth  Software Version "},
};

constexpr Paar Feldtexte[] = {
    {4015, "Bahn zu hoch", "run to high"},
    {4017, "Loch erkannt", "hole recognized"},
    {4021, "ZB", "ZB"},
    {5001, "Übernehmen/Download", "Apply/Download"},
    {5109, "PNP-Ausgang:", "PNP Output:"},
    {5127, "Wechsel nach Scan", "Toggle with every scan"},
    {5203, "K4", "C4"},
    {5217, "(Angewählt ist geblankt)", "(Selected is blanked)"},
    {5506, "Strahlendaten", "Beam data"},
    {5616, "Gesteuerte Datenübertragung", "Controled Datatransfer"},
    {5622, "Pausenzeit für Antwort, 0-65535", "Pause time for answer, 0-65535"},
    {7005, "Globale Gerätedaten", "Globale device data"},
    {7104, "Schreibversuch:", "Write attempt :"},
    {7309, "(&&H=Hex. )", "(&&H=Hex. )"},
    {7508, "Jahr (4)", "Jear (4)"},
    {8007, "m/s  <==", "m/s  <=="},
    {8015, "Anzahl der übertragbaren Bytes:", "Count of bytes possible to send:"},
    {8019, "bit/sek", "bit/sec"},
    {8030, "Ømm  <==", "Ømm  <=="},
    {8047, "D >= 26 erforderlich", "D >= 26 required"},
    {8100, "Info über Varnoth", "Info about Varnoth"},
};

template<class Paare>
void ErwarteTexte(const Paare& paare) {
    for (const auto& [id, deutsch, englisch] : paare) {
        EXPECT_EQ(TextIn(Deutsch, id), deutsch) << id;
        EXPECT_EQ(TextIn(Englisch, id), englisch) << id;
    }
}

/// The lower-case letter after the first "&".
char Mnemonik(const std::string& text) {
    const auto stelle = text.find('&');
    return stelle + 1 < text.size()
               ? static_cast<char>(std::tolower(static_cast<unsigned char>(text[stelle + 1])))
               : '\0';
}

void ErwarteVerschiedeneMnemoniken(std::int16_t sprache, const std::vector<std::int16_t>& menue) {
    std::set<char> gesehen;
    for (const auto id : menue) {
        const std::string text = TextIn(sprache, id);
        EXPECT_TRUE(gesehen.insert(Mnemonik(text)).second) << text;
    }
}

const std::vector<std::int16_t> Menues[] = {
    {1000, 1100, 1200, 1400, 1500, 1600, 1700},
    {1040, 1050, 1070, 1010, 1030, 1020},
    {1140, 1150, 1160, 1170, 1180},
    {1210, 1220},
    {1221, 1222},
    {1420, 1450, 1430, 1440, 1410, 1460},
    {1511, 1512},
    {1531, 1532, 1533, 1534},
    {1601, 1602, 1603},
    {1710, 1720},
};

const std::vector<std::int16_t> Optionsmenue{1510, 1520, 1530, 1540};

std::set<int> Gefundene(const std::string& inhalt, const std::string& muster) {
    const std::regex ausdruck(muster);
    std::set<int> ids;
    for (std::sregex_iterator treffer(inhalt.begin(), inhalt.end(), ausdruck), ende; treffer != ende;
         ++treffer)
        ids.insert(std::stoi((*treffer)[1]));
    return ids;
}

/// The string ids in a Designer form: every number in a Tag (up to 10 it is a view's index) and every caption
/// or tool tip that looks like an id.
std::set<int> IdsInForm(const std::string& inhalt) {
    auto ids = Gefundene(inhalt, R"re(name="Tag"[^>]*>\s*<[a-z]+[^>]*>(\d{1,5})<)re");
    std::erase_if(ids, [](int id) { return id <= 10; });
    ids.merge(Gefundene(inhalt, R"re(name="(?:text|title|toolTip)"[^>]*>\s*<string[^>]*>([1-8]\d{3})<)re"));
    return ids;
}

std::set<int> IdsInQuelltext(const std::string& inhalt) {
    return Gefundene(inhalt, R"re((?:\bLadeText\(\s*|\bint16_t Text\w* = )(\d{1,5})\b)re");
}

std::string Inhalt(const std::filesystem::path& datei) {
    std::ifstream strom(datei, std::ios::binary);
    std::ostringstream inhalt;
    inhalt << strom.rdbuf();
    return inhalt.str();
}

using Suche = std::set<int> (*)(const std::string&);
const std::map<std::string, Suche> SucheNachEndung{
    {".ui", IdsInForm}, {".cpp", IdsInQuelltext}, {".h", IdsInQuelltext}};

} // namespace

TEST(Texte, There_are_354_texts_in_the_blocks_below_8200_that_are_not_of_the_past) {
    EXPECT_EQ(
        std::ranges::count_if(DeutscheIds(), [](int id) { return id < 8200 && (id < 6200 || id > 6999); }),
        354);
}

TEST(Texte, Half_of_all_ids_are_German) {
    EXPECT_EQ(AlleTextIds().size(), 2 * DeutscheIds().size());
}

TEST(Texte, Every_German_text_has_its_English_partner_and_no_id_stands_alone) {
    std::set<int> deutsche;
    std::set<int> englische;
    for (const auto id : AlleTextIds())
        (id < Englisch ? deutsche : englische).insert(id % Englisch);
    EXPECT_EQ(deutsche, englische);
}

TEST(Texte, No_id_stands_twice) {
    const auto ids = AlleTextIds();
    EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end());
}

TEST(Texte, No_text_is_empty) {
    for (const auto id : DeutscheIds()) {
        EXPECT_NE(TextIn(Deutsch, id), "") << id;
        EXPECT_NE(TextIn(Englisch, id), "") << id;
    }
}

TEST(Texte, Every_id_lies_in_the_block_of_a_window) {
    for (const auto id : DeutscheIds())
        EXPECT_TRUE(std::ranges::any_of(Bloecke, [id](Block b) { return b.von <= id && id <= b.bis; })) << id;
}

TEST(Texte, No_window_is_without_texts) {
    const auto ids = DeutscheIds();
    for (const auto& block : Bloecke)
        EXPECT_TRUE(std::ranges::any_of(ids, [&](auto id) { return block.von <= id && id <= block.bis; }))
            << block.von;
}

TEST(Texte, Every_line_of_the_file_is_a_comment_or_an_id_and_two_texts) {
    const std::regex eintrag("\\d{4}\t[^\t]+\t[^\t]+");
    std::istringstream datei{std::string(TexteDatei())};
    for (std::string zeile; std::getline(datei, zeile);)
        EXPECT_TRUE(zeile.empty() || zeile.front() == '#' || std::regex_match(zeile, eintrag)) << zeile;
}

TEST(Texte, The_file_is_sorted_by_id) {
    std::istringstream datei{std::string(TexteDatei())};
    int letzte = 0;
    for (std::string zeile; std::getline(datei, zeile);) {
        if (zeile.empty() || zeile.front() == '#')
            continue;
        const int id = std::stoi(zeile);
        EXPECT_GT(id, letzte);
        letzte = id;
    }
}

TEST(Texte, Both_texts_of_a_pair_begin_and_end_alike_so_that_what_is_joined_to_them_fits) {
    const auto raender = [](const std::string& text) {
        return std::pair{std::isspace(static_cast<unsigned char>(text.front())) != 0,
                         std::isspace(static_cast<unsigned char>(text.back())) != 0};
    };
    for (const auto id : DeutscheIds())
        EXPECT_EQ(raender(TextIn(Deutsch, id)), raender(TextIn(Englisch, id))) << id;
}

TEST(Texte, Messages_are_to_the_letter) {
    ErwarteTexte(Meldungen);
}

TEST(Texte, Messages_of_several_lines_are_to_the_letter) {
    ErwarteTexte(LangeMeldungen);
}

TEST(Texte, Menu_captions_are_to_the_letter) {
    ErwarteTexte(Menuetexte);
}

TEST(Texte, File_dialog_texts_are_to_the_letter) {
    ErwarteTexte(Dateitexte);
}

TEST(Texte, Texts_that_something_is_joined_to_keep_their_blanks) {
    ErwarteTexte(Zusammengesetzte);
}

TEST(Texte, Captions_are_to_the_letter) {
    ErwarteTexte(Feldtexte);
}

TEST(Texte, The_owner_line_reads_well_with_the_copyright_sign_in_the_middle) {
    for (const auto sprache : {Deutsch, Englisch}) {
        const std::string zeile = TextIn(sprache, 8102) + "©" + TextIn(sprache, 8103);
        EXPECT_TRUE(zeile.starts_with("Copyright © 2026 ")) << zeile;
    }
}

TEST(Texte, A_menu_uses_a_mnemonic_once) {
    for (const auto& menue : Menues) {
        ErwarteVerschiedeneMnemoniken(Deutsch, menue);
        ErwarteVerschiedeneMnemoniken(Englisch, menue);
    }
}

TEST(Texte, The_German_option_menu_uses_a_mnemonic_once) {
    ErwarteVerschiedeneMnemoniken(Deutsch, Optionsmenue);
}

TEST(Texte, An_id_without_a_text_gives_an_empty_text) {
    EXPECT_EQ(TextIn(Deutsch, 999), "");
    EXPECT_EQ(TextIn(Englisch, 9999), "");
    EXPECT_EQ(TextIn(7, 1000), "");
}

TEST(TexteInFormen, Ids_are_found_in_tags_captions_and_tool_tips) {
    const std::string form = R"(
        <property name="Tag" stdset="0">
         <string notr="true">7200</string>
        </property>
        <property name="Tag" stdset="0"><number>7201</number></property>
        <property name="Tag" stdset="0"><string>3</string></property>
        <property name="text"><string notr="true">1040</string></property>
        <property name="title"><string>1000</string></property>
        <property name="toolTip"><string>5217</string></property>
        <property name="text"><string>OK</string></property>
        <property name="objectName"><string>1234</string></property>)";
    EXPECT_EQ(IdsInForm(form), (std::set<int>{7200, 7201, 1040, 1000, 5217}));
}

TEST(TexteInFormen, Ids_are_found_in_calls) {
    EXPECT_EQ(IdsInQuelltext("a = LadeText(6000) + LadeText( 8101 ); LadeText(id); AndererLadeText(5);"),
              (std::set<int>{6000, 8101}));
}

TEST(TexteInFormen, Ids_are_found_in_named_constants) {
    EXPECT_EQ(IdsInQuelltext("constexpr std::int16_t TextAchtung = 6109; constexpr int Rest = 5;"),
              (std::set<int>{6109}));
}

TEST(Texte, Every_id_used_in_a_form_or_in_code_exists) {
    const auto alle = AlleTextIds();
    int dateien = 0;
    for (const auto& eintrag : std::filesystem::recursive_directory_iterator(VARNOTH_QUELLEN)) {
        const auto suche = SucheNachEndung.find(eintrag.path().extension().string());
        if (suche == SucheNachEndung.end())
            continue;
        ++dateien;
        for (const int id : suche->second(Inhalt(eintrag.path())))
            EXPECT_TRUE(std::ranges::binary_search(alle, id)) << eintrag.path() << " uses " << id;
    }
    EXPECT_GT(dateien, 0);
}

} // namespace varnoth
