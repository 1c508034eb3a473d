// What stands around a write: the backup before it, the check after it, what it will change, what is left of
// a broken one.

#include "dialogtest.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "frmRegisterliste.h"
#include "pruefsicherungen.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schreibablauf.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <QApplication>
#include <QCheckBox>
#include <QTimer>
#include <QTreeWidget>

namespace varnoth {

using pruefung::Wort;

namespace {

constexpr int Schreibvorgaenge = 43;

} // namespace

/// The controller holds what was read; a setting of the image in use differs from it.
class SchreibumfeldTest : public pruefung::DialogTest {
protected:
    using Dialog = frmKonfigurationSchreibenInHardware;

    SchreibumfeldTest() {
        modDaten::LadeStandardkonfiguration();
        EXPECT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
        modGeraetestand::MerkeGelesen(modDaten::DasAbbild(), "4711");
        EXPECT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Reichweite, 5, 2));
    }

    static void Starte(QDialog& dialog) { Kind<QPushButton>(dialog, "cmdStart").click(); }
    static QCheckBox& Pruefen(QDialog& dialog) { return Kind<QCheckBox>(dialog, "chkPruefen"); }
    static bool IstSichtbar(QDialog& dialog, const char* name) {
        return !Kind<QLabel>(dialog, name).isHidden();
    }
    void Schreibe(bool pruefen) {
        Dialog dialog;
        Pruefen(dialog).setChecked(pruefen);
        dialog.show();
        Starte(dialog);
        ergebnis = dialog.Ergebnis();
    }
    /// Does something with the next modal dialog of another kind than message boxes, once it is shown.
    template<class Fenster>
    void InFenster(std::function<void(Fenster&)> tat) {
        QTimer::singleShot(0, [this, tat = std::move(tat)] {
            auto* const fenster = dynamic_cast<Fenster*>(QApplication::activeModalWidget());
            fenster != nullptr ? tat(*fenster) : InFenster<Fenster>(tat);
        });
    }

    pruefung::PruefSicherungen sicherungen;
    Schreibergebnis ergebnis;
};

