#include "dialogtest.h"
#include "frmHoleLichtleistenInfo.h"
#include "texte.h"

#include <QProgressBar>

namespace varnoth {

class frmHoleLichtleistenInfoTest : public pruefung::DialogTest {
protected:
    static QStringList Zeilen(QDialog& dialog) {
        QStringList zeilen;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            zeilen += Beschriftung(dialog, ("lblLichtleiste_" + std::to_string(teil)).c_str());
        return zeilen;
    }
};

TEST_F(frmHoleLichtleistenInfoTest, A_line_tells_for_each_part_whether_it_is_present) {
    geraet.Spezifisch(0, 44) = 0x0080;
    geraet.Spezifisch(1, 44) = 0x0040;
    geraet.Spezifisch(3, 44) = 0x00C0;
    frmHoleLichtleistenInfo dialog;
    ZeigeBisFertig(dialog);
    EXPECT_EQ(Zeilen(dialog),
              QStringList({"Optikteil 0:  vorhanden,  ", "Optikteil 1:  nicht vorhanden,  ",
                           "Optikteil 2:  nicht vorhanden,  ", "Optikteil 3:  vorhanden,  "}));
}

TEST_F(frmHoleLichtleistenInfoTest, The_lines_are_empty_before_their_part_is_asked) {
    frmHoleLichtleistenInfo dialog;
    EXPECT_EQ(Zeilen(dialog), QStringList({"", "", "", ""}));
}

TEST_F(frmHoleLichtleistenInfoTest, A_cancel_leaves_the_later_lines_empty) {
    frmHoleLichtleistenInfo dialog;
    BeiAnforderung([&](int anforderung) {
        if (anforderung == 3)
            dialog.reject();
    });
    dialog.exec();
    EXPECT_EQ(Zeilen(dialog), QStringList({"Optikteil 0:  nicht vorhanden,  ", "Optikteil 1:  ", "", ""}));
    EXPECT_EQ(dialog.GetCancel(), True);
}

TEST_F(frmHoleLichtleistenInfoTest, The_progress_bar_runs_over_the_four_parts) {
    frmHoleLichtleistenInfo dialog;
    const auto& balken = Kind<QProgressBar>(dialog, "pbFortschritt");
    std::vector<int> stand;
    BeiAnforderung([&](int) { stand.push_back(balken.value()); });
    ZeigeBisFertig(dialog);
    EXPECT_EQ(stand, (std::vector{0, 0, 1, 1, 2, 2, 3, 3}));
    EXPECT_EQ(balken.value(), balken.maximum());
}

TEST_F(frmHoleLichtleistenInfoTest, The_captions_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    frmHoleLichtleistenInfo dialog;
    EXPECT_EQ(Kind<QPushButton>(dialog, "cmdWeiter").text(), "Continue");
    EXPECT_EQ(Kind<QPushButton>(dialog, "cmdCancel").text(), "Cancel");
}

} // namespace varnoth
