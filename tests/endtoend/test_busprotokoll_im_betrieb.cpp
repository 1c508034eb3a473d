// The bus log beside live data, dialogs and a disturbed line.

#include "programmtest.h"

#include "dateidialog.h"

#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <gmock/gmock.h>

#include <set>

namespace varnoth::pruefung {

using testing::Contains;
using testing::HasSubstr;
using testing::IsSupersetOf;

class BusprotokollImBetrieb : public ProgrammTest {
protected:
    ~BusprotokollImBetrieb() override { SetzeDateiantwort({}); }

    QWidget& Fenster() {
        if (SichtbaresFenster("frmBusprotokoll") == nullptr) {
            EXPECT_TRUE(FuehreAus("mnuBusprotokoll"));
        }
        return *SichtbaresFenster("frmBusprotokoll");
    }
    QAbstractItemModel& Zeilen() { return *Kind<QTableView>(Fenster(), "tblProtokoll").model(); }
    /// What stands in a column, each text once.
    std::set<std::string> Spalte(int spalte) {
        std::set<std::string> texte;
        for (int zeile = 0; zeile < Zeilen().rowCount(); ++zeile)
            texte.insert(Zeilen().index(zeile, spalte).data().toString().toStdString());
        return texte;
    }
    /// Saves by a button of the window, and gives what stands in the file.
    QByteArray Speichere(const char* knopf, const char* name) {
        SetzeDateiantwort([this, name](const Dateifrage&) { return Pfad(name).toStdString(); });
        Kind<QPushButton>(Fenster(), knopf).click();
        EXPECT_TRUE(LaufeBis([&] { return QFile::exists(Pfad(name)); }));
        QFile datei(Pfad(name));
        EXPECT_TRUE(datei.open(QIODevice::ReadOnly));
        return datei.readAll();
    }

    static constexpr int Registerspalte = 3;
    static constexpr int Ergebnisspalte = 6;
};

TEST_F(BusprotokollImBetrieb, Shows_every_exchange_of_a_pass_by_name_while_live_data_goes_on) {
    GeheLive({"--beams", "32,16,0,0"});
    Fenster();
    EXPECT_TRUE(LaufeDurchgaenge(3));
    EXPECT_TRUE(LaufeBis([&] { return Zeilen().rowCount() > 20; }));
    EXPECT_THAT(Spalte(Registerspalte),
                IsSupersetOf({"Global: Auswahl des Optikteils", "Optikteil 1: Strahlzustände",
                              "Optikteil 2: Messwerte", "Global: Gerätestatus"}));
    EXPECT_EQ(Spalte(Ergebnisspalte), std::set<std::string>{"beantwortet"});
    EXPECT_EQ(Titel(0), "1. Optikteil online");
}

TEST_F(BusprotokollImBetrieb, Tells_each_fault_of_the_line_for_what_it_is) {
    GeheLive({"--beams", "32,0,0,0"});
    Fenster();
    const std::pair<const char*, const char*> faelle[] = {{"fault crc:1", "Prüfsumme falsch"},
                                                          {"fault silence:1", "keine Antwort"},
                                                          {"fault exception=2:1", "abgelehnt (Code 2)"},
                                                          {"fault late=1200:1", "verspätet"},
                                                          {"fault address:1@3", "fremd"}};
    for (const auto& [stoerung, ergebnis] : faelle) {
        geraet->Befehl(stoerung);
        EXPECT_TRUE(LaufeBis([&] { return Spalte(Ergebnisspalte).contains(ergebnis); })) << stoerung;
    }
    EXPECT_THAT(Spalte(Ergebnisspalte), Contains("Klärung: beantwortet"));
}

TEST_F(BusprotokollImBetrieb, The_service_password_goes_over_the_line_and_not_into_the_log_nor_to_support) {
    SchliesseGeraetAn();
    Starte({"/PVarnoth-Service1"});
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    Fenster();
    InFenster("frmInitHardware", [](QWidget& dialog) {
        Kind<QLineEdit>(dialog, "txtSeriennummer").setText("AB");
        Klicke(dialog, "cmdSchreiben");
    });
    ASSERT_TRUE(FuehreAus("mnuInitHardware"));
    ASSERT_EQ(geraet->Register("global 9"), 0x4142) << "the controller has got the password";
    EXPECT_TRUE(LaufeBis([&] { return Spalte(Registerspalte).contains("Global: Passwort"); }));
    for (const QByteArray& datei : {Speichere("cmdSpeichern", "bus.txt"),
                                    Speichere("cmdSpeichern", "bus.csv"), Speichere("cmdSupport", "s.txt")}) {
        EXPECT_THAT(datei.toStdString(), HasSubstr("verdeckt (Passwort)"));
        for (const char* spur : {"Varnoth-Service1", "56 61 72 6E", "53 65 72 76", "69 63 65 31"})
            EXPECT_FALSE(datei.contains(spur)) << spur;
    }
}

TEST_F(BusprotokollImBetrieb, The_file_for_support_tells_what_has_happened_in_this_run) {
    GeheLive({"--beams", "32,0,0,0"});
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    const std::string datei = Speichere("cmdSupport", "support.txt").toStdString();
    const auto verbunden = datei.find("Live (COM1");
    const auto befehl = datei.find("  Stopp\n");
    EXPECT_NE(verbunden, std::string::npos) << datei.substr(0, 4000);
    EXPECT_NE(befehl, std::string::npos) << datei.substr(0, 4000);
    EXPECT_LT(verbunden, befehl);
    EXPECT_THAT(datei, HasSubstr("ComGeraet1="));
    EXPECT_THAT(Meldungen(), testing::SizeIs(1)) << "what is in it was said before";
}

TEST_F(BusprotokollImBetrieb, A_closed_window_hears_nothing_and_ends_with_the_program) {
    GeheLive({"--beams", "32,0,0,0"});
    Fenster().close();
    EXPECT_TRUE(LaufeDurchgaenge(2));
    Fenster();
    const int vorher = Zeilen().rowCount();
    EXPECT_TRUE(LaufeBis([&] { return Zeilen().rowCount() > vorher; }));
    Waehle("mnuBeenden");
    EXPECT_TRUE(LaufeBis([] { return SichtbaresFenster("frmBusprotokoll") == nullptr; }));
}

} // namespace varnoth::pruefung
