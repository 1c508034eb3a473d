// A record in the main window: shown as if live, marked, and left again with all as it was.

#include "frmmaintest.h"

#include "dateidialog.h"
#include "dateien.h"
#include "frmVergleich.h"
#include "geraetestand.h"
#include "gezeigtesabbild.h"
#include "konfigurationsdatei.h"
#include "messhoerer.h"
#include "polling.h"
#include "pruefmessquelle.h"
#include "texte.h"
#include "textmitwerten.h"
#include "verlaufsbild.h"
#include "vrecform.h"
#include "wiedergaberegel.h"
#include "wiedergabeworte.h"
#include "zeitworte.h"

#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace varnoth {

using namespace std::chrono_literals;
using enum Messereignisart;

namespace {

/// Hears live data as a recording does, a packet a pass.
struct Mitschnitt : Messhoerer {
    Mitschnitt() { modMesshoerer::MeldeAn(*this); }
    ~Mitschnitt() override { modMesshoerer::MeldeAb(*this); }
    void Hoere(const Messdurchgang& durchgang) override {
        Messpaket paket{.durchgaenge = {durchgang}};
        quelle->konfiguration = modDaten::DasAbbild();
        quelle->Nimm(std::move(paket));
    }
    void Hoere(const Liveereignis& ereignis) override {
        static constexpr Messereignisart arten[] = {LiveBegonnen, LiveBeendet, Verloren, Zurueck};
        quelle->Nimm(
            {.spanne = {ereignis.uhr, ereignis.uhr},
             .ereignisse = {{.art = arten[static_cast<int>(ereignis.art)], .laufzeit = ereignis.uhr}}});
    }
    std::shared_ptr<pruefung::PruefMessquelle> quelle = std::make_shared<pruefung::PruefMessquelle>();
};

/// A record whose configuration is another from the packet of a number on, or cannot be read there.
struct Quelle2Konfigurationen : pruefung::PruefMessquelle {
    std::shared_ptr<const Abbild> Konfiguration(std::uint64_t nummer) const override {
        return nummer < ab ? PruefMessquelle::Konfiguration(nummer) : danach;
    }
    std::uint64_t ab = 10;
    std::shared_ptr<const Abbild> danach;
};

/// Parts of 16 beams, two of them; the third second has a gap, the fourth another part 1.
template<class Quelle = pruefung::PruefMessquelle>
std::shared_ptr<Quelle> Probe() {
    auto quelle = std::make_shared<Quelle>();
    for (int teil = 0; teil < 2; ++teil) {
        EXPECT_TRUE(quelle->konfiguration.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 16, teil));
        EXPECT_TRUE(quelle->konfiguration.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 5, teil));
    }
    for (int i = 0; i < 40; ++i) {
        Messdurchgang durchgang{.uhr = i * 100ms, .anzahlTeile = 2};
        durchgang.geraetestatus = i < 10 ? 0 : 2;
        for (std::size_t teil = 0; teil < 2; ++teil)
            durchgang.teile[teil] = {
                .vorhanden = true,
                .gemessen = true,
                .status = 0x81,
                .strahlen = 16,
                .werte = {static_cast<std::uint16_t>(100 * (teil + 1) + static_cast<std::size_t>(i))}};
        if (i >= 30)
            durchgang.teile[1] = {.status = 0, .strahlen = 16};
        Messpaket paket{.spanne = {i * 100ms, i * 100ms + 99ms}, .durchgaenge = {durchgang}};
        if (i == 20)
            paket.ereignisse.push_back({.art = Verloren, .laufzeit = i * 100ms + 1ms});
        if (i == 25)
            paket.ereignisse.push_back({.art = Zurueck, .laufzeit = i * 100ms});
        if (i <= 20 || i >= 25)
            quelle->Nimm(paket);
    }
    quelle->angaben = {.bezeichnung = "Aus der Aufzeichnung", .seriennummer = "4711"};
    return quelle;
}

} // namespace

