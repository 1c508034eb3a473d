// The configuration from the controller through the editor and back, and without a controller.

#include "programmtest.h"

#include "dateidialog.h"
#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "zykluszeiten.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <gmock/gmock.h>

#include <map>

namespace varnoth::pruefung {

using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

/// A register of the image: range, optical part, address.
using Ort = std::tuple<Speicherbereich, int, int>;

/// The parameters that a write sends, with the registers they hold in the image.
std::map<Ort, std::int32_t> Konfiguration() {
    std::map<Ort, std::int32_t> alle;
    for (const auto bereich : {Speicherbereich::GlobaleGeraetedaten, Speicherbereich::SpezifischeGeraetedaten,
                               Speicherbereich::Kommunikationsdaten}) {
        std::int16_t adresse = 0;
        std::int16_t anzahl = 0;
        for (auto da = modDaten::ErsterSchreibbarerEintrag(bereich, adresse, anzahl); da != False;
             da = modDaten::NaechsterSchreibbarerEintrag(bereich, adresse, anzahl))
            for (int teil = 0; teil < Exemplare(bereich); ++teil)
                for (int i = adresse; i < adresse + anzahl; ++i)
                    alle[{bereich, teil, i}] =
                        modDaten::Bereich(bereich)[Stelle(bereich, static_cast<std::int16_t>(i), teil)];
    }
    return alle;
}

} // namespace

class KonfigurationImBetrieb : public ProgrammTest {
protected:
    /// No controller answers; every file dialog gives this path.
    void StarteOhneGeraet(const std::string& pfad) {
        SchreibeEinstellungen("[Settings]\nComGeraet1=" + Pfad("no-line").toUtf8() + "\n");
        Starte();
        SetzeDateiantwort([pfad](const Dateifrage&) { return pfad; });
    }
    static void WaehlePosten(QWidget& fenster, const QString& liste, int posten) {
        Kind<QComboBox>(fenster, liste).setCurrentIndex(posten);
    }
    /// The editor once a controller has answered it, so that it can be left with Apply/Download.
    void ImEditor(std::function<void(QWidget&)> tat) {
        fahrer.Sobald(
            [] {
                QWidget* editor = SichtbaresFenster("frmKonfigurationEdit");
                return editor != nullptr && Kind<QAbstractButton>(*editor, "cmdDownLoad").isEnabled();
            },
            [tat = std::move(tat)] { tat(*SichtbaresFenster("frmKonfigurationEdit")); });
    }
    /// The write dialog: stores in the controller or not, and starts.
    void Schreibe(bool speichern) {
        InFenster("frmKonfigurationSchreibenInHardware", [speichern](QWidget& dialog) {
            Kind<QAbstractButton>(dialog, "chkSpeichern").setChecked(speichern);
            Klicke(dialog, "cmdStart");
        });
    }
    /// What the controller was told to write since its log held so many lines, without the time.
    std::vector<std::string> GeschriebenSeit(std::size_t zeilen) const {
        std::vector<std::string> geschrieben;
        const auto alle = Protokoll();
        for (std::size_t i = zeilen; i < alle.size(); ++i)
            if (const auto stelle = alle[i].find(" write "); stelle != std::string::npos)
                geschrieben.push_back(alle[i].substr(stelle + 1, alle[i].find(" =") - stelle - 1));
        return geschrieben;
    }
    std::vector<std::string> Protokoll() const {
        std::vector<std::string> zeilen;
        QFile datei(Pfad("log"));
        EXPECT_TRUE(datei.open(QIODevice::ReadOnly));
        while (!datei.atEnd())
            zeilen.push_back(datei.readLine().trimmed().toStdString());
        return zeilen;
    }
    void GeheLiveMitProtokoll() {
        GeheLive({"--beams", "32,16,0,0", "--store", Pfad("speicher"), "--log", Pfad("log")});
    }
};

namespace {

/// The writes of a whole configuration as the controller's log names them.
std::vector<std::string> GanzeFolge(bool speichern) {
    std::vector<std::string> folge{"write global 193"};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        folge.push_back("write global 212");
        for (const char* adresse : {"13", "14", "19", "24", "25", "26", "27", "52..83"})
            folge.push_back("write specific[" + std::to_string(teil) + "] " + adresse);
    }
    folge.push_back("write global 213");
    for (const char* adresse : {"4", "8", "74", "75..104", "126"})
        folge.push_back(std::string("write communication ") + adresse);
    if (speichern)
        folge.push_back("write global 189");
    return folge;
}

} // namespace

