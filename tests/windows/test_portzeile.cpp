#include "portzeile.h"

#include "anschlusseingabe.h"
#include "fundworte.h"
#include "pruefverbindung.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using pruefung::EinAdapter;
using pruefung::EinFund;
using pruefung::PruefVerbindung;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr const char* ById = "/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A50285BI-if00-port0";

Portangabe MitBefund(const Portbefund& befund) {
    Portangabe port = EinAdapter();
    port.befund = befund;
    return port;
}

} // namespace

class PortzeileTest : public testing::Test {
protected:
    PruefVerbindung leitung;
    Anschlussstand& stand = leitung.stand;
};

TEST_F(PortzeileTest, A_port_says_what_it_is_with_its_serial_number) {
    EXPECT_EQ(Zeile(EinAdapter(), stand).was, "FT232R USB UART, Seriennummer A50285BI");
    EXPECT_EQ(Zeile({.geraet = "/dev/ttyUSB1", .hersteller = "FTDI"}, stand).was, "FTDI");
    EXPECT_EQ(Zeile({.geraet = "/dev/ttyS4"}, stand).was, "serieller Port");
}

TEST_F(PortzeileTest, A_port_nothing_stands_in_the_way_of_is_free) {
    const Portzeile zeile = Zeile(EinAdapter(), stand);
    EXPECT_EQ(zeile.zustand, "frei");
    EXPECT_EQ(zeile.abhilfe, "");
    EXPECT_TRUE(zeile.benutzbar);
}

TEST_F(PortzeileTest, A_port_that_a_process_holds_names_it_even_where_it_could_be_opened) {
    for (const Hindernis hindernis : {Hindernis::Belegt, Hindernis::Keines}) {
        const Portzeile zeile =
            Zeile(MitBefund({.hindernis = hindernis, .prozesse = {"minicom (77)", "cat (5)"}}), stand);
        EXPECT_EQ(zeile.zustand, "belegt durch minicom (77), cat (5)");
        EXPECT_THAT(zeile.abhilfe, HasSubstr("minicom (77)"));
        EXPECT_FALSE(zeile.benutzbar);
    }
    EXPECT_EQ(Zeile(MitBefund({.hindernis = Hindernis::Belegt}), stand).zustand, "belegt");
}

TEST_F(PortzeileTest, Without_a_right_the_group_of_this_device_and_the_exact_command_are_told) {
    const Portzeile zeile = Zeile(
        MitBefund(
            {.hindernis = Hindernis::KeinRecht, .eigentuemer = "root", .gruppe = "uucp", .nutzer = "eva"}),
        stand);
    EXPECT_EQ(zeile.zustand, "kein Recht");
    EXPECT_THAT(zeile.abhilfe, HasSubstr("„sudo usermod -aG uucp eva“"));
    EXPECT_FALSE(zeile.benutzbar);
}

TEST_F(PortzeileTest, A_port_in_a_folder_that_may_not_be_looked_into_gives_a_whole_sentence) {
    const Portzeile zeile = Zeile(MitBefund({.hindernis = Hindernis::KeinRecht, .nutzer = "eva"}), stand);
    EXPECT_EQ(zeile.abhilfe, "/dev/ttyUSB0 lässt sich nicht öffnen: Keine Berechtigung dafür.");
}

TEST_F(PortzeileTest, What_is_not_there_or_cannot_be_opened_is_never_called_free) {
    EXPECT_EQ(Zeile(MitBefund({.hindernis = Hindernis::Fehlt}), stand).zustand, "nicht da");
    const Portzeile zeile = Zeile(MitBefund({.hindernis = Hindernis::Systemfehler}), stand);
    EXPECT_EQ(zeile.zustand, "keine serielle Schnittstelle");
    EXPECT_EQ(zeile.abhilfe, "/dev/ttyUSB0 lässt sich nicht öffnen: Das ist keine serielle Schnittstelle.");
    EXPECT_FALSE(zeile.benutzbar);
}