class WiedergabeablaufTest : public pruefung::FrmMainTest {
protected:
    WiedergabeablaufTest() {
        umgebung.beiEreignissen = [] { QCoreApplication::processEvents(); };
        SetzeDateiantwort([this](const Dateifrage& frage) {
            fragen.push_back(frage);
            return antwort;
        });
    }
    ~WiedergabeablaufTest() override {
        fenster.reset();
        SetzeDateiantwort({});
    }
    void Lies(const std::shared_ptr<const Messquelle>& quelle) {
        Fenster().SetzeAufzeichnungsleser([quelle](const std::string&, const auto& weiter) {
            return weiter(0.5) ? GeoeffneteAufzeichnung{.quelle = quelle} : GeoeffneteAufzeichnung();
        });
    }
    void Oeffne(const std::shared_ptr<const Messquelle>& quelle) {
        Lies(quelle);
        Waehle("tlbWiedergabe");
    }
    QWidget* Leiste() { return Fenster().findChild<QWidget*>("frmWiedergabe"); }
    void Klicke(const char* name) {
        auto* const knopf = Leiste()->findChild<QPushButton*>(QString::fromLatin1(name));
        ASSERT_NE(knopf, nullptr) << name;
        knopf->click();
        Fenster().MenuAusführen();
    }
    void SchreiteVor(int mal) {
        for (int i = 0; i < mal; ++i)
            Klicke("cmdDurchgangVor");
    }
    void Verlasse() { Klicke("cmdVerlassen"); }
    /// A window beside the main one, if it is open.
    static QWidget* Offenes(const char* name) {
        for (QWidget* const eines : QApplication::topLevelWidgets())
            if (eines->objectName() == QLatin1String(name) && eines->isVisible())
                return eines;
        return nullptr;
    }
    QLabel& Verbindungstext() { return *Fenster().findChild<QLabel*>("lblVerbindung"); }

    std::optional<std::string> antwort = "/tmp/nacht.vrec";
    std::vector<Dateifrage> fragen;
};

