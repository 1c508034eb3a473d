#include "frmmaintest.h"

#include "beambarcontrol.h"
#include "dateidialog.h"
#include "dateien.h"
#include "fenstertest.h"
#include "frmDocument.h"
#include "geraetepfade.h"
#include "konfigurationsdatei.h"
#include "letztedateien.h"
#include "pruefgeraet.h"
#include "qttexte.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "textmitwerten.h"
#include "transaktionen.h"
#include "zykluszeiten.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace varnoth {

using pruefung::FrmMainTest;

TEST_F(FrmMainTest, Every_menu_item_stands_in_its_place) {
    const std::pair<const char*, QStringList> menues[] = {
        {"mnuDatei",
         {"mnuNeu", "mnuOeffnen", "mnuSpeichernUnter", "mnuDateiBar2", "mnuDruckereinrichtung",
          "mnuKonfigurationDrucken", "mnuDateiBar1", "mnuBeenden"}},
        {"mnuAnzeige",
         {"mnuAnzeigeKonfiguration", "mnuAnzeigeLichtleiste_0", "mnuAnzeigeLichtleiste_1",
          "mnuAnzeigeLichtleiste_2", "mnuAnzeigeLichtleiste_3"}},
        {"mnuMessdaten", {"mnuMessdatenAufzeichnen", ""}},
        {"mnuMessdatenVisualisieren", {"mnuMessdatenVisualisierenStart", "mnuMessdatenVisualisierenStop"}},
        {"mnuExtras",
         {"mnuEinzelwerteLesenSchreiben", "mnuSimulation", "mnuInitHardware", "mnuResetHardware",
          "mnuFlasher", "mnuAutosendStarten"}},
        {"mnuOption", {"", "mnuOptionFarben", "", "mnuUebertragenerWert"}},
        {"mnuOptionSprache", {"mnuDeutsch", "mnuEnglisch"}},
        {"mnuOptionKommunikation", {"mnuCom_1", "mnuCom_2", "mnuCom_3", "mnuCom_4"}},
        {"mnuFenster", {"mnuFensterUntereinander", "mnuFensterNebeneinander", "mnuFensterÜberlappend"}},
        {"mnuHilfe", {"mnuHilfethemen", "mnuInfo"}},
    };
    for (const auto& [name, erwartet] : menues) {
        QStringList namen;
        for (const QAction* aktion : Fenster().findChild<QMenu*>(name)->actions())
            namen.append(aktion->menu() != nullptr ? QString() : aktion->objectName());
        EXPECT_EQ(namen, erwartet) << name;
    }
}

TEST_F(FrmMainTest, Menus_are_in_the_chosen_language) {
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Beenden");
    EXPECT_EQ(Fenster().windowTitle(), "Varnoth Monitor");
    EXPECT_EQ(Fenster().findChild<QMenu*>("mnuDatei")->title(), "&Datei");
}

TEST_F(FrmMainTest, A_click_does_nothing_until_the_main_loop_runs_it) {
    Aktion("mnuUebertragenerWert").trigger();
    EXPECT_FALSE(Aktion("mnuUebertragenerWert").isChecked());
    EXPECT_TRUE(Fenster().BefehlWartet());
    Fenster().MenuAusführen();
    EXPECT_TRUE(Aktion("mnuUebertragenerWert").isChecked());
}

TEST_F(FrmMainTest, An_item_without_a_command_does_nothing) {
    for (const char* name :
         {"mnuDruckereinrichtung", "mnuKonfigurationDrucken", "mnuMessdatenAufzeichnen", "mnuOptionFarben"}) {
        Aktion(name).trigger();
        EXPECT_FALSE(Fenster().BefehlWartet()) << name;
    }
}

TEST_F(FrmMainTest, The_transmitted_value_item_turns_its_check_mark) {
    Waehle("mnuUebertragenerWert");
    EXPECT_TRUE(Aktion("mnuUebertragenerWert").isChecked());
    Waehle("mnuUebertragenerWert");
    EXPECT_FALSE(Aktion("mnuUebertragenerWert").isChecked());
}

TEST_F(FrmMainTest, The_port_in_the_settings_is_checked) {
    einstellungen.texte[{"Settings", "ComPort"}] = "3";
    EXPECT_TRUE(Aktion("mnuCom_3").isChecked());
    EXPECT_FALSE(Aktion("mnuCom_1").isChecked());
    EXPECT_EQ(modSchnittstelle::GetComPort(), 3);
}

TEST_F(FrmMainTest, Another_port_is_used_checked_and_stored) {
    Waehle("mnuCom_2");
    EXPECT_EQ(modSchnittstelle::GetComPort(), 2);
    EXPECT_TRUE(Aktion("mnuCom_2").isChecked());
    EXPECT_FALSE(Aktion("mnuCom_1").isChecked());
    EXPECT_EQ((einstellungen.texte[{"Settings", "ComPort"}]), "2");
}

TEST_F(FrmMainTest, Choosing_the_checked_port_changes_and_writes_nothing) {
    Fenster();
    const int vorher = einstellungen.geschrieben;
    Waehle("mnuCom_1");
    EXPECT_TRUE(Aktion("mnuCom_1").isChecked());
    EXPECT_EQ(modSchnittstelle::GetComPort(), 1);
    EXPECT_EQ(einstellungen.geschrieben, vorher);
}

