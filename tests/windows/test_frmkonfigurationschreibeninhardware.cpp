#include "dialogtest.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "registerabbild.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <QCheckBox>
#include <QProgressBar>

#include <algorithm>

namespace varnoth {

using pruefung::Wort;

namespace {

constexpr int Schreibvorgaenge = 43; ///< without permanent storage

}

class frmKonfigurationSchreibenInHardwareTest : public pruefung::DialogTest {
protected:
    using Dialog = frmKonfigurationSchreibenInHardware;

    frmKonfigurationSchreibenInHardwareTest() { modDaten::LadeStandardkonfiguration(); }

    static QStringList Felder(QDialog& dialog) {
        return {Feld(dialog, "txtSpeicherbereich"), Feld(dialog, "txtAktuellesRegister"),
                Feld(dialog, "txtRegisteranzahl"), Feld(dialog, "txtSchreibversuch")};
    }
    static void Starte(QDialog& dialog) { Kind<QPushButton>(dialog, "cmdStart").click(); }
    static QCheckBox& Speichern(QDialog& dialog) { return Kind<QCheckBox>(dialog, "chkSpeichern"); }
    static QProgressBar& Balken(QDialog& dialog) { return Kind<QProgressBar>(dialog, "pbFortschritt"); }

    int Geschrieben(int adresse) const {
        return static_cast<int>(
            std::ranges::count(geraet.geschrieben, adresse, &pruefung::PruefGeraet::Schreibvorgang::adresse));
    }
    /// Runs `dabei` at the first request to an address, before its answer.
    void BeiAdresse(int adresse, std::function<void()> dabei) {
        geraet.schweige = [adresse, dabei](const std::string& anforderung) mutable {
            if (dabei && Wort(anforderung, 2) == adresse)
                std::exchange(dabei, {})();
            return false;
        };
    }

    Dialog dialog;
};

TEST_F(frmKonfigurationSchreibenInHardwareTest, The_port_is_open_and_nothing_is_sent_before_Start) {
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, At_load_storing_is_checked_and_cancel_has_the_focus) {
    EXPECT_TRUE(Speichern(dialog).isChecked());
    EXPECT_TRUE(Bereit(dialog, "cmdStart"));
    EXPECT_TRUE(Bereit(dialog, "cmdCancel"));
    EXPECT_EQ(dialog.focusWidget(), &Kind<QPushButton>(dialog, "cmdCancel"));
    EXPECT_EQ(Felder(dialog), QStringList({"", "", "", ""}));
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, Start_writes_everything_stores_it_and_closes_the_dialog) {
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(static_cast<int>(geraet.geschrieben.size()), Schreibvorgaenge + 1);
    EXPECT_EQ(geraet.geschrieben.back().adresse, 189);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(dialog.GetVollstaendig(), True);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, With_storing_unchecked_register_189_is_never_written) {
    Speichern(dialog).setChecked(false);
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(static_cast<int>(geraet.geschrieben.size()), Schreibvorgaenge);
    EXPECT_EQ(Geschrieben(189), 0);
    EXPECT_EQ(dialog.GetVollstaendig(), True);
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, Communication_register_2_is_never_written) {
    Starte(dialog);
    EXPECT_EQ(Geschrieben(0x4002), 0);
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, The_changed_mark_stays_as_it_was) {
    for (const Boolean davor : {False, True}) {
        davor == True ? modDaten::SetzeGeaendert() : modDaten::LoescheGeaendert();
        Dialog weiterer;
        Starte(weiterer);
        EXPECT_EQ(modDaten::IstGeaendert(), davor);
    }
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, The_fields_show_range_register_count_and_attempt) {
    const std::vector<std::pair<int, QStringList>> erwartet{
        {193, {"Globale Gerätedaten", "193", "1", "1"}},
        {212, {"Optikteil 0", "212", "1", "1"}},
        {0x2034, {"Spezifische Gerätedaten", "2000H + 52", "32", "1"}},
        {213, {"Kommunikations Kanal 0", "213", "1", "1"}},
        {0x404B, {"Kommunikationsdaten", "4000H + 75", "30", "1"}},
        {189, {"Konfigurationsdaten speichern", "189", "1", "1"}}};
    for (const auto& [adresse, felder] : erwartet) {
        Dialog weiterer;
        QStringList gezeigt;
        BeiAdresse(adresse, [&] { gezeigt = Felder(weiterer); });
        Starte(weiterer);
        EXPECT_EQ(gezeigt, felder);
    }
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, A_finished_transfer_says_so_and_empties_the_other_fields) {
    Starte(dialog);
    EXPECT_EQ(Felder(dialog), QStringList({"Übertragung beendet.", "", "", ""}));
    EXPECT_FALSE(Bereit(dialog, "cmdStart"));
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, The_progress_bar_runs_over_all_writes) {
    int beiKanal = 0;
    BeiAdresse(213, [&] { beiKanal = Balken(dialog).value(); });
    Starte(dialog);
    EXPECT_EQ(beiKanal, 1 + 4 * (1 + 8));
    EXPECT_EQ(Balken(dialog).maximum(), Schreibvorgaenge + 1);
    EXPECT_EQ(Balken(dialog).value(), Schreibvorgaenge + 1);
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, While_writing_only_cancel_can_be_used) {
    std::vector<bool> bereit;
    BeiAdresse(193, [&] {
        bereit = {Bereit(dialog, "cmdStart"), Speichern(dialog).isEnabled(), Bereit(dialog, "cmdCancel")};
        Starte(dialog);
    });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(bereit, (std::vector{false, false, true}));
    EXPECT_EQ(AnzahlAnforderungen(), Schreibvorgaenge + 1);
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, A_silent_device_is_written_to_until_cancel) {
    QStringList felder;
    Schweige([&](int anforderung) {
        if (anforderung < 12)
            return;
        felder = Felder(dialog);
        Kind<QPushButton>(dialog, "cmdCancel").click();
    });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(felder, QStringList({"Globale Gerätedaten", "193", "1", "12"}));
    EXPECT_EQ(AnzahlAnforderungen(), 12);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, A_cancel_in_any_range_ends_after_the_write_in_progress) {
    for (const auto& [adresse, geschrieben] : std::vector<std::pair<int, std::size_t>>{
             {193, 1}, {212, 2}, {0x2034, 10}, {213, 38}, {0x404A, 41}, {189, 44}}) {
        geraet.geschrieben.clear();
        Dialog weiterer;
        BeiAdresse(adresse, [&] { weiterer.reject(); });
        weiterer.show();
        Starte(weiterer);
        EXPECT_EQ(geraet.geschrieben.size(), geschrieben);
        EXPECT_FALSE(weiterer.isVisible());
        EXPECT_EQ(weiterer.GetCancel(), True);
        EXPECT_EQ(weiterer.GetVollstaendig(), False);
        EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    }
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, A_cancel_before_Start_sends_nothing) {
    dialog.show();
    Kind<QPushButton>(dialog, "cmdCancel").click();
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, A_line_pulled_and_plugged_in_again_is_survived) {
    BeiAdresse(0x2034, [this] {
        port.offen = false;
        port.oeffnenGelingt = false;
        umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(2500),
                       [this] { port.oeffnenGelingt = true; });
    });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(Geschrieben(189), 1);
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, The_captions_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    Dialog englisch;
    EXPECT_EQ(englisch.windowTitle(), "Write configuration to Varnoth");
    EXPECT_EQ(Beschriftung(englisch, "lblSpeicherbereich"), "Memory range: ");
    EXPECT_EQ(Beschriftung(englisch, "lblAktuellesRegister"), "Current register:");
    EXPECT_EQ(Beschriftung(englisch, "lblRegisteranzahl"), "Register count:");
    EXPECT_EQ(Beschriftung(englisch, "lblSchreibversuch"), "Write attempt :");
    EXPECT_EQ(Beschriftung(englisch, "lblFortschritt"), "Progress: ");
    EXPECT_EQ(Speichern(englisch).text(), "Save all configuration data");
    EXPECT_EQ(Kind<QPushButton>(englisch, "cmdStart").text(), "Start");
    EXPECT_EQ(Kind<QPushButton>(englisch, "cmdCancel").text(), "Cancel");
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, No_text_is_cut_off_in_either_language) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Dialog weiterer;
        BeiAnforderung([&](int) {
            for (const auto* feld : weiterer.findChildren<QLineEdit*>())
                EXPECT_LT(feld->fontMetrics().horizontalAdvance(feld->text()), feld->width() - 8)
                    << feld->text().toStdString();
        });
        weiterer.show();
        Starte(weiterer);
    }
}

