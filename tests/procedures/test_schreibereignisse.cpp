#include "ereignisse.h"

#include "ablauftest.h"
#include "einzelwert.h"
#include "hardwareinitialisierung.h"
#include "hardwarereset.h"
#include "initialisierungsmitschrift.h"
#include "pruefumgebung.h"
#include "registerzugriff.h"
#include "schreibvorgang.h"
#include "servicetext.h"
#include "transfermitschrift.h"

namespace varnoth {

namespace {

constexpr const char* Passwort = "ABCDEFGHIJKLMNOP";

struct Ohne : Resetanzeige {
    void ZeigeWiederholung(int /*versuch*/) override {}
    bool Abgebrochen() override { return abbruch; }

    bool abbruch = false;
};

} // namespace

class Schreibereignisse : public pruefung::AblaufTest {
protected:
    static std::uint64_t Anzahl() { return modEreignisse::Alle().Ende(); }
    static const Ereignis& Letztes() { return modEreignisse::Alle().Hole(Anzahl() - 1); }
};

TEST_F(Schreibereignisse, A_written_configuration_is_told_with_its_registers) {
    pruefung::Mitschrift anzeige;
    EXPECT_TRUE(SchreibeKonfiguration(anzeige, Ablage::Fluechtig));
    ASSERT_EQ(Anzahl(), 1U);
    EXPECT_EQ(Letztes().art, Ereignisart::KonfigurationGeschrieben);
    EXPECT_TRUE(Letztes().gelungen);
    EXPECT_EQ(Letztes().anzahl, 1U + 4 * 39 + 34);
}

TEST_F(Schreibereignisse, A_single_register_is_told_by_its_address_and_never_by_its_value) {
    EXPECT_EQ(SchreibeEinzelwert({.adressOffset = 0x2000, .adresse = "14"}, "4711"), "OK");
    ASSERT_EQ(Anzahl(), 1U);
    EXPECT_EQ(Letztes().art, Ereignisart::RegisterGeschrieben);
    EXPECT_EQ(Letztes().alt, 0x200E);
    EXPECT_EQ(Letztes().neu, 0);
    EXPECT_TRUE(Letztes().gelungen);
    SchweigeImmer();
    SchreibeEinzelwert({.adresse = "193"}, "1");
    EXPECT_EQ(Anzahl(), 1U) << "the part could not be selected: nothing was written";
}

TEST_F(Schreibereignisse, Registers_written_past_the_image_are_told) {
    Ohne anzeige;
    EXPECT_TRUE(SchreibeRegister(anzeige, {Speicherbereich::Kommunikationsdaten, 4, 2}, {1, 2}));
    ASSERT_EQ(Anzahl(), 1U);
    EXPECT_EQ(Letztes().alt, 0x4004);
    EXPECT_EQ(Letztes().anzahl, 2U);
}

TEST_F(Schreibereignisse, A_restart_is_told_and_whether_it_was_confirmed) {
    Ohne anzeige;
    SetzeHardwareZurueck(anzeige);
    EXPECT_EQ(Letztes().art, Ereignisart::Neustart);
    EXPECT_TRUE(Letztes().gelungen);
    SchweigeImmer();
    anzeige.abbruch = true;
    SetzeHardwareZurueck(anzeige);
    EXPECT_EQ(Anzahl(), 2U);
    EXPECT_FALSE(Letztes().gelungen);
}

TEST_F(Schreibereignisse, Factory_data_are_told_once_for_all_their_steps_and_not_without_a_password) {
    pruefung::Initialisierungsmitschrift anzeige;
    EXPECT_FALSE(InitialisiereHardware(anzeige, {}));
    EXPECT_EQ(Anzahl(), 0U);
    pruefung::PruefEinstellungen einstellungen;
    modService::SetzeServiceText(Passwort);
    EXPECT_TRUE(InitialisiereHardware(anzeige, {}));
    ASSERT_EQ(Anzahl(), 1U);
    EXPECT_EQ(Letztes().art, Ereignisart::Werksdaten);
    EXPECT_TRUE(Letztes().gelungen);
}

TEST_F(Schreibereignisse, What_was_sent_and_never_confirmed_is_told_as_failed) {
    constexpr auto Auswahl = Geraeteadresse(Speicherbereich::GlobaleGeraetedaten, global::Optikteilauswahl);
    geraet.schweige = [](const std::string& bytes) { return pruefung::Wort(bytes, 2) != Auswahl; };
    SchreibeEinzelwert({.adresse = "193"}, "1");
    ASSERT_EQ(Anzahl(), 1U);
    EXPECT_FALSE(Letztes().gelungen);
    Ohne anzeige;
    anzeige.abbruch = true;
    EXPECT_FALSE(SchreibeRegister(anzeige, {Speicherbereich::Kommunikationsdaten, 4, 2}, {1, 2}));
    ASSERT_EQ(Anzahl(), 2U);
    EXPECT_FALSE(Letztes().gelungen);
    pruefung::Mitschrift transfer;
    transfer.abbruch = true;
    EXPECT_FALSE(SchreibeKonfiguration(transfer, Ablage::Fluechtig));
    ASSERT_EQ(Anzahl(), 3U);
    EXPECT_FALSE(Letztes().gelungen);
    EXPECT_EQ(Letztes().anzahl, 0U);
    pruefung::PruefEinstellungen einstellungen;
    modService::SetzeServiceText(Passwort);
    pruefung::Initialisierungsmitschrift werksdaten;
    werksdaten.abbruchBeiVersuch = 2;
    EXPECT_FALSE(InitialisiereHardware(werksdaten, {}));
    ASSERT_EQ(Anzahl(), 4U);
    EXPECT_FALSE(Letztes().gelungen);
}

} // namespace varnoth