TEST_F(FrmMainTest, A_port_number_in_the_settings_that_no_port_has_counts_as_1) {
    for (const char* nummer : {"7", "0", "-1", "65538"}) {
        einstellungen.texte[{"Settings", "ComPort"}] = nummer;
        fenster.reset();
        EXPECT_TRUE(Aktion("mnuCom_1").isChecked()) << nummer;
        EXPECT_EQ(modSchnittstelle::GetComPort(), 1) << nummer;
    }
}

TEST_F(FrmMainTest, Empty_port_settings_become_the_default) {
    einstellungen.texte[{"Settings", "ComSettings"}] = "";
    Fenster();
    EXPECT_EQ(modSchnittstelle::GetComSettings(), "38400,n,8,2");
}

TEST_F(FrmMainTest, Of_the_port_settings_the_first_80_characters_count) {
    einstellungen.texte[{"Settings", "ComSettings"}] = "9600,e,8,1" + std::string(100, ' ');
    Fenster();
    EXPECT_EQ(modSchnittstelle::GetComSettings(), "9600,e,8,1" + std::string(70, ' '));
}

TEST_F(FrmMainTest, A_window_made_too_small_snaps_back_to_its_least_size) {
    Fenster().resize(100, 100);
    EXPECT_EQ(Fenster().size(), QSize(3700 / 15 + 1, 5040 / 15));
}

TEST_F(FrmMainTest, The_window_stands_where_the_settings_say) {
    einstellungen.texte[{"MDIForm", "Left"}] = "300";
    einstellungen.texte[{"MDIForm", "Top"}] = "450";
    einstellungen.texte[{"MDIForm", "Width"}] = "7500";
    einstellungen.texte[{"MDIForm", "Height"}] = "6000";
    EXPECT_EQ(Fenster().pos(), QPoint(20, 30));
    EXPECT_EQ(Fenster().size(), QSize(500, 400));
}

TEST_F(FrmMainTest, Closing_stores_the_place_as_decimal_text) {
    Fenster().move(20, 30);
    Fenster().resize(500, 400);
    Fenster().close();
    EXPECT_EQ((einstellungen.texte[{"MDIForm", "WindowState"}]), "0");
    EXPECT_EQ((einstellungen.texte[{"MDIForm", "Left"}]), "300");
    EXPECT_EQ((einstellungen.texte[{"MDIForm", "Top"}]), "450");
    EXPECT_EQ((einstellungen.texte[{"MDIForm", "Width"}]), "7500");
    EXPECT_EQ((einstellungen.texte[{"MDIForm", "Height"}]), "6000");
}

TEST_F(FrmMainTest, A_window_closed_while_minimised_keeps_the_stored_place) {
    einstellungen.texte[{"MDIForm", "Left"}] = "300";
    Fenster().move(70, 80);
    Fenster().showMinimized();
    const auto vorher = einstellungen.texte;
    Fenster().close();
    EXPECT_EQ(einstellungen.texte, vorher);
}

TEST_F(FrmMainTest, A_connection_identifies_reads_and_shows_the_parts_online) {
    SchliesseAn({32, 64, 0, 0});
    Fenster().Autostart();
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    EXPECT_EQ(Titel(1), "2. Optikteil online");
    EXPECT_EQ(Titel(2), "3. Optikteil nicht vorhanden");
    EXPECT_TRUE(Fenster().Fenster(0).isVisible());
    EXPECT_TRUE(Fenster().Fenster(1).isVisible());
    EXPECT_FALSE(Fenster().Fenster(2).isVisible());
}

TEST_F(FrmMainTest, View_items_show_for_parts_with_beams_and_are_checked_while_their_view_is_open) {
    SchliesseAn({32, 64, 0, 0});
    Fenster().Autostart();
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_0").isVisible());
    EXPECT_FALSE(Aktion("mnuAnzeigeLichtleiste_2").isVisible());
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_1").isChecked());
    Fenster().Fenster(1).parentWidget()->close();
    EXPECT_FALSE(Aktion("mnuAnzeigeLichtleiste_1").isChecked());
    EXPECT_FALSE(Fenster().Fenster(1).ZeigtLiveDaten());
}

TEST_F(FrmMainTest, A_closed_view_comes_back_through_its_menu_item) {
    SchliesseAn({32, 64, 0, 0});
    Fenster().Autostart();
    Fenster().Fenster(1).parentWidget()->close();
    Waehle("mnuAnzeigeLichtleiste_1");
    EXPECT_TRUE(Fenster().Fenster(1).ZeigtLiveDaten());
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_1").isChecked());
    EXPECT_EQ(Titel(1), "2. Optikteil online");
}

TEST_F(FrmMainTest, Start_and_stop_take_turns) {
    SchliesseAn({32, 0, 0, 0});
    EXPECT_TRUE(Aktion("mnuMessdatenVisualisierenStart").isEnabled());
    EXPECT_FALSE(Aktion("mnuMessdatenVisualisierenStop").isEnabled());
    Waehle("mnuMessdatenVisualisierenStart");
    EXPECT_FALSE(Aktion("mnuMessdatenVisualisierenStart").isEnabled());
    EXPECT_TRUE(Aktion("mnuMessdatenVisualisierenStop").isEnabled());
}

