#include "dialogtest.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "registerabbild.h"
#include "texte.h"

#include <QProgressBar>

namespace varnoth {

using pruefung::Wort;

class frmKonfigurationLesenAusHardwareTest : public pruefung::DialogTest {
protected:
    using Dialog = frmKonfigurationLesenAusHardware;

    static QStringList Felder(QDialog& dialog) {
        return {Feld(dialog, "txtSpeicherbereich"), Feld(dialog, "txtAktuellesRegister"),
                Feld(dialog, "txtRegisteranzahl"), Feld(dialog, "txtLeseversuch")};
    }
    /// The fields as they stand while the given register is asked for.
    QStringList FelderBei(int adresse) {
        Dialog dialog;
        dialog.SetWeiter(True);
        QStringList felder;
        geraet.schweige = [&](const std::string& anforderung) {
            if (felder.isEmpty() && Wort(anforderung, 2) == adresse)
                felder = Felder(dialog);
            return false;
        };
        dialog.exec();
        return felder;
    }
};

TEST_F(frmKonfigurationLesenAusHardwareTest, The_fields_show_range_register_count_and_attempt) {
    EXPECT_EQ(FelderBei(9), QStringList({"Globale Gerätedaten", "9", "10", "1"}));
    EXPECT_EQ(FelderBei(212), QStringList({"Optikteil 0", "212", "1", "1"}));
    EXPECT_EQ(FelderBei(0x2034), QStringList({"Spezifische Gerätedaten", "2000H + 52", "32", "1"}));
    EXPECT_EQ(FelderBei(213), QStringList({"Kommunikations Kanal 0", "213", "1", "1"}));
    EXPECT_EQ(FelderBei(0x404A), QStringList({"Kommunikationsdaten", "4000H + 74", "1", "1"}));
}

TEST_F(frmKonfigurationLesenAusHardwareTest, A_silent_device_is_asked_for_register_0_until_cancel) {
    Dialog dialog;
    QStringList felder;
    Schweige([&](int anforderung) {
        if (anforderung < 12)
            return;
        felder = Felder(dialog);
        dialog.reject();
    });
    dialog.exec();
    EXPECT_EQ(felder, QStringList({"Globale Gerätedaten", "0", "1", "12"}));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmKonfigurationLesenAusHardwareTest, A_finished_transfer_says_so_and_empties_the_other_fields) {
    Dialog dialog;
    ZeigeBisFertig(dialog);
    EXPECT_EQ(Felder(dialog), QStringList({"Übertragung beendet.", "", "", ""}));
    EXPECT_TRUE(Bereit(dialog, "cmdOK"));
    EXPECT_FALSE(Bereit(dialog, "cmdCancel"));
}

TEST_F(frmKonfigurationLesenAusHardwareTest, Closing_a_finished_transfer_is_no_cancel) {
    Dialog dialog;
    ZeigeBisFertig(dialog);
    dialog.reject();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(dialog.GetVollstaendig(), True);
}

TEST_F(frmKonfigurationLesenAusHardwareTest, The_progress_bar_runs_over_all_exchanges) {
    Dialog dialog;
    const auto& balken = Kind<QProgressBar>(dialog, "pbFortschritt");
    int beiKommunikation = 0;
    geraet.schweige = [&](const std::string& anforderung) {
        if (Wort(anforderung, 2) == 213)
            beiKommunikation = balken.value();
        return false;
    };
    ZeigeBisFertig(dialog);
    EXPECT_EQ(beiKommunikation, 7 + 4 * (1 + 9));
    EXPECT_EQ(balken.value(), balken.maximum());
}

TEST_F(frmKonfigurationLesenAusHardwareTest, The_captions_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    Dialog dialog;
    EXPECT_EQ(Beschriftung(dialog, "lblSpeicherbereich"), "Memory range: ");
    EXPECT_EQ(Beschriftung(dialog, "lblAktuellesRegister"), "Register:");
    EXPECT_EQ(Beschriftung(dialog, "lblRegisteranzahl"), "Register count:");
    EXPECT_EQ(Beschriftung(dialog, "lblLeseversuch"), "Read attempt:");
    EXPECT_EQ(Kind<QPushButton>(dialog, "cmdOK").text(), "OK");
    EXPECT_EQ(Kind<QPushButton>(dialog, "cmdCancel").text(), "Cancel");
}

} // namespace varnoth
