#include "dialogtest.h"
#include "frmResetHardware.h"
#include "texte.h"

#include <QKeyEvent>

namespace varnoth {

using pruefung::PruefGeraet;

class frmResetHardwareTest : public pruefung::DialogTest {
protected:
    using Dialog = frmResetHardware;

    static void Starte(QDialog& dialog) { Kind<QPushButton>(dialog, "cmdOK").click(); }
    static QLabel& Versuche(QDialog& dialog) { return Kind<QLabel>(dialog, "lblAnzahlDerVersuche"); }

    Dialog dialog;
};

TEST_F(frmResetHardwareTest, The_port_is_open_and_nothing_is_sent_before_OK) {
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_FALSE(Versuche(dialog).isVisible());
}

TEST_F(frmResetHardwareTest, Cancel_has_the_focus_when_the_question_is_asked) {
    EXPECT_EQ(dialog.focusWidget(), &Kind<QPushButton>(dialog, "cmdCancel"));
}

TEST_F(frmResetHardwareTest, A_device_that_answers_at_once_keeps_the_attempts_hidden_and_closes_the_dialog) {
    bool sichtbar = false;
    BeiAnforderung([&](int) { sichtbar = Versuche(dialog).isVisible(); });
    dialog.show();
    Starte(dialog);
    EXPECT_FALSE(sichtbar);
    EXPECT_EQ(geraet.geschrieben, (std::vector<PruefGeraet::Schreibvorgang>{{0, 189, {3}}}));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(frmResetHardwareTest, Without_a_device_the_attempts_show_2_3_4_until_cancel) {
    QStringList gezeigt;
    Schweige([&](int anforderung) {
        gezeigt += Versuche(dialog).isVisible() ? Versuche(dialog).text() : "hidden";
        if (anforderung == 4)
            Kind<QPushButton>(dialog, "cmdCancel").click();
    });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(gezeigt, QStringList({"hidden", "2", "3", "4"}));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmResetHardwareTest, Cancel_takes_effect_after_the_transaction_that_is_waiting) {
    Schweige();
    const Zeit beginn = umgebung.uhr;
    umgebung.Plane(beginn + std::chrono::milliseconds(500), [this] { dialog.reject(); });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(AnzahlAnforderungen(), 1);
    EXPECT_GE(umgebung.uhr - beginn, std::chrono::seconds(1));
}

TEST_F(frmResetHardwareTest, However_it_is_closed_the_write_that_runs_ends_first) {
    const std::pair<const char*, std::function<void(QDialog&)>> wege[] = {
        {"cancel", [](QDialog& d) { Kind<QPushButton>(d, "cmdCancel").click(); }},
        {"Escape",
         [](QDialog& d) {
             QKeyEvent druck(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
             QCoreApplication::sendEvent(&d, &druck);
         }},
        {"close box", [](QDialog& d) { d.close(); }},
    };
    for (const auto& [name, schliesse] : wege) {
        SCOPED_TRACE(name);
        port.gesendet.clear();
        Dialog weiterer;
        bool danachSichtbar = false;
        Schweige([&](int) {
            schliesse(weiterer);
            danachSichtbar = weiterer.isVisible();
        });
        weiterer.show();
        Starte(weiterer);
        EXPECT_TRUE(danachSichtbar);
        EXPECT_EQ(AnzahlAnforderungen(), 1);
        EXPECT_FALSE(weiterer.isVisible());
    }
}

TEST_F(frmResetHardwareTest, While_the_restart_is_tried_only_cancel_can_be_used) {
    std::vector<bool> bereit;
    BeiAnforderung([&](int) {
        bereit = {Bereit(dialog, "cmdOK"), Bereit(dialog, "cmdCancel")};
        Starte(dialog);
    });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(bereit, (std::vector{false, true}));
    EXPECT_EQ(AnzahlAnforderungen(), 1);
}

TEST_F(frmResetHardwareTest, A_cancel_before_OK_sends_nothing) {
    dialog.show();
    Kind<QPushButton>(dialog, "cmdCancel").click();
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(frmResetHardwareTest, A_line_pulled_and_plugged_in_again_is_survived) {
    BeiAnforderung([this](int anforderung) {
        if (anforderung != 1)
            return;
        port.offen = false;
        port.oeffnenGelingt = false;
        umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(2500),
                       [this] { port.oeffnenGelingt = true; });
    });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(dialog.GetCancel(), False);
}

TEST_F(frmResetHardwareTest, Nothing_moves_when_the_attempts_appear) {
    const auto lage = [this] {
        return std::tuple(dialog.size(), Kind<QLabel>(dialog, "Label1").geometry(),
                          Kind<QPushButton>(dialog, "cmdOK").geometry());
    };
    dialog.setStyleSheet("QLabel { font-size: 40px }"); // beyond the least height that every window has
    dialog.show();
    QCoreApplication::processEvents();
    const auto davor = lage();
    auto danach = davor;
    Schweige([&](int anforderung) {
        danach = lage();
        if (anforderung == 3)
            dialog.reject();
    });
    Starte(dialog);
    EXPECT_EQ(danach, davor);
}

TEST_F(frmResetHardwareTest, The_texts_are_in_the_language_of_the_moment) {
    const std::tuple<std::int16_t, QString, QString, QString> texte[] = {
        {Deutsch, "Reset der Hardware", "Soll ein Neustart wie bei Powerup erfolgen?", "Abbrechen"},
        {Englisch, "Reset hardware", "Do you want to make a new start like powerup?", "Cancel"}};
    for (const auto& [sprache, titel, frage, abbrechen] : texte) {
        SetzeSprachoffset(sprache);
        Dialog form;
        EXPECT_EQ(form.windowTitle(), titel);
        EXPECT_EQ(Beschriftung(form, "Label1"), frage);
        EXPECT_EQ(Kind<QPushButton>(form, "cmdOK").text(), "OK");
        EXPECT_EQ(Kind<QPushButton>(form, "cmdCancel").text(), abbrechen);
    }
}

} // namespace varnoth