TEST_F(FrmMainTest, Stop_takes_the_controller_out_of_autosend_and_shows_offline) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    geraet.geschrieben.clear();
    Fenster().ZeigeStatustext(FeldMeldungen, "old");
    Waehle("mnuMessdatenVisualisierenStop");
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    ASSERT_EQ(geraet.geschrieben.size(), 1U);
    EXPECT_EQ(geraet.geschrieben[0].adresse, 0x4084);
    EXPECT_EQ(geraet.geschrieben[0].werte, std::vector<int>{4});
    EXPECT_EQ(Titel(0), "1. Optikteil offline");
    EXPECT_EQ(Titel(1), "2. Optikteil nicht vorhanden");
    EXPECT_EQ(Statusfeld(FeldMeldungen).text(), "");
    EXPECT_FALSE(port.offen);
}

TEST_F(FrmMainTest, Stop_ends_polling_and_closes_the_port_before_it_ends_autosend_on_a_port_of_its_own) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    const int geschlossen = port.geschlossen;
    Boolean pollteBeimSenden = True;
    int geschlossenBeimSenden = 0;
    geraet.schweige = [&](const std::string&) {
        pollteBeimSenden = modPolling::GetPollingAktiv();
        geschlossenBeimSenden = port.geschlossen - geschlossen;
        return false;
    };
    Waehle("mnuMessdatenVisualisierenStop");
    EXPECT_EQ(pollteBeimSenden, False);
    EXPECT_EQ(geschlossenBeimSenden, 1);
    EXPECT_EQ(port.geschlossen - geschlossen, 2);
}

TEST_F(FrmMainTest, Without_a_controller_the_message_appears_after_nine_requests) {
    geraet.schweige = [](const std::string&) { return true; };
    Sobald("frmKeinKonturAngeschlossen", [](QDialog& dialog) { dialog.reject(); });
    Fenster().Autostart();
    EXPECT_EQ(port.gesendet.size(), 9U);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(7209));
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_TRUE(Aktion("mnuMessdatenVisualisierenStart").isEnabled());
}

TEST_F(FrmMainTest, A_lost_connection_shows_offline_and_empties_the_output_panel_until_a_pass_succeeds) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    modPolling::PollingZyklus();
    Fenster().ZeigeStatustext(FeldSchaltausgang, "output");
    geraet.schweige = [](const std::string&) { return true; };
    modPolling::PollingZyklus();
    EXPECT_EQ(umgebung.meldungen.back().text, LadeText(3000));
    EXPECT_EQ(Titel(0), "1. Optikteil offline");
    EXPECT_EQ(Statusfeld(FeldSchaltausgang).text(), "");
    geraet.schweige = nullptr;
    modPolling::PollingZyklus();
    EXPECT_EQ(Titel(0), "1. Optikteil online");
}

TEST_F(FrmMainTest, A_part_that_disappears_shows_not_available) {
    SchliesseAn({32, 64, 0, 0});
    Fenster().Autostart();
    geraet.Spezifisch(1, spezifisch::Optikteilstatus) = 0;
    modPolling::PollingZyklus();
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    EXPECT_EQ(Titel(1), "2. Optikteil nicht vorhanden");
}

TEST_F(FrmMainTest, Views_have_no_values_until_the_first_pass_brings_them) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    EXPECT_TRUE(ZeigtKeineWerte(0));
    modPolling::PollingZyklus();
    EXPECT_FALSE(ZeigtKeineWerte(0));
}

TEST_F(FrmMainTest, Stopped_live_data_leaves_no_values_in_the_views) {
    MissEinmal({32, 0, 0, 0});
    EXPECT_EQ(GezeigterWert(0), "7");
    Waehle("mnuMessdatenVisualisierenStop");
    EXPECT_TRUE(ZeigtKeineWerte(0));
}

TEST_F(FrmMainTest, A_lost_connection_leaves_no_values_until_it_is_back) {
    MissEinmal({32, 0, 0, 0});
    geraet.schweige = [](const std::string&) { return true; };
    modPolling::PollingZyklus();
    EXPECT_TRUE(ZeigtKeineWerte(0));
    geraet.schweige = nullptr;
    modPolling::PollingZyklus();
    EXPECT_EQ(GezeigterWert(0), "7");
    EXPECT_FALSE(ZeigtKeineWerte(0));
}

TEST_F(FrmMainTest, A_part_that_disappears_takes_its_values_along_and_no_others) {
    MissEinmal({32, 64, 0, 0});
    geraet.Spezifisch(1, spezifisch::Optikteilstatus) = 0;
    modPolling::PollingZyklus();
    EXPECT_TRUE(ZeigtKeineWerte(1));
    EXPECT_EQ(GezeigterWert(0), "7");
}

TEST_F(FrmMainTest, A_view_shown_from_the_menu_waits_for_its_values) {
    MissEinmal({32, 0, 0, 0});
    Waehle("mnuAnzeigeLichtleiste_0");
    EXPECT_TRUE(ZeigtKeineWerte(0));
}

