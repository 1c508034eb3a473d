#include "firmware.h"

#include "pruefgeraet.h"
#include "schnittstelle.h"
#include "texte.h"
#include "transaktionen.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace varnoth {

using pruefung::Bytes;
using pruefung::MitPruefsumme;
using testing::ElementsAre;
using testing::IsEmpty;

class Firmware : public testing::Test, private Firmwareziel {
protected:
    Firmware() { einstellungen.texte[{"Flasher", "Parameter"}] = "COM1 varnoth.bin"; }

    void Aktualisiere() { AktualisiereFirmware(*this); }
    std::vector<std::string> Gezeigt() const {
        std::vector<std::string> texte(umgebung.meldungen.size());
        std::ranges::transform(umgebung.meldungen, texte.begin(), &Meldung::text);
        return texte;
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    bool identGelingt = true;
    bool identGueltig = true;
    std::string startfehler;
    std::vector<std::string> gestartet;
    bool offenBeimStart = false;

private:
    bool Identifiziere() override {
        if (!identGelingt || !identGueltig)
            return identGelingt;
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        modSchnittstelle::CloseCommPort();
        port.gesendet.clear();
        return true;
    }
    std::string StarteFlasher(const std::string& parameter) override {
        gestartet.push_back(parameter);
        offenBeimStart = port.offen;
        return startfehler;
    }
};

TEST_F(Firmware, Without_a_parameter_in_the_settings_nothing_happens) {
    einstellungen.texte.clear();
    Aktualisiere();
    EXPECT_THAT(Gezeigt(), IsEmpty());
    EXPECT_THAT(gestartet, IsEmpty());
}

TEST_F(Firmware, Of_a_parameter_the_first_80_characters_are_handed_over) {
    einstellungen.texte[{"Flasher", "Parameter"}] = std::string(100, 'p');
    Aktualisiere();
    EXPECT_EQ(gestartet, std::vector<std::string>{std::string(80, 'p')});
}

TEST_F(Firmware, It_asks_first_and_Enter_is_Cancel) {
    Aktualisiere();
    ASSERT_FALSE(umgebung.meldungen.empty());
    EXPECT_EQ(umgebung.meldungen.front(), (Meldung{.text = "Soll das Firmware update durchgeführt werden?",
                                                   .titel = LadeText(TextAchtung),
                                                   .symbol = Symbol::Warnung,
                                                   .knoepfe = Knoepfe::OkAbbrechen,
                                                   .abbrechenVorgegeben = true}));
}

TEST_F(Firmware, Cancel_at_the_question_leaves_the_controller_alone) {
    umgebung.antworten = {Antwort::Abbrechen};
    Aktualisiere();
    EXPECT_THAT(port.gesendet, IsEmpty());
    EXPECT_THAT(gestartet, IsEmpty());
}

TEST_F(Firmware, A_cancelled_identification_ends_the_command) {
    identGelingt = false;
    Aktualisiere();
    EXPECT_THAT(port.gesendet, IsEmpty());
    EXPECT_THAT(gestartet, IsEmpty());
}

TEST_F(Firmware, The_controller_is_made_ready_before_the_program_starts_with_the_port_free) {
    Aktualisiere();
    EXPECT_THAT(port.gesendet, ElementsAre(MitPruefsumme(Bytes({modModbus::GetSlaveAdresse(), 0x09}))));
    EXPECT_THAT(gestartet, ElementsAre("COM1 varnoth.bin"));
    EXPECT_FALSE(offenBeimStart);
}

TEST_F(Firmware, Without_a_valid_identification_the_program_starts_at_once_and_nothing_is_sent) {
    identGueltig = false;
    Aktualisiere();
    EXPECT_THAT(port.gesendet, IsEmpty());
    EXPECT_THAT(gestartet, ElementsAre("COM1 varnoth.bin"));
}

TEST_F(Firmware, A_program_that_cannot_be_started_gives_the_reason_in_a_warning) {
    startfehler = "Flasher.exe: no such file";
    Aktualisiere();
    EXPECT_EQ(umgebung.meldungen.back(),
              (Meldung{.text = "Flasher.exe: no such file", .titel = LadeText(TextAchtung)}));
}

} // namespace varnoth