TEST_F(WiedergabeablaufTest, A_record_is_shown_as_if_live_and_marked_everywhere) {
    Oeffne(Probe());
    ASSERT_NE(Leiste(), nullptr);
    EXPECT_EQ(fragen.at(0).filter, LadeText(6544));
    EXPECT_EQ(Titel(0), "Wiedergabe: 1. Optikteil online");
    EXPECT_EQ(Titel(1), "Wiedergabe: 2. Optikteil online");
    EXPECT_EQ(GezeigterWert(0), "100");
    EXPECT_EQ(GezeigterWert(1), "200");
    EXPECT_EQ(Verbindungstext().text(), "Wiedergabe");
    EXPECT_TRUE(Fenster().windowTitle().endsWith(QString::fromUtf8(" – Wiedergabe: nacht.vrec")));
    EXPECT_TRUE(Verbindungstext().parentWidget()->toolTip().contains("4711"));
    EXPECT_TRUE(Verbindungstext().parentWidget()->toolTip().contains("Aus der Aufzeichnung"));
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_1").isVisible());
    EXPECT_FALSE(Aktion("mnuAnzeigeLichtleiste_2").isVisible());
    EXPECT_EQ(Statusfeld(3).text().toStdString(), LadeText(3002));
    SchreiteVor(10);
    EXPECT_EQ(GezeigterWert(0), "110");
    EXPECT_EQ(Statusfeld(3).text().toStdString(), LadeText(3001));
    EXPECT_TRUE(port.gesendet.empty()) << "nothing was asked";
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(WiedergabeablaufTest, A_gap_looks_lost_and_not_like_the_last_values) {
    Oeffne(Probe());
    SchreiteVor(20);
    auto* const zeitleiste = Leiste()->findChild<QWidget*>("zltAufzeichnung");
    ASSERT_NE(zeitleiste, nullptr);
    Leiste()->findChild<QComboBox*>("cboEreignis")->setCurrentIndex(1);
    Klicke("cmdEreignisVor");
    EXPECT_TRUE(pruefung::WarteBis([&] { return Titel(0) == "Wiedergabe: 1. Optikteil offline"; }));
    EXPECT_TRUE(ZeigtKeineWerte(0));
    EXPECT_TRUE(ZeigtKeineWerte(1));
    EXPECT_EQ(Statusfeld(3).text(), "");
    SchreiteVor(1);
    EXPECT_EQ(Titel(0), "Wiedergabe: 1. Optikteil online");
    EXPECT_EQ(GezeigterWert(0), "125");
}

TEST_F(WiedergabeablaufTest, A_part_that_was_gone_is_gone) {
    Oeffne(Probe());
    Leiste()->findChild<QComboBox*>("cboEreignis")->setCurrentIndex(4);
    Klicke("cmdEreignisVor");
    EXPECT_TRUE(pruefung::WarteBis([&] { return Titel(1) == "Wiedergabe: 2. Optikteil nicht vorhanden"; }));
    EXPECT_TRUE(ZeigtKeineWerte(1));
    EXPECT_EQ(Titel(0), "Wiedergabe: 1. Optikteil online");
}

TEST_F(WiedergabeablaufTest, What_is_replayed_does_not_grow_old) {
    Oeffne(Probe());
    umgebung.uhr += 1h;
    EXPECT_EQ(Fenster().Fenster(0).findChild<BeamBarControl*>()->Stand(), Datenstand::Gueltig);
    QTimer::singleShot(600, &Fenster(), [this] { umgebung.uhr += 1s; });
    const Zeit bis = umgebung.uhr + 1s;
    ASSERT_TRUE(pruefung::WarteBis([&] { return umgebung.uhr >= bis; }));
    EXPECT_EQ(Fenster().Fenster(0).findChild<BeamBarControl*>()->Stand(), Datenstand::Gueltig);
    EXPECT_EQ(GezeigterWert(0), "100");
}

TEST_F(WiedergabeablaufTest, Everything_is_as_it_was_when_the_replay_is_left) {
    SchliesseAn({32, 64, 0, 0});
    Fenster().Autostart();
    modPolling::PollingZyklus();
    Waehle("mnuMessdatenVisualisierenStop");
    modDaten::SetDateiname("/tmp/meine.con");
    modDaten::SetzeGeaendert();
    const Abbild abbild = modDaten::DasAbbild();
    const auto stand = modGeraetestand::HoleGeraetestand();
    const auto zustaende = modGeraetestand::HoleTeilzustaende();
    ASSERT_TRUE(stand && zustaende);
    std::array<modPolling::Optikteilzustand, AnzahlOptikteile> teile{};
    std::array<QString, AnzahlOptikteile> titel;
    std::array<bool, AnzahlOptikteile> gezeigt{};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        teile.at(static_cast<std::size_t>(teil)) = modPolling::GetOptikteilStatus(teil);
        titel.at(static_cast<std::size_t>(teil)) = Titel(teil);
        gezeigt.at(static_cast<std::size_t>(teil)) = Fenster().Fenster(teil).isVisible();
    }
    const QString haupttitel = Fenster().windowTitle();
    const auto menue = [&] {
        std::array<bool, AnzahlOptikteile> sichtbar{};
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            sichtbar.at(static_cast<std::size_t>(teil)) =
                Aktion(("mnuAnzeigeLichtleiste_" + std::to_string(teil)).c_str()).isVisible();
        return sichtbar;
    };
    const auto menueVorher = menue();
    port.gesendet.clear();
    const auto pruefe = [&](const char* wann) {
        EXPECT_EQ(modDaten::DasAbbild(), abbild) << wann;
        EXPECT_EQ(modDaten::GetDateiname(), "/tmp/meine.con") << wann;
        EXPECT_EQ(modDaten::IstGeaendert(), True) << wann;
        const auto jetzt = modGeraetestand::HoleGeraetestand();
        ASSERT_TRUE(jetzt) << wann;
        EXPECT_EQ(jetzt->abbild, stand->abbild) << wann;
        EXPECT_EQ(jetzt->zeit, stand->zeit) << wann;
        EXPECT_EQ(jetzt->gelesen, stand->gelesen) << wann;
        EXPECT_EQ(jetzt->seriennummer, stand->seriennummer) << wann;
        EXPECT_EQ(jetzt->unbekannt, stand->unbekannt) << wann;
        EXPECT_EQ(modGeraetestand::HoleTeilzustaende()->status, zustaende->status) << wann;
        EXPECT_EQ(modGeraetestand::HoleTeilzustaende()->zeit, zustaende->zeit) << wann;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            EXPECT_EQ(modPolling::GetOptikteilStatus(teil), teile.at(static_cast<std::size_t>(teil))) << wann;
    };
    Oeffne(Probe());
    SchreiteVor(3);
    EXPECT_EQ(GezeigterWert(0), "103");
    pruefe("while it is replayed");
    Verlasse();
    pruefe("after it");
    EXPECT_FALSE(modDaten::IstAnderesGezeigt());
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        EXPECT_EQ(Titel(teil), titel.at(static_cast<std::size_t>(teil)));
        EXPECT_EQ(Fenster().Fenster(teil).isVisible(), gezeigt.at(static_cast<std::size_t>(teil))) << teil;
    }
    EXPECT_EQ(Fenster().Fenster(0).findChild<BeamBarControl*>()->Strahlanzahl(), 32);
    EXPECT_EQ(Fenster().windowTitle(), haupttitel);
    EXPECT_EQ(menue(), menueVorher);
    EXPECT_EQ(Statusfeld(3).text(), "");
    EXPECT_NE(Verbindungstext().text(), "Wiedergabe");
    EXPECT_TRUE(port.gesendet.empty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Leiste(), nullptr);
}

