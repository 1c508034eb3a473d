#include "dialogtest.h"
#include "frmEinzelwerteLesenSchreiben.h"
#include "texte.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QRadioButton>

namespace varnoth {

using pruefung::PruefGeraet;

class frmEinzelwerteLesenSchreibenTest : public pruefung::DialogTest {
protected:
    using Dialog = frmEinzelwerteLesenSchreiben;

    static void Tippe(QDialog& dialog, const char* name, const QString& text) {
        Kind<QLineEdit>(dialog, name).setText(text);
    }
    static void Klicke(QDialog& dialog, const char* name) { Kind<QPushButton>(dialog, name).click(); }
    static void Waehle(QDialog& dialog, const char* gruppe, int index) {
        Option(dialog, gruppe, index).click();
    }
    static QRadioButton& Option(QDialog& dialog, const char* gruppe, int index) {
        return Kind<QRadioButton>(dialog, (std::string(gruppe) + "_" + std::to_string(index)).c_str());
    }
    static void Druecke(QWidget& ziel, Qt::Key taste, const QString& text = {}) {
        QKeyEvent druck(QEvent::KeyPress, taste, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&ziel, &druck);
        QKeyEvent los(QEvent::KeyRelease, taste, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&ziel, &los);
    }
    static QString Inhalt(QDialog& dialog) { return Feld(dialog, "txtInhalt"); }

