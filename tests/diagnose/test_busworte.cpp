#include "busworte.h"

#include "busprobe.h"
#include "busregister.h"
#include "pruefgeraet.h"
#include "rahmen.h"
#include "registeradressen.h"
#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace busprobe;
using pruefung::Bytes;
using pruefung::MitPruefsumme;

namespace {

constexpr int SpezifischAb = 0x2000;
constexpr int KommunikationAb = 0x4000;

std::string Registerangabe(const Probe& probe) {
    return varnoth::Registerangabe(Austausch(probe));
}

std::string Worte(const Probe& probe) {
    return Wertetext(Austausch(probe));
}

std::string Ergebnis(Austauschergebnis ergebnis, const std::string& empfangen = {}) {
    Probe probe = Unbeantwortet(5);
    probe.ergebnis = ergebnis;
    probe.empfangen = empfangen;
    return Ergebnistext(Austausch(probe));
}

} // namespace

TEST(Busworte, Registers_are_told_by_the_name_that_the_editor_has_for_them) {
    EXPECT_EQ(Registerangabe(Gelesen(193, {1})), "Global: PNP-Ausgang");
    EXPECT_EQ(Registerangabe(Gelesen(SpezifischAb + 14, {1})), "Optikteil 1: Reichweite");
    EXPECT_EQ(Registerangabe(Gelesen(KommunikationAb + 4, {1})), "Kommunikation: Stations Adresse");
}

TEST(Busworte, So_are_those_that_are_only_ever_sent_to) {
    EXPECT_EQ(Registerangabe(Geschrieben(212, {1})), "Global: Auswahl des Optikteils");
    EXPECT_EQ(Registerangabe(Geschrieben(178, Werte(8))), "Global: Passwort");
    EXPECT_EQ(Registerangabe(Gelesen(SpezifischAb + 353, Werte(32))), "Optikteil 1: Strahlzustände")
        << "whatever the number of beams";
    EXPECT_EQ(Registerangabe(Geschrieben(KommunikationAb + 132, {2})),
              "Kommunikation: Steuerung von Autosend");
}

TEST(Busworte, Of_an_unknown_part_that_is_said) {
    const Probe probe = Gelesen(SpezifischAb + 14, {1});
    Busaustausch austausch = Austausch(probe);
    austausch.optikteil = -1;
    EXPECT_EQ(varnoth::Registerangabe(austausch), "Optikteil ?: Reichweite");
}

TEST(Busworte, A_piece_of_a_parameter_says_which_registers_of_it) {
    EXPECT_EQ(Registerangabe(Gelesen(9 + 2, {1})), "Global: Seriennummer (Register 3)");
    EXPECT_EQ(Registerangabe(Gelesen(9 + 2, Werte(4))), "Global: Seriennummer (Register 3-6)");
    EXPECT_EQ(Registerangabe(Gelesen(SpezifischAb + 355, Werte(2))),
              "Optikteil 1: Strahlzustände (Register 3-4)");
}

TEST(Busworte, Several_parameters_are_told_by_the_first_and_the_last) {
    EXPECT_EQ(Registerangabe(Gelesen(24, {1, 2})), "Global: Hardware Version … Software Version");
}

TEST(Busworte, Registers_without_a_name_are_told_by_their_address) {
    EXPECT_EQ(Registerangabe(Gelesen(100, {1})), "Global: 100");
    EXPECT_EQ(Registerangabe(Gelesen(KommunikationAb + 200, {1})), "Kommunikation: 4000H + 200");
    EXPECT_EQ(Registerangabe(Gelesen(0x1234, {1})), "1234H") << "outside of every range";
}