TEST_F(WiedergabeablaufTest, Leaving_in_the_middle_of_playing_and_searching_ends_both) {
    Oeffne(Probe());
    Klicke("cmdAbspielen");
    Klicke("cmdEreignisVor");
    Klicke("cmdAbspielen");
    Verlasse();
    int takte = 0;
    QTimer uhrwerk;
    QObject::connect(&uhrwerk, &QTimer::timeout, [&] { ++takte; });
    uhrwerk.start(60); // slower than the bar's own
    EXPECT_TRUE(pruefung::WarteBis([&] { return takte == 4; }));
    EXPECT_FALSE(modDaten::IstAnderesGezeigt());
    EXPECT_EQ(Titel(0), "1. Optikteil offline");
}

TEST_F(WiedergabeablaufTest, Live_data_rests_meanwhile_and_goes_on_afterwards) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    ASSERT_EQ(modPolling::GetPollingAktiv(), True);
    Oeffne(Probe());
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    Verlasse();
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    modPolling::PollingZyklus();
    EXPECT_EQ(Fenster().Fenster(0).findChild<BeamBarControl*>()->Stand(), Datenstand::Gueltig);
}

TEST_F(WiedergabeablaufTest, A_dialog_that_is_cancelled_leaves_live_data_on) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    antwort.reset();
    Oeffne(Probe());
    EXPECT_EQ(Leiste(), nullptr);
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
}

TEST_F(WiedergabeablaufTest, A_record_that_cannot_be_opened_is_told_in_a_sentence) {
    Fenster().SetzeAufzeichnungsleser([](const std::string&, const auto&) {
        return GeoeffneteAufzeichnung{.fehlertext = "Kein Lesen möglich."};
    });
    Waehle("tlbWiedergabe");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Kein Lesen möglich.\n/tmp/nacht.vrec");
    EXPECT_EQ(Leiste(), nullptr);
    Oeffne(std::make_shared<pruefung::PruefMessquelle>());
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[1].text, LadeText(6546) + "\n/tmp/nacht.vrec");
    EXPECT_EQ(Leiste(), nullptr);
}

TEST_F(WiedergabeablaufTest, Opening_can_be_cancelled_and_leaves_what_was_replayed) {
    Oeffne(Probe());
    SchreiteVor(2);
    bool weiterGefragt = true;
    Fenster().SetzeAufzeichnungsleser([&](const std::string&, const auto& weiter) {
        auto* const dialog = Fenster().findChild<QProgressDialog*>("frmAufzeichnungOeffnen");
        EXPECT_NE(dialog, nullptr);
        EXPECT_TRUE(weiter(0.1));
        EXPECT_EQ(dialog->value(), 100);
        auto* const abbrechen = dialog->findChild<QPushButton*>();
        if (abbrechen != nullptr && abbrechen->text() == "Abbrechen")
            abbrechen->click();
        weiterGefragt = weiter(0.2);
        return GeoeffneteAufzeichnung{.quelle = Probe()};
    });
    Waehle("tlbWiedergabe");
    EXPECT_FALSE(weiterGefragt);
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(GezeigterWert(0), "102");
}