TEST_F(frmKonfigurationSchreibenInHardwareTest,
       Tab_leads_to_storing_checking_changes_Start_and_cancel_and_to_no_field_that_only_shows) {
    EXPECT_EQ(Tabfolge(dialog), "chkSpeichern chkPruefen cmdAenderungen cmdStart cmdCancel");
}

TEST_F(frmKonfigurationSchreibenInHardwareTest,
       The_status_bar_says_how_many_registers_were_written_and_stored) {
    dialog.show();
    Starte(dialog);
    ASSERT_EQ(dialog.GetVollstaendig(), True);
    int gesendet = 0;
    constexpr int Optikteilauswahl = 212, Kanalauswahl = 213, Kommando = 189;
    for (const auto& vorgang : geraet.geschrieben)
        if (vorgang.adresse != Optikteilauswahl && vorgang.adresse != Kanalauswahl &&
            vorgang.adresse != Kommando)
            gesendet += static_cast<int>(vorgang.werte.size());
    EXPECT_TRUE(
        QString::fromStdString(umgebung.statustexte[0])
            .endsWith(
                QStringLiteral(": %1 Register geschrieben und im Steuergerät gespeichert").arg(gesendet)))
        << umgebung.statustexte[0] << " but sent " << gesendet;
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, The_status_bar_says_when_nothing_was_stored) {
    dialog.show();
    Speichern(dialog).setChecked(false);
    Starte(dialog);
    EXPECT_TRUE(umgebung.statustexte[0].ends_with(" Register geschrieben, nicht dauerhaft gespeichert"))
        << umgebung.statustexte[0];
}

TEST_F(frmKonfigurationSchreibenInHardwareTest, A_write_that_was_cancelled_leaves_the_status_bar_alone) {
    umgebung.statustexte[0] = "before";
    Schweige([&](int anforderung) {
        if (anforderung == 2)
            dialog.reject();
    });
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(umgebung.statustexte[0], "before");
}

} // namespace varnoth
