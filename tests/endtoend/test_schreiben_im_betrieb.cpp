// What a write is worth: the backup before it, what it will change, the check behind it, and the way back.

#include "programmtest.h"

#include "dateisicherungen.h"
#include "leitungsstatistik.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "vergleich.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <gmock/gmock.h>

namespace varnoth::pruefung {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr const char* Schreibfenster = "frmKonfigurationSchreibenInHardware";
constexpr const char* Listenfenster = "frmRegisterliste";

} // namespace

class SchreibenImBetrieb : public ProgrammTest {
protected:
    void GeheLiveMitSpeicher() {
        GeheLive({"--beams", "32,16,32,0", "--store", Pfad("speicher")});
        vorher = modDaten::DasAbbild();
    }
    /// Changes five settings in the editor and leaves it for the write dialog.
    void AendereFuenf() {
        ImEditor([](QWidget& editor) {
            Klicke(editor, "optPNPAusgang_Option1_4");
            Kind<QComboBox>(editor, "cboReichweite_0").setCurrentIndex(4);
            Kind<QComboBox>(editor, "cboMinMaxHaltezeit_1").setCurrentIndex(99);
            Kind<QComboBox>(editor, "cboMinMaxHaltezeit_2").setCurrentIndex(49);
            Kind<QLineEdit>(editor, "txtPausenzeit").setText("1234");
            Klicke(editor, "cmdDownLoad");
        });
    }
    void LeereEditoraenderungen() {
        ImEditor([](QWidget& editor) { Klicke(editor, "cmdDownLoad"); });
    }
    void ImEditor(std::function<void(QWidget&)> tat) {
        fahrer.Sobald(
            [] {
                QWidget* editor = SichtbaresFenster("frmKonfigurationEdit");
                return editor != nullptr && Kind<QAbstractButton>(*editor, "cmdDownLoad").isEnabled();
            },
            [tat = std::move(tat)] { tat(*SichtbaresFenster("frmKonfigurationEdit")); });
    }
    /// Starts the write, with the check or without.
    void Starte(bool pruefen, std::function<void()> vorDemStart = {}) {
        InFenster(Schreibfenster, [pruefen, vorDemStart = std::move(vorDemStart)](QWidget& dialog) {
            Kind<QAbstractButton>(dialog, "chkPruefen").setChecked(pruefen);
            if (vorDemStart)
                vorDemStart();
            Klicke(dialog, "cmdStart");
        });
    }
    /// Cancels the write dialog at its so many-th attempt at the same register.
    void BrichAbBeiVersuch(int versuch) {
        fahrer.Sobald(
            [versuch] {
                QWidget* dialog = SichtbaresFenster(Schreibfenster);
                return dialog != nullptr &&
                       Kind<QLineEdit>(*dialog, "txtSchreibversuch").text().toInt() >= versuch;
            },
            [] { Klicke(*SichtbaresFenster(Schreibfenster), "cmdCancel"); });
    }
    /// Notes what the list shows, and presses a button of it.
    void InListe(const QString& knopf, std::function<void()> vorDemDruck = {}) {
        InFenster(Listenfenster, [this, knopf, vorDemDruck = std::move(vorDemDruck)](QWidget& liste) {
            zeilen = Kind<QTreeWidget>(liste, "lstRegister").topLevelItemCount();
            befund = Kind<QLabel>(liste, "lblBefund").text().toStdString();
            if (vorDemDruck)
                vorDemDruck();
            Klicke(liste, knopf);
        });
    }
    /// Goes on in the list on a line in order, and writes with the check.
    void SchreibeNochEinmal() {
        InListe("cmdWeiter", [this] {
            geraet->Befehl("fault none");
            Starte(true);
        });
    }
    bool Bearbeite() { return FuehreAus("mnuAnzeigeKonfiguration"); }
    int Unterschiede() const {
        return Vergleiche(vorher, modDaten::DasAbbild(), {}, Vergleichsumfang::Geschriebenes).Unterschiede();
    }
    std::vector<Sicherung> AlleSicherungen() const { return DieSicherungen()->Alle(); }