TEST_F(WiedergabeablaufTest, How_far_opening_is_stands_in_a_dialog_that_keeps_others_from_the_window) {
    bool gesehen = false;
    Fenster().SetzeAufzeichnungsleser([&](const std::string&, const auto& weiter) {
        auto& dialog = *Fenster().findChild<QProgressDialog*>("frmAufzeichnungOeffnen");
        EXPECT_EQ(dialog.windowTitle().toStdString(), LadeText(6543));
        EXPECT_EQ(dialog.labelText().toStdString(), LadeText(6545));
        EXPECT_EQ(dialog.windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(dialog.value(), 0);
        EXPECT_TRUE(weiter(1.0));
        EXPECT_LT(dialog.value(), dialog.maximum()) << "what follows takes time too";
        EXPECT_GE(dialog.value(), dialog.maximum() * 99 / 100);
        EXPECT_FALSE(dialog.autoReset());
        gesehen = true;
        return GeoeffneteAufzeichnung{.quelle = Probe()};
    });
    Waehle("tlbWiedergabe");
    EXPECT_TRUE(gesehen);
    EXPECT_NE(Leiste(), nullptr);
}

TEST_F(WiedergabeablaufTest, A_program_that_ends_while_a_record_is_opened_shows_none) {
    Fenster().SetzeAufzeichnungsleser([this](const std::string&, const auto& weiter) {
        Fenster().close();
        EXPECT_FALSE(weiter(0.5));
        return GeoeffneteAufzeichnung{.quelle = Probe()};
    });
    Waehle("tlbWiedergabe");
    EXPECT_EQ(Leiste(), nullptr);
    EXPECT_FALSE(modDaten::IstAnderesGezeigt());
}

TEST_F(WiedergabeablaufTest, Another_record_takes_the_place_of_the_first_and_both_leave_to_what_was) {
    const QString haupttitel = Fenster().windowTitle();
    Oeffne(Probe());
    SchreiteVor(5);
    auto zweite = Probe();
    antwort = "/tmp/zweite.vrec";
    Oeffne(zweite);
    EXPECT_EQ(GezeigterWert(0), "100");
    EXPECT_TRUE(Fenster().windowTitle().endsWith(": zweite.vrec"));
    Verlasse();
    EXPECT_EQ(Fenster().windowTitle(), haupttitel);
    EXPECT_FALSE(Fenster().Fenster(0).isVisible());
}

TEST_F(WiedergabeablaufTest, Connecting_leaves_the_replay_first) {
    SchliesseAn({32, 0, 0, 0});
    Oeffne(Probe());
    Waehle("mnuMessdatenVisualisierenStart");
    EXPECT_FALSE(modDaten::IstAnderesGezeigt());
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
}

TEST_F(WiedergabeablaufTest, A_record_that_is_dropped_is_replayed_and_a_configuration_leaves_it) {
    Lies(Probe());
    Fenster().Uebergib({"/tmp/von aussen.VREC"});
    Fenster().MenuAusführen();
    ASSERT_NE(Leiste(), nullptr);
    EXPECT_EQ(GezeigterWert(0), "100");
    QTemporaryDir ordner;
    const std::string con = ordner.filePath("x.con").toStdString();
    ASSERT_EQ(ErsetzeDatei(con, AlsKonfigurationsdatei(Probe()->konfiguration)), "");
    Fenster().Uebergib({con});
    Fenster().MenuAusführen();
    EXPECT_FALSE(modDaten::IstAnderesGezeigt());
    EXPECT_EQ(modDaten::GetDateiname(), con);
}

TEST_F(WiedergabeablaufTest, A_view_that_is_closed_and_opened_again_shows_the_place_of_the_replay) {
    Oeffne(Probe());
    qobject_cast<QMdiSubWindow*>(Fenster().Fenster(1).parentWidget())->close();
    SchreiteVor(4);
    EXPECT_FALSE(Fenster().Fenster(1).isVisible());
    Waehle("mnuAnzeigeLichtleiste_1");
    EXPECT_TRUE(Fenster().Fenster(1).isVisible());
    EXPECT_EQ(GezeigterWert(1), "204");
    EXPECT_EQ(Titel(1), "Wiedergabe: 2. Optikteil online");
}

TEST_F(WiedergabeablaufTest, The_language_changes_in_the_middle_of_it) {
    Oeffne(Probe());
    SchreiteVor(12);
    Waehle("mnuEnglisch");
    EXPECT_EQ(Titel(0), "Replay: 1. Optical part online");
    EXPECT_EQ(GezeigterWert(0), "112");
    EXPECT_EQ(Statusfeld(3).text().toStdString(), LadeText(3001));
    EXPECT_TRUE(Fenster().windowTitle().endsWith(": nacht.vrec"));
    EXPECT_EQ(Fenster().windowTitle().count("nacht.vrec"), 1);
    EXPECT_EQ(Leiste()->findChild<QPushButton*>("cmdVerlassen")->text(), "End replay");
    Waehle("mnuDeutsch");
}

TEST_F(WiedergabeablaufTest, What_is_said_of_a_gap_follows_the_language) {
    Oeffne(Probe());
    Leiste()->findChild<QComboBox*>("cboEreignis")->setCurrentIndex(1);
    Klicke("cmdEreignisVor");
    const auto* const meldung = Leiste()->findChild<QLabel*>("lblMeldung");
    EXPECT_TRUE(pruefung::WarteBis([&] { return Titel(0) == "Wiedergabe: 1. Optikteil offline"; }));
    Waehle("mnuEnglisch");
    EXPECT_EQ(meldung->text().toStdString(), Lagetext(Wiedergabelage::Verloren));
    Waehle("mnuDeutsch");
    EXPECT_EQ(meldung->text().toStdString(), Lagetext(Wiedergabelage::Verloren));
}

TEST_F(WiedergabeablaufTest, The_record_s_configuration_is_saved_without_touching_the_one_in_use) {
    Fenster();
    const Abbild inGebrauch = modDaten::DasAbbild();
    Oeffne(Probe());
    QTemporaryDir ordner;
    antwort = ordner.filePath("aus.con").toStdString();
    Leiste()->findChild<QAction*>("mnuAufzeichnungSpeichern")->trigger();
    EXPECT_EQ(fragen.back().name, "nacht.con");
    EXPECT_EQ(fragen.back().titel, LadeText(6547));
    EXPECT_EQ(fragen.back().filter, LadeText(2000));
    Abbild gespeichert;
    ASSERT_EQ(ZerlegeKonfigurationsdatei(LiesDatei(*antwort, LaengeKonfigurationsdatei).bytes, gespeichert),
              Dateibefund::Gut);
    EXPECT_EQ(gespeichert, Probe()->konfiguration);
    EXPECT_EQ(modDaten::DasAbbild(), inGebrauch);
    EXPECT_EQ(modDaten::GetDateiname(), "");
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(WiedergabeablaufTest, The_record_s_configuration_is_reported_and_compared) {
    Oeffne(Probe());
    QString titel;
    Sobald("frmBericht", [&](QDialog& dialog) {
        titel = dialog.windowTitle();
        EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdTextImport")->isVisible());
        dialog.reject();
    });
    Leiste()->findChild<QAction*>("mnuAufzeichnungBericht")->trigger();
    EXPECT_FALSE(titel.isEmpty());
    Leiste()->findChild<QAction*>("mnuAufzeichnungVergleich")->trigger();
    auto* const vergleich = qobject_cast<frmVergleich*>(Offenes("frmVergleich"));
    ASSERT_NE(vergleich, nullptr);
    const Vergleichspaar& paar = vergleich->Paar();
    EXPECT_EQ(paar.Seite(Seitenwahl::A).quelle, Vergleichsquelle::Datei);
    EXPECT_EQ(paar.Seite(Seitenwahl::A).einzelheit, "/tmp/nacht.vrec");
    EXPECT_EQ(paar.Seite(Seitenwahl::A).abbild, Probe()->konfiguration);
    EXPECT_EQ(paar.Seite(Seitenwahl::B).quelle, Vergleichsquelle::InBearbeitung);
    vergleich->close();
}

TEST_F(WiedergabeablaufTest, A_report_about_a_record_says_which_one_and_bears_its_name) {
    Oeffne(Probe());
    const QTemporaryDir ordner;
    antwort = ordner.filePath("bericht.html").toStdString();
    Sobald("frmBericht", [](QDialog& dialog) {
        dialog.findChild<QPushButton*>("cmdHtml")->click();
        dialog.reject();
    });
    Leiste()->findChild<QAction*>("mnuAufzeichnungBericht")->trigger();
    EXPECT_EQ(fragen.back().name, "nacht.html");
    EXPECT_THAT(LiesDatei(*antwort, 1 << 20).bytes,
                testing::HasSubstr(LadeTextMit(6553, {"nacht.vrec", Zeitworte(Probe()->angaben, 0ms)})));
}

TEST_F(WiedergabeablaufTest, A_configuration_that_cannot_be_saved_is_told) {
    Oeffne(Probe());
    const QTemporaryDir ordner;
    antwort = ordner.filePath("fehlt/aus.con").toStdString();
    Leiste()->findChild<QAction*>("mnuAufzeichnungSpeichern")->trigger();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen[0].text, testing::HasSubstr("fehlt/aus.con"));
}

TEST_F(WiedergabeablaufTest, A_configuration_that_is_damaged_at_this_place_is_told_and_goes_nowhere) {
    Oeffne(Probe<Quelle2Konfigurationen>());
    SchreiteVor(12);
    EXPECT_EQ(GezeigterWert(0), "112") << "the passes are shown all the same";
    const auto gefragt = fragen.size();
    for (const char* const tat :
         {"mnuAufzeichnungBericht", "mnuAufzeichnungVergleich", "mnuAufzeichnungSpeichern"}) {
        umgebung.meldungen.clear();
        Leiste()->findChild<QAction*>(tat)->trigger();
        ASSERT_EQ(umgebung.meldungen.size(), 1U) << tat;
        EXPECT_EQ(umgebung.meldungen[0].text, LadeText(6550)) << tat;
    }
    EXPECT_EQ(fragen.size(), gefragt);
    EXPECT_EQ(Offenes("frmVergleich"), nullptr);
}

TEST_F(WiedergabeablaufTest, Where_a_record_has_another_configuration_the_views_are_built_anew) {
    const auto quelle = Probe<Quelle2Konfigurationen>();
    Abbild andere = quelle->konfiguration;
    ASSERT_TRUE(andere.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 24, 0));
    quelle->danach = std::make_shared<const Abbild>(andere);
    for (std::size_t i = quelle->ab; i < quelle->pakete.size(); ++i) {
        quelle->pakete[i].durchgaenge[0].teile[0].strahlen = 24;
        quelle->pakete[i].durchgaenge[0].teile[1].strahlen = 0;
    }
    Oeffne(quelle);
    const auto strahlen = [this] {
        return Fenster().Fenster(0).findChild<BeamBarControl*>()->Strahlanzahl();
    };
    SchreiteVor(9);
    EXPECT_EQ(strahlen(), 16);
    EXPECT_TRUE(Fenster().Fenster(1).isVisible());
    SchreiteVor(1);
    EXPECT_EQ(strahlen(), 24);
    EXPECT_FALSE(Fenster().Fenster(1).isVisible());
    EXPECT_FALSE(Aktion("mnuAnzeigeLichtleiste_1").isVisible());
}

