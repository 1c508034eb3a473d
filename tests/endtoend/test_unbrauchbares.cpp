// Things at the program's edges that are no use: garbage on the line, data without sense, a user who cancels,
// switches that nobody knows.

#include "datenmuell.h"
#include "programmtest.h"

#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "systemfehler.h"
#include "texte.h"
#include "transaktionen.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <gmock/gmock.h>

#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <vector>

namespace varnoth::pruefung {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* KeineVerbindung = "Es kann keine Verbindung zur Hardware aufgebaut werden.";
constexpr int LaengeDerIdentifikationsanforderung = 4;

std::int32_t Registerwert(std::int16_t adresse, int teil) {
    constexpr auto bereich = Speicherbereich::SpezifischeGeraetedaten;
    return modDaten::Bereich(bereich)[Stelle(bereich, adresse, teil)];
}

} // namespace

class Unbrauchbares : public ProgrammTest {
protected:
    bool StarteLiveDaten() {
        Waehle("mnuMessdatenVisualisierenStart");
        return LaufeBis([] { return IstLive(); });
    }
    /// Presses a button of a dialog as soon as it is there.
    void DrueckeSobaldDa(const QString& dialog, const QString& knopf) {
        fahrer.Sobald([=] { return SichtbaresFenster(dialog) != nullptr; },
                      [=] { Kind<QPushButton>(*SichtbaresFenster(dialog), knopf).click(); });
    }
    std::string LiesTrace() const {
        QFile datei(Pfad("Test.txt"));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll().toStdString() : std::string();
    }
};

TEST_F(Unbrauchbares, Garbage_instead_of_a_controller_is_tried_nine_times_and_reported) {
    const Datenmuell muell;
    Starte({"/Geraet=" + muell.Geraet()});
    Verbinde();
    EXPECT_THAT(Meldungen(), ElementsAre(KeineVerbindung));
    EXPECT_TRUE(WarteBis([&] { return muell.Empfangen() >= 9 * LaengeDerIdentifikationsanforderung; }));
    EXPECT_EQ(muell.Empfangen(), 9 * LaengeDerIdentifikationsanforderung);
}

TEST_F(Unbrauchbares, After_garbage_another_port_leads_to_a_controller) {
    const Datenmuell muell;
    geraet.emplace(ordner.path(), QStringList{"--unpaced"});
    SchreibeEinstellungen("[Settings]\nComGeraet1=" + muell.Geraet().toUtf8() +
                          "\nComGeraet2=" + geraet->Geraet().toUtf8() + "\n");
    Starte();
    Verbinde();
    Waehle("mnuCom_2");
    ASSERT_TRUE(LaufeBis([this] { return !Hauptfenster().BefehlWartet(); }));
    EXPECT_TRUE(StarteLiveDaten());
    EXPECT_THAT(Meldungen(), ElementsAre(KeineVerbindung));
}

TEST_F(Unbrauchbares, A_port_that_does_not_exist_leaves_the_program_usable_once_the_user_cancels) {
    SchreibeEinstellungen("[Settings]\nComGeraet1=" + Pfad("nothing").toUtf8() + "\n");
    Starte();
    DrueckeSobaldDa("frmIdentifikationsAnforderung", "cmdCancel");
    Verbinde();
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_TRUE(programm->Runde());
    EXPECT_TRUE(Aktion("mnuMessdatenVisualisierenStart").isEnabled());
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(Unbrauchbares, A_controller_that_appears_after_a_cancel_is_found_by_start) {
    SchliesseGeraetAn();
    geraet->Befehl("unplug");
    Starte();
    DrueckeSobaldDa("frmIdentifikationsAnforderung", "cmdCancel");
    Verbinde();
    geraet->Befehl("plug");
    EXPECT_TRUE(StarteLiveDaten());
}

TEST_F(Unbrauchbares, Cancel_during_the_third_part_keeps_what_was_read_of_the_first_two) {
    geraet.emplace(ordner.path(), QStringList{}); // at the wire's pace, so that each text is seen
    SchreibeEinstellungen("[Settings]\nComGeraet1=" + geraet->Geraet().toUtf8() + "\n");
    Starte();
    std::vector<std::int32_t> strahlenzahlen;
    std::vector<std::int32_t> aufloesungen;
    const auto merke = [&] {
        for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
            strahlenzahlen.push_back(Registerwert(spezifisch::Strahlenzahl, teil));
            aufloesungen.push_back(Registerwert(spezifisch::Aufloesung, teil));
        }
    };
    bool drittesGewaehlt = false;
    const auto beobachte = [&] {
        QWidget& dialog = *SichtbaresFenster("frmKonfigurationLesenAusHardware");
        QObject::connect(&Kind<QLineEdit>(dialog, "txtSpeicherbereich"), &QLineEdit::textChanged, &dialog,
                         [&](const QString& text) {
                             if (drittesGewaehlt)
                                 Kind<QPushButton>(dialog, "cmdCancel").click();
                             drittesGewaehlt = text.endsWith('2');
                         });
        QObject::connect(qobject_cast<QDialog*>(&dialog), &QDialog::finished, &dialog, merke);
    };
    fahrer.Sobald([] { return SichtbaresFenster("frmKonfigurationLesenAusHardware") != nullptr; }, beobachte);
    Verbinde();
    EXPECT_THAT(strahlenzahlen, ElementsAre(32, 64, 0, 0));
    EXPECT_EQ(aufloesungen, (std::vector<std::int32_t>{geraet->Register("specific 0 13"),
                                                       geraet->Register("specific 1 13"), 0, 0}));
}