    Abbild vorher;
    int zeilen = -1;
    std::string befund;
};

TEST_F(SchreibenImBetrieb, What_was_written_stays_readable_while_live_data_runs_again) {
    GeheLiveMitSpeicher();
    AendereFuenf();
    Starte(false);
    ASSERT_TRUE(Bearbeite());
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_THAT(Statusfeld(1), HasSubstr("191 Register geschrieben und im Steuergerät gespeichert"));
}

TEST_F(SchreibenImBetrieb, A_controller_that_restarts_in_the_middle_of_a_part_is_found) {
    GeheLiveMitSpeicher();
    geraet->Befehl("fault restart-at=0x2018,2:1");
    AendereFuenf();
    Starte(true);
    InListe("cmdSchliessen");
    ASSERT_TRUE(Bearbeite());
    EXPECT_EQ(geraet->Register("specific 0 25"), 50) << "the value of the third part has gone to the first";
    EXPECT_GE(zeilen, 3);
    EXPECT_THAT(befund, Not(HasSubstr("191 von 191")));
}

TEST_F(SchreibenImBetrieb, A_controller_that_falls_silent_while_it_is_checked_is_told_as_not_compared) {
    GeheLiveMitSpeicher();
    AendereFuenf();
    Starte(true, [this] { geraet->Befehl("fault silence@0x03"); });
    BrichAbBeiVersuch(2);
    InListe("cmdSchliessen", [this] { geraet->Befehl("fault none"); });
    ASSERT_TRUE(Bearbeite());
    EXPECT_THAT(befund, HasSubstr("0 von 191 Registern"));
    EXPECT_THAT(befund, HasSubstr("(191 Register) wurden nicht verglichen"));
    EXPECT_EQ(geraet->Register("communication 8"), 1234);
}

TEST_F(SchreibenImBetrieb, A_broken_write_is_listed_and_what_was_before_is_written_back) {
    GeheLiveMitSpeicher();
    AendereFuenf();
    Starte(false, [this] {
        geraet->Befehl("fault late=0:30@0x10");
        geraet->Befehl("fault silence@0x10");
    });
    BrichAbBeiVersuch(2);
    SchreibeNochEinmal();
    ASSERT_TRUE(Bearbeite());
    EXPECT_EQ(zeilen, 38);
    EXPECT_THAT(befund, HasSubstr("Das Schreiben wurde nicht beendet."));
    EXPECT_THAT(befund, HasSubstr("ungewiss"));
    EXPECT_EQ(Unterschiede(), 0) << "what was read after that";
    const auto alle = AlleSicherungen();
    ASSERT_EQ(alle.size(), 2U) << "half written is no state to go back to";
    EXPECT_EQ(alle[0].angaben.anlass, Sicherungsanlass::VorDemVerbinden);
    EXPECT_EQ(alle[1].angaben.anlass, Sicherungsanlass::VorDemSchreiben);
}

TEST_F(SchreibenImBetrieb, In_English_a_broken_write_is_told_and_written_back_as_well) {
    GeheLiveMitSpeicher();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    AendereFuenf();
    Starte(false, [this] {
        geraet->Befehl("fault late=0:30@0x10");
        geraet->Befehl("fault silence@0x10");
    });
    BrichAbBeiVersuch(2);
    std::string titel;
    std::string weiter;
    InFenster(Listenfenster, [&, this](QWidget& liste) {
        titel = liste.windowTitle().toStdString();
        befund = Kind<QLabel>(liste, "lblBefund").text().toStdString();
        weiter = Kind<QAbstractButton>(liste, "cmdWeiter").text().toStdString();
        geraet->Befehl("fault none");
        Starte(true);
        Klicke(liste, "cmdWeiter");
    });
    ASSERT_TRUE(Bearbeite());
    EXPECT_EQ(titel, "Write cancelled");
    EXPECT_THAT(befund, testing::StartsWith("The write was not completed. Registers: "));
    EXPECT_EQ(weiter, "Write back what was there before...");
    EXPECT_THAT(Statusfeld(1), HasSubstr("191 of 191 registers read back equal. Stored in the controller."));
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStart"));
    EXPECT_EQ(Unterschiede(), 0) << "what was read after that";
}