TEST_F(WiedergabeablaufTest, A_record_that_begins_with_a_gap_shows_its_parts_without_values) {
    const auto quelle = std::make_shared<pruefung::PruefMessquelle>();
    quelle->konfiguration = Probe()->konfiguration;
    quelle->Nimm({.spanne = {0ms, 99ms}, .ereignisse = {{.art = Verloren, .laufzeit = 0ms}}});
    quelle->Nimm(Probe()->pakete[1]);
    Oeffne(quelle);
    EXPECT_EQ(Fenster().Fenster(1).findChild<BeamBarControl*>()->Strahlanzahl(), 16);
    EXPECT_TRUE(Fenster().Fenster(1).isVisible());
    EXPECT_TRUE(ZeigtKeineWerte(1));
    SchreiteVor(1);
    EXPECT_EQ(GezeigterWert(1), "201");
}

TEST_F(WiedergabeablaufTest, A_click_at_a_time_in_a_window_of_the_past_leads_the_replay_there) {
    Oeffne(Probe());
    Waehle("tlbVerlauf");
    QWidget* const verlauf = Offenes("frmVerlauf");
    ASSERT_NE(verlauf, nullptr);
    emit verlauf->findChild<Verlaufsbild*>()->Angeklickt(Zeit(1500ms).count());
    EXPECT_EQ(GezeigterWert(0), "115");
    SchreiteVor(1);
    EXPECT_EQ(GezeigterWert(0), "116") << "it goes on from there";
    verlauf->close();
}

