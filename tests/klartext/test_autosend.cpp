#include "autosend.h"
#include "bustyp.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

constexpr int MaxModbus = 255;
constexpr int MaxProfibus = 127;

constexpr std::optional<Autosendart> NichtAngeboten = std::nullopt;

} // namespace

TEST(Autosend, The_low_seven_bits_are_the_mode) {
    const std::pair<std::int32_t, std::optional<Autosendart>> faelle[] = {
        {0x0000, Autosendart::Keines},
        {0x0001, Autosendart::OhneTrigger},
        {0x0002, NichtAngeboten},
        {0x0003, Autosendart::OhneTriggerModbus},
        {0x0004, Autosendart::MitTriggerModbus},
        {0x0005, NichtAngeboten},
        {0x007F, NichtAngeboten},
        {0xFF83, Autosendart::OhneTriggerModbus},
    };
    for (const auto& [wert, art] : faelle)
        EXPECT_EQ(AutosendAus(wert, MaxModbus).art, art) << wert;
}

TEST(Autosend, Register_0x0103_is_autosend_in_Modbus_format_with_rate_1) {
    const Autosendeinstellung autosend = AutosendAus(0x0103, MaxModbus);
    EXPECT_EQ(autosend.art, Autosendart::OhneTriggerModbus);
    EXPECT_EQ(autosend.rate, 1);
    EXPECT_FALSE(autosend.strahldatenMerken);
}

TEST(Autosend, Bit_7_remembers_interrupted_beams) {
    EXPECT_TRUE(AutosendAus(0x0083, MaxModbus).strahldatenMerken);
    EXPECT_FALSE(AutosendAus(0xFF03, MaxModbus).strahldatenMerken);
}

TEST(Autosend, A_rate_above_the_limit_of_the_bus_counts_as_the_limit) {
    EXPECT_EQ(AutosendAus(0xC803, MaxModbus).rate, 200);
    EXPECT_EQ(AutosendAus(0xC803, MaxProfibus).rate, 127);
}

TEST(Autosend, Only_modes_without_trigger_have_a_rate) {
    EXPECT_EQ(AutosendAus(0x0700, MaxModbus).rate, 0);
    EXPECT_EQ(AutosendAus(0x0701, MaxModbus).rate, 7);
    EXPECT_EQ(AutosendAus(0x0104, MaxModbus).rate, 0);
}

TEST(Autosend, The_trigger_mode_sends_at_once_or_after_a_complete_scan) {
    EXPECT_EQ(AutosendAus(0x0004, MaxModbus).trigger, Triggerstart::Sofort);
    EXPECT_EQ(AutosendAus(0x0104, MaxModbus).trigger, Triggerstart::NachVollstaendigemScan);
    EXPECT_EQ(AutosendAus(0x0204, MaxModbus).trigger, std::nullopt);
}

TEST(Autosend, The_register_is_put_together_from_mode_flag_and_rate_or_trigger) {
    using enum Autosendart;
    const std::pair<Autosendeinstellung, std::int32_t> faelle[] = {
        {{Keines, false, 5, Triggerstart::NachVollstaendigemScan}, 0x0000},
        {{Keines, true, 5, {}}, 0x0080},
        {{OhneTrigger, false, 1, {}}, 0x0101},
        {{OhneTrigger, true, 255, {}}, 0xFF81},
        {{OhneTrigger, false, 0, {}}, 0x0001},
        {{OhneTriggerModbus, false, 1, {}}, 0x0103},
        {{OhneTriggerModbus, true, 12, Triggerstart::NachVollstaendigemScan}, 0x0C83},
        {{MitTriggerModbus, false, 9, Triggerstart::Sofort}, 0x0004},
        {{MitTriggerModbus, true, 9, Triggerstart::NachVollstaendigemScan}, 0x0184},
        {{MitTriggerModbus, false, 9, {}}, 0x0004},
        {{NichtAngeboten, true, 9, {}}, 0x0080},
    };
    for (const auto& [autosend, wert] : faelle)
        EXPECT_EQ(Registerwert(autosend), wert);
}