TEST_F(SchreibumfeldTest, What_the_controller_held_is_put_aside_before_the_first_request) {
    const auto vorher = modGeraetestand::HoleGeraetestand();
    int gesendetBeimSichern = -1;
    sicherungen.beimLegen = [&] { gesendetBeimSichern = AnzahlAnforderungen(); };
    Schreibe(false);
    ASSERT_EQ(sicherungen.gelegte.size(), 1U);
    EXPECT_EQ(sicherungen.gelegte[0].second, vorher->abbild);
    EXPECT_EQ(gesendetBeimSichern, 0);
    EXPECT_EQ(AnzahlAnforderungen(), Schreibvorgaenge + 1);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(SchreibumfeldTest, A_backup_that_fails_is_said_before_the_write_and_the_user_may_go_on) {
    sicherungen.fehler = "disk full\n/somewhere";
    int gesendet = -1;
    umgebung.beiMeldung = [&](const Meldung&) { gesendet = AnzahlAnforderungen(); };
    Schreibe(false);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    const Meldung& meldung = umgebung.meldungen[0];
    EXPECT_EQ(meldung.text, "Die Sicherung vor dem Schreiben ist misslungen:\ndisk full\n/somewhere\n\n"
                            "Soll trotzdem in das Gerät geschrieben werden?");
    EXPECT_EQ(meldung.knoepfe, Knoepfe::OkAbbrechen);
    EXPECT_TRUE(meldung.abbrechenVorgegeben);
    EXPECT_EQ(gesendet, 0);
    EXPECT_EQ(AnzahlAnforderungen(), Schreibvorgaenge + 1);
}

TEST_F(SchreibumfeldTest, A_backup_that_fails_and_a_no_leave_the_dialog_as_it_was) {
    sicherungen.fehler = "disk full";
    umgebung.antworten = {Antwort::Abbrechen};
    Dialog dialog;
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(Bereit(dialog, "cmdStart"));
    sicherungen.fehler.clear();
    Starte(dialog);
    EXPECT_EQ(AnzahlAnforderungen(), Schreibvorgaenge + 1);
}

TEST_F(SchreibumfeldTest, A_dialog_closed_while_the_backup_is_asked_about_writes_nothing) {
    sicherungen.fehler = "disk full";
    Dialog dialog;
    umgebung.beiMeldung = [&](const Meldung&) { dialog.reject(); };
    dialog.show();
    Starte(dialog);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SchreibumfeldTest, The_dialog_says_what_will_be_put_aside_or_that_nothing_is_known) {
    Dialog bekannt;
    EXPECT_TRUE(Beschriftung(bekannt, "lblSicherung")
                    .startsWith("Zuvor wird gesichert, was das Gerät zuletzt enthielt ("));
    modGeraetestand::MerkeGeschrieben({}, {{Global, global::PnpAusgang, 0}}, "another");
    Dialog unbekannt;
    EXPECT_EQ(Beschriftung(unbekannt, "lblSicherung"),
              "Was das Gerät enthält, ist nicht bekannt und wird nicht gesichert.");
    SetzeSicherungen(nullptr);
    Dialog ohne;
    EXPECT_FALSE(IstSichtbar(ohne, "lblSicherung"));
}

TEST_F(SchreibumfeldTest, Checking_is_off_until_chosen_and_then_remembered) {
    Dialog dialog;
    EXPECT_FALSE(Pruefen(dialog).isChecked());
    Pruefen(dialog).click();
    Dialog naechster;
    EXPECT_TRUE(Pruefen(naechster).isChecked());
    Pruefen(naechster).click();
    Dialog letzter;
    EXPECT_FALSE(Pruefen(letzter).isChecked());
}

TEST_F(SchreibumfeldTest, Without_checking_nothing_is_read) {
    Schreibe(false);
    EXPECT_TRUE(geraet.gelesen.empty());
    EXPECT_FALSE(ergebnis.pruefung);
}

TEST_F(SchreibumfeldTest, With_checking_the_same_is_written_and_then_read_back) {
    Schreibe(false);
    const auto ohne = geraet.geschrieben;
    geraet.geschrieben.clear();
    Schreibe(true);
    ASSERT_GT(geraet.geschrieben.size(), ohne.size());
    geraet.geschrieben.resize(ohne.size());
    geraet.geschrieben.front().teil = ohne.front().teil;
    EXPECT_EQ(geraet.geschrieben[1], (pruefung::PruefGeraet::Schreibvorgang{3, 212, {0}}));
    geraet.geschrieben[1].teil = ohne[1].teil;
    EXPECT_EQ(geraet.geschrieben, ohne);
    EXPECT_EQ(geraet.gelesen.size(), AlleStellen(IstSchreibbar).size());
    ASSERT_TRUE(ergebnis.pruefung);
    EXPECT_TRUE(ergebnis.pruefung->IstGut());
    EXPECT_TRUE(umgebung.statustexte[0].ends_with(
        ": 191 von 191 Registern zurückgelesen und gleich. Im Steuergerät gespeichert."))
        << umgebung.statustexte[0];
}

TEST_F(SchreibumfeldTest, A_check_that_is_cancelled_leaves_a_whole_write_and_says_what_was_not_compared) {
    int lesungen = 0;
    Dialog dialog;
    Pruefen(dialog).setChecked(true);
    geraet.schweige = [&](const std::string& anforderung) {
        if (anforderung.at(1) != 3 || ++lesungen < 4)
            return false;
        dialog.reject();
        return true;
    };
    dialog.show();
    Starte(dialog);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_TRUE(dialog.Ergebnis().vollstaendig);
    ASSERT_TRUE(dialog.Ergebnis().pruefung);
    EXPECT_EQ(dialog.Ergebnis().pruefung->gleicheRegister, 3);
    EXPECT_EQ(dialog.Ergebnis().pruefung->nichtVerglichen.size(), AlleStellen(IstSchreibbar).size() - 3);
}

TEST_F(SchreibumfeldTest, A_new_station_address_is_announced_while_storing_is_chosen) {
    EXPECT_TRUE(modDaten::SetzeRegister(Kommunikation, kommunikation::Stationsadresse, 7));
    Dialog dialog;
    EXPECT_TRUE(IstSichtbar(dialog, "lblLeitung"));
    Kind<QCheckBox>(dialog, "chkSpeichern").click();
    EXPECT_FALSE(IstSichtbar(dialog, "lblLeitung"));
    Kind<QCheckBox>(dialog, "chkSpeichern").click();
    EXPECT_TRUE(Beschriftung(dialog, "lblLeitung").startsWith("Die Stationsadresse wird "));
}

TEST_F(SchreibumfeldTest, A_write_that_leaves_the_line_alone_announces_nothing) {
    Dialog dialog;
    EXPECT_FALSE(IstSichtbar(dialog, "lblLeitung"));
}

TEST_F(SchreibumfeldTest, Changes_shows_what_will_differ_and_sends_nothing) {
    Dialog dialog;
    dialog.show();
    int zeilen = -1;
    InFenster<frmRegisterliste>([&](frmRegisterliste& liste) {
        zeilen = Kind<QTreeWidget>(liste, "lstRegister").topLevelItemCount();
        EXPECT_TRUE(Kind<QPushButton>(liste, "cmdWeiter").isHidden());
        Kind<QPushButton>(liste, "cmdSchliessen").click();
    });
    Kind<QPushButton>(dialog, "cmdAenderungen").click();
    EXPECT_EQ(zeilen, 1);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(SchreibumfeldTest, While_writing_neither_changes_nor_checking_can_be_chosen) {
    Dialog dialog;
    bool bereit = true;
    BeiAnforderung([&](int) { bereit = Bereit(dialog, "cmdAenderungen") || Pruefen(dialog).isEnabled(); });
    dialog.show();
    Starte(dialog);
    EXPECT_FALSE(bereit);
}

TEST_F(SchreibumfeldTest, A_broken_write_is_listed_and_what_was_there_before_can_be_written_back) {
    const Abbild vorher = modGeraetestand::HoleGeraetestand()->abbild;
    InFenster<Dialog>([&](Dialog& dialog) {
        geraet.schweige = [&dialog](const std::string& anforderung) {
            if (Wort(anforderung, 2) != 213)
                return false;
            dialog.reject();
            return true;
        };
        InFenster<frmRegisterliste>([&](frmRegisterliste& liste) {
            geraet.schweige = {};
            EXPECT_EQ(Kind<QTreeWidget>(liste, "lstRegister").topLevelItemCount(), 38);
            InFenster<Dialog>([](Dialog& zweiter) { Starte(zweiter); });
            Kind<QPushButton>(liste, "cmdWeiter").click();
        });
        Starte(dialog);
    });
    SchreibeInDialogen(nullptr, [] { return false; });
    EXPECT_EQ(geraet.Spezifisch(2, spezifisch::Reichweite),
              vorher.HoleRegister(Spezifisch, spezifisch::Reichweite, 2));
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Reichweite, 2), 5) << "what is edited stays";
    EXPECT_EQ(sicherungen.gelegte.size(), 2U);
}