TEST_F(PortzeileTest, A_port_that_this_program_has_open_itself_can_be_used) {
    stand.offen = ById;
    const Portzeile zeile = Zeile(MitBefund({.hindernis = Hindernis::Belegt}), stand);
    EXPECT_EQ(zeile.zustand, "in diesem Programm offen");
    EXPECT_EQ(zeile.abhilfe, "");
    EXPECT_TRUE(zeile.benutzbar);
    stand.offen = "/tmp/link";
    stand.wahl.Geraet(2) = "/tmp/link";
    stand.ziele[1] = "/dev/ttyUSB0";
    EXPECT_EQ(Zeile(EinAdapter(), stand).zustand, "in diesem Programm offen");
}

TEST_F(PortzeileTest, Every_number_that_means_the_port_is_named_whatever_name_it_uses) {
    stand.wahl.Geraet(1) = ById;
    stand.wahl.Geraet(3) = "/dev/ttyUSB0";
    stand.ziele[3] = "/dev/ttyUSB0"; // of a link
    EXPECT_EQ(Zeile(EinAdapter(), stand).com, "COM1, COM3, COM4");
    EXPECT_EQ(Zeile(EinAdapter("/dev/ttyUSB1"), stand).com, "COM1");
    EXPECT_EQ(Zeile({.geraet = "/dev/ttyUSB2"}, stand).com, "");
}

TEST_F(PortzeileTest, A_name_that_stays_over_plugging_is_the_best_one) {
    EXPECT_EQ(BesterName(EinAdapter()), ById);
    EXPECT_EQ(BesterName({.geraet = "/dev/ttyS4"}), "/dev/ttyS4");
    EXPECT_THAT(AlleNamen({EinAdapter(), {.geraet = "/dev/ttyS4"}}),
                ElementsAre(ById, "/dev/ttyUSB0", "/dev/ttyS4"));
}

TEST_F(PortzeileTest, A_device_of_the_settings_that_the_system_does_not_list_gets_a_row_once_it_is_there) {
    stand.wahl.Geraet(2) = stand.ziele[1] = "/home/eva/line";
    stand.eingetragen[1] = true;
    EXPECT_THAT(MitEingetragenen({}, stand), IsEmpty()) << "it is not there";
    stand.befunde[1] = {};
    const auto ports = MitEingetragenen({}, stand);
    ASSERT_EQ(ports.size(), 1U);
    EXPECT_EQ(Zeile(ports[0], stand).was, "von Hand eingetragen");
    EXPECT_EQ(Zeile(ports[0], stand).com, "COM2");
    stand.eingetragen[1] = false;
    EXPECT_THAT(MitEingetragenen({}, stand), IsEmpty()) << "the usual device without a UART";
}

TEST_F(PortzeileTest, A_listed_device_gets_no_second_row) {
    stand.wahl.Geraet(2) = ById;
    stand.eingetragen[1] = true;
    stand.befunde[1] = {};
    EXPECT_EQ(MitEingetragenen({EinAdapter()}, stand).size(), 1U);
}

TEST_F(PortzeileTest, What_a_name_leads_to_is_told_by_its_port_else_by_what_the_system_says) {
    EXPECT_EQ(Comtext(ById, {.hindernis = Hindernis::Fehlt}, {EinAdapter()}, stand), "frei, FT232R USB UART");
    EXPECT_EQ(Comtext("/dev/ttyUSB7", {.hindernis = Hindernis::Fehlt}, {EinAdapter()}, stand), "nicht da");
    EXPECT_EQ(Comtext("/home/eva/line", {}, {EinAdapter()}, stand), "frei");
}

TEST_F(PortzeileTest, The_port_in_use_is_that_of_the_number_or_of_the_run) {
    const std::vector<Portangabe> ports{EinAdapter(), {.geraet = "/dev/ttyS1"}};
    EXPECT_EQ(BenutzterPort(ports, stand), nullptr);
    stand.wahl.nummer = 2;
    EXPECT_EQ(BenutzterPort(ports, stand), &ports[1]);
    stand.geraetDiesesLaufs = ById;
    EXPECT_EQ(BenutzterPort(ports, stand), &ports[0]);
    stand.simuliert = true;
    EXPECT_EQ(BenutzterPort(ports, stand), nullptr);
    EXPECT_EQ(stand.Geraet(), "");
}

