#include "dialogtest.h"
#include "frmIdentifikationsAnforderung.h"
#include "texte.h"

#include <QProgressBar>

namespace varnoth {

class frmIdentifikationsAnforderungTest : public pruefung::DialogTest {};

TEST_F(frmIdentifikationsAnforderungTest, A_device_that_answers_the_first_request_fills_the_fields) {
    geraet.slaveAdresse = 17;
    geraet.identtext = "Varnoth;4711;\xA9 2009";
    frmIdentifikationsAnforderung dialog;
    ZeigeBisFertig(dialog);
    EXPECT_EQ(Beschriftung(dialog, "lblVersuche"), "9");
    EXPECT_EQ(Feld(dialog, "txtSlaveAdresse"), "17");
    EXPECT_EQ(Feld(dialog, "txtSchaltzustand"), "7");
    EXPECT_EQ(Feld(dialog, "txtGerätetyp"), "50");
    EXPECT_EQ(Feld(dialog, "txtBezeichnung"), "Varnoth");
    EXPECT_EQ(Feld(dialog, "txtSeriennr"), "4711");
    EXPECT_EQ(Feld(dialog, "txtCopyright"), "© 2009");
    EXPECT_EQ(dialog.GetCancel(), False);
}

TEST_F(frmIdentifikationsAnforderungTest, The_fields_are_empty_until_the_device_answers) {
    frmIdentifikationsAnforderung dialog;
    QString text;
    BeiAnforderung([&](int) {
        for (const auto* feld : dialog.findChildren<QLineEdit*>())
            text += feld->text();
    });
    ZeigeBisFertig(dialog);
    EXPECT_EQ(text, "");
}

TEST_F(frmIdentifikationsAnforderungTest, A_long_text_of_the_device_is_shown_whole) {
    geraet.identtext = "Varnoth;4711;Copyright (C) 2009 by the makers of the Varnoth light curtain";
    frmIdentifikationsAnforderung dialog;
    ZeigeBisFertig(dialog);
    QCoreApplication::processEvents();
    const auto& feld = Kind<QLineEdit>(dialog, "txtCopyright");
    EXPECT_LT(feld.fontMetrics().horizontalAdvance(feld.text()), feld.width() - 8);
}

TEST_F(frmIdentifikationsAnforderungTest,
       A_device_that_answers_only_the_ninth_request_gives_the_message_and_cancels) {
    frmIdentifikationsAnforderung dialog;
    geraet.schweige = [this](const std::string&) { return AnzahlAnforderungen() < 9; };
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(7209));
    EXPECT_EQ(umgebung.meldungen[0].titel, LadeText(6109));
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_EQ(Feld(dialog, "txtSlaveAdresse"), "");
}

TEST_F(frmIdentifikationsAnforderungTest, The_remaining_attempts_are_counted_down) {
    frmIdentifikationsAnforderung dialog;
    std::vector<std::string> gezeigt;
    Schweige([&](int) { gezeigt.push_back(Beschriftung(dialog, "lblVersuche").toStdString()); });
    dialog.exec();
    EXPECT_EQ(gezeigt, (std::vector<std::string>{"9", "8", "7", "6", "5", "4", "3", "2", "1"}));
}

TEST_F(frmIdentifikationsAnforderungTest, The_progress_grows_toward_the_ninth_attempt) {
    frmIdentifikationsAnforderung dialog;
    std::vector<int> gezeigt;
    Schweige([&](int) { gezeigt.push_back(Kind<QProgressBar>(dialog, "pbVersuche").value()); });
    EXPECT_EQ(Kind<QProgressBar>(dialog, "pbVersuche").value(), 0);
    dialog.exec();
    EXPECT_EQ(gezeigt, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(Kind<QProgressBar>(dialog, "pbVersuche").maximum(), 9);
}

TEST_F(frmIdentifikationsAnforderungTest, From_the_second_attempt_on_it_says_why_there_is_no_connection) {
    frmIdentifikationsAnforderung dialog;
    std::vector<QString> gezeigt;
    geraet.schweige = [&](const std::string&) {
        gezeigt.push_back(Beschriftung(dialog, "lblUrsache"));
        return AnzahlAnforderungen() < 2;
    };
    ZeigeBisFertig(dialog);
    ASSERT_EQ(gezeigt.size(), 2U);
    EXPECT_EQ(gezeigt[0], "");
    EXPECT_TRUE(gezeigt[1].startsWith("COM1, /dev/pruefung, Format 38400,n,8,2\nNiemand antwortet."))
        << gezeigt[1].toStdString();
    EXPECT_EQ(Beschriftung(dialog, "lblUrsache"), "") << "it has answered";
    EXPECT_EQ(Kind<QLabel>(dialog, "lblUrsache").textFormat(), Qt::PlainText);
}

TEST_F(frmIdentifikationsAnforderungTest, A_reject_from_outside_while_the_message_is_shown_is_survived) {
    frmIdentifikationsAnforderung dialog;
    Schweige();
    umgebung.beiMeldung = [&](const Meldung&) { dialog.reject(); };
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(frmIdentifikationsAnforderungTest, A_cancel_after_success_closes_at_once_and_counts) {
    frmIdentifikationsAnforderung dialog;
    ZeigeBisFertig(dialog);
    Kind<QPushButton>(dialog, "cmdCancel").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
}

TEST_F(frmIdentifikationsAnforderungTest, The_captions_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    frmIdentifikationsAnforderung dialog;
    EXPECT_EQ(Beschriftung(dialog, "lblSlaveAdresse"), "Slave address: ");
    EXPECT_EQ(Beschriftung(dialog, "lblSchaltzustand"), "State: ");
    EXPECT_EQ(Beschriftung(dialog, "lblGerätetyp"), "Device type: ");
    EXPECT_EQ(Beschriftung(dialog, "lblBezeichnung"), "Name: ");
    EXPECT_EQ(Beschriftung(dialog, "lblSeriennr"), "Serial num.: ");
    EXPECT_EQ(Beschriftung(dialog, "lblCopyright"), "Copyright: ");
    EXPECT_EQ(Kind<QPushButton>(dialog, "cmdWeiter").text(), "Continue");
    EXPECT_EQ(Kind<QPushButton>(dialog, "cmdCancel").text(), "Cancel");
    EXPECT_EQ(Beschriftung(dialog, "lblVersuche"), "");
}

} // namespace varnoth
