#include "dialogtest.h"
#include "frmInitHardware.h"
#include "servicetext.h"
#include "texte.h"

#include <QGroupBox>
#include <QKeyEvent>

namespace varnoth {

using pruefung::PruefGeraet;
using pruefung::Wort;

namespace {

constexpr const char* Passwort = "ABCDEFGHIJKLMNOP";
const QDate Heute(2009, 5, 3);
const char* const Eingabefelder[] = {"txtSeriennummer", "txtJahr",         "txtMonat",
                                     "txtTag",          "txtHauptversion", "txtUnterversion"};

} // namespace

class frmInitHardwareTest : public pruefung::DialogTest {
protected:
    using Dialog = frmInitHardware;

    frmInitHardwareTest() { modService::SetzeServiceText(Passwort); }

    static QLineEdit& Eingabefeld(QDialog& dialog, const char* name) { return Kind<QLineEdit>(dialog, name); }
    static void Schreibe(QDialog& dialog) { Kind<QPushButton>(dialog, "cmdSchreiben").click(); }
    /// Types into the emptied field, key by key.
    static void Tippe(QDialog& dialog, const char* name, const QString& text) {
        Eingabefeld(dialog, name).clear();
        for (const QChar zeichen : text) {
            QKeyEvent druck(QEvent::KeyPress, 0, Qt::NoModifier, zeichen);
            QCoreApplication::sendEvent(&Eingabefeld(dialog, name), &druck);
        }
    }
    static void FuelleAus(QDialog& dialog) {
        Tippe(dialog, "txtSeriennummer", "AB");
        Tippe(dialog, "txtJahr", "2009");
        Tippe(dialog, "txtMonat", "05");
        Tippe(dialog, "txtTag", "13");
        Tippe(dialog, "txtHauptversion", "1");
        Tippe(dialog, "txtUnterversion", "5");
    }
    void Merke(const char* schluessel, const char* text) {
        einstellungen.texte[{"frmInitHardware", schluessel}] = text;
    }
    const std::vector<int>& Geschrieben(int adresse) const {
        for (const auto& vorgang : geraet.geschrieben)
            if (vorgang.adresse == adresse)
                return vorgang.werte;
        throw std::runtime_error("never written: " + std::to_string(adresse));
    }