TEST_F(Unbrauchbares, Cancel_while_reading_leaves_live_data_off) {
    SchliesseGeraetAn();
    Starte();
    DrueckeSobaldDa("frmKonfigurationLesenAusHardware", "cmdCancel");
    Verbinde();
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(Unbrauchbares, Implausible_data_are_reported_and_replaced_by_the_default_configuration) {
    SchliesseGeraetAn();
    geraet->Befehl("set specific 0 13 60000");
    Starte();
    Verbinde();
    EXPECT_THAT(Meldungen(), ElementsAre(LadeText(3102)));
    EXPECT_EQ(modDaten::Strahlenzahl(0), 0);
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(Unbrauchbares, Switches_that_nobody_knows_are_ignored) {
    SchliesseGeraetAn();
    Starte({"/Quatsch", "-x", "/Com=9", "/Com=", "/Simula", "/", ""});
    Verbinde();
    EXPECT_TRUE(LaufeBis([] { return IstLive(); }));
}

TEST_F(Unbrauchbares, Settings_that_another_program_left_broken_start_with_defaults_and_are_not_lost) {
    const QByteArray faelle[] = {
        QByteArray(1000, '\0'),
        "[Settings]\nSprache=10000\n" + QByteArray(10 << 20, 'x'),
        QByteArray("\xFF\xFE[\0S\0]\0", 8),
    };
    int nummer = 0;
    for (const QByteArray& kaputt : faelle) {
        SchreibeEinstellungen(kaputt);
        Starte();
        EXPECT_EQ(Aktion("mnuBeenden").text(), "&Beenden");
        Waehle("mnuEnglisch");
        EXPECT_TRUE(LaufeBis([this] { return Aktion("mnuBeenden").text() == "&Exit"; }));
        Beende();
        QFile beiseite(Pfad("varnoth.ini.defekt") + (++nummer > 1 ? QString::number(nummer) : QString()));
        ASSERT_TRUE(beiseite.open(QIODevice::ReadOnly));
        EXPECT_TRUE(beiseite.readAll() == kaputt) << nummer;
        EXPECT_THAT(LiesEinstellungen().toStdString(), HasSubstr("Sprache=10000"));
    }
}

TEST_F(Unbrauchbares, A_settings_file_without_sense_starts_with_defaults_and_keeps_its_lines) {
    const std::string wirr = "Settings]\nSprache=10000\n[Settings\nComPort=9\n\xFF==[[\n";
    SchreibeEinstellungen(QByteArray::fromStdString(wirr));
    Starte();
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Beenden");
    Hauptfenster().close();
    Beende();
    EXPECT_THAT(LiesEinstellungen().toStdString(), AllOf(StartsWith(wirr), HasSubstr("[MDIForm]")));
}

TEST_F(Unbrauchbares, A_folder_in_place_of_the_settings_file_starts_with_defaults) {
    ASSERT_TRUE(QDir().mkdir(Pfad("varnoth.ini")));
    Starte();
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Beenden");
    Hauptfenster().close();
    Beende();
    EXPECT_TRUE(QFileInfo(Pfad("varnoth.ini")).isDir());
}

TEST_F(Unbrauchbares, A_trace_that_the_disk_takes_no_more_of_ends_with_one_message_and_live_data_goes_on) {
    constexpr rlim_t platz = 20000;
    const auto ordnerZurueck = qScopeGuard([vorher = QDir::currentPath()] { QDir::setCurrent(vorher); });
    QDir::setCurrent(ordner.path());
    SchliesseGeraetAn();
    Starte({"/Tlogfile"});
    rlimit grenze{};
    getrlimit(RLIMIT_FSIZE, &grenze);
    const auto platzZurueck = qScopeGuard([grenze] { setrlimit(RLIMIT_FSIZE, &grenze); });
    signal(SIGXFSZ, SIG_IGN);
    const rlimit eng{platz, grenze.rlim_max};
    setrlimit(RLIMIT_FSIZE, &eng);
    Verbinde();
    ASSERT_TRUE(LaufeBis([this] { return !Meldungen().empty(); }));
    EXPECT_TRUE(LaufeDurchgaenge(5));
    EXPECT_THAT(Meldungen(), ElementsAre("Die Datei Test.txt wird geschlossen. " + Systemfehler(EFBIG)));
    EXPECT_LE(LiesTrace().size(), platz);
    EXPECT_TRUE(IstLive());
}

TEST_F(Unbrauchbares, An_unknown_language_in_the_settings_file_gives_German) {
    SchreibeEinstellungen("[Settings]\nSprache=333\n");
    Starte();
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Beenden");
}

TEST_F(Unbrauchbares, Sprache_10000_in_the_settings_file_gives_English_texts_and_help) {
    SchreibeEinstellungen("[Settings]\nSprache=10000\n");
    Starte();
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Exit");
    EXPECT_EQ(programm->Hilfedatei(), Pfad("varnothE.hlp"));
}

TEST_F(Unbrauchbares, The_trace_of_a_second_run_replaces_that_of_the_first) {
    const auto zurueck = qScopeGuard([vorher = QDir::currentPath()] { QDir::setCurrent(vorher); });
    QDir::setCurrent(ordner.path());
    SchliesseGeraetAn();
    Starte({"/Tlogfile"});
    Verbinde();
    Beende();
    ASSERT_THAT(LiesTrace(), HasSubstr("Read: 1H 11H"));
    Starte({"/Tlogfile", "/Geraet=" + Pfad("nothing")});
    DrueckeSobaldDa("frmIdentifikationsAnforderung", "cmdCancel");
    Verbinde();
    Beende();
    EXPECT_THAT(LiesTrace(),
                AllOf(StartsWith("Start\r\n"), Not(HasSubstr("Read:")), Not(HasSubstr("Write:"))));
}

} // namespace varnoth::pruefung