TEST_F(FrmMainTest, A_view_shown_from_the_menu_before_any_connection_is_of_a_part_that_is_not_there) {
    Fenster().Fenster(0);
    ASSERT_EQ(Titel(0), "1. Optikteil offline");
    Waehle("mnuAnzeigeLichtleiste_0");
    EXPECT_EQ(Titel(0), "1. Optikteil nicht vorhanden");
}

TEST_F(FrmMainTest, A_new_configuration_takes_the_values_of_the_former_one_away) {
    MissEinmal({32, 0, 0, 0});
    Sobald("frmStrahlenBestimmen", [](QDialog& dialog) {
        dialog.findChild<QComboBox*>("Combo1_1")->setCurrentIndex(0);
        dialog.findChild<QPushButton*>("cmdOK")->click();
    });
    Waehle("mnuNeu");
    ASSERT_TRUE(Fenster().Fenster(0).isVisible());
    EXPECT_TRUE(ZeigtKeineWerte(0));
}

TEST_F(FrmMainTest, No_values_are_shown_while_the_editor_is_open) {
    MissEinmal({32, 0, 0, 0});
    bool ohneWerte = false;
    Sobald("frmKonfigurationEdit", [&](QDialog& dialog) {
        ohneWerte = ZeigtKeineWerte(0);
        dialog.reject();
    });
    Waehle("mnuAnzeigeKonfiguration");
    EXPECT_TRUE(ohneWerte);
}

TEST_F(FrmMainTest, Another_language_shows_no_values_of_former_times) {
    MissEinmal({32, 0, 0, 0});
    Waehle("mnuEnglisch");
    EXPECT_TRUE(ZeigtKeineWerte(0));
    LadeQtTexte(Englisch);
}

TEST_F(FrmMainTest, The_panel_of_the_output_tells_the_time_of_its_value) {
    MissEinmal({32, 0, 0, 0});
    Fenster().ZeigeStatustext(FeldSchaltausgang, "output");
    EXPECT_TRUE(Statusfeld(FeldSchaltausgang).toolTip().startsWith("Letzter Wert: "));
}

TEST_F(FrmMainTest, F11_lets_the_view_in_front_fill_the_window_and_gives_it_back) {
    MissEinmal({32, 64, 0, 0});
    Fenster().Fenster(1).Zeige();
    const auto tasten = Fenster().findChildren<QShortcut*>();
    const auto taste = std::ranges::find(tasten, QKeySequence(Qt::Key_F11), &QShortcut::key);
    ASSERT_NE(taste, tasten.end());
    emit(*taste)->activated();
    EXPECT_TRUE(Fenster().Fenster(1).IstGrossanzeige());
    emit(*taste)->activated();
    EXPECT_FALSE(Fenster().Fenster(1).IstGrossanzeige());
}

TEST_F(FrmMainTest, Autosend_can_be_chosen_when_the_controller_is_in_an_autosend_mode) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    EXPECT_TRUE(Aktion("mnuAutosendStarten").isEnabled());
    geraet.Register(0x4000 + kommunikation::Autosend) = 4;
    Fenster().Autostart();
    EXPECT_FALSE(Aktion("mnuAutosendStarten").isEnabled());
}

TEST_F(FrmMainTest, Autosend_starts_after_the_question_and_live_data_stays_stopped) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    geraet.geschrieben.clear();
    Waehle("mnuAutosendStarten");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0], (Meldung{.text = LadeText(6003),
                                              .titel = LadeText(6109),
                                              .symbol = Symbol::Warnung,
                                              .knoepfe = Knoepfe::OkAbbrechen,
                                              .abbrechenVorgegeben = true}));
    EXPECT_EQ(geraet.geschrieben.back().werte, std::vector<int>{2});
    EXPECT_FALSE(Fenster().BefehlWartet());
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(FrmMainTest, Autosend_does_not_start_when_the_question_is_cancelled) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    umgebung.antworten = {Antwort::Abbrechen};
    Waehle("mnuAutosendStarten");
    EXPECT_EQ(geraet.geschrieben.back().werte, std::vector<int>{4});
}

TEST_F(FrmMainTest, Switching_to_English_and_back_gives_the_German_texts_again) {
    Fenster().ZeigeSprache();
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    Waehle("mnuEnglisch");
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Exit");
    EXPECT_EQ(Titel(0), "1. Optical part offline");
    EXPECT_TRUE(Aktion("mnuEnglisch").isChecked());
    EXPECT_FALSE(Aktion("mnuDeutsch").isChecked());
    EXPECT_EQ((einstellungen.texte[{"Settings", "Sprache"}]), "10000");
    Waehle("mnuDeutsch");
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Beenden");
    EXPECT_EQ(Titel(0), "1. Optikteil offline");
    EXPECT_TRUE(Aktion("mnuDeutsch").isChecked());
    EXPECT_EQ((einstellungen.texte[{"Settings", "Sprache"}]), "0");
}

TEST_F(FrmMainTest, Closing_while_a_pass_waits_ends_the_pass_and_the_program) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(300), [this] { Fenster().close(); });
    modDaten::LoescheGeaendert();
    modPolling::PollingZyklus();
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
    EXPECT_FALSE(port.offen);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmMainTest, Closing_with_unsaved_changes_asks_from_the_main_loop) {
    Fenster();
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Nein};
    Fenster().close();
    EXPECT_TRUE(Fenster().isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
    Fenster().MenuAusführen();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(6002));
    EXPECT_EQ(umgebung.meldungen[0].knoepfe, Knoepfe::JaNeinAbbrechen);
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
}