TEST(Busworte, What_was_read_or_written_is_told_in_words) {
    EXPECT_EQ(Worte(Gelesen(SpezifischAb + 14, {3})), "1,00 - 2,5m");
    EXPECT_EQ(Worte(Geschrieben(SpezifischAb + 14, {3})), "1,00 - 2,5m");
    EXPECT_EQ(Worte(Geschrieben(212, {3})), "Optikteil 4");
    EXPECT_EQ(Worte(Geschrieben(189, {3})), "neu starten");
    EXPECT_EQ(Worte(Geschrieben(189, {9})), "9 (0x9)");
    EXPECT_EQ(Worte(Geschrieben(KommunikationAb + 132, {2})), "Autosend starten");
    EXPECT_EQ(Worte(Geschrieben(KommunikationAb + 132, {4})), "Autosend beenden");
    EXPECT_EQ(Worte(Geschrieben(213, {4})), "4 (0x4)");
    EXPECT_EQ(Worte(Gelesen(100, {0x41, 0x42})), "0x41 0x42");
    EXPECT_EQ(Worte(Gelesen(0x1234, {0x41, 0x42})), "0x41 0x42");
}

TEST(Busworte, Beam_states_are_told_as_ranges_of_beams_however_many_were_read) {
    EXPECT_EQ(Worte(Gelesen(SpezifischAb + 353, {0x0700, 0x0001})), "unterbrochen: 1-3, 25");
    EXPECT_EQ(Worte(Gelesen(SpezifischAb + 353, Werte(32))), "unterbrochen: keine");
}

TEST(Busworte, The_language_is_that_of_the_moment) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Registerangabe(Gelesen(SpezifischAb + 14, {1})), "Optical part 1: Sensing distance");
    EXPECT_EQ(Umlauftext(Austausch(Gelesen(5, {1}))), "12.3 ms");
    EXPECT_EQ(Richtungstext(Austausch(Gelesen(5, {1}))), "from controller");
}

TEST(Busworte, What_did_not_come_has_no_value) {
    EXPECT_EQ(Worte(Unbeantwortet(5)), "");
    Probe verspaetet = Gelesen(SpezifischAb + 14, {3});
    verspaetet.ergebnis = Austauschergebnis::Verspaetet;
    EXPECT_EQ(Worte(verspaetet), "") << "it was not believed";
}

TEST(Busworte, An_identification_tells_what_the_controller_calls_itself_and_nothing_of_it_takes_effect) {
    const auto ident = [](const std::string& text) {
        return Probe{.anforderung = IdentifikationsAnforderung(),
                     .empfangen =
                         MitPruefsumme(Bytes({1, 0x11, static_cast<int>(text.size()) + 2, 7, 50}) + text)};
    };
    EXPECT_EQ(Worte(ident("Varnoth;4711;(C)")), "Varnoth, 4711, (C)");
    EXPECT_EQ(Worte(ident("<b>x</b>;\n\x1B;\xFC")), "<b>x</b>, ��, ü");
    EXPECT_EQ(Worte(ident("")), "");
}

TEST(Busworte, Of_what_nobody_asked_for_the_number_of_bytes_is_told) {
    EXPECT_EQ(Worte(Ungefragtes("xyz")), "3 Bytes");
    EXPECT_EQ(Funktionstext(Austausch(Ungefragtes("xyz"))), "ungefragt");
    EXPECT_EQ(Richtungstext(Austausch(Ungefragtes("xyz"))), "vom Gerät");
    EXPECT_EQ(Registerangabe(Ungefragtes("xyz")), "");
}

TEST(Busworte, Function_and_direction_follow_from_the_request) {
    const auto funktion = [](const std::string& anforderung) {
        const Probe probe{.anforderung = anforderung};
        return Funktionstext(Austausch(probe)) + ", " + Richtungstext(Austausch(probe));
    };
    EXPECT_EQ(funktion(LeseAnforderung(1, 5, 1)), "Lesen (03), vom Gerät");
    EXPECT_EQ(funktion(SchreibAnforderung(1, 5, 1, {1})), "Schreiben (10), zum Gerät");
    EXPECT_EQ(funktion(IdentifikationsAnforderung()), "Identifikation (11), hin und her");
    EXPECT_EQ(funktion(Bytes({1, 0x2B, 0, 0})), "Funktion 2B, hin und her");
    const Probe ohne{.art = Austauschart::OhneAntwort, .anforderung = KommandoRahmen(1)};
    EXPECT_EQ(Funktionstext(Austausch(ohne)) + ", " + Richtungstext(Austausch(ohne)),
              "Kommando (09), zum Gerät");
}