TEST(Autosend, Reading_and_putting_together_changes_no_offered_register_value) {
    for (const std::int32_t merken : {0, 0x80}) {
        for (const std::int32_t art : {1, 3})
            for (std::int32_t rate = 0; rate <= MaxModbus; ++rate) {
                const std::int32_t wert = rate * 256 + merken + art;
                EXPECT_EQ(Registerwert(AutosendAus(wert, MaxModbus)), wert);
            }
        for (const std::int32_t wert : {0x0000, 0x0004, 0x0104})
            EXPECT_EQ(Registerwert(AutosendAus(wert + merken, MaxModbus)), wert + merken);
    }
}

TEST(Autosend, On_a_Profibus_only_the_rate_is_written) {
    EXPECT_EQ(RegisterwertProfibus(0x0183, 12), 0x0C83);
    EXPECT_EQ(RegisterwertProfibus(0x0102, 12), 0x0C02);
}

TEST(Autosend, On_a_Profibus_the_register_stays_as_it_is_without_a_rate) {
    EXPECT_EQ(RegisterwertProfibus(0x0184, 0), 0x0184);
}

TEST(Autosend, Each_mode_has_its_class) {
    EXPECT_EQ(AutosendKlasse(Autosendart::Keines), -1);
    EXPECT_EQ(AutosendKlasse(Autosendart::OhneTrigger), 1);
    EXPECT_EQ(AutosendKlasse(Autosendart::OhneTriggerModbus), 1);
    EXPECT_EQ(AutosendKlasse(Autosendart::MitTriggerModbus), 2);
    EXPECT_EQ(AutosendKlasse(NichtAngeboten), -1);
}

TEST(Autosend, Sending_can_be_started_in_the_modes_without_trigger) {
    EXPECT_FALSE(IstStartbar(Autosendart::Keines));
    EXPECT_TRUE(IstStartbar(Autosendart::OhneTrigger));
    EXPECT_TRUE(IstStartbar(Autosendart::OhneTriggerModbus));
    EXPECT_FALSE(IstStartbar(Autosendart::MitTriggerModbus));
    EXPECT_FALSE(IstStartbar(NichtAngeboten));
}

TEST(Bustyp, An_unknown_bus_counts_as_a_Modbus) {
    EXPECT_EQ(MaxStationsadresse(7), 240);
    EXPECT_EQ(MaxAutosendrate(7), 255);
}

TEST(Bustyp, A_bus_type_of_1_limits_station_addresses_to_126_and_rates_to_127) {
    EXPECT_EQ(MaxStationsadresse(bustyp::Profibus), 126);
    EXPECT_EQ(MaxAutosendrate(bustyp::Profibus), 127);
    EXPECT_EQ(MaxStationsadresse(bustyp::Modbus), 240);
    EXPECT_EQ(MaxAutosendrate(bustyp::Modbus), 255);
}

TEST(Autosendformat, Bits_8_to_11_are_the_byte_format) {
    using enum Byteformat;
    EXPECT_EQ(ByteformatAus(0x30F), ZweiStopbitsOhneParitaet);
    EXPECT_EQ(ByteformatAus(0x50F), EinStopbitUngerade);
    EXPECT_EQ(ByteformatAus(0xF90F), EinStopbitGerade);
    for (const std::int32_t wert : {0x00F, 0x100, 0x200, 0x400, 0x700, 0xF0F})
        EXPECT_EQ(ByteformatAus(wert), std::nullopt) << wert;
}

TEST(Autosendformat, The_register_is_baud_code_and_byte_format) {
    using enum Byteformat;
    EXPECT_EQ(Autosendformatwert(15, ZweiStopbitsOhneParitaet), 783);
    EXPECT_EQ(Autosendformatwert(12, EinStopbitUngerade), 12 + 1280);
    EXPECT_EQ(Autosendformatwert(16, EinStopbitGerade), 16 + 2304);
    EXPECT_EQ(Autosendformatwert(16, std::nullopt), 16);
}

} // namespace varnoth