TEST_F(WiedergabeablaufTest, The_time_of_the_state_of_the_output_is_that_of_the_record) {
    Oeffne(Probe());
    SchreiteVor(2);
    const std::string uhrzeit = Uhrzeitworte(Probe()->angaben, 200ms).substr(0, 8);
    EXPECT_EQ(Statusfeld(3).toolTip().toStdString(), LadeTextMit(9003, {uhrzeit}));
}

TEST_F(WiedergabeablaufTest, The_bar_of_the_replay_can_neither_be_closed_nor_moved_nor_hidden) {
    Oeffne(Probe());
    auto* const rahmen = Fenster().findChild<QDockWidget*>("dckWiedergabe");
    ASSERT_NE(rahmen, nullptr);
    EXPECT_EQ(rahmen->features(), QDockWidget::NoDockWidgetFeatures);
    EXPECT_EQ(rahmen->contextMenuPolicy(), Qt::PreventContextMenu);
    EXPECT_EQ(rahmen->titleBarWidget()->sizeHint().height(), -1) << "no room for a title";
    EXPECT_EQ(rahmen->windowTitle().toStdString(), "Wiedergabe einer Aufzeichnung");
    Waehle("mnuEnglisch");
    EXPECT_EQ(rahmen->windowTitle().toStdString(), "Replay of a record");
    Waehle("mnuDeutsch");
}

TEST_F(WiedergabeablaufTest, The_next_question_for_a_record_begins_in_the_folder_of_the_last) {
    Oeffne(Probe());
    Waehle("tlbWiedergabe");
    EXPECT_EQ(fragen.at(1).ordner, "/tmp/");
}

TEST_F(WiedergabeablaufTest, Closing_the_window_in_the_middle_of_it_ends_the_program) {
    Oeffne(Probe());
    Fenster().close();
    EXPECT_TRUE(Fenster().Beendet());
    EXPECT_FALSE(modDaten::IstAnderesGezeigt());
}