TEST_F(KonfigurationImBetrieb, Every_changed_setting_arrives_is_stored_and_no_other_changes) {
    GeheLiveMitProtokoll();
    auto erwartet = Konfiguration();
    ImEditor([](QWidget& editor) {
        Klicke(editor, "optPNPAusgang_Option1_4");
        WaehlePosten(editor, "cboReichweite_0", 4);
        WaehlePosten(editor, "cboMinMaxHaltezeit_1", 99);
        WaehlePosten(editor, "cboGruppenzähler_0", 6);
        Klicke(editor, "optGruppenzählerOder_0");
        Kind<QLineEdit>(editor, "txtPausenzeit").setText("1234");
        Klicke(editor, "optAutosendohneTrigger");
        WaehlePosten(editor, "cbolOhneTriggerAutosendrate", 8);
        WaehlePosten(editor, "cboBaudrate", 1);
        Klicke(editor, "cmdReihenfolge");
    });
    bool geloescht = false;
    InFenster("frmReihenfolge", [&geloescht](QWidget& dialog) {
        Klicke(dialog, "Command3");
        Klicke(dialog, "cmdOK");
        geloescht = true;
    });
    fahrer.Sobald([&geloescht] { return geloescht && SichtbaresFenster("frmReihenfolge") == nullptr; },
                  [] { Klicke(*SichtbaresFenster("frmKonfigurationEdit"), "cmdDownLoad"); });
    Schreibe(true);
    ASSERT_TRUE(FuehreAus("mnuAnzeigeKonfiguration"));
    erwartet[{Global, 0, global::PnpAusgang}] &= 0x8300;
    erwartet[{Global, 0, global::PnpAusgang}] |= 1 << 3;
    erwartet[{Spezifisch, 0, spezifisch::Reichweite}] = 4;
    erwartet[{Spezifisch, 1, spezifisch::MinMaxHaltezeit}] = 100;
    erwartet[{Spezifisch, 0, spezifisch::Gruppenzaehler}] = 0x8000 + 7;
    erwartet[{Kommunikation, 0, kommunikation::Pausenzeit}] = 1234;
    erwartet[{Kommunikation, 0, kommunikation::Autosend}] = 9 * 256 + 1;
    erwartet[{Kommunikation, 0, kommunikation::Autosendformat}] =
        (erwartet[{Kommunikation, 0, kommunikation::Autosendformat}] & 0xFF00) + 13;
    for (int i = kommunikation::Datenblock; i < kommunikation::Datenblock + 29; ++i)
        erwartet[{Kommunikation, 0, i}] = erwartet[{Kommunikation, 0, i + 1}];
    erwartet[{Kommunikation, 0, kommunikation::Datenblock + 29}] = 0;
    geraet->Befehl("restart");
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStart"));
    EXPECT_EQ(Konfiguration(), erwartet);
}

TEST_F(KonfigurationImBetrieb, A_write_follows_the_exact_sequence_stores_and_ends_autosend) {
    GeheLiveMitProtokoll();
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    ImEditor([](QWidget& editor) { Klicke(editor, "cmdDownLoad"); });
    Schreibe(true);
    const std::size_t vorher = Protokoll().size();
    ASSERT_TRUE(FuehreAus("mnuAnzeigeKonfiguration"));
    auto erwartet = GanzeFolge(true);
    erwartet.push_back("write communication 132");
    EXPECT_THAT(GeschriebenSeit(vorher), ElementsAreArray(erwartet));
}

TEST_F(KonfigurationImBetrieb, Without_storing_the_store_register_is_never_written) {
    GeheLiveMitProtokoll();
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    ImEditor([](QWidget& editor) { Klicke(editor, "cmdDownLoad"); });
    Schreibe(false);
    const std::size_t vorher = Protokoll().size();
    ASSERT_TRUE(FuehreAus("mnuAnzeigeKonfiguration"));
    auto erwartet = GanzeFolge(false);
    erwartet.push_back("write communication 132");
    EXPECT_THAT(GeschriebenSeit(vorher), ElementsAreArray(erwartet));
}

