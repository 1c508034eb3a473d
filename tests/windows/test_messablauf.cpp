#include "messablauf.h"

#include "aufzeichnungsanbieter.h"
#include "dateidialog.h"
#include "dateien.h"
#include "fenstertest.h"
#include "probedurchgaenge.h"
#include "programmversion.h"
#include "pruefgeraet.h"
#include "pruefmessquelle.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "schnittstelle.h"
#include "strahlbericht.h"
#include "transaktionen.h"

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;

namespace {

struct PruefWiedergabe : Wiedergabestand {
    const Messquelle& Quelle() const override { return quelle; }
    Zeit Jetzt() const override { return stelle; }
    void SpringeZu(Zeit laufzeit) override { stelle = laufzeit; }

    PruefMessquelle quelle;
    Zeit stelle{3};
};

/// A window that says which texts it has.
class Probefenster : public QLabel {
public:
    explicit Probefenster(Messanbieter& /*anbieter*/) { ++gemacht; }
    void ZeigeVor() { show(); }
    void Lokalisiere() { setText("neu"); }

    static inline int gemacht = 0;
};

/// A window that needs the third part while it is shown.
class Bedarfsfenster : public Probefenster {
public:
    using Probefenster::Probefenster;
    bool Braucht(int teil) const { return isVisible() && teil == 2; }
};

struct MessablaufTest : testing::Test {
    static void Nimm(int ab, int anzahl) {
        for (int i = ab; i < ab + anzahl; ++i)
            modMesshoerer::Melde(LebhafterDurchgang(i));
    }
    static void SetzeRegister(int wert) {
        ASSERT_TRUE(modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, wert));
    }
    std::int32_t Strahlen(std::uint64_t paket) {
        return ablauf.Quelle().Konfiguration(paket)->HoleRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                                  12);
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    Messablauf ablauf;
};

} // namespace

TEST_F(MessablaufTest, Always_listens_to_live_data) {
    modMesshoerer::Melde(Liveereignisart::Begonnen);
    Nimm(0, 3);
    const Messquelle& quelle = ablauf.Quelle();
    EXPECT_EQ(quelle.Spanne().bis, LebhafterDurchgang(2).uhr);
    EXPECT_EQ(ablauf.Jetzt(), quelle.Spanne().bis);
    EXPECT_EQ(quelle.Lies(0)->durchgaenge.size(), 3U);
    EXPECT_EQ(quelle.Lies(0)->ereignisse.at(0).art, Messereignisart::LiveBegonnen);
    EXPECT_FALSE(modMesshoerer::Braucht(0)) << "the line carries what it always does";
    EXPECT_FALSE(modMesshoerer::LaeuftAllein());
}

TEST_F(MessablaufTest, Hears_nothing_any_more_when_it_is_gone) {
    { const Messablauf zweiter; }
    Nimm(0, 1);
    EXPECT_EQ(ablauf.Speicher().Ende(), 1U);
}

TEST_F(MessablaufTest, Keeps_the_configuration_in_use_and_another_one_as_soon_as_it_is_there) {
    SetzeRegister(20);
    modMesshoerer::Melde(Liveereignisart::Begonnen);
    Nimm(0, 20);
    SetzeRegister(30);
    Nimm(20, 20);
    EXPECT_EQ(Strahlen(0), 20);
    EXPECT_EQ(Strahlen(ablauf.Quelle().PaketUm(LebhafterDurchgang(19).uhr)), 20);
    EXPECT_EQ(Strahlen(ablauf.Quelle().Ende() - 1), 30);
}

TEST_F(MessablaufTest, Values_that_are_measured_make_no_new_configuration) {
    modMesshoerer::Melde(Liveereignisart::Begonnen);
    for (int i = 0; i < 40; ++i) {
        ASSERT_TRUE(modDaten::SetzeParameter(Speicherbereich::SpezifischeGeraetedaten, 335, Werte(18, i)));
        Nimm(i, 1);
    }
    const Messquelle& quelle = ablauf.Quelle();
    EXPECT_EQ(quelle.Konfiguration(0), quelle.Konfiguration(quelle.Ende() - 1));
}

TEST_F(MessablaufTest, A_record_is_looked_at_in_place_of_memory_until_it_is_taken_out) {
    Nimm(0, 3);
    PruefWiedergabe wiedergabe;
    const int vorher = ablauf.Quellenzahl();
    ablauf.SpringeZu(Zeit(5));
    EXPECT_FALSE(ablauf.IstWiedergabe());
    ablauf.SetzeWiedergabe(&wiedergabe);
    EXPECT_TRUE(ablauf.IstWiedergabe());
    EXPECT_NE(ablauf.Quellenzahl(), vorher);
    EXPECT_EQ(&ablauf.Quelle(), &wiedergabe.quelle);
    ablauf.SpringeZu(Zeit(9));
    EXPECT_EQ(ablauf.Jetzt(), Zeit(9));
    ablauf.Notiere(Zeit(1), "nicht hierhin");
    ablauf.SetzeWiedergabe(nullptr);
    EXPECT_EQ(&ablauf.Quelle(), &ablauf.Speicher());
    EXPECT_EQ(ablauf.Quellenzahl(), vorher + 2);
    EXPECT_TRUE(ablauf.Quelle().Lies(0)->ereignisse.empty());
}