TEST_F(FrmMainTest, Cancelling_the_question_for_changes_keeps_the_program_running) {
    Fenster();
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Abbrechen};
    Waehle("mnuBeenden");
    EXPECT_EQ(Fenster().OffeneFormulare(), 1);
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(FrmMainTest, Closing_with_unsaved_changes_while_a_pass_waits_ends_the_pass_and_then_asks) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.antworten = {Antwort::Nein};
    umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(300), [this] { Fenster().close(); });
    modPolling::PollingZyklus();
    EXPECT_TRUE(umgebung.meldungen.empty());
    Fenster().MenuAusführen();
    EXPECT_EQ(umgebung.meldungen.back().text, LadeText(6002));
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
}

TEST_F(FrmMainTest, Closing_while_a_dialog_asks_the_controller_ends_the_dialog_and_the_program) {
    geraet.schweige = [](const std::string&) { return true; };
    Fenster();
    umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(1300), [this] { Fenster().close(); });
    Fenster().Autostart();
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(FrmMainTest, Closing_while_a_command_waits_for_live_data_to_stop_ends_the_program_without_its_dialog) {
    for (const char* name : {"mnuInfo", "mnuSimulation", "mnuResetHardware", "mnuAutosendStarten"}) {
        GeheLiveUndVerstumme();
        const auto dialog = DialogNachSchliessen(name);
        EXPECT_EQ(dialog, QString()) << name;
        EXPECT_EQ(Fenster().OffeneFormulare(), 0) << name;
        EXPECT_TRUE(umgebung.meldungen.empty()) << name;
        fenster.reset();
    }
}

TEST_F(FrmMainTest,
       Closing_while_the_controller_is_taken_out_of_autosend_ends_the_program_without_the_service) {
    GeheLiveUndVerstumme();
    Waehle("mnuMessdatenVisualisierenStop");
    EXPECT_EQ(DialogNachSchliessen("mnuResetHardware"), QString());
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmMainTest, Closing_with_the_about_box_or_the_calculator_open_ends_the_program) {
    const std::pair<const char*, const char*> faelle[] = {{"mnuInfo", "frmInfo"},
                                                          {"mnuSimulation", "frmSimulation"}};
    for (const auto& [befehl, dialog] : faelle) {
        Sobald(dialog, [this](QDialog&) { Fenster().close(); });
        Waehle(befehl);
        EXPECT_EQ(Fenster().OffeneFormulare(), 0) << befehl;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << befehl;
        fenster.reset();
    }
}

TEST_F(FrmMainTest, A_port_chosen_right_before_closing_is_stored) {
    GeheLiveUndVerstumme();
    DialogNachSchliessen("mnuCom_2");
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
    EXPECT_EQ((einstellungen.texte[{"Settings", "ComPort"}]), "2");
}

TEST_F(FrmMainTest, Closing_with_unsaved_changes_while_a_command_waits_asks_without_its_dialog) {
    GeheLiveUndVerstumme();
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Abbrechen};
    EXPECT_EQ(DialogNachSchliessen("mnuSimulation"), QString());
    EXPECT_TRUE(umgebung.meldungen.empty());
    Fenster().MenuAusführen();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(6002));
}

TEST_F(FrmMainTest, The_exit_command_ends_the_program) {
    Waehle("mnuBeenden");
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
}

TEST_F(FrmMainTest, Without_a_controller_beam_counts_lead_to_an_offline_configuration) {
    geraet.schweige = [](const std::string&) { return true; };
    Sobald("frmKeinKonturAngeschlossen", [](QDialog& dialog) {
        dialog.findChild<QRadioButton*>("optStrahlenanzahl")->click();
        dialog.findChild<QComboBox*>("Combo1_1")->setCurrentIndex(0);
        dialog.findChild<QComboBox*>("Combo1_2")->setCurrentIndex(0);
        dialog.findChild<QComboBox*>("Combo1_3")->setCurrentIndex(0);
        dialog.findChild<QPushButton*>("cmdOK")->click();
    });
    Fenster().Autostart();
    EXPECT_EQ(modDaten::Strahlenzahl(0), 32);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(0), 1750);
    EXPECT_TRUE(Fenster().Fenster(0).isVisible());
    EXPECT_FALSE(Fenster().Fenster(1).isVisible());
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_0").isVisible());
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(FrmMainTest, A_new_configuration_shows_its_parts_and_needs_no_port) {
    Sobald("frmStrahlenBestimmen", [](QDialog& dialog) {
        dialog.findChild<QComboBox*>("Combo1_2")->setCurrentIndex(0);
        dialog.findChild<QPushButton*>("cmdOK")->click();
    });
    Waehle("mnuNeu");
    EXPECT_EQ(modDaten::Strahlenzahl(1), 32);
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_1").isVisible());
    EXPECT_FALSE(Aktion("mnuAnzeigeLichtleiste_2").isVisible());
    EXPECT_TRUE(port.geoeffnet.empty());
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(FrmMainTest, A_new_configuration_has_the_cycle_times_of_its_beams) {
    Sobald("frmStrahlenBestimmen", [](QDialog& dialog) {
        dialog.findChild<QComboBox*>("Combo1_2")->setCurrentIndex(0);
        dialog.findChild<QPushButton*>("cmdOK")->click();
    });
    Waehle("mnuNeu");
    const Zykluszeiten erwartet = ZykluszeitenFuer({32, 32, 0, 32});
    EXPECT_EQ(modHilfsFunktionen::GetGesamtzykluszeit(), erwartet.gesamt);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(3), erwartet.zyklus[3]);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(2), 0);
}