TEST_F(PortzeileTest, A_port_of_which_nobody_can_tell_who_has_it_open_is_not_called_free) {
    Portangabe port{.geraet = "COM3", .befund = {.benutzungUnbekannt = true}};
    EXPECT_EQ(Zeile(port, stand).zustand, "vorhanden");
    EXPECT_TRUE(Zeile(port, stand).benutzbar);
    stand.offen = "COM3";
    EXPECT_EQ(Zeile(port, stand).zustand, "in diesem Programm offen");
    port.befund.hindernis = Hindernis::Belegt;
    stand.offen.clear();
    EXPECT_EQ(Zeile(port, stand).zustand, "belegt");
}

TEST_F(PortzeileTest, Its_words_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Zeile(EinAdapter(), stand).was, "FT232R USB UART, serial number A50285BI");
    EXPECT_EQ(Zeile(EinAdapter(), stand).zustand, "free");
}

class AnschlusseingabeTest : public PortzeileTest {};

TEST_F(AnschlusseingabeTest, A_device_needs_a_name_that_fits_a_line_of_the_settings) {
    EXPECT_EQ(GeraetenameBefund("/dev/ttyUSB0"), "");
    EXPECT_EQ(GeraetenameBefund("/dev/Prüf stand"), "");
    EXPECT_THAT(GeraetenameBefund(""), AllOf(HasSubstr("/dev/ttyUSB0"), HasSubstr("COM5")));
    for (const std::string& falsch : {std::string("/dev/a\nComPort=2"), std::string("a\0b", 3),
                                      std::string("\x7F"), std::string(256, 'x')})
        EXPECT_THAT(GeraetenameBefund(falsch), HasSubstr("kein Gerät")) << falsch;
    EXPECT_EQ(GeraetenameBefund(std::string(255, 'x')), "");
}

TEST_F(AnschlusseingabeTest, A_line_format_is_what_the_port_understands) {
    EXPECT_EQ(FormatBefund("9600,e,8,1"), "");
    EXPECT_THAT(FormatBefund("9600,x,8,1"), HasSubstr("„9600,x,8,1“ ist kein Leitungsformat"));
    EXPECT_NE(FormatBefund(""), "");
}

TEST_F(AnschlusseingabeTest, A_choice_is_valid_as_a_whole_only) {
    EXPECT_TRUE(IstGueltig(stand.wahl));
    Anschlusswahl wahl = stand.wahl;
    wahl.Geraet(4) = "";
    EXPECT_FALSE(IstGueltig(wahl));
    wahl = stand.wahl;
    wahl.format = "fast";
    EXPECT_FALSE(IstGueltig(wahl));
}

TEST_F(AnschlusseingabeTest, Blanks_around_what_is_typed_do_not_count) {
    Anschlusswahl wahl = stand.wahl;
    wahl.Geraet(1) = "  /dev/a b \t";
    wahl.format = " 9600,e,8,1 ";
    wahl.Geraet(2) = "   ";
    const Anschlusswahl ohne = OhneBlanks(wahl);
    EXPECT_EQ(ohne.Geraet(1), "/dev/a b");
    EXPECT_EQ(ohne.Geraet(2), "");
    EXPECT_EQ(ohne.format, "9600,e,8,1");
}

TEST_F(AnschlusseingabeTest, The_connection_is_concerned_by_number_format_and_the_device_in_use_alone) {
    Anschlusswahl wahl = stand.wahl;
    EXPECT_FALSE(BetrifftVerbindung(stand, wahl));
    EXPECT_FALSE(HatWirkung(stand, wahl));
    wahl.Geraet(3) = "/dev/x";
    EXPECT_FALSE(BetrifftVerbindung(stand, wahl));
    EXPECT_TRUE(HatWirkung(stand, wahl));
    wahl.Geraet(1) = "/dev/x";
    EXPECT_TRUE(BetrifftVerbindung(stand, wahl));
    wahl = stand.wahl;
    wahl.nummer = 2;
    EXPECT_TRUE(BetrifftVerbindung(stand, wahl));
    wahl = stand.wahl;
    wahl.format = "9600,e,8,1";
    EXPECT_TRUE(BetrifftVerbindung(stand, wahl));
}

TEST_F(AnschlusseingabeTest, A_device_of_the_run_and_the_built_in_controller_end_with_any_choice) {
    stand.geraetDiesesLaufs = "/dev/pts/3";
    EXPECT_TRUE(BetrifftVerbindung(stand, stand.wahl));
    EXPECT_TRUE(HatWirkung(stand, stand.wahl));
    stand.geraetDiesesLaufs.clear();
    stand.simuliert = true;
    EXPECT_TRUE(BetrifftVerbindung(stand, stand.wahl));
}