TEST_F(WiedergabeablaufTest, Replay_shows_the_same_pictures_as_live_did) {
    SchliesseAn({32, 20, 0, 0});
    Mitschnitt mitschnitt;
    Fenster().resize(1000, 800);
    Fenster().Autostart();
    const auto stelleAuf = [&] {
        for (int teil = 0; teil < 2; ++teil)
            Fenster().Fenster(teil).parentWidget()->setGeometry(10 + 420 * teil, 10, 400, 420);
        QCoreApplication::processEvents();
    };
    const auto bilder = [&] {
        std::array<QImage, 2> beide;
        for (int teil = 0; teil < 2; ++teil) {
            auto& ansicht = Fenster().Fenster(teil);
            ansicht.findChild<BeamBarControl*>()->clearFocus();
            beide.at(static_cast<std::size_t>(teil)) = ansicht.grab().toImage();
        }
        return beide;
    };
    std::vector<std::array<QImage, 2>> live;
    stelleAuf();
    for (int i = 0; i < 25; ++i) {
        for (int teil = 0; teil < 2; ++teil) {
            geraet.Spezifisch(teil, spezifisch::Messwerte) = 3 * i + teil;
            geraet.Spezifisch(teil, spezifisch::Strahlzustaende) = (i * 7919 + teil * 31) & 0xFFFF;
            geraet.Spezifisch(teil, spezifisch::Optikteilstatus) = 0x80 | (1 << (i % 6));
        }
        umgebung.uhr += 200ms;
        modPolling::PollingZyklus();
        umgebung.ErledigeAufgeschobenes();
        live.push_back(bilder());
    }
    umgebung.uhr += 200ms;
    modPolling::PollingZyklus(); // what came before is certain now
    Waehle("mnuMessdatenVisualisierenStop");
    ASSERT_GE(mitschnitt.quelle->pakete.size(), live.size());
    Oeffne(mitschnitt.quelle);
    stelleAuf();
    std::size_t verglichene = 0;
    for (const auto& damals : live) {
        SchreiteVor(1);
        const auto jetzt = bilder();
        for (std::size_t teil = 0; teil < 2; ++teil)
            verglichene += jetzt[teil] == damals[teil] ? 1 : 0;
    }
    EXPECT_EQ(verglichene, 2 * live.size());
}

TEST_F(WiedergabeablaufTest, A_file_is_read_shown_and_what_is_missing_of_it_is_said) {
    const auto quelle = Probe();
    auto konfiguration = std::make_shared<const Abbild>(quelle->konfiguration);
    Vrecform form;
    std::string bytes = form.Beginne(quelle->angaben, konfiguration);
    for (const Messpaket& paket : quelle->pakete)
        bytes += form.Nimm(paket, konfiguration);
    QTemporaryDir ordner;
    antwort = ordner.filePath("ganz.vrec").toStdString();
    ASSERT_EQ(ErsetzeDatei(*antwort, bytes + form.Beende()), "");
    Waehle("tlbWiedergabe");
    EXPECT_EQ(GezeigterWert(1), "200");
    EXPECT_EQ(Statusfeld(1).text(), "");
    antwort = ordner.filePath("ohne ende.vrec").toStdString();
    ASSERT_EQ(ErsetzeDatei(*antwort, bytes), "");
    Waehle("tlbWiedergabe");
    SchreiteVor(3);
    EXPECT_EQ(GezeigterWert(1), "203");
    EXPECT_FALSE(Statusfeld(1).text().isEmpty());
    Verlasse();
    EXPECT_EQ(Statusfeld(1).text(), "");
    antwort = ordner.filePath("keine.vrec").toStdString();
    Waehle("tlbWiedergabe");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    ASSERT_EQ(ErsetzeDatei(*antwort, "nichts"), "");
    Waehle("tlbWiedergabe");
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_NE(umgebung.meldungen[1].text, umgebung.meldungen[0].text);
}

TEST(WiedergaberegelTest, What_needs_the_line_or_the_configuration_leaves_the_replay) {
    using enum Befehl;
    for (const Befehl befehl :
         {VisualisierenStart, VisualisierenStop, Einzelwerte, FirmwareUpdate, InitHardware,
          KonfigurationAnzeigen, KonfigurationOeffnen, KonfigurationSpeichernUnter, NeueKonfiguration,
          ResetHardware, AutosendStarten, LetzteDatei, SimuliertesGeraet, SicherungOeffnen, GeraetVergleichen,
          Bericht, AnschlussUebernehmen, GeraetSuchen, LeitungPruefen})
        EXPECT_TRUE(VerlaesstWiedergabe(befehl)) << static_cast<int>(befehl);
    for (const Befehl befehl : {Keiner,
                                LichtleisteAnzeigen,
                                Beenden,
                                FensterNebeneinander,
                                FensterUeberlappend,
                                FensterUntereinander,
                                UebertragenerWert,
                                ComPort,
                                Simulation,
                                Hilfethemen,
                                Info,
                                SpracheDeutsch,
                                SpracheEnglisch,
                                Sicherungen,
                                Vergleich,
                                Darstellung,
                                Busprotokoll,
                                Verbindung,
                                Befehl::Wiedergabe,
                                UebergebeneDateien,
                                UebergebeneAufzeichnung,
                                WiedergabeVerlassen})
        EXPECT_FALSE(VerlaesstWiedergabe(befehl)) << static_cast<int>(befehl);
}

} // namespace varnoth