TEST_F(FrmMainTest, A_new_configuration_that_is_cancelled_changes_nothing) {
    Sobald("frmStrahlenBestimmen", [](QDialog& dialog) { dialog.reject(); });
    Waehle("mnuNeu");
    EXPECT_EQ(modDaten::Strahlenzahl(0), 0);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(FrmMainTest, A_file_that_is_opened_shows_its_parts_and_a_cancelled_dialog_shows_none) {
    const QTemporaryDir ordner;
    std::optional<std::string> antwort = ordner.filePath("a.con").toStdString();
    Fenster();
    modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 1, {32});
    ASSERT_EQ(ErsetzeDatei(*antwort, modDaten::SpeichereKonfigurationsdatei()), "");
    SetzeDateiantwort([&](const Dateifrage&) { return std::exchange(antwort, std::nullopt); });
    Waehle("mnuOeffnen");
    EXPECT_TRUE(Fenster().Fenster(1).isVisible());
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_1").isVisible());
    Fenster().Fenster(1).parentWidget()->close();
    Waehle("mnuOeffnen");
    EXPECT_FALSE(Fenster().Fenster(1).isVisible());
    SetzeDateiantwort({});
}

TEST_F(FrmMainTest, The_editor_applied_and_downloaded_writes_the_configuration_and_live_data_starts_again) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    geraet.geschrieben.clear();
    Sobald("frmKonfigurationEdit", [](QDialog& dialog) {
        auto* download = dialog.findChild<QPushButton*>("cmdDownLoad");
        EXPECT_TRUE(pruefung::WarteBis([=] { return download->isEnabled(); }));
        dialog.findChild<QComboBox*>("cboReichweite_0")->setCurrentIndex(4);
        download->click();
    });
    Sobald("frmKonfigurationSchreibenInHardware",
           [](QDialog& dialog) { dialog.findChild<QPushButton*>("cmdStart")->click(); });
    Waehle("mnuAnzeigeKonfiguration");
    EXPECT_EQ(geraet.Spezifisch(0, spezifisch::Reichweite), 4);
    EXPECT_EQ(geraet.Register(189), 1) << "stored in the controller";
    EXPECT_TRUE(Fenster().BefehlWartet()) << "live data had been running";
    Fenster().MenuAusführen();
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
}

TEST_F(FrmMainTest, Transmitted_values_stand_in_the_editor_when_the_menu_item_is_checked) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    std::vector<bool> sichtbar;
    for (int mal = 0; mal < 2; ++mal) {
        Sobald("frmKonfigurationEdit", [&sichtbar](QDialog& dialog) {
            const auto* zeile = dialog.findChild<QLabel*>("lblOhneTriggerAutosendrateUebertragenerWert");
            sichtbar.push_back(zeile != nullptr && !zeile->isHidden() && !zeile->text().isEmpty());
            dialog.reject();
        });
        Waehle("mnuAnzeigeKonfiguration");
        Aktion("mnuUebertragenerWert").trigger();
        Fenster().MenuAusführen();
    }
    EXPECT_EQ(sichtbar, (std::vector<bool>{false, true}));
}

TEST_F(FrmMainTest, The_editor_tells_the_menu_whether_sending_can_be_started) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    ASSERT_TRUE(Aktion("mnuAutosendStarten").isEnabled());
    ASSERT_TRUE(modDaten::SetzeRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Autosend, 4));
    Sobald("frmKonfigurationEdit", [](QDialog& dialog) { dialog.reject(); });
    Waehle("mnuAnzeigeKonfiguration");
    EXPECT_FALSE(Aktion("mnuAutosendStarten").isEnabled());
}

