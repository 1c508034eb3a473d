// The service commands: single registers, restart, factory data, firmware, calculator.

#include "programmtest.h"

#include "polling.h"
#include "transaktionen.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <gmock/gmock.h>

#include <deque>

namespace varnoth::pruefung {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DienstImBetrieb : public ProgrammTest {
protected:
    static constexpr const char* Passwort = "Varnoth-Service1"; // of the simulated controller

    void StarteMitDienst(const QString& passwort = Passwort, const QStringList& optionen = {}) {
        SchliesseGeraetAn(optionen);
        Starte({"/P" + passwort});
        Verbinde();
        ASSERT_TRUE(LaufeBis(IstLive));
    }
    static QLineEdit& Feld(const QString& fenster, const QString& name) {
        return Kind<QLineEdit>(*SichtbaresFenster(fenster), name);
    }

    /// One access of the single register dialog: what is chosen and typed, and which button is pressed.
    struct Zugriff {
        int bereich;
        int teil;
        QString adresse;
        QString inhalt;
        const char* knopf;
    };
    /// Makes the accesses one after the other in the dialog, closes it, and gives what the content field
    /// showed after each.
    std::vector<std::string> Einzelwerte(const std::vector<Zugriff>& zugriffe) {
        offene.assign(zugriffe.begin(), zugriffe.end());
        gezeigt.clear();
        InFenster(Einzeldialog, [this](QWidget&) { NaechsterZugriff(); });
        EXPECT_TRUE(FuehreAus("mnuEinzelwerteLesenSchreiben"));
        return gezeigt;
    }

private:
    static constexpr const char* Einzeldialog = "frmEinzelwerteLesenSchreiben";
    static constexpr const char* NochNichts = "...";

    void NaechsterZugriff() {
        QWidget& dialog = *SichtbaresFenster(Einzeldialog);
        if (offene.empty()) {
            Klicke(dialog, "cmdCancel");
            return;
        }
        const Zugriff zugriff = offene.front();
        offene.pop_front();
        Kind<QAbstractButton>(dialog, QStringLiteral("OptAdressOffset_%1").arg(zugriff.bereich)).click();
        Kind<QAbstractButton>(dialog, QStringLiteral("optSubUnit_%1").arg(zugriff.teil)).click();
        Feld(Einzeldialog, "txtAdresse").setText(zugriff.adresse);
        Feld(Einzeldialog, "txtInhalt").setText(zugriff.inhalt);
        Klicke(dialog, zugriff.knopf);
        fahrer.Sobald([vorher = zugriff.inhalt] { return Feld(Einzeldialog, "txtInhalt").text() != vorher; },
                      [this] {
                          gezeigt.push_back(Feld(Einzeldialog, "txtInhalt").text().toStdString());
                          NaechsterZugriff();
                      });
    }