TEST_F(SchreibenImBetrieb, A_backup_is_opened_from_the_window_of_backups) {
    GeheLiveMitSpeicher();
    AendereFuenf();
    Starte(false);
    ASSERT_TRUE(Bearbeite());
    ASSERT_TRUE(LaufeBis(IstLive));
    ASSERT_TRUE(FuehreAus("mnuSicherungen"));
    QWidget* const fenster = SichtbaresFenster("frmSicherungen");
    ASSERT_NE(fenster, nullptr);
    auto& liste = Kind<QTreeWidget>(*fenster, "lstSicherungen");
    ASSERT_EQ(liste.topLevelItemCount(), 1);
    QTreeWidgetItem* const eintrag = liste.topLevelItem(0)->child(0);
    EXPECT_EQ(eintrag->text(2), "5 Einstellungen");
    liste.setCurrentItem(eintrag);
    Klicke(*fenster, "cmdOeffnen");
    ASSERT_TRUE(LaufeBis([this] { return Unterschiede() == 0; }));
    EXPECT_EQ(modDaten::GetDateiname(), "") << "a save is not led to the backup";
    EXPECT_FALSE(IstLive());
    EXPECT_EQ(liste.topLevelItem(0)->child(0)->text(2), "gleich");
    fenster->close();
}

TEST_F(SchreibenImBetrieb, Changes_that_were_not_written_are_backed_up_when_the_program_connects_again) {
    GeheLiveMitSpeicher();
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    InFenster("frmStrahlenBestimmen", [](QWidget& dialog) { Klicke(dialog, "cmdOK"); });
    ASSERT_TRUE(FuehreAus("mnuNeu"));
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStart"));
    const auto alle = AlleSicherungen();
    ASSERT_EQ(alle.size(), 1U);
    EXPECT_EQ(alle[0].angaben.anlass, Sicherungsanlass::VorDemVerbinden);
    const auto gesichertes = DieSicherungen()->Lies(alle[0]);
    ASSERT_TRUE(gesichertes);
    EXPECT_EQ(
        gesichertes->HoleRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 3), 32);
}

/// The same on a line in order and on one that fails again and again, from the first request on.
class SchreibenAufJederLeitung : public SchreibenImBetrieb, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        SchliesseGeraetAn({"--beams", "32,16,32,0", "--store", Pfad("speicher")});
        Stoere();
        ProgrammTest::Starte();
        Verbinde();
        ASSERT_TRUE(LaufeBis(IstLive));
        vorher = modDaten::DasAbbild();
    }
    void TearDown() override {
        EXPECT_EQ(modLeitungsstatistik::FehlschlaegeDerLetztenMinute() > 0, GetParam());
        EXPECT_THAT(Meldungen(), IsEmpty());
    }
    /// Lets replies of reads and of writes go wrong, with some in order between them.
    void Stoere() {
        if (!GetParam())
            return;
        geraet->Befehl("fault none");
        for (const char* fehler :
             {"late=0:4@0x03", "silence:1@0x03", "late=0:5@0x03", "repeat=3:1@0x03", "late=0:7@0x03",
              "repeat-earlier=2,3:1@0x03", "late=0:4@0x10", "crc:1@0x10", "late=0:6@0x10", "repeat=3:1@0x10"})
            geraet->Befehl(std::string("fault ") + fehler);
    }
    /// All that a write sends, as the controller itself has it.
    std::vector<int> ImGeraet() {
        std::vector<int> werte;
        FuerJedesRegister([&](const std::string& ort) { werte.push_back(geraet->Register(ort)); });
        return werte;
    }
    static void FuerJedesRegister(const std::function<void(const std::string&)>& tat) {
        for (const auto& [bereich, adresse, teil] : AlleStellen(IstSchreibbar))
            for (int i = 0; i < Beschreibung(bereich, adresse).Laenge; ++i)
                tat(Ort(bereich, teil) + std::to_string(adresse + i));
    }