TEST_F(FrmMainTest, The_editor_without_any_beams_asks_for_a_configuration_first) {
    bool gefragt = false;
    Sobald("frmKeinKonturAngeschlossen", [&gefragt](QDialog& dialog) {
        gefragt = true;
        dialog.reject();
    });
    Waehle("mnuAnzeigeKonfiguration");
    EXPECT_TRUE(gefragt);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FrmMainTest, The_about_box_shows_product_and_owner_and_closes_on_Enter) {
    Fenster();
    QString produkt;
    QString eigentuemer;
    QTimer::singleShot(0, &Fenster(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        produkt = dialog->findChild<QLabel*>("Label1")->text();
        eigentuemer = dialog->findChild<QLabel*>("Label2")->text();
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    Waehle("mnuInfo");
    EXPECT_EQ(produkt, "Varnoth  Softwareversion 1.0.0");
    EXPECT_TRUE(eigentuemer.contains(QChar(169)));
}

TEST_F(FrmMainTest, Yes_to_saving_and_a_cancelled_dialog_keep_the_window_open_and_ask_no_more) {
    SetzeDateiantwort([](const Dateifrage&) -> std::optional<std::string> { return std::nullopt; });
    Fenster();
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Ja};
    Fenster().close();
    Fenster().MenuAusführen();
    Fenster().MenuAusführen();
    SetzeDateiantwort({});
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(Fenster().OffeneFormulare(), 1);
    EXPECT_TRUE(Fenster().isVisible());
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(FrmMainTest, The_menu_items_show_their_keys) {
    const std::pair<const char*, const char*> tasten[] = {
        {"mnuNeu", "Ctrl+N"},
        {"mnuOeffnen", "Ctrl+O"},
        {"mnuSpeichernUnter", "Ctrl+S"},
        {"mnuBeenden", "Ctrl+Q"},
        {"mnuMessdatenVisualisierenStart", "F5"},
        {"mnuMessdatenVisualisierenStop", "Shift+F5"},
        {"mnuAnzeigeKonfiguration", "Ctrl+K"},
        {"mnuAnzeigeLichtleiste_0", "Ctrl+1"},
        {"mnuAnzeigeLichtleiste_3", "Ctrl+4"},
        {"mnuInfo", ""},
    };
    for (const auto& [name, taste] : tasten)
        EXPECT_EQ(Aktion(name).shortcut().toString(QKeySequence::PortableText), taste) << name;
}

TEST_F(FrmMainTest, A_key_stores_the_command_of_its_menu_item) {
    Fenster().activateWindow();
    ASSERT_TRUE(pruefung::WarteBis([this] { return Fenster().isActiveWindow(); }));
    QTest::keyClick(&Fenster(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(Fenster().BefehlWartet());
    Fenster().MenuAusführen();
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
}

TEST_F(FrmMainTest, The_empty_window_shows_what_can_be_done_until_a_view_is_shown) {
    const auto willkommen = [this] { return Fenster().findChild<QWidget*>("Willkommensseite")->isVisible(); };
    EXPECT_TRUE(willkommen());
    SchliesseAn({32, 64, 0, 0});
    Fenster().Autostart();
    EXPECT_FALSE(willkommen());
    Fenster().Fenster(0).parentWidget()->close();
    EXPECT_FALSE(willkommen());
    Fenster().Fenster(1).parentWidget()->close();
    EXPECT_TRUE(willkommen());
    Waehle("mnuAnzeigeLichtleiste_1");
    EXPECT_FALSE(willkommen());
}

TEST_F(FrmMainTest, The_welcome_page_switches_its_language) {
    Waehle("mnuEnglisch");
    EXPECT_EQ(Fenster().findChild<QPushButton*>("cmdWillkommenVerbinden")->text(), "Connect");
    Waehle("mnuDeutsch");
    EXPECT_EQ(Fenster().findChild<QPushButton*>("cmdWillkommenVerbinden")->text(), "Verbinden");
    LadeQtTexte(Englisch);
}

TEST_F(FrmMainTest, A_click_on_a_file_used_last_loads_it) {
    QTemporaryDir ordner;
    const std::string pfad = ordner.filePath("a.con").toStdString();
    Fenster();
    modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {32});
    ASSERT_EQ(ErsetzeDatei(pfad, modDaten::SpeichereKonfigurationsdatei()), "");
    modDaten::LadeStandardkonfiguration();
    MerkeDatei(pfad);
    Waehle("mnuUebertragenerWert");
    auto* const knopf = Fenster().findChild<QPushButton*>("cmdWillkommenDatei_1");
    EXPECT_EQ(knopf->text(), "a.con") << "the page follows the list after each command";
    knopf->click();
    EXPECT_EQ(modDaten::Strahlenzahl(0), 0) << "a click only stores the command";
    Fenster().MenuAusführen();
    EXPECT_EQ(modDaten::Strahlenzahl(0), 32);
    EXPECT_TRUE(Fenster().Fenster(0).isVisible());
}

TEST_F(FrmMainTest, At_the_first_start_the_window_lies_inside_the_work_area) {
    einstellungen.texte[{"MDIForm", "Left"}] = "11000";
    EXPECT_TRUE(Fenster().screen()->availableGeometry().contains(Fenster().frameGeometry()));
}

TEST_F(FrmMainTest, A_place_that_was_stored_is_kept_even_where_it_leaves_the_work_area) {
    einstellungen.texte[{"MDIForm", "Left"}] = "9000";
    einstellungen.texte[{"MDIForm", "Width"}] = "6000";
    EXPECT_EQ(Fenster().x(), 600);
    EXPECT_EQ(Fenster().width(), 400);
}

TEST_F(FrmMainTest, The_first_views_leave_the_window_inside_the_work_area) {
    SchliesseAn({32, 64, 96, 128});
    Fenster().move(600, 500);
    Fenster().Autostart();
    const QRect flaeche = Fenster().screen()->availableGeometry();
    EXPECT_TRUE(flaeche.contains(Fenster().frameGeometry()));
    EXPECT_GE(Fenster().height(), 640);
}

TEST_F(FrmMainTest, The_three_status_panels_take_texts) {
    Fenster().ZeigeStatustext(FeldSchaltausgang, "Status");
    EXPECT_EQ(Statusfeld(FeldSchaltausgang).text(), "Status");
    EXPECT_EQ(Statusfeld(FeldPort).text(), "COM1: 38400,n,8,2");
}

TEST_F(FrmMainTest, A_line_in_the_colour_of_what_cannot_be_chosen_stands_behind_each_panel) {
    Fenster();
    QCoreApplication::processEvents();
    for (const int nummer : {1, 2, 3}) {
        const auto* const linie =
            Fenster().statusBar()->findChild<QWidget*>(QStringLiteral("linStatusBar_%1").arg(nummer));
        ASSERT_NE(linie, nullptr) << nummer;
        EXPECT_FALSE(linie->isEnabled()) << nummer;
        EXPECT_GT(linie->x(), Statusfeld(nummer).geometry().right()) << nummer;
    }
    EXPECT_EQ(Fenster().statusBar()->findChild<QWidget*>("linStatusBar_4"), nullptr);
}

TEST_F(FrmMainTest, The_panel_of_the_port_names_in_its_tip_the_device_or_that_there_is_none) {
    Fenster();
    EXPECT_EQ(Statusfeld(FeldPort).toolTip().toStdString(), Geraetepfad(1));
    Fenster().ZeigeSimuliert(true);
    EXPECT_EQ(Statusfeld(FeldPort).text().toStdString(), LadeText(9220));
    EXPECT_EQ(Statusfeld(FeldPort).toolTip().toStdString(), LadeText(9221));
}

TEST_F(FrmMainTest, A_window_of_the_usual_width_has_room_for_the_whole_sentence_about_a_write) {
    Fenster().resize(1280, 700);
    Fenster().ZeigeStatustext(FeldSchaltausgang, LadeText(3002));
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Fenster().ZeigeStatustext(FeldMeldungen, LadeTextMit(9170, {"12:34", "172"}));
        const QLabel& feld = Statusfeld(FeldMeldungen);
        EXPECT_TRUE(pruefung::WarteBis([&] {
            return feld.fontMetrics().horizontalAdvance(feld.text()) <= feld.contentsRect().width();
        }));
        EXPECT_EQ(feld.toolTip(), feld.text());
    }
}

TEST_F(FrmMainTest,
       The_connection_part_says_that_a_command_has_stopped_live_data_and_starts_it_at_one_click) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    auto& text = *Fenster().findChild<QLabel*>(QStringLiteral("lblVerbindung"));
    auto& start = *Fenster().findChild<QPushButton*>(QStringLiteral("cmdVerbindungStart"));
    EXPECT_EQ(text.text(), "Live");
    EXPECT_FALSE(start.isVisible());
    Waehle("mnuEnglisch");
    EXPECT_TRUE(pruefung::WarteBis([&] { return text.text().startsWith("Live data stopped since "); }));
    ASSERT_TRUE(start.isVisible());
    start.click();
    EXPECT_EQ(modPolling::GetPollingAktiv(), False) << "a click only stores the command";
    Fenster().MenuAusführen();
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
    EXPECT_EQ(text.text(), "Live");
}

TEST_F(FrmMainTest, The_connection_part_says_that_it_connects_until_the_user_is_asked_for_a_configuration) {
    geraet.schweige = [](const std::string&) { return true; };
    auto& text = *Fenster().findChild<QLabel*>(QStringLiteral("lblVerbindung"));
    QString dabei, danach;
    umgebung.beiMeldung = [&](const Meldung&) { dabei = text.text(); };
    Sobald("frmKeinKonturAngeschlossen", [&](QDialog& dialog) {
        danach = text.text();
        dialog.reject();
    });
    Fenster().Autostart();
    EXPECT_EQ(dabei, "Verbinde...");
    EXPECT_TRUE(danach.startsWith("Offline seit ")) << danach.toStdString();
}

TEST_F(FrmMainTest, The_connection_part_leaves_the_three_panels_where_they_are) {
    const auto* leiste = Fenster().statusBar();
    for (const char* feld : {"sbStatusBar_1", "sbStatusBar_2", "sbStatusBar_3"})
        EXPECT_EQ(leiste->findChild<QLabel*>(feld)->parentWidget(), leiste) << feld;
    EXPECT_TRUE(leiste->findChild<QWidget*>("Verbindungsanzeige")->isVisible());
}

TEST_F(FrmMainTest, A_long_message_gives_way_to_the_other_panels_and_is_whole_in_its_tip) {
    const std::string lang(200, 'x');
    Fenster().ZeigeStatustext(FeldMeldungen, lang);
    const auto& meldungen = *Fenster().statusBar()->findChild<QLabel*>(QStringLiteral("sbStatusBar_1"));
    const auto& anschluss = *Fenster().statusBar()->findChild<QLabel*>(QStringLiteral("sbStatusBar_2"));
    EXPECT_LT(meldungen.minimumSizeHint().width(), 100);
    EXPECT_EQ(meldungen.toolTip().toStdString(), lang);
    EXPECT_GE(anschluss.minimumSizeHint().width(),
              anschluss.fontMetrics().horizontalAdvance(anschluss.text()));
}

} // namespace varnoth