    std::deque<Zugriff> offene;
    std::vector<std::string> gezeigt;
};

TEST_F(DienstImBetrieb, A_register_of_each_range_is_read) {
    StarteMitDienst();
    geraet->Befehl("set global 193 4660");
    geraet->Befehl("set communication 126 10");
    geraet->Befehl("set specific 0 70 77");
    EXPECT_THAT(
        Einzelwerte(
            {{0, 0, "193", "", "cmdLesen"}, {2, 0, "126", "", "cmdLesen"}, {1, 0, "&H46", "", "cmdLesen"}}),
        ElementsAre("&H1234", "&HA", "&H4D"));
}

TEST_F(DienstImBetrieb, The_register_of_each_part_is_read) {
    StarteMitDienst();
    for (const std::string teil : {"0", "1", "2", "3"})
        geraet->Befehl("set specific " + teil + " 70 6" + teil);
    EXPECT_THAT(Einzelwerte({{1, 0, "70", "", "cmdLesen"},
                             {1, 1, "70", "", "cmdLesen"},
                             {1, 2, "70", "", "cmdLesen"},
                             {1, 3, "70", "", "cmdLesen"}}),
                ElementsAre("&H3C", "&H3D", "&H3E", "&H3F"));
}

TEST_F(DienstImBetrieb, A_register_of_each_range_and_part_is_written) {
    StarteMitDienst();
    EXPECT_THAT(Einzelwerte({{0, 0, "193", "&H1234", "cmdSchreiben"},
                             {1, 0, "70", "60", "cmdSchreiben"},
                             {1, 1, "70", "61", "cmdSchreiben"},
                             {1, 2, "70", "62", "cmdSchreiben"},
                             {1, 3, "70", "63", "cmdSchreiben"},
                             {2, 0, "126", "12", "cmdSchreiben"}}),
                ElementsAre("OK", "OK", "OK", "OK", "OK", "OK"));
    EXPECT_EQ(geraet->Register("global 193"), 0x1234);
    for (int teil = 0; teil < 4; ++teil)
        EXPECT_EQ(geraet->Register("specific " + std::to_string(teil) + " 70"), 60 + teil);
    EXPECT_EQ(geraet->Register("communication 126"), 12);
}

TEST_F(DienstImBetrieb, Live_data_runs_again_after_single_values) {
    StarteMitDienst();
    Einzelwerte({{0, 0, "0", "", "cmdLesen"}});
    EXPECT_TRUE(LaufeBis(IstLive));
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
}

TEST_F(DienstImBetrieb,
       A_restart_wakes_the_controller_with_its_stored_configuration_and_leaves_live_data_off) {
    GeheLive();
    geraet->Befehl("set global 193 77");
    InFenster("frmResetHardware", [](QWidget& dialog) { Klicke(dialog, "cmdOK"); });
    ASSERT_TRUE(FuehreAus("mnuResetHardware"));
    EXPECT_NE(geraet->Register("global 193"), 77);
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(DienstImBetrieb, A_restart_that_is_cancelled_leaves_the_controller_alone) {
    GeheLive();
    geraet->Befehl("set global 193 77");
    InFenster("frmResetHardware", [](QWidget& dialog) { Klicke(dialog, "cmdCancel"); });
    ASSERT_TRUE(FuehreAus("mnuResetHardware"));
    EXPECT_EQ(geraet->Register("global 193"), 77);
}

TEST_F(DienstImBetrieb, Factory_data_with_the_right_password_outlive_a_restart_of_the_controller) {
    StarteMitDienst();
    InFenster("frmInitHardware", [](QWidget& dialog) {
        Kind<QLineEdit>(dialog, "txtSeriennummer").setText("AB");
        Kind<QLineEdit>(dialog, "txtJahr").setText("2009");
        Kind<QLineEdit>(dialog, "txtMonat").setText("05");
        Kind<QLineEdit>(dialog, "txtTag").setText("13");
        Kind<QLineEdit>(dialog, "txtHauptversion").setText("1");
        Kind<QLineEdit>(dialog, "txtUnterversion").setText("5");
        Klicke(dialog, "cmdSchreiben");
    });
    ASSERT_TRUE(FuehreAus("mnuInitHardware"));
    geraet->Befehl("restart");
    EXPECT_EQ(geraet->Register("global 9"), 0x4142);
    EXPECT_EQ(geraet->Register("global 18"), 0x2020);
    EXPECT_EQ(geraet->Register("global 20"), 0x3230);
    EXPECT_EQ(geraet->Register("global 23"), 0x3133);
    EXPECT_EQ(geraet->Register("global 24"), 261);
    EXPECT_TRUE(LaufeBis(IstLive));
}

TEST_F(DienstImBetrieb, Factory_data_with_a_wrong_password_stay_in_their_step_and_count_until_cancel) {
    StarteMitDienst("wrong-password-1");
    const int vorher = geraet->Register("global 9");
    std::string zustand;
    InFenster("frmInitHardware", [](QWidget& dialog) {
        Kind<QLineEdit>(dialog, "txtSeriennummer").setText("AB");
        Klicke(dialog, "cmdSchreiben");
    });
    fahrer.Sobald(
        [] {
            return SichtbaresFenster("frmInitHardware") != nullptr &&
                   Feld("frmInitHardware", "txtCounter").text().toInt() >= 5;
        },
        [&zustand] {
            zustand = Feld("frmInitHardware", "txtUebertragungszustand").text().toStdString();
            Klicke(*SichtbaresFenster("frmInitHardware"), "cmdCancel");
        });
    ASSERT_TRUE(FuehreAus("mnuInitHardware"));
    EXPECT_THAT(zustand, testing::AnyOf("Passwort", "Seriennummer"));
    EXPECT_EQ(geraet->Register("global 9"), vorher);
}

TEST_F(DienstImBetrieb, The_password_is_in_no_file_of_the_program) {
    StarteMitDienst();
    InFenster("frmInitHardware", [](QWidget& dialog) { Klicke(dialog, "cmdSchreiben"); });
    ASSERT_TRUE(FuehreAus("mnuInitHardware"));
    Beende();
    const QStringList dateien = QDir(ordner.path()).entryList(QDir::Files | QDir::NoSymLinks);
    EXPECT_TRUE(dateien.contains("varnoth.ini"));
    for (const QString& name : dateien) {
        QFile datei(Pfad(name));
        ASSERT_TRUE(datei.open(QIODevice::ReadOnly)) << name.toStdString();
        EXPECT_FALSE(datei.readAll().contains(Passwort)) << name.toStdString();
    }
}

TEST_F(DienstImBetrieb, A_firmware_update_starts_the_program_beside_this_one_with_its_parameter) {
    SchliesseGeraetAn();
    SchreibeEinstellungen(LiesEinstellungen() + "[Flasher]\nParameter=COM1 varnoth.bin\n");
    QFile flasher(Pfad("Flasher.exe"));
    ASSERT_TRUE(flasher.open(QIODevice::WriteOnly));
    flasher.write("#!/bin/sh\necho \"$@\" > \"$0.neu\"\nmv \"$0.neu\" \"$0.txt\"\n");
    flasher.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    flasher.close();
    Starte();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    ASSERT_TRUE(FuehreAus("mnuFlasher"));
    EXPECT_THAT(Meldungen(), ElementsAre("Soll das Firmware update durchgeführt werden?"));
    EXPECT_THAT(geraet->Befehl("stats"), HasSubstr("09=1"));
    ASSERT_TRUE(WarteBis([this] { return QFile::exists(Pfad("Flasher.exe.txt")); }));
    QFile mitschrift(Pfad("Flasher.exe.txt"));
    ASSERT_TRUE(mitschrift.open(QIODevice::ReadOnly));
    EXPECT_EQ(mitschrift.readAll(), "COM1 varnoth.bin\n");
    EXPECT_FALSE(HatLeitungOffen());
}

TEST_F(DienstImBetrieb, A_firmware_update_without_its_program_says_so) {
    SchliesseGeraetAn();
    SchreibeEinstellungen(LiesEinstellungen() + "[Flasher]\nParameter=COM1\n");
    Starte();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    ASSERT_TRUE(FuehreAus("mnuFlasher"));
    ASSERT_EQ(Meldungen().size(), 2U);
    EXPECT_THAT(Meldungen().back(), HasSubstr("Flasher.exe"));
}

TEST_F(DienstImBetrieb, A_firmware_update_without_a_parameter_does_nothing) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuFlasher"));
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(DienstImBetrieb, The_calculator_opens_with_the_first_part_of_the_controller) {
    GeheLive({"--beams", "0,64,0,0"});
    bool gewaehlt = false;
    InFenster("frmSimulation", [&gewaehlt](QWidget& dialog) {
        gewaehlt = Kind<QAbstractButton>(dialog, "optKx_1").isChecked();
        Klicke(dialog, "cmdCancel");
    });
    ASSERT_TRUE(FuehreAus("mnuSimulation"));
    EXPECT_TRUE(gewaehlt);
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

} // namespace varnoth::pruefung