private:
    static std::string Ort(Speicherbereich bereich, int teil) {
        if (bereich == Speicherbereich::SpezifischeGeraetedaten)
            return "specific " + std::to_string(teil) + " ";
        return bereich == Speicherbereich::GlobaleGeraetedaten ? "global " : "communication ";
    }
};

TEST_P(SchreibenAufJederLeitung, Exactly_the_changed_settings_are_shown_before_and_read_back_equal_after) {
    std::vector<std::string> statustexte;
    programm->DieFensterumgebung().SetzeStatusanzeige(
        [&](int, const std::string& text) { statustexte.push_back(text); });
    AendereFuenf();
    InFenster(Schreibfenster, [this](QWidget& dialog) {
        InListe("cmdSchliessen");
        Starte(true, [this] { Stoere(); });
        Klicke(dialog, "cmdAenderungen");
    });
    ASSERT_TRUE(Bearbeite());
    EXPECT_EQ(zeilen, 5);
    EXPECT_THAT(befund, HasSubstr("ändert 5 Einstellungen"));
    EXPECT_EQ(geraet->Register("communication 8"), 1234);
    EXPECT_EQ(geraet->Register("specific 1 25"), 100);
    EXPECT_EQ(Unterschiede(), 5) << "what was read after the write";
    EXPECT_THAT(statustexte, Contains(HasSubstr("191 von 191 Registern zurückgelesen und gleich")));
    programm->DieFensterumgebung().SetzeStatusanzeige({});
}

TEST_P(SchreibenAufJederLeitung, The_backup_holds_what_was_before_and_written_back_restores_every_register) {
    const auto imGeraet = ImGeraet();
    AendereFuenf();
    Starte(false);
    ASSERT_TRUE(Bearbeite());
    ASSERT_NE(ImGeraet(), imGeraet);
    const auto alle = AlleSicherungen();
    ASSERT_EQ(alle.size(), 1U);
    const auto gesichertes = DieSicherungen()->Lies(alle[0]);
    ASSERT_TRUE(gesichertes);
    EXPECT_EQ(Vergleiche(vorher, *gesichertes).Unterschiede(), 0);
    EXPECT_EQ(alle[0].angaben.seriennummer, "SIM-0001");
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    FuerJedesRegister([this](const std::string& ort) {
        if (ort != "communication 4" && ort != "communication 74") // these two are the line's own
            geraet->Befehl("set " + ort + " 3");
    });
    Hauptfenster().LadeDatei(alle[0].pfad);
    LeereEditoraenderungen();
    Starte(true, [this] { Stoere(); });
    ASSERT_TRUE(Bearbeite());
    EXPECT_EQ(ImGeraet(), imGeraet);
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStart"));
    EXPECT_EQ(Unterschiede(), 0);
}

TEST_P(SchreibenAufJederLeitung,
       A_register_that_the_controller_silently_refuses_is_found_and_can_be_written_again) {
    geraet->Befehl("fault none");
    geraet->Befehl("fault forget=0x4008");
    AendereFuenf();
    Starte(true, [this] {
        Stoere();
        geraet->Befehl("fault forget=0x4008");
    });
    SchreibeNochEinmal();
    ASSERT_TRUE(Bearbeite());
    EXPECT_EQ(zeilen, 1);
    EXPECT_EQ(befund, "190 von 191 Registern zurückgelesen und gleich.\n"
                      "Anders als geschrieben ist 1 Einstellung.");
    EXPECT_EQ(geraet->Register("communication 8"), 1234);
    EXPECT_EQ(AlleSicherungen().size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Line, SchreibenAufJederLeitung, testing::Bool(), [](const auto& stoerung) {
    return stoerung.param ? std::string("that_fails") : std::string("in_order");
});

} // namespace varnoth::pruefung
