// The service procedures against the simulated controller.

#include "einzelwert.h"
#include "hardwarereset.h"
#include "initialisierungsmitschrift.h"
#include "pruefport.h"
#include "servicetext.h"
#include "simulator.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

const Werksdaten Neu{.seriennummer = "VN-2009-0042",
                     .jahr = "2009",
                     .monat = "05",
                     .tag = "13",
                     .hauptversion = "1",
                     .unterversion = "5"};

struct Resetmitschrift : Resetanzeige {
    void ZeigeWiederholung(int versuch) override { wiederholungen = versuch; }
    bool Abgebrochen() override { return false; }

    int wiederholungen = 0;
};

} // namespace

class DienstAmSimulator : public testing::Test {
protected:
    DienstAmSimulator() {
        port.antworte = [this](const std::string& anforderung) { return Frage(anforderung); };
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        modService::SetzeServiceText(simulator::Aufbau{}.passwort);
    }

    static simulator::Aufbau Ungetaktet() {
        simulator::Aufbau aufbau;
        aufbau.getaktet = false;
        return aufbau;
    }
    /// The reply is there at once. Each request is a second later than the one before, so that the pause
    /// between two frames is kept.
    std::vector<pruefung::Stueck> Frage(const std::string& anforderung) {
        jetzt += std::chrono::seconds(1);
        const auto* const zeichen = reinterpret_cast<const std::uint8_t*>(anforderung.data());
        geraet.Empfange({zeichen, anforderung.size()}, jetzt);
        const auto antwort = geraet.Entnimm(Zeit::max());
        return {{Zeit{0}, std::string(antwort.begin(), antwort.end())}};
    }
    Werte Lies(std::uint16_t adresse, std::uint16_t anzahl) {
        Werte werte(anzahl);
        EXPECT_EQ(modModbus::RTUModeH03LeseAnforderung(adresse, anzahl, werte), True) << adresse;
        return werte;
    }
    void StarteNeu() { EXPECT_EQ(geraet.Befehl("restart", jetzt), "ok"); }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    simulator::Simulator geraet{Ungetaktet()};
    Zeit jetzt{0};
};

TEST_F(DienstAmSimulator, Factory_data_with_the_right_password_are_there_after_a_restart) {
    pruefung::Initialisierungsmitschrift anzeige;
    EXPECT_TRUE(InitialisiereHardware(anzeige, Neu));
    StarteNeu();
    EXPECT_EQ(Lies(9, 10), PackeSeriennummer(Neu));
    EXPECT_EQ(Lies(20, 4), PackeHerstelldatum(Neu));
    EXPECT_EQ(Lies(24, 1), PackeHardwareversion(Neu));
}

TEST_F(DienstAmSimulator, A_wrong_password_keeps_the_serial_number_step_counting_until_cancel) {
    modService::SetzeServiceText("Varnoth-Service2");
    const Werte davor = Lies(9, 10);
    pruefung::Initialisierungsmitschrift anzeige;
    anzeige.abbruchBeiVersuch = 4;
    EXPECT_FALSE(InitialisiereHardware(anzeige, Neu));
    EXPECT_EQ(anzeige.schritte, (std::vector<std::string>{"Passwort", "Seriennummer"}));
    EXPECT_EQ(anzeige.versuche, (std::vector<int>{1, 1, 2, 3, 4}));
    EXPECT_EQ(Lies(9, 10), davor);
}

TEST_F(DienstAmSimulator, A_cancel_before_the_last_step_leaves_factory_data_that_a_restart_forgets) {
    const Werte davor = Lies(24, 1);
    pruefung::Initialisierungsmitschrift anzeige;
    anzeige.abbruchBeiSchritt = 6;
    EXPECT_FALSE(InitialisiereHardware(anzeige, Neu));
    EXPECT_EQ(Lies(24, 1), Werte{261});
    StarteNeu();
    EXPECT_EQ(Lies(24, 1), davor);
}

TEST_F(DienstAmSimulator, A_restart_is_confirmed_and_forgets_what_was_not_stored) {
    const Werte davor = Lies(193, 1);
    EXPECT_EQ(SchreibeEinzelwert({.adresse = "193"}, std::to_string(davor[0] ^ 1)), "OK");
    Resetmitschrift anzeige;
    EXPECT_TRUE(SetzeHardwareZurueck(anzeige));
    EXPECT_EQ(anzeige.wiederholungen, 0);
    EXPECT_EQ(Lies(193, 1), davor);
}

TEST_F(DienstAmSimulator, A_register_of_each_range_and_part_is_written_and_read_back) {
    const std::pair<int, const char*> gelesene[] = {{0, "193"}, {1, "13"}, {2, "8"}};
    for (const auto& [bereich, adresse] : gelesene)
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            EXPECT_EQ(SchreibeEinzelwert({teil, BereichsOffset(bereich), adresse}, std::to_string(teil + 1)),
                      "OK");
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(LiesEinzelwert({teil, BereichsOffset(1), "13"}), "&H" + std::to_string(teil + 1));
    EXPECT_EQ(LiesEinzelwert({0, BereichsOffset(0), "193"}), "&H4");
    EXPECT_EQ(LiesEinzelwert({0, BereichsOffset(2), "8"}), "&H4");
}

TEST_F(DienstAmSimulator, A_register_that_the_controller_refuses_shows_question_marks) {
    EXPECT_EQ(LiesEinzelwert({.adresse = "256"}), "???");
    EXPECT_EQ(SchreibeEinzelwert({.adresse = "0"}, "1"), "???");
}

} // namespace varnoth