TEST(Busworte, Every_result_has_words_of_its_own) {
    using enum Austauschergebnis;
    EXPECT_EQ(Ergebnis(Beantwortet), "beantwortet");
    EXPECT_EQ(Ergebnis(Zeitueberschreitung), "keine Antwort");
    EXPECT_EQ(Ergebnis(Zeitueberschreitung, "xyz"), "unvollständig (3 Bytes)");
    EXPECT_EQ(Ergebnis(Pruefsumme), "Prüfsumme falsch");
    EXPECT_EQ(Ergebnis(Verspaetet), "verspätet");
    EXPECT_EQ(Ergebnis(Fremd), "fremd");
    EXPECT_EQ(Ergebnis(Echo), "Echo");
    EXPECT_EQ(Ergebnis(Abgelehnt, MitPruefsumme(Bytes({1, 0x83, 2}))), "abgelehnt (Code 2)");
    EXPECT_EQ(Ergebnis(Gesendet), "gesendet");
    EXPECT_EQ(Ergebnis(NichtGesendet), "nicht gesendet");
    EXPECT_EQ(Ergebnis(KeinPort), "kein Anschluss");
    const Probe klaerung{.art = Austauschart::Klaerung, .anforderung = IdentifikationsAnforderung()};
    EXPECT_EQ(Ergebnistext(Austausch(klaerung)), "Klärung: beantwortet");
}

TEST(Busworte, Bytes_stand_in_hexadecimal_with_an_arrow_for_their_direction) {
    EXPECT_EQ(Bytetext(Austausch(Gelesen(5, {0x12AB}))), "→ 01 03 00 05 00 01 94 0B  ← 01 03 02 12 AB F5 5B");
    EXPECT_EQ(Bytetext(Austausch(Ungefragtes("\xFF"))), "← FF");
    EXPECT_EQ(Bytetext(Austausch(Unbeantwortet(5))), "→ 01 03 00 05 00 01 94 0B");
}

TEST(Busworte, Of_bytes_that_were_not_kept_the_number_is_told) {
    Busaustausch austausch;
    austausch.empfangen = "ab";
    austausch.zeigbar.empfangen = 2;
    austausch.kamAn = 3000;
    EXPECT_EQ(Empfangsbytes(austausch), "61 62 … und 2998 weitere");
}

TEST(Busworte, What_is_hidden_stays_so_in_words_and_bytes) {
    const Probe probe = Geschrieben(178, {0x4142});
    Busaustausch austausch = Austausch(probe);
    austausch.zeigbar.anforderung = 7;
    EXPECT_EQ(Wertetext(austausch), "verdeckt (Passwort)");
    EXPECT_EQ(Anforderungsbytes(austausch), "01 10 00 B2 00 01 02 •• •• •• ••");
    EXPECT_EQ(Einzelheiten(austausch, {}).find("41 42"), std::string::npos);
}

TEST(Busworte, The_round_trip_is_told_only_where_there_was_one) {
    EXPECT_EQ(Umlauftext(Austausch(Gelesen(5, {1}))), "12,3 ms");
    EXPECT_EQ(Umlauftext(Austausch(Unbeantwortet(5))), "");
    EXPECT_EQ(Umlauftext(Austausch(Ungefragtes("xyz"))), "");
}

TEST(Busworte, Details_have_a_line_for_all_that_is_known_and_none_for_what_is_not) {
    const std::string details = Einzelheiten(Austausch(Unbeantwortet(193)), {});
    EXPECT_NE(details.find("\nRichtung: vom Gerät\nFunktion: Lesen (03)\nRegister: Global: PNP-Ausgang\n"
                           "Gesendet: 01 03 00 C1 00 01 D5 F6\nErgebnis: keine Antwort"),
              std::string::npos)
        << details;
    EXPECT_EQ(details.find("Empfangen"), std::string::npos);
}

TEST(Busworte, Every_name_of_a_register_is_its_own) {
    std::vector<std::string> namen;
    for (const Registername& name : AlleRegisternamen())
        namen.push_back(NameMitBereich(name, 0));
    std::ranges::sort(namen);
    EXPECT_EQ(std::ranges::adjacent_find(namen), namen.end());
    EXPECT_EQ(namen.size(), 31U);
}

} // namespace varnoth