TEST_F(MessablaufTest, A_note_is_kept_and_told_with_the_clock_and_the_time_of_day_that_it_is_for) {
    umgebung.uhr = std::chrono::seconds(20);
    Zeit uhr{};
    Systemzeit zeit{};
    ablauf.SetzeNotizhoerer([&](Zeit seine, Systemzeit tageszeit, const std::string& text) {
        uhr = seine;
        zeit = tageszeit;
        EXPECT_EQ(text, "Bahn gewechselt");
    });
    Nimm(0, 3);
    const auto jetzt = std::chrono::system_clock::now();
    ablauf.Notiere(Zeit(170'100), "Bahn gewechselt");
    EXPECT_EQ(uhr, Zeit(170'100));
    EXPECT_NEAR(std::chrono::duration<double>(jetzt - zeit).count(), 19.83, 5.0);
    EXPECT_EQ(ablauf.Quelle().Lies(0)->ereignisse.at(0).laufzeit, Zeit(170'100));
}

TEST_F(MessablaufTest, A_file_goes_where_the_user_says_and_a_folder_that_is_not_there_is_told) {
    const QTemporaryDir ordner;
    const std::string ziel = ordner.filePath("bild.csv").toStdString();
    std::string titel;
    SetzeDateiantwort([&](const Dateifrage& frage) {
        titel = frage.titel;
        return std::optional(ziel);
    });
    EXPECT_EQ(ablauf.FrageNachDatei("Export", "CSV (*.csv)", "bild.csv"), ziel);
    SetzeDateiantwort({});
    EXPECT_EQ(titel, "Export");
    EXPECT_TRUE(ablauf.Schreibe(ziel, "a;b"));
    EXPECT_EQ(LiesDatei(ziel, 100).bytes, "a;b");
    EXPECT_FALSE(ablauf.Schreibe(ordner.filePath("weg/bild.csv").toStdString(), "a;b"));
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(MessablaufTest, A_window_is_made_once_follows_the_language_and_closes_with_the_program) {
    Probefenster::gemacht = 0;
    ablauf.Zeige<Probefenster>();
    ablauf.Zeige<Probefenster>();
    EXPECT_EQ(Probefenster::gemacht, 1);
    ablauf.Lokalisiere();
    int offene = 0;
    for (const QWidget* fenster : QApplication::topLevelWidgets())
        if (const auto* eines = dynamic_cast<const Probefenster*>(fenster)) {
            EXPECT_EQ(eines->text(), "neu");
            offene += eines->isVisible() ? 1 : 0;
        }
    EXPECT_EQ(offene, 1);
    ablauf.Schliesse();
    for (const QWidget* fenster : QApplication::topLevelWidgets())
        EXPECT_FALSE(dynamic_cast<const Probefenster*>(fenster) != nullptr && fenster->isVisible());
}

TEST_F(MessablaufTest, Parts_that_a_window_needs_are_measured_while_it_is_open) {
    ablauf.Zeige<Probefenster>();
    EXPECT_FALSE(modMesshoerer::Braucht(2));
    ablauf.Zeige<Bedarfsfenster>();
    EXPECT_TRUE(modMesshoerer::Braucht(2));
    EXPECT_FALSE(modMesshoerer::Braucht(1));
    ablauf.Schliesse();
    EXPECT_FALSE(modMesshoerer::Braucht(2));
}

TEST_F(MessablaufTest, Knows_the_controller_that_live_data_comes_from_once_it_begins) {
    PruefPort port{umgebung};
    const PruefGeraet geraet{port};
    modMesshoerer::Melde(Liveereignisart::Begonnen);
    EXPECT_EQ(ablauf.Speicher().Angaben().bezeichnung, "");
    modSchnittstelle::OpenCommPort();
    ASSERT_EQ(modModbus::RTUModeH11IndentifikationsAnforderung(), True);
    modMesshoerer::Melde(Liveereignisart::Begonnen);
    EXPECT_EQ(ablauf.Speicher().Angaben().bezeichnung, "Varnoth");
    EXPECT_EQ(ablauf.Speicher().Angaben().seriennummer, "4711");
    EXPECT_EQ(ablauf.Speicher().Angaben().programm, Programmversion());
    modSchnittstelle::CloseCommPort();
}

TEST_F(MessablaufTest, Keeps_many_passes_with_the_least_memory_that_can_be_chosen) {
    einstellungen.texte[{"Aufzeichnung", "FlugschreiberMB"}] = std::to_string(Flugschreiberbereich.kleinster);
    const Messablauf zweiter;
    Nimm(0, 3000);
    EXPECT_EQ(zweiter.Speicher().Erstes(), 0U);
    EXPECT_GT(zweiter.Speicher().Ende(), 2U);
}

TEST_F(MessablaufTest, A_section_about_beams_goes_to_who_shows_reports) {
    std::string zeitraum;
    ablauf.BerichteStrahlen({.zeitraum = "zu frueh"});
    ablauf.SetzeBerichtsweg([&](const Strahlbericht& abschnitt) { zeitraum = abschnitt.zeitraum; });
    ablauf.BerichteStrahlen({.zeitraum = "Optikteil 1"});
    EXPECT_EQ(zeitraum, "Optikteil 1");
}

TEST_F(MessablaufTest, A_blanking_pattern_goes_to_who_takes_suggestions) {
    int teil = -1;
    ablauf.SchlageBlankingVor(1, {});
    ablauf.SetzeBlankingweg([&](int welcher, const Werte&) { teil = welcher; });
    ablauf.SchlageBlankingVor(2, Werte(32));
    EXPECT_EQ(teil, 2);
}

} // namespace varnoth