TEST_F(AnschlusseingabeTest, What_was_not_touched_follows_what_comes_in_force) {
    const Anschlusswahl alt = stand.wahl;
    Anschlusswahl eingabe = alt;
    eingabe.Geraet(1) = "typed";
    Anschlusswahl neu = alt;
    neu.Geraet(1) = "/dev/new1";
    neu.Geraet(2) = "/dev/new2";
    neu.nummer = 3;
    neu.format = "9600,e,8,1";
    const Anschlusswahl ergebnis = Nachgefuehrt(eingabe, alt, neu);
    EXPECT_EQ(ergebnis.Geraet(1), "typed");
    EXPECT_EQ(ergebnis.Geraet(2), "/dev/new2");
    EXPECT_EQ(ergebnis.nummer, 3);
    EXPECT_EQ(ergebnis.format, "9600,e,8,1");
}

TEST_F(AnschlusseingabeTest, Using_a_found_controller_sets_device_format_and_number_and_nothing_else) {
    const Anschlusswahl wahl = MitFund(stand.wahl, 2, ById, "9600,e,8,1");
    Anschlusswahl erwartet = stand.wahl;
    erwartet.Geraet(2) = ById;
    erwartet.format = "9600,e,8,1";
    erwartet.nummer = 2;
    EXPECT_EQ(wahl, erwartet);
}

class FundworteTest : public PortzeileTest {};

TEST_F(FundworteTest, A_found_controller_is_told_with_texts_address_port_and_format) {
    EXPECT_EQ(Fundzeilen(EinFund()), "Steuergerät: Varnoth M\nSeriennummer: VM-2024-00017\nAdresse: 17\n"
                                     "Port: /dev/ttyUSB0, Format 9600,e,8,1");
}

TEST_F(FundworteTest, A_controller_without_a_serial_number_has_no_empty_line_and_an_echo_is_said) {
    Suchfund fund = EinFund();
    fund.ident.text1 = "\xA9";
    fund.ident.text2.clear();
    fund.mitEcho = true;
    EXPECT_THAT(Fundzeilen(fund), testing::StartsWith("Steuergerät: ©\nAdresse: 17\n"));
    EXPECT_THAT(Fundzeilen(fund), HasSubstr("Echo des Adapters"));
}

TEST_F(FundworteTest, The_device_is_kept_by_the_name_that_stays) {
    EXPECT_EQ(Fundgeraet(EinFund(), {EinAdapter()}), ById);
    EXPECT_EQ(Fundgeraet(EinFund(), {}), "/dev/ttyUSB0");
}

TEST_F(FundworteTest, It_is_offered_for_the_number_that_means_it_already_else_for_the_one_in_use) {
    stand.wahl.nummer = 2;
    EXPECT_EQ(Fundnummer(EinFund(), {EinAdapter()}, stand), 2);
    stand.wahl.Geraet(3) = ById;
    stand.wahl.Geraet(4) = "/dev/ttyUSB0";
    EXPECT_EQ(Fundnummer(EinFund(), {EinAdapter()}, stand), 3);
    stand.wahl.nummer = 4;
    EXPECT_EQ(Fundnummer(EinFund(), {EinAdapter()}, stand), 4);
}

TEST_F(FundworteTest, Words_of_another_language_give_way_to_words_of_this_one) {
    Suchstand versuch{.ergebnis = Suchergebnis::PortVerschlossen, .text = "belegt durch minicom"};
    EXPECT_EQ(Versuchsergebnis(versuch, Deutsch), "belegt durch minicom");
    Suchfund nichts{.versuche = 3, .text = "nichts"};
    EXPECT_EQ(Suchausgang(nichts, Deutsch), "nichts");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Versuchsergebnis(versuch, Deutsch), "port cannot be opened");
    EXPECT_EQ(Suchausgang(nichts, Deutsch), "No controller found; tries: 3.");
    nichts.abgebrochen = true;
    EXPECT_EQ(Suchausgang(nichts, Deutsch), "Search cancelled; tries: 3.");
    EXPECT_EQ(Suchausgang(EinFund(), Deutsch), "controller found");
}

} // namespace varnoth