    Dialog dialog;
};

TEST_F(frmEinzelwerteLesenSchreibenTest, At_load_the_port_is_open_and_nothing_is_sent) {
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(frmEinzelwerteLesenSchreibenTest, At_load_global_data_and_the_first_part_are_chosen) {
    EXPECT_TRUE(Option(dialog, "OptAdressOffset", 0).isChecked());
    EXPECT_TRUE(Option(dialog, "optSubUnit", 0).isChecked());
}

TEST_F(frmEinzelwerteLesenSchreibenTest, At_load_the_empty_address_waits_with_the_focus) {
    EXPECT_EQ(dialog.focusWidget(), &Kind<QLineEdit>(dialog, "txtAdresse"));
    EXPECT_EQ(Feld(dialog, "txtAdresse"), "");
    EXPECT_EQ(Inhalt(dialog), "");
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Reading_shows_the_content_in_hexadecimal) {
    geraet.Register(0) = 0x1234;
    Tippe(dialog, "txtAdresse", "0");
    Klicke(dialog, "cmdLesen");
    EXPECT_EQ(Inhalt(dialog), "&H1234");
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Each_range_option_leads_to_its_registers) {
    const std::pair<int, int> anfaenge[] = {{1, 0x2000}, {2, 0x4000}, {0, 0}};
    Tippe(dialog, "txtAdresse", "12");
    for (const auto& [index, anfang] : anfaenge) {
        geraet.gelesen.clear();
        Waehle(dialog, "OptAdressOffset", index);
        Klicke(dialog, "cmdLesen");
        EXPECT_EQ(geraet.gelesen, (std::vector<std::pair<int, int>>{{anfang + 12, 1}}));
    }
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Each_part_option_selects_its_part) {
    Waehle(dialog, "OptAdressOffset", 1);
    Tippe(dialog, "txtAdresse", "44");
    for (const int teil : {3, 2, 1, 0}) {
        geraet.Spezifisch(teil, 44) = teil + 1;
        Waehle(dialog, "optSubUnit", teil);
        Klicke(dialog, "cmdLesen");
        EXPECT_EQ(Inhalt(dialog), "&H" + QString::number(teil + 1));
    }
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Range_and_part_are_chosen_independently) {
    Waehle(dialog, "optSubUnit", 2);
    Waehle(dialog, "OptAdressOffset", 1);
    EXPECT_TRUE(Option(dialog, "optSubUnit", 2).isChecked());
    Waehle(dialog, "optSubUnit", 3);
    EXPECT_TRUE(Option(dialog, "OptAdressOffset", 1).isChecked());
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Writing_sends_the_typed_content_and_shows_OK) {
    Tippe(dialog, "txtAdresse", "&HC1");
    Tippe(dialog, "txtInhalt", "&H1F");
    Klicke(dialog, "cmdSchreiben");
    EXPECT_EQ(geraet.geschrieben,
              (std::vector<PruefGeraet::Schreibvorgang>{{0, 212, {0}}, {0, 193, {0x1F}}}));
    EXPECT_EQ(Inhalt(dialog), "OK");
}

TEST_F(frmEinzelwerteLesenSchreibenTest, After_OK_a_second_write_without_retyping_sends_0) {
    Tippe(dialog, "txtAdresse", "193");
    Tippe(dialog, "txtInhalt", "31");
    Klicke(dialog, "cmdSchreiben");
    Klicke(dialog, "cmdSchreiben");
    EXPECT_EQ(geraet.geschrieben.back().werte, std::vector<int>{0});
    EXPECT_EQ(Inhalt(dialog), "OK");
}

TEST_F(frmEinzelwerteLesenSchreibenTest, A_failure_shows_question_marks_and_leaves_the_dialog_usable) {
    Schweige();
    for (const char* knopf : {"cmdLesen", "cmdSchreiben"}) {
        Tippe(dialog, "txtInhalt", "1");
        dialog.show();
        Klicke(dialog, knopf);
        EXPECT_EQ(Inhalt(dialog), "???");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(Bereit(dialog, knopf));
    }
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmEinzelwerteLesenSchreibenTest, An_address_beyond_16_bits_sends_nothing) {
    Waehle(dialog, "OptAdressOffset", 2);
    Tippe(dialog, "txtAdresse", "&HC000");
    Klicke(dialog, "cmdLesen");
    EXPECT_EQ(Inhalt(dialog), "???");
    EXPECT_EQ(AnzahlAnforderungen(), 0);
}

TEST_F(frmEinzelwerteLesenSchreibenTest, While_an_exchange_runs_no_other_begins) {
    std::vector<bool> bereit;
    BeiAnforderung([&](int) {
        bereit = {Bereit(dialog, "cmdLesen"), Bereit(dialog, "cmdSchreiben"), Bereit(dialog, "cmdCancel")};
        Klicke(dialog, "cmdLesen");
        Klicke(dialog, "cmdSchreiben");
        Druecke(Kind<QLineEdit>(dialog, "txtAdresse"), Qt::Key_Return);
    });
    dialog.show();
    Klicke(dialog, "cmdLesen");
    EXPECT_EQ(bereit, (std::vector{false, false, true}));
    EXPECT_EQ(AnzahlAnforderungen(), 2);
}

TEST_F(frmEinzelwerteLesenSchreibenTest, However_it_is_closed_the_exchange_that_runs_ends_first) {
    const std::pair<const char*, std::function<void(QDialog&)>> wege[] = {
        {"cancel", [](QDialog& d) { Klicke(d, "cmdCancel"); }},
        {"Escape", [](QDialog& d) { Druecke(d, Qt::Key_Escape); }},
        {"close box", [](QDialog& d) { d.close(); }},
    };
    for (const auto& [name, schliesse] : wege) {
        SCOPED_TRACE(name);
        geraet.gelesen.clear();
        Dialog weiterer;
        bool danachSichtbar = false;
        BeiAnforderung([&](int) {
            schliesse(weiterer);
            danachSichtbar = weiterer.isVisible();
        });
        weiterer.show();
        Klicke(weiterer, "cmdLesen");
        EXPECT_TRUE(danachSichtbar);
        EXPECT_EQ(geraet.gelesen.size(), 1U);
        EXPECT_FALSE(weiterer.isVisible());
        EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    }
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Cancel_closes_an_idle_dialog_and_its_port) {
    dialog.show();
    Klicke(dialog, "cmdLesen");
    Klicke(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Enter_in_the_address_reads) {
    dialog.show();
    Druecke(Kind<QLineEdit>(dialog, "txtAdresse"), Qt::Key_Return);
    EXPECT_EQ(geraet.gelesen.size(), 1U);
    EXPECT_EQ(Inhalt(dialog), "&H0");
}

TEST_F(frmEinzelwerteLesenSchreibenTest, Enter_in_the_content_sends_nothing_and_keeps_it) {
    dialog.show();
    Klicke(dialog, "cmdSchreiben");
    port.gesendet.clear();
    QLineEdit& feld = Kind<QLineEdit>(dialog, "txtInhalt");
    feld.setFocus();
    feld.setText("31");
    Druecke(feld, Qt::Key_Return);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_EQ(Inhalt(dialog), "31");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(frmEinzelwerteLesenSchreibenTest, A_button_has_its_focus_back_after_the_exchange) {
    dialog.show();
    for (const char* name : {"cmdLesen", "cmdSchreiben"}) {
        QPushButton& knopf = Kind<QPushButton>(dialog, name);
        knopf.setFocus();
        knopf.click();
        EXPECT_EQ(dialog.focusWidget(), &knopf);
    }
}

TEST_F(frmEinzelwerteLesenSchreibenTest, A_key_pressed_again_during_the_exchange_does_not_close_the_dialog) {
    dialog.show();
    BeiAnforderung([&](int) { Druecke(*dialog.focusWidget(), Qt::Key_Space, " "); });
    Kind<QPushButton>(dialog, "cmdLesen").setFocus();
    Klicke(dialog, "cmdLesen");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Inhalt(dialog), "&H0");
}

TEST_F(frmEinzelwerteLesenSchreibenTest, A_focus_moved_during_the_exchange_stays_where_it_is) {
    dialog.show();
    QLineEdit& adresse = Kind<QLineEdit>(dialog, "txtAdresse");
    BeiAnforderung([&](int) { adresse.setFocus(); });
    Kind<QPushButton>(dialog, "cmdLesen").setFocus();
    Klicke(dialog, "cmdLesen");
    EXPECT_EQ(dialog.focusWidget(), &adresse);
}

TEST_F(frmEinzelwerteLesenSchreibenTest, A_line_pulled_and_plugged_in_again_is_survived) {
    dialog.show();
    port.offen = false;
    port.oeffnenGelingt = false;
    Klicke(dialog, "cmdLesen");
    EXPECT_EQ(Inhalt(dialog), "???");
    port.oeffnenGelingt = true;
    Klicke(dialog, "cmdLesen");
    EXPECT_EQ(Inhalt(dialog), "&H0");
}

TEST_F(frmEinzelwerteLesenSchreibenTest, The_texts_are_in_the_language_of_the_moment) {
    struct Texte {
        std::int16_t sprache;
        QString titel, lesen, schreiben, abbrechen, adresse, inhalt;
        QStringList bereiche;
    };
    const Texte erwartet[] = {{Deutsch,
                               "Einzelwerte lesen / schreiben",
                               "Lesen",
                               "Schreiben",
                               "Abbrechen",
                               "Adresse: ",
                               "Inhalt: ",
                               {"Globale Gerätedaten", "Spezifische Gerätedaten", "Kommunikationsdaten"}},
                              {Englisch,
                               "Data read / write",
                               "Read",
                               "Write",
                               "Cancel",
                               "Address: ",
                               "Data: ",
                               {"Globale device data", "Specific device data", "Communication data"}}};
    for (const auto& texte : erwartet) {
        SetzeSprachoffset(texte.sprache);
        Dialog form;
        EXPECT_EQ(form.windowTitle(), texte.titel);
        EXPECT_EQ(Kind<QPushButton>(form, "cmdLesen").text(), texte.lesen);
        EXPECT_EQ(Kind<QPushButton>(form, "cmdSchreiben").text(), texte.schreiben);
        EXPECT_EQ(Kind<QPushButton>(form, "cmdCancel").text(), texte.abbrechen);
        EXPECT_EQ(Beschriftung(form, "lblAdresse"), texte.adresse);
        EXPECT_EQ(Beschriftung(form, "lblInhalt"), texte.inhalt);
        EXPECT_EQ(Beschriftung(form, "lblHex"), "(&H=Hex. )");
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(Option(form, "OptAdressOffset", i).text(), texte.bereiche[i]);
    }
}

TEST_F(frmEinzelwerteLesenSchreibenTest, The_parts_are_named_as_everywhere) {
    EXPECT_EQ(Option(dialog, "optSubUnit", 0).text(), "K1");
    EXPECT_EQ(Option(dialog, "optSubUnit", 3).text(), "K4");
    EXPECT_EQ(Kind<QGroupBox>(dialog, "Frame1").title(), "Speicherbereich: ");
    EXPECT_EQ(Kind<QGroupBox>(dialog, "Frame2").title(), "Optikteil:");
}

TEST_F(frmEinzelwerteLesenSchreibenTest,
       The_tab_order_leads_from_the_options_through_the_fields_to_the_buttons) {
    EXPECT_EQ(Tabfolge(dialog),
              "OptAdressOffset_0 OptAdressOffset_1 OptAdressOffset_2 optSubUnit_0 optSubUnit_1 "
              "optSubUnit_2 optSubUnit_3 txtAdresse txtInhalt cmdLesen cmdSchreiben cmdCancel");
}

} // namespace varnoth