TEST_F(SchreibumfeldTest, Rows_that_are_not_as_written_can_be_written_again_alone) {
    bool vergisst = true;
    geraet.schweige = [&](const std::string& anforderung) {
        if (vergisst && anforderung.at(1) == 3)
            geraet.Register(193) = 8;
        return false;
    };
    InFenster<Dialog>([&](Dialog& dialog) {
        Pruefen(dialog).click();
        InFenster<frmRegisterliste>([&](frmRegisterliste& liste) {
            vergisst = false;
            geraet.geschrieben.clear();
            EXPECT_EQ(Kind<QTreeWidget>(liste, "lstRegister").topLevelItemCount(), 1);
            InFenster<Dialog>([](Dialog& zweiter) { Starte(zweiter); });
            Kind<QPushButton>(liste, "cmdWeiter").click();
        });
        Starte(dialog);
    });
    SchreibeInDialogen(nullptr, [] { return false; });
    EXPECT_EQ(geraet.Register(193), modDaten::HoleRegister(Global, global::PnpAusgang));
    EXPECT_EQ(std::ranges::count_if(geraet.geschrieben, [](const auto& v) { return v.adresse > 213; }), 0);
    EXPECT_TRUE(umgebung.statustexte[0].ends_with(
        ": 1 von 1 Register zurückgelesen und gleich. Im Steuergerät gespeichert."))
        << umgebung.statustexte[0];
}

TEST_F(SchreibumfeldTest, A_program_that_is_to_end_shows_no_list) {
    InFenster<Dialog>([&](Dialog& dialog) {
        BeiAnforderung([&dialog](int) { dialog.reject(); });
        Starte(dialog);
    });
    SchreibeInDialogen(nullptr, [] { return true; });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(SchreibumfeldTest, Texts_of_the_controller_are_shown_letter_by_letter) {
    Registerbefund befund{.titel = "t", .text = "<b>x</b>", .links = "l", .rechts = "r"};
    befund.zeilen.push_back(
        {.stelle = {}, .bereich = "b", .name = "n", .links = "<b>y</b>", .rechts = "z", .ort = "o"});
    frmRegisterliste liste(befund);
    EXPECT_EQ(Kind<QLabel>(liste, "lblBefund").textFormat(), Qt::PlainText);
    EXPECT_FALSE(Kind<QTreeWidget>(liste, "lstRegister").topLevelItem(0)->toolTip(2).contains("<b>"));
}

} // namespace varnoth