TEST_F(KonfigurationImBetrieb, A_write_cancelled_in_any_range_leaves_the_rest_unwritten) {
    for (const char* halt : {"global 193", "specific[1] 13", "communication 74"}) {
        GeheLiveMitProtokoll();
        ImEditor([](QWidget& editor) { Klicke(editor, "cmdDownLoad"); });
        std::size_t vorher = 0;
        InFenster("frmKonfigurationSchreibenInHardware", [&](QWidget& dialog) {
            vorher = Protokoll().size();
            Klicke(dialog, "cmdStart");
        });
        const std::string letzter = std::string("write ") + halt;
        fahrer.Sobald(
            [&, letzter] {
                const auto bisher = GeschriebenSeit(vorher);
                const bool erreicht = std::ranges::find(bisher, letzter) != bisher.end();
                return vorher != 0 && erreicht;
            },
            [] {
                if (QWidget* dialog = SichtbaresFenster("frmKonfigurationSchreibenInHardware"))
                    Klicke(*dialog, "cmdCancel");
            });
        geraet->Befehl("fault pieces=20:200@16");
        ASSERT_TRUE(FuehreAus("mnuAnzeigeKonfiguration"));
        geraet->Befehl("fault none");
        EXPECT_THAT(GeschriebenSeit(vorher), testing::Not(testing::Contains("write global 189"))) << halt;
        Beende();
    }
}

TEST_F(KonfigurationImBetrieb, Without_a_controller_a_configuration_is_made_edited_saved_and_opened_again) {
    const std::string pfad = Pfad(QStringLiteral("Prüf stand.con")).toStdString();
    StarteOhneGeraet(pfad);
    InFenster("frmStrahlenBestimmen", [](QWidget& dialog) {
        WaehlePosten(dialog, "Combo1_0", 99);
        WaehlePosten(dialog, "Combo1_3", 0);
        Klicke(dialog, "cmdOK");
    });
    ASSERT_TRUE(FuehreAus("mnuNeu"));
    fahrer.Sobald(
        [] {
            QWidget* editor = SichtbaresFenster("frmKonfigurationEdit");
            return editor != nullptr && Kind<QAbstractButton>(*editor, "cmdUebernehmen").isEnabled();
        },
        [] {
            QWidget& editor = *SichtbaresFenster("frmKonfigurationEdit");
            WaehlePosten(editor, "cboReichweite_0", 5);
            Klicke(editor, "cmdUebernehmen");
        });
    ASSERT_TRUE(FuehreAus("mnuAnzeigeKonfiguration"));
    ASSERT_TRUE(FuehreAus("mnuSpeichernUnter"));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    const auto gespeichert = Konfiguration();
    Beende();
    StarteOhneGeraet(pfad);
    ASSERT_TRUE(FuehreAus("mnuOeffnen"));
    EXPECT_EQ(Konfiguration(), gespeichert);
    EXPECT_EQ(modDaten::Strahlenzahl(0), 100);
    EXPECT_EQ(modDaten::Strahlenzahl(3), 0);
    EXPECT_TRUE(Ansicht(0).isVisible());
    EXPECT_THAT(Meldungen(), IsEmpty());
}

/// No controller answers, and a configuration of four parts of 32 beams was saved last.
class OhneGeraet : public KonfigurationImBetrieb {
protected:
    OhneGeraet() {
        StarteOhneGeraet(pfad);
        InFenster("frmStrahlenBestimmen", [](QWidget& dialog) { Klicke(dialog, "cmdOK"); });
        EXPECT_TRUE(FuehreAus("mnuNeu"));
        EXPECT_TRUE(FuehreAus("mnuSpeichernUnter"));
    }
    /// Tries to connect, and goes this way on when that fails.
    bool VerbindeUndWaehle(const QString& option) {
        InFenster("frmIdentifikationsAnforderung", [](QWidget& dialog) { Klicke(dialog, "cmdCancel"); });
        InFenster("frmKeinKonturAngeschlossen", [option](QWidget& dialog) {
            Klicke(dialog, option);
            Klicke(dialog, "cmdOK");
        });
        return FuehreAus("mnuMessdatenVisualisierenStart");
    }

    const std::string pfad = Pfad("last.con").toStdString();
};

TEST_F(OhneGeraet, The_last_saved_file_can_be_loaded) {
    ASSERT_TRUE(VerbindeUndWaehle("optLadeletztenKonfigurationsdatensatz"));
    EXPECT_EQ(modDaten::Strahlenzahl(0), 32);
    EXPECT_EQ(modDaten::GetDateiname(), pfad);
}

TEST_F(OhneGeraet, A_file_can_be_opened) {
    ASSERT_TRUE(VerbindeUndWaehle(QStringLiteral("optKonfigurationöffnen")));
    EXPECT_EQ(modDaten::Strahlenzahl(0), 32);
    EXPECT_EQ(modDaten::GetDateiname(), pfad);
}

TEST_F(OhneGeraet, Beam_counts_can_be_entered) {
    ASSERT_TRUE(VerbindeUndWaehle("optStrahlenanzahl"));
    EXPECT_EQ(modDaten::Strahlenzahl(0), 32);
    EXPECT_EQ(modDaten::GetDateiname(), "");
}

} // namespace varnoth::pruefung