    pruefung::PruefEinstellungen einstellungen;
};

TEST_F(frmInitHardwareTest, At_load_the_fields_show_the_settings_and_the_date_of_today) {
    Merke("Seriennummer", "SN-17 Ä");
    Merke("Hauptversion", "3");
    Merke("Unterversion", "14");
    Dialog dialog(nullptr, Heute);
    const char* const erwartet[] = {"SN-17 Ä", "2009", "05", "03", "3", "14"};
    for (std::size_t i = 0; i < std::size(Eingabefelder); ++i)
        EXPECT_EQ(Feld(dialog, Eingabefelder[i]), erwartet[i]) << Eingabefelder[i];
    EXPECT_EQ(Feld(dialog, "txtUebertragungszustand"), "");
    EXPECT_EQ(Feld(dialog, "txtCounter"), "");
}

TEST_F(frmInitHardwareTest, At_load_the_fields_are_empty_where_the_settings_have_nothing) {
    Dialog dialog(nullptr, Heute);
    for (const char* name : {"txtSeriennummer", "txtHauptversion", "txtUnterversion"})
        EXPECT_EQ(Feld(dialog, name), "") << name;
}

TEST_F(frmInitHardwareTest, A_serial_number_in_the_settings_that_is_too_long_is_cut) {
    Merke("Seriennummer", "1234567890123456789012345");
    Dialog dialog;
    EXPECT_EQ(Feld(dialog, "txtSeriennummer"), "12345678901234567890");
}

TEST_F(frmInitHardwareTest, A_version_in_the_settings_that_nobody_could_type_is_not_shown) {
    Merke("Hauptversion", "999");
    Merke("Unterversion", "x");
    Dialog dialog;
    EXPECT_EQ(Feld(dialog, "txtHauptversion"), "");
    EXPECT_EQ(Feld(dialog, "txtUnterversion"), "");
}

TEST_F(frmInitHardwareTest, The_fields_accept_at_most_the_characters_that_fit) {
    const std::tuple<const char*, const char*, const char*> faelle[] = {
        {"txtSeriennummer", "1234567890123456789012", "12345678901234567890"},
        {"txtJahr", "20091", "2009"},
        {"txtMonat", "123", "12"},
        {"txtTag", "312", "31"},
        {"txtHauptversion", "0255", "025"},
        {"txtUnterversion", "2555", "255"}};
    Dialog dialog(nullptr, Heute);
    for (const auto& [name, getippt, bleibt] : faelle) {
        Tippe(dialog, name, getippt);
        EXPECT_EQ(Feld(dialog, name), bleibt) << name;
    }
}

TEST_F(frmInitHardwareTest, The_fields_refuse_characters_that_the_controller_has_not) {
    const std::tuple<const char*, QString, const char*> faelle[] = {{"txtSeriennummer", "A€BЖ\tÄ", "ABÄ"},
                                                                    {"txtJahr", "2o09", "209"},
                                                                    {"txtMonat", "-5", "5"},
                                                                    {"txtTag", "1.", "1"},
                                                                    {"txtHauptversion", "1a", "1"},
                                                                    {"txtUnterversion", "256", "25"}};
    Dialog dialog(nullptr, Heute);
    for (const auto& [name, getippt, bleibt] : faelle) {
        Tippe(dialog, name, getippt);
        EXPECT_EQ(Feld(dialog, name), bleibt) << name;
    }
}

TEST_F(frmInitHardwareTest, Nothing_is_sent_before_Write) {
    Dialog dialog;
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
}

TEST_F(frmInitHardwareTest, Write_sends_what_the_fields_say_and_closes_the_dialog) {
    Dialog dialog(nullptr, Heute);
    FuelleAus(dialog);
    dialog.show();
    Schreibe(dialog);
    EXPECT_EQ(geraet.geschrieben.size(), 7U);
    EXPECT_EQ(Geschrieben(9), (std::vector<int>{0x4142, 0x2020, 0x2020, 0x2020, 0x2020, 0x2020, 0x2020,
                                                0x2020, 0x2020, 0x2020}));
    EXPECT_EQ(Geschrieben(20), (std::vector<int>{0x3230, 0x3039, 0x3035, 0x3133}));
    EXPECT_EQ(Geschrieben(24), std::vector<int>{261});
    EXPECT_EQ(Geschrieben(189), std::vector<int>{2});
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(frmInitHardwareTest, A_serial_number_with_an_umlaut_is_sent_one_byte_a_character) {
    Dialog dialog(nullptr, Heute);
    Tippe(dialog, "txtSeriennummer", "Ä1");
    Schreibe(dialog);
    EXPECT_EQ(Geschrieben(9).front(), 0xC431);
}

TEST_F(frmInitHardwareTest, The_next_dialog_offers_what_was_written) {
    Dialog erster(nullptr, Heute);
    FuelleAus(erster);
    Schreibe(erster);
    Dialog zweiter(nullptr, Heute);
    EXPECT_EQ(Feld(zweiter, "txtSeriennummer"), "AB");
    EXPECT_EQ(Feld(zweiter, "txtHauptversion"), "1");
    EXPECT_EQ(Feld(zweiter, "txtUnterversion"), "5");
}

TEST_F(frmInitHardwareTest, The_step_and_its_attempt_are_shown) {
    const std::pair<int, QStringList> erwartet[] = {{178, {"Passwort", "1"}},
                                                    {9, {"Seriennummer", "1"}},
                                                    {20, {"Herstelldatum", "1"}},
                                                    {24, {"Hardware Version", "1"}},
                                                    {189, {"EEPROM update", "1"}}};
    std::map<int, QStringList> gezeigt;
    Dialog dialog(nullptr, Heute);
    geraet.schweige = [&](const std::string& anforderung) {
        gezeigt[Wort(anforderung, 2)] = {Feld(dialog, "txtUebertragungszustand"), Feld(dialog, "txtCounter")};
        return false;
    };
    Schreibe(dialog);
    for (const auto& [adresse, felder] : erwartet)
        EXPECT_EQ(gezeigt[adresse], felder) << adresse;
}

TEST_F(frmInitHardwareTest, A_silent_controller_is_kept_in_its_step_until_cancel) {
    Dialog dialog(nullptr, Heute);
    QStringList gezeigt;
    Schweige([&](int anforderung) {
        if (anforderung < 12)
            return;
        gezeigt = {Feld(dialog, "txtUebertragungszustand"), Feld(dialog, "txtCounter")};
        Kind<QPushButton>(dialog, "cmdCancel").click();
    });
    dialog.show();
    Schreibe(dialog);
    EXPECT_EQ(gezeigt, QStringList({"Passwort", "12"}));
    EXPECT_EQ(AnzahlAnforderungen(), 12);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmInitHardwareTest, A_cancel_during_the_date_leaves_the_serial_number_written_but_no_date) {
    Dialog dialog(nullptr, Heute);
    geraet.schweige = [&](const std::string& anforderung) {
        const bool datum = Wort(anforderung, 2) == 20;
        if (datum)
            dialog.reject();
        return datum;
    };
    dialog.show();
    Schreibe(dialog);
    EXPECT_EQ(geraet.geschrieben.size(), 3U);
    EXPECT_EQ(geraet.geschrieben.back().adresse, 178);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(frmInitHardwareTest, A_line_pulled_and_plugged_in_again_is_survived) {
    Dialog dialog(nullptr, Heute);
    BeiAnforderung([this](int anforderung) {
        if (anforderung != 2)
            return;
        port.offen = false;
        port.oeffnenGelingt = false;
        umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(2500),
                       [this] { port.oeffnenGelingt = true; });
    });
    FuelleAus(dialog);
    dialog.show();
    Schreibe(dialog);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(Geschrieben(189), std::vector<int>{2});
}

TEST_F(frmInitHardwareTest, While_the_procedure_runs_only_cancel_can_be_used) {
    Dialog dialog(nullptr, Heute);
    bool felder = false;
    std::vector<bool> knoepfe;
    BeiAnforderung([&](int) {
        for (const char* name : Eingabefelder)
            felder = felder || Eingabefeld(dialog, name).isEnabled();
        knoepfe = {Bereit(dialog, "cmdSchreiben"), Bereit(dialog, "cmdCancel")};
        Schreibe(dialog);
    });
    dialog.show();
    Schreibe(dialog);
    EXPECT_FALSE(felder);
    EXPECT_EQ(knoepfe, (std::vector{false, true}));
    EXPECT_EQ(AnzahlAnforderungen(), 7);
}

TEST_F(frmInitHardwareTest, A_key_pressed_again_while_the_procedure_runs_does_not_cancel_it) {
    Dialog dialog(nullptr, Heute);
    dialog.show();
    Kind<QPushButton>(dialog, "cmdSchreiben").setFocus();
    BeiAnforderung([&](int) {
        for (const auto art : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent taste(art, Qt::Key_Space, Qt::NoModifier, " ");
            QCoreApplication::sendEvent(dialog.focusWidget(), &taste);
        }
    });
    Schreibe(dialog);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(AnzahlAnforderungen(), 7);
}

TEST_F(frmInitHardwareTest, A_password_of_another_length_closes_the_dialog_without_any_traffic) {
    for (const std::string passwort : {"", "ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOPQ"}) {
        modService::SetzeServiceText(passwort);
        Dialog dialog(nullptr, Heute);
        dialog.show();
        Schreibe(dialog);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(AnzahlAnforderungen(), 0);
        EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    }
}

TEST_F(frmInitHardwareTest, The_password_is_never_shown) {
    Dialog dialog(nullptr, Heute);
    BeiAnforderung([&](int) {
        for (const auto* feld : dialog.findChildren<QLineEdit*>())
            EXPECT_FALSE(feld->text().contains(Passwort)) << feld->objectName().toStdString();
    });
    dialog.show();
    Schreibe(dialog);
    for (const auto& [wo, text] : einstellungen.texte)
        EXPECT_NE(text, Passwort) << wo.second;
}

TEST_F(frmInitHardwareTest, A_cancel_before_Write_sends_and_keeps_nothing) {
    Dialog dialog(nullptr, Heute);
    FuelleAus(dialog);
    dialog.show();
    Kind<QPushButton>(dialog, "cmdCancel").click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_EQ(einstellungen.geschrieben, 0);
}

TEST_F(frmInitHardwareTest, Enter_in_a_field_does_not_write) {
    Dialog dialog(nullptr, Heute);
    dialog.show();
    for (const char* name : Eingabefelder) {
        QKeyEvent druck(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&Eingabefeld(dialog, name), &druck);
    }
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(frmInitHardwareTest, The_texts_are_in_the_language_of_the_moment) {
    const std::tuple<const char*, QString, QString> texte[] = {
        {"lblSeriennummer", "Seriennummer", "Serial number"},
        {"lblJahr", "Jahr (4)", "Jear (4)"},
        {"lblMonat", "Monat (2)", "Month (2)"},
        {"lblTag", "Tag (2)", "Day (2)"},
        {"lblHauptversion", "Hauptversion", "Main version"},
        {"lblUnterversion", "Unterversion", "Sub version"},
        {"lblUebertragungszustand", "Übertragungszustand", "Transfer state"}};
    Dialog deutsch;
    SetzeSprachoffset(Englisch);
    Dialog englisch;
    for (const auto& [name, de, en] : texte) {
        EXPECT_EQ(Beschriftung(deutsch, name), de);
        EXPECT_EQ(Beschriftung(englisch, name), en);
    }
}

TEST_F(frmInitHardwareTest, Title_groups_and_buttons_are_in_the_language_of_the_moment) {
    const std::tuple<std::int16_t, QString, QStringList> texte[] = {
        {Deutsch,
         "Initialisierung der Hardware",
         {"Herstelldatum", "Hardware Version", "Schreiben", "Abbrechen"}},
        {Englisch, "Initialize hardware", {"Date of manufacture", "Hardware version", "Write", "Cancel"}}};
    for (const auto& [sprache, titel, rest] : texte) {
        SetzeSprachoffset(sprache);
        Dialog dialog;
        EXPECT_EQ(dialog.windowTitle(), titel);
        EXPECT_EQ(
            QStringList({Kind<QGroupBox>(dialog, "Frame1").title(), Kind<QGroupBox>(dialog, "Frame2").title(),
                         Kind<QPushButton>(dialog, "cmdSchreiben").text(),
                         Kind<QPushButton>(dialog, "cmdCancel").text()}),
            rest);
    }
}

TEST_F(frmInitHardwareTest, No_text_is_cut_off_in_either_language) {
    Merke("Seriennummer", "WWWWWWWWWWWWWWWWWWWW");
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Dialog dialog(nullptr, Heute);
        BeiAnforderung([&](int) {
            for (const auto* feld : dialog.findChildren<QLineEdit*>())
                EXPECT_LT(feld->fontMetrics().horizontalAdvance(feld->text()), feld->width() - 8)
                    << feld->text().toStdString();
        });
        dialog.show();
        Schreibe(dialog);
    }
}

TEST_F(frmInitHardwareTest, The_tab_order_leads_through_the_fields_to_Write_and_cancel) {
    Dialog dialog;
    EXPECT_EQ(Tabfolge(dialog), "txtSeriennummer txtJahr txtMonat txtTag txtHauptversion txtUnterversion "
                                "cmdSchreiben cmdCancel");
}

} // namespace varnoth
