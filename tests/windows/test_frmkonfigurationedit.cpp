#include "frmKonfigurationEdit.h"

#include "autosend.h"
#include "dialogtest.h"
#include "gruppenzaehler.h"
#include "pnpausgang.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "zykluszeiten.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUndoView>

#include <span>
#include <utility>

namespace varnoth {

namespace {

constexpr int ZweiVersuche = 2;

void Druecke(QWidget& ziel, Qt::Key taste, Qt::KeyboardModifiers mit = Qt::NoModifier) {
    QKeyEvent druck(QEvent::KeyPress, taste, mit);
    QCoreApplication::sendEvent(&ziel, &druck);
}

class KonfigurationEditTest : public pruefung::DialogTest {
protected:
    KonfigurationEditTest() {
        modDaten::LadeStandardkonfiguration();
        SetzeStrahlen({64, 64, 64, 64});
        modDaten::LoescheGeaendert();
    }

    /// Any register, also those that no part of the program stores.
    static void Setze(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert, int teil = 0) {
        const auto alte = modDaten::Bereich(bereich);
        Werte werte(alte.begin(), alte.end());
        werte[Stelle(bereich, adresse, teil)] = wert;
        modDaten::ErsetzeBereich(bereich, werte);
    }
    static void SetzeStrahlen(std::array<int, AnzahlOptikteile> strahlen) {
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            Setze(Spezifisch, spezifisch::Strahlenzahl, strahlen.at(static_cast<std::size_t>(teil)), teil);
        modHilfsFunktionen::BerechneZykluszeiten();
    }
    static std::vector<Werte> Abbild() {
        std::vector<Werte> abbild;
        for (const auto bereich : AlleSpeicherbereiche) {
            const auto werte = modDaten::Bereich(bereich);
            abbild.emplace_back(werte.begin(), werte.end());
        }
        return abbild;
    }

    frmKonfigurationEdit& Oeffne(Editorumfeld umfeld = {}) {
        dialog = std::make_unique<frmKonfigurationEdit>();
        dialog->InitKonfiguration(std::move(umfeld));
        return *dialog;
    }
    /// Opens and shows the editor and waits until it has looked for the controller.
    frmKonfigurationEdit& Zeige() {
        Oeffne().show();
        EXPECT_TRUE(pruefung::WarteBis(
            [&] { return AnzahlAnforderungen() == ZweiVersuche || Bereit(*dialog, "cmdDownLoad"); }));
        QCoreApplication::processEvents();
        return *dialog;
    }
    template<class Element>
    Element& K(const char* name) {
        return Kind<Element>(*dialog, name);
    }
    QComboBox& Box(const char* name) { return K<QComboBox>(name); }
    QString Text(const char* name) { return Beschriftung(*dialog, name); }
    bool Angewaehlt(const char* name) { return K<QRadioButton>(name).isChecked(); }
    bool Bedienbar(const char* name) { return K<QWidget>(name).isEnabledTo(dialog.get()); }
    bool Versteckt(const char* name) { return K<QWidget>(name).isHidden(); }
    void Klicke(const char* name) { K<QAbstractButton>(name).click(); }
    /// The sub-editor that a button opens over the editor, and the part it names; closed again at once.
    QString UntereditorNach(const char* knopf) {
        QString gesehen;
        QTimer::singleShot(0, dialog.get(), [&] {
            QWidget* const fenster = QApplication::activeModalWidget();
            if (fenster == nullptr || fenster->parentWidget() != dialog.get())
                return;
            const auto* const teil = fenster->findChild<QLabel*>("lblOptikteil");
            gesehen = fenster->objectName() + (teil != nullptr ? ' ' + teil->text() : QString());
            fenster->close();
        });
        Klicke(knopf);
        QCoreApplication::processEvents();
        return gesehen;
    }
    QStringList Reiter() {
        QStringList texte;
        const auto& reiter = K<QTabWidget>("tbsOptions");
        for (int i = 0; i < reiter.count(); ++i)
            texte += reiter.tabText(i);
        return texte;
    }
    /// The editor on a new image, applied at once.
    void OeffneUndUebernimm() {
        Zeige();
        Klicke("cmdDownLoad");
    }

    std::unique_ptr<frmKonfigurationEdit> dialog;
};

} // namespace

TEST_F(KonfigurationEditTest, With_four_optical_parts_all_six_pages_are_there) {
    Oeffne();
    EXPECT_EQ(Reiter(), QStringList({"Global", "K1", "K2", "K3", "K4", "Kommunikation"}));
}

TEST_F(KonfigurationEditTest, Without_parts_3_and_4_only_Global_K1_K2_and_Kommunikation_remain) {
    SetzeStrahlen({64, 64, 0, 0});
    Oeffne();
    EXPECT_EQ(Reiter(), QStringList({"Global", "K1", "K2", "Kommunikation"}));
}

TEST_F(KonfigurationEditTest, Without_any_beams_only_Global_and_Kommunikation_remain) {
    SetzeStrahlen({0, 0, 0, 0});
    Oeffne();
    EXPECT_EQ(Reiter(), QStringList({"Global", "Kommunikation"}));
}

TEST_F(KonfigurationEditTest, The_pages_of_absent_parts_between_present_ones_are_missing) {
    SetzeStrahlen({0, 64, 0, 64});
    Oeffne();
    EXPECT_EQ(Reiter(), QStringList({"Global", "K2", "K4", "Kommunikation"}));
}

TEST_F(KonfigurationEditTest, Titles_and_buttons_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    Oeffne();
    EXPECT_EQ(dialog->windowTitle(), "Configure");
    EXPECT_EQ(Reiter(), QStringList({"Global", "C1", "C2", "C3", "C4", "Communication"}));
    EXPECT_EQ(K<QPushButton>("cmdUebernehmen").text(), "Apply");
    EXPECT_EQ(K<QPushButton>("cmdDownLoad").text(), "Apply/Download");
    EXPECT_EQ(K<QPushButton>("cmdCancel").text(), "Cancel");
}

TEST_F(KonfigurationEditTest, The_button_of_the_blanking_pattern_says_what_selected_means) {
    for (const auto& [sprache, hinweis] :
         {std::pair{Deutsch, "(Angewählt ist geblankt)"}, std::pair{Englisch, "(Selected is blanked)"}}) {
        SetzeSprachoffset(sprache);
        Oeffne();
        for (const char* name : {"cmdBlankingmuster_0", "cmdBlankingmuster_3"})
            EXPECT_EQ(K<QPushButton>(name).toolTip(), QString::fromUtf8(hinweis)) << name;
    }
}

TEST_F(KonfigurationEditTest, Every_text_of_the_form_exists) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        for (const QWidget* element : Oeffne().findChildren<QWidget*>()) {
            const int id = element->property("Tag").toInt();
            if (id > 0) {
                EXPECT_NE(LadeText(static_cast<std::int16_t>(id)), "") << id;
            }
        }
    }
}

TEST_F(KonfigurationEditTest, The_global_page_shows_the_device) {
    Setze(Global, global::Geraetetyp, 50);
    for (std::int16_t i = 0; i < 10; ++i)
        Setze(Global, static_cast<std::int16_t>(global::Seriennummer + i), 0x4130 + i);
    const int datum[] = {0x3230, 0x3039, 0x3035, 0x3133};
    for (std::int16_t i = 0; i < 4; ++i)
        Setze(Global, static_cast<std::int16_t>(global::Herstelldatum + i), datum[i]);
    Setze(Global, global::Hardwareversion, 0x0203);
    Setze(Global, global::Softwareversion, 0x010A);
    Oeffne();
    EXPECT_EQ(Text("lblInhaltGerätetyp"), "Varnoth");
    EXPECT_EQ(Text("lblInhaltSeriennummer"), "A0A1A2A3A4A5A6A7A8A9");
    EXPECT_EQ(Text("lblInhaltHerstellDatum"), "13.05.2009");
    EXPECT_EQ(Text("lblInhaltHardwareVersion"), "2.3");
    EXPECT_EQ(Text("lblInhaltSoftwareVersion"), "1.10");
}

TEST_F(KonfigurationEditTest, An_empty_device_is_unknown) {
    Oeffne();
    for (const char* name : {"lblInhaltGerätetyp", "lblInhaltSeriennummer", "lblInhaltHerstellDatum",
                             "lblInhaltHardwareVersion", "lblInhaltSoftwareVersion"})
        EXPECT_EQ(Text(name), "unbekannt") << name;
}

TEST_F(KonfigurationEditTest, The_options_of_the_switching_output_write_their_bits) {
    const std::tuple<const char*, std::int32_t> faelle[] = {
        {"optPNPAusgang_Option1_0", 0x0000}, {"optPNPAusgang_Option1_1", 0x0001},
        {"optPNPAusgang_Option1_2", 0x0002}, {"optPNPAusgang_Option1_3", 0x0004},
        {"optPNPAusgang_Option1_4", 0x0008}, {"optPNPAusgang_Option1_5", 0x0010},
        {"optPNPAusgang_Option1_6", 0x0020}, {"optPNPAusgang_Option1_8", 0x4000},
        {"optPNPAusgang_Option2_0", 0x0000}, {"optPNPAusgang_Option2_1", 0x0100},
        {"optPNPAusgang_Option2_2", 0x0200}, {"optPNPAusgang_Option2_3", 0x0300},
        {"optAusgangAktive_0", 0x8000},      {"optAusgangAktive_1", 0x0000},
    };
    for (const auto& [name, wert] : faelle) {
        Setze(Global, global::PnpAusgang, 0);
        Zeige();
        Klicke(name);
        Klicke("cmdDownLoad");
        EXPECT_EQ(modDaten::HoleRegister(Global, global::PnpAusgang), wert) << name;
        Oeffne();
        EXPECT_TRUE(Angewaehlt(name));
        port.gesendet.clear();
    }
}

TEST_F(KonfigurationEditTest, The_function_that_no_controller_has_is_hidden) {
    Oeffne();
    EXPECT_TRUE(Versteckt("optPNPAusgang_Option1_7"));
}

TEST_F(KonfigurationEditTest, Each_part_page_shows_the_registers_of_its_part) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        Setze(Spezifisch, spezifisch::Reichweite, teil + 1, teil);
        Setze(Spezifisch, spezifisch::Gruppenzaehler, 0x8000 + 10 + teil, teil);
        Setze(Spezifisch, spezifisch::Lochgroesse, 20 + teil, teil);
    }
    Oeffne();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        const auto name = [teil](const char* bild) { return QString::fromUtf8(bild).arg(teil).toUtf8(); };
        EXPECT_EQ(Text(name("lblInhaltAnzahlStrahlenSegmente_%1")), "64");
        EXPECT_EQ(Box(name("cboAuflösung_%1")).currentText(), "5mm");
        EXPECT_EQ(Box(name("cboReichweite_%1")).currentIndex(), teil + 1);
        EXPECT_EQ(Box(name("cboGruppenzähler_%1")).currentText(), QString::number(10 + teil));
        EXPECT_TRUE(Angewaehlt(name("optGruppenzählerOder_%1")));
        EXPECT_EQ(Box(name("cboLochgröße_%1")).currentIndex(), 19 + teil);
    }
}

TEST_F(KonfigurationEditTest, A_selection_is_written_into_its_own_register_alone) {
    const std::tuple<const char*, Speicherbereich, std::int16_t, int, std::int32_t> faelle[] = {
        {"cboAuflösung_0", Spezifisch, spezifisch::Aufloesung, 0, 20},
        {"cboReichweite_1", Spezifisch, spezifisch::Reichweite, 1, 2},
        {"cboAnzahlDurchlaeufeFilter_2", Spezifisch, spezifisch::Filterdurchlaeufe, 2, 3},
        {"cboGruppenzähler_3", Spezifisch, spezifisch::Gruppenzaehler, 3, 3},
        {"cboMinMaxHaltezeit_0", Spezifisch, spezifisch::MinMaxHaltezeit, 0, 3},
        {"cboLochgröße_1", Spezifisch, spezifisch::Lochgroesse, 1, 3},
        {"cboMittentoleranz_2", Spezifisch, spezifisch::Mittentoleranz, 2, 3},
        {"cboStationsAdresse", Kommunikation, kommunikation::Stationsadresse, 0, 3},
        {"cbolOhneTriggerAutosendrate", Kommunikation, kommunikation::Autosend, 0, 0x0303},
        {"cboBaudrate", Kommunikation, kommunikation::Autosendformat, 0, 0x30E},
    };
    for (const auto& [name, bereich, adresse, teil, wert] : faelle) {
        modDaten::LadeStandardkonfiguration();
        SetzeStrahlen({64, 64, 64, 64});
        Zeige();
        Box(name).setCurrentIndex(2);
        Setze(bereich, adresse, wert, teil);
        const auto erwartet = Abbild();
        Klicke("cmdDownLoad");
        EXPECT_EQ(Abbild(), erwartet) << name;
        port.gesendet.clear();
    }
}

TEST_F(KonfigurationEditTest, Applying_unchanged_settings_changes_no_register) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        Setze(Spezifisch, spezifisch::Aufloesung, 5 << teil, teil);
        Setze(Spezifisch, spezifisch::Filterdurchlaeufe, 60 + teil, teil);
        Setze(Spezifisch, spezifisch::Gruppenzaehler, 0x8000 + 127 - teil, teil);
        Setze(Spezifisch, spezifisch::MinMaxHaltezeit, 255 - teil, teil);
    }
    Setze(Global, global::PnpAusgang, 0xC300);
    Setze(Kommunikation, kommunikation::Format, 0x080F);
    Setze(Kommunikation, kommunikation::Stationsadresse, 240);
    Setze(Kommunikation, kommunikation::Pausenzeit, 65535);
    Setze(Kommunikation, kommunikation::Autosend, 0x0184);
    Setze(Kommunikation, kommunikation::Autosendformat, 0x910);
    const auto davor = Abbild();
    OeffneUndUebernimm();
    EXPECT_EQ(Abbild(), davor);
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(KonfigurationEditTest, Applying_writes_the_pages_of_absent_parts_too) {
    SetzeStrahlen({64, 0, 0, 0});
    Setze(Spezifisch, spezifisch::Aufloesung, 15, 3);
    OeffneUndUebernimm();
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Aufloesung, 3), 0);
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Reichweite, 3), 3);
}

TEST_F(KonfigurationEditTest, Cancel_writes_nothing_back) {
    const auto davor = Abbild();
    Zeige();
    Box("cboAuflösung_0").setCurrentIndex(3);
    Klicke("cmdCancel");
    EXPECT_EQ(Abbild(), davor);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_EQ(dialog->GetButtonDownLoad(), False);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(KonfigurationEditTest, Resolution_15_shows_nothing_and_writes_the_value_of_no_selection) {
    Setze(Spezifisch, spezifisch::Aufloesung, 15);
    Zeige();
    EXPECT_EQ(Box("cboAuflösung_0").currentIndex(), -1);
    Klicke("cmdDownLoad");
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Aufloesung), 0);
}

TEST_F(KonfigurationEditTest, An_empty_list_tells_in_its_tool_tip_what_the_controller_holds) {
    Setze(Spezifisch, spezifisch::Aufloesung, 15);
    Oeffne();
    EXPECT_EQ(Box("cboAuflösung_0").toolTip(), "Wert im Varnoth: 15");
    EXPECT_EQ(Box("cboAuflösung_1").toolTip(), "");
    Box("cboAuflösung_0").setCurrentIndex(2);
    EXPECT_EQ(Box("cboAuflösung_0").toolTip(), "");
}

TEST_F(KonfigurationEditTest, Without_a_selection_the_counting_lists_write_0) {
    Setze(Spezifisch, spezifisch::Lochgroesse, 300);
    Setze(Spezifisch, spezifisch::Gruppenzaehler, 0x8000 + 300);
    OeffneUndUebernimm();
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Lochgroesse), 0);
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Gruppenzaehler), 0x8000);
}

TEST_F(KonfigurationEditTest, Group_counter_AND_clears_bit_15) {
    Setze(Spezifisch, spezifisch::Gruppenzaehler, 0x8005);
    Zeige();
    Klicke("optGruppenzählerUnd_0");
    Klicke("cmdDownLoad");
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Gruppenzaehler), 5);
}

TEST_F(KonfigurationEditTest, Line_format_0x040F_shows_38_4_KB_0_and_a_question_mark) {
    Setze(Kommunikation, kommunikation::Format, 0x040F);
    Oeffne();
    EXPECT_EQ(Text("lblFormatZwischenMasterSlave"), "Format zwischen Master/Slave:   38,4 KB, 0, ?, ");
    EXPECT_EQ(Text("lblInhaltBusTyp"), "RS485 Modbus");
}

TEST_F(KonfigurationEditTest, The_default_259_selects_autosend_in_Modbus_format_with_the_first_rate) {
    Oeffne();
    EXPECT_TRUE(Angewaehlt("optAutosendohneTriggerModbus"));
    EXPECT_EQ(Box("cbolOhneTriggerAutosendrate").currentIndex(), 0);
}

TEST_F(KonfigurationEditTest, Autosend_mode_2_selects_no_option) {
    Setze(Kommunikation, kommunikation::Autosend, 0x0002);
    Oeffne();
    for (const char* name : {"optkeinAutosend", "optAutosendohneTrigger", "optAutosendohneTriggerModbus",
                             "optAutosendmitTriggerModbus"})
        EXPECT_FALSE(Angewaehlt(name)) << name;
}

TEST_F(KonfigurationEditTest, Filled_with_a_mode_that_has_no_option_the_one_chosen_before_is_given_up) {
    Setze(Kommunikation, kommunikation::Autosend, 259);
    Oeffne();
    EXPECT_TRUE(Angewaehlt("optAutosendohneTriggerModbus"));
    Setze(Kommunikation, kommunikation::Autosend, 0x0002);
    dialog->InitKonfiguration({});
    EXPECT_FALSE(Angewaehlt("optAutosendohneTriggerModbus"));
}

TEST_F(KonfigurationEditTest, An_autosend_option_decides_what_else_can_be_set) {
    struct Fall {
        const char* option;
        bool trigger;
        bool rate;
        bool merken;
    };
    const Fall faelle[] = {
        {"optkeinAutosend", false, false, false},
        {"optAutosendohneTrigger", false, true, true},
        {"optAutosendohneTriggerModbus", false, true, true},
        {"optAutosendmitTriggerModbus", true, false, true},
    };
    Oeffne();
    for (const auto& fall : faelle) {
        Klicke(fall.option);
        EXPECT_EQ(Bedienbar("optTriggerStartetDatenübertragungSofort"), fall.trigger) << fall.option;
        EXPECT_EQ(Bedienbar("optTriggerStartetDatenübertragungNachVollständigenScan"), fall.trigger);
        EXPECT_EQ(Bedienbar("cbolOhneTriggerAutosendrate"), fall.rate) << fall.option;
        EXPECT_EQ(Bedienbar("lblOhneTriggerAutosendrate"), fall.rate) << fall.option;
        EXPECT_EQ(Bedienbar("lblOhneTriggerAutosendrateUebertragenerWert"), fall.rate) << fall.option;
        EXPECT_EQ(Bedienbar("chkStrahldatenMerken"), fall.merken) << fall.option;
    }
}

TEST_F(KonfigurationEditTest, Filling_allows_what_the_mode_in_the_register_needs) {
    for (const auto& [wert, trigger, rate, merken] :
         {std::tuple{0, false, false, false}, {0x0101, false, true, true}, {0x0104, true, false, true}}) {
        Setze(Kommunikation, kommunikation::Autosend, wert);
        Oeffne();
        EXPECT_EQ(Bedienbar("optTriggerStartetDatenübertragungSofort"), trigger) << wert;
        EXPECT_EQ(Bedienbar("cbolOhneTriggerAutosendrate"), rate) << wert;
        EXPECT_EQ(Bedienbar("chkStrahldatenMerken"), merken) << wert;
    }
}

TEST_F(KonfigurationEditTest, Choosing_autosend_without_a_rate_selects_the_first) {
    Setze(Kommunikation, kommunikation::Autosend, 0);
    Zeige();
    EXPECT_EQ(Box("cbolOhneTriggerAutosendrate").currentIndex(), -1);
    Klicke("optAutosendohneTrigger");
    Klicke("chkStrahldatenMerken");
    Klicke("cmdDownLoad");
    EXPECT_EQ(modDaten::HoleRegister(Kommunikation, kommunikation::Autosend), 0x0181);
}

TEST_F(KonfigurationEditTest, Choosing_autosend_keeps_a_rate_that_is_selected) {
    Setze(Kommunikation, kommunikation::Autosend, 0x0703);
    Oeffne();
    Klicke("optAutosendohneTrigger");
    EXPECT_EQ(Box("cbolOhneTriggerAutosendrate").currentIndex(), 6);
}

TEST_F(KonfigurationEditTest, The_main_window_hears_whether_sending_can_be_started) {
    for (const auto& [wert, startbar] :
         {std::pair{0, false}, {0x0101, true}, {0x0002, false}, {0x0103, true}, {0x0004, false}}) {
        Setze(Kommunikation, kommunikation::Autosend, wert);
        std::vector<bool> gehoert;
        Oeffne({.autosendStartbar = [&](bool ja) { gehoert.push_back(ja); }});
        EXPECT_EQ(gehoert, std::vector<bool>{startbar}) << wert;
    }
}

TEST_F(KonfigurationEditTest, The_byte_formats_are_written_with_the_baud_code) {
    for (const auto& [name, wert] : {std::pair{"opt2StopbitsohneParität", 0x30F},
                                     {"opt1StopbitParitätungerade", 0x50F},
                                     {"opt1StopbitParitätgerade", 0x90F}}) {
        Zeige();
        Klicke(name);
        Klicke("cmdDownLoad");
        EXPECT_EQ(modDaten::HoleRegister(Kommunikation, kommunikation::Autosendformat), wert);
        Oeffne();
        EXPECT_TRUE(Angewaehlt(name));
        port.gesendet.clear();
    }
}

TEST_F(KonfigurationEditTest, A_Profibus_limits_station_addresses_to_7EH_and_rates_to_127) {
    Setze(Kommunikation, kommunikation::Bustyp, 1);
    Setze(Kommunikation, kommunikation::Stationsadresse, 200);
    Oeffne();
    EXPECT_EQ(Box("cboStationsAdresse").count(), 126);
    EXPECT_EQ(Box("cboStationsAdresse").itemText(0), "1H");
    EXPECT_EQ(Box("cboStationsAdresse").currentText(), "7EH");
    EXPECT_EQ(Box("cbolOhneTriggerAutosendrate").count(), 127);
}

TEST_F(KonfigurationEditTest, A_Profibus_hides_what_only_a_Modbus_has) {
    const char* const nurModbus[] = {"lblFormatZwischenMasterSlave",
                                     "lblPausenzeit",
                                     "txtPausenzeit",
                                     "lblPausenzeitEinheit",
                                     "optkeinAutosend",
                                     "optAutosendohneTrigger",
                                     "optAutosendohneTriggerModbus",
                                     "optAutosendmitTriggerModbus",
                                     "optTriggerStartetDatenübertragungSofort",
                                     "optTriggerStartetDatenübertragungNachVollständigenScan",
                                     "fraBaudrate",
                                     "lblBaudrate",
                                     "cboBaudrate",
                                     "lblByteformat",
                                     "opt2StopbitsohneParität",
                                     "opt1StopbitParitätungerade",
                                     "opt1StopbitParitätgerade"};
    for (const std::int32_t typ : {0, 1}) {
        Setze(Kommunikation, kommunikation::Bustyp, typ);
        Oeffne();
        for (const char* name : nurModbus)
            EXPECT_EQ(Versteckt(name), typ == 1) << name;
    }
    EXPECT_FALSE(Bedienbar("chkStrahldatenMerken"));
}

TEST_F(KonfigurationEditTest, On_a_Profibus_the_rate_stands_in_the_place_of_the_pause_time) {
    Setze(Kommunikation, kommunikation::Bustyp, 1);
    Oeffne().show();
    K<QTabWidget>("tbsOptions").setCurrentIndex(5);
    EXPECT_EQ(Text("lblOhneTriggerAutosendrate"), "Datenupdaterate");
    EXPECT_EQ(K<QWidget>("cbolOhneTriggerAutosendrate").parent(), K<QWidget>("txtPausenzeit").parent());
    EXPECT_TRUE(K<QWidget>("cbolOhneTriggerAutosendrate").isVisible());
}

TEST_F(KonfigurationEditTest, On_a_Profibus_only_the_rate_of_the_autosend_register_is_written) {
    Setze(Kommunikation, kommunikation::Bustyp, 1);
    Setze(Kommunikation, kommunikation::Autosend, 0x0183);
    Zeige();
    Box("cbolOhneTriggerAutosendrate").setCurrentIndex(11);
    Klicke("cmdDownLoad");
    EXPECT_EQ(modDaten::HoleRegister(Kommunikation, kommunikation::Autosend), 0x0C83);
}

TEST_F(KonfigurationEditTest, A_pause_time_of_70000_becomes_65535_on_leaving_the_field) {
    Zeige();
    auto& feld = K<QLineEdit>("txtPausenzeit");
    feld.setText("70000");
    QFocusEvent verlassen(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&feld, &verlassen);
    EXPECT_EQ(feld.text(), "65535");
}

TEST_F(KonfigurationEditTest, A_pause_time_of_minus_5_is_kept) {
    Zeige();
    auto& feld = K<QLineEdit>("txtPausenzeit");
    feld.setText("-5");
    QFocusEvent verlassen(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&feld, &verlassen);
    EXPECT_EQ(feld.text(), "-5");
    Klicke("cmdDownLoad");
    EXPECT_EQ(modDaten::HoleRegister(Kommunikation, kommunikation::Pausenzeit), -5);
}

TEST_F(KonfigurationEditTest, The_transmitted_values_stand_beside_four_kinds_of_lists) {
    Setze(Spezifisch, spezifisch::Filterdurchlaeufe, 12);
    Oeffne({.zeigeUebertrageneWerte = true});
    EXPECT_EQ(Text("lblAnzahlDurchlaeufeFilterUebertragenerWert_0"), "(12)");
    EXPECT_EQ(Text("lblReichweiteUebertragenerWert_0"), "(3)");
    EXPECT_EQ(Text("lblMinMaxHaltezeitUebertragenerWert_0"), "(1)");
    EXPECT_EQ(Text("lblOhneTriggerAutosendrateUebertragenerWert"), "(1)");
    Box("cboMinMaxHaltezeit_0").setCurrentIndex(199);
    EXPECT_EQ(Text("lblMinMaxHaltezeitUebertragenerWert_0"), "(200)");
}

TEST_F(KonfigurationEditTest, Without_the_option_no_transmitted_value_is_shown) {
    Oeffne();
    Box("cboMinMaxHaltezeit_0").setCurrentIndex(199);
    EXPECT_EQ(Text("lblMinMaxHaltezeitUebertragenerWert_0"), "");
}

TEST_F(KonfigurationEditTest, Ctrl_Tab_walks_round_the_pages_in_both_directions) {
    Oeffne().show();
    auto& reiter = K<QTabWidget>("tbsOptions");
    for (QWidget* const ziel : {static_cast<QWidget*>(&K<QPushButton>("cmdCancel")),
                                static_cast<QWidget*>(&K<QRadioButton>("optPNPAusgang_Option1_0"))}) {
        reiter.setCurrentIndex(0);
        Druecke(*ziel, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(reiter.currentIndex(), 5);
        Druecke(*ziel, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(reiter.currentIndex(), 0);
        Druecke(*ziel, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(reiter.currentIndex(), 1);
    }
}

TEST_F(KonfigurationEditTest, The_sub_editors_open_for_their_part_and_over_the_editor) {
    Oeffne();
    EXPECT_EQ(UntereditorNach("cmdBlankingmuster_2"), "frmBlankingmuster K3");
    EXPECT_EQ(UntereditorNach("cmdBlankingmuster_0"), "frmBlankingmuster K1");
    EXPECT_EQ(UntereditorNach("cmdReihenfolge"), "frmReihenfolge");
}

TEST_F(KonfigurationEditTest, Before_it_is_shown_nothing_is_asked_and_nothing_can_be_applied) {
    Oeffne();
    EXPECT_FALSE(Bereit(*dialog, "cmdUebernehmen"));
    EXPECT_FALSE(Bereit(*dialog, "cmdDownLoad"));
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(KonfigurationEditTest, While_it_looks_for_the_controller_applying_alone_is_enabled) {
    bool uebernehmen = false;
    bool download = true;
    BeiAnforderung([&](int) {
        uebernehmen = Bereit(*dialog, "cmdUebernehmen");
        download = Bereit(*dialog, "cmdDownLoad");
    });
    Zeige();
    EXPECT_TRUE(uebernehmen);
    EXPECT_FALSE(download);
}

TEST_F(KonfigurationEditTest, A_controller_that_answers_leaves_download_and_cancel) {
    Zeige();
    EXPECT_EQ(AnzahlAnforderungen(), 1);
    EXPECT_TRUE(Bereit(*dialog, "cmdDownLoad"));
    EXPECT_FALSE(Bereit(*dialog, "cmdUebernehmen"));
    EXPECT_TRUE(Bereit(*dialog, "cmdCancel"));
}

TEST_F(KonfigurationEditTest, A_controller_that_answers_the_second_try_counts) {
    geraet.schweige = [this](const std::string&) { return AnzahlAnforderungen() == 1; };
    Oeffne().show();
    EXPECT_TRUE(pruefung::WarteBis([&] { return Bereit(*dialog, "cmdDownLoad"); }));
    EXPECT_EQ(AnzahlAnforderungen(), 2);
}

TEST_F(KonfigurationEditTest, Who_was_at_the_button_to_apply_is_at_the_button_for_the_download_then) {
    geraet.schweige = [this](const std::string&) { return AnzahlAnforderungen() == 1; };
    BeiAnforderung([this](int nummer) {
        if (nummer == 1)
            K<QPushButton>("cmdUebernehmen").setFocus();
    });
    Oeffne().show();
    dialog->activateWindow();
    ASSERT_TRUE(pruefung::WarteBis([&] { return Bereit(*dialog, "cmdDownLoad"); }));
    EXPECT_EQ(dialog->focusWidget(), &K<QPushButton>("cmdDownLoad"));
}

TEST_F(KonfigurationEditTest, Without_an_answer_to_two_tries_only_applying_is_available) {
    Schweige();
    Zeige();
    EXPECT_FALSE(pruefung::WarteBis([&] { return AnzahlAnforderungen() > ZweiVersuche; }, 50));
    EXPECT_TRUE(Bereit(*dialog, "cmdUebernehmen"));
    EXPECT_FALSE(Bereit(*dialog, "cmdDownLoad"));
}

TEST_F(KonfigurationEditTest, Showing_it_again_asks_no_second_time) {
    Zeige();
    dialog->hide();
    dialog->show();
    EXPECT_FALSE(pruefung::WarteBis([&] { return AnzahlAnforderungen() > 1; }, 50));
}

TEST_F(KonfigurationEditTest, Apply_stores_and_asks_for_no_download) {
    Schweige();
    Zeige();
    Box("cboAuflösung_0").setCurrentIndex(3);
    Klicke("cmdUebernehmen");
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Aufloesung), 40);
    EXPECT_EQ(dialog->GetButtonDownLoad(), False);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(KonfigurationEditTest, Download_stores_and_asks_for_it) {
    Zeige();
    Box("cboAuflösung_0").setCurrentIndex(3);
    Klicke("cmdDownLoad");
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Aufloesung), 40);
    EXPECT_EQ(dialog->GetButtonDownLoad(), True);
}

TEST_F(KonfigurationEditTest, The_port_is_open_until_the_editor_closes) {
    Zeige();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    Klicke("cmdCancel");
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(KonfigurationEditTest, Enter_moves_on_and_writes_nothing_wherever_the_focus_is) {
    Zeige();
    Box("cboAuflösung_0").setCurrentIndex(3);
    const auto davor = Abbild();
    for (auto* const element : dialog->findChildren<QWidget*>())
        if ((element->focusPolicy() & Qt::TabFocus) && element->isVisible() && element->isEnabled()) {
            element->setFocus();
            Druecke(*element, Qt::Key_Return);
            EXPECT_NE(dialog->focusWidget(), element) << element->objectName().toStdString();
        }
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Abbild(), davor);
    EXPECT_EQ(dialog->GetButtonDownLoad(), False);
}

TEST_F(KonfigurationEditTest, Every_kind_of_change_makes_Escape_and_the_close_box_ask) {
    const std::function<void()> aenderungen[] = {
        [this] { Box("cboAuflösung_0").setCurrentIndex(3); },
        [this] { Klicke("optPNPAusgang_Option1_6"); },
        [this] { K<QLineEdit>("txtPausenzeit").setText("77"); },
    };
    for (const auto& aendere : aenderungen)
        for (const bool escape : {true, false}) {
            port.gesendet.clear();
            umgebung.meldungen.clear();
            umgebung.antworten = {Antwort::Abbrechen, Antwort::Ok};
            Zeige();
            aendere();
            const auto schliesse = [&] {
                if (escape)
                    Druecke(*dialog, Qt::Key_Escape);
                else
                    dialog->close();
            };
            schliesse();
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_TRUE(modSchnittstelle::GetPortIstOffen() == True);
            schliesse();
            EXPECT_FALSE(dialog->isVisible());
            ASSERT_EQ(umgebung.meldungen.size(), 2U);
            EXPECT_EQ(umgebung.meldungen[0],
                      (Meldung{.text = "Die Änderungen in diesem Fenster sind noch nicht übernommen. "
                                       "Sollen sie verworfen werden?",
                               .titel = "Achtung",
                               .knoepfe = Knoepfe::OkAbbrechen,
                               .abbrechenVorgegeben = true}));
        }
}

TEST_F(KonfigurationEditTest, Looking_at_every_page_changes_nothing) {
    Zeige();
    auto& reiter = K<QTabWidget>("tbsOptions");
    for (const int seite : {3, 1, 5, 0, 2}) {
        reiter.setCurrentIndex(seite);
        QCoreApplication::processEvents();
    }
    Druecke(*dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(KonfigurationEditTest, The_cancel_button_and_unchanged_controls_close_without_a_question) {
    Zeige();
    Druecke(*dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    port.gesendet.clear();
    Zeige();
    Box("cboAuflösung_0").setCurrentIndex(3);
    Klicke("cmdCancel");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(KonfigurationEditTest, A_program_that_ends_closes_a_changed_editor_without_a_question) {
    Zeige();
    Box("cboAuflösung_0").setCurrentIndex(3);
    dialog->reject();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(KonfigurationEditTest, Closing_during_the_search_takes_effect_when_it_has_returned) {
    const std::pair<const char*, std::function<void(QDialog&)>> wege[] = {
        {"cancel", [](QDialog& d) { Kind<QPushButton>(d, "cmdCancel").click(); }},
        {"Escape", [](QDialog& d) { Druecke(d, Qt::Key_Escape); }},
        {"close box", [](QDialog& d) { d.close(); }},
        {"done", [](QDialog& d) { d.done(QDialog::Rejected); }},
    };
    for (const auto& [name, weg] : wege) {
        port.gesendet.clear();
        bool offenDabei = false;
        Schweige([&](int) {
            weg(*dialog);
            offenDabei = dialog->isVisible() && modSchnittstelle::GetPortIstOffen() == True;
        });
        Oeffne().show();
        EXPECT_TRUE(pruefung::WarteBis([&] { return !dialog->isVisible(); })) << name;
        EXPECT_TRUE(offenDabei) << name;
        EXPECT_EQ(AnzahlAnforderungen(), 1) << name;
        EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False) << name;
    }
}

TEST_F(KonfigurationEditTest, Applying_during_the_search_stores_at_once_and_closes_with_that) {
    BeiAnforderung([&](int) {
        Box("cboAuflösung_0").setCurrentIndex(3);
        Klicke("cmdUebernehmen");
        dialog->reject();
    });
    Oeffne().show();
    EXPECT_TRUE(pruefung::WarteBis([&] { return !dialog->isVisible(); }));
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Aufloesung), 40);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->GetButtonDownLoad(), False);
}

TEST_F(KonfigurationEditTest, The_search_leaves_alone_what_the_user_does_meanwhile) {
    BeiAnforderung([&](int) {
        K<QTabWidget>("tbsOptions").setCurrentIndex(2);
        Box("cboAuflösung_1").setFocus();
        Box("cboAuflösung_1").setCurrentIndex(3);
    });
    Zeige();
    EXPECT_EQ(K<QTabWidget>("tbsOptions").currentIndex(), 2);
    EXPECT_EQ(dialog->focusWidget(), &Box("cboAuflösung_1"));
    EXPECT_EQ(Box("cboAuflösung_1").currentIndex(), 3);
}

TEST_F(KonfigurationEditTest, An_editor_run_modally_may_go_as_soon_as_it_returns) {
    Schweige([&](int) { dialog->reject(); });
    Oeffne().exec();
    dialog.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(KonfigurationEditTest, An_editor_that_was_never_shown_leaves_the_port_alone) {
    modSchnittstelle::OpenCommPort();
    Oeffne();
    dialog.reset();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
}

TEST_F(KonfigurationEditTest, The_editor_fits_a_screen_of_1280_by_720_in_both_languages) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Oeffne({.zeigeUebertrageneWerte = true}).show();
        EXPECT_LE(dialog->minimumSizeHint().width(), 1280);
        EXPECT_LE(dialog->minimumSizeHint().height(), 680);
    }
}

TEST_F(KonfigurationEditTest, No_text_is_cut_off_in_either_language) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        Setze(Spezifisch, spezifisch::MinMaxHaltezeit, 255, teil);
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Oeffne({.zeigeUebertrageneWerte = true}).show();
        auto& reiter = K<QTabWidget>("tbsOptions");
        for (int seite = 0; seite < reiter.count(); ++seite) {
            reiter.setCurrentIndex(seite);
            QCoreApplication::processEvents();
            for (const QWidget* element : dialog->findChildren<QWidget*>())
                if (element->isVisible() && !element->property("Tag").toString().isEmpty()) {
                    EXPECT_LE(element->minimumSizeHint().width(), element->width())
                        << element->objectName().toStdString();
                }
        }
    }
}

TEST_F(KonfigurationEditTest, The_tab_order_follows_the_reading_order) {
    Oeffne().show();
    QStringList namen;
    const QWidget* element = dialog.get();
    while ((element = element->nextInFocusChain()) != dialog.get())
        if ((element->focusPolicy() & Qt::TabFocus) && !element->objectName().startsWith("qt_"))
            namen += element->objectName();
    const char* const folge[] = {"tbsOptions",
                                 "optPNPAusgang_Option1_0",
                                 "optAusgangAktive_0",
                                 "optPNPAusgang_Option2_0",
                                 "cboAuflösung_0",
                                 "cboReichweite_0",
                                 "cmdBlankingmuster_0",
                                 "cboAnzahlDurchlaeufeFilter_0",
                                 "cboGruppenzähler_0",
                                 "optGruppenzählerUnd_0",
                                 "cboMinMaxHaltezeit_0",
                                 "cboLochgröße_0",
                                 "cboMittentoleranz_0",
                                 "cboAuflösung_3",
                                 "cboStationsAdresse",
                                 "txtPausenzeit",
                                 "cboBaudrate",
                                 "opt2StopbitsohneParität",
                                 "optkeinAutosend",
                                 "cbolOhneTriggerAutosendrate",
                                 "optAutosendmitTriggerModbus",
                                 "chkStrahldatenMerken",
                                 "cmdReihenfolge",
                                 "cmdUebernehmen",
                                 "cmdDownLoad",
                                 "cmdCancel"};
    qsizetype davor = -1;
    for (const char* name : folge) {
        const qsizetype stelle = namen.indexOf(QString::fromUtf8(name));
        EXPECT_GT(stelle, davor) << name << " in " << namen.join(' ').toStdString();
        davor = stelle;
    }
}

TEST_F(KonfigurationEditTest, Every_option_reads_as_the_words_for_its_value) {
    const std::pair<std::span<const Option>, std::vector<const char*>> gruppen[] = {
        {PnpFunktionen(),
         {"optPNPAusgang_Option1_0", "optPNPAusgang_Option1_1", "optPNPAusgang_Option1_2",
          "optPNPAusgang_Option1_3", "optPNPAusgang_Option1_4", "optPNPAusgang_Option1_5",
          "optPNPAusgang_Option1_6", "optPNPAusgang_Option1_8"}},
        {PnpOptikteile(),
         {"optPNPAusgang_Option2_0", "optPNPAusgang_Option2_1", "optPNPAusgang_Option2_2",
          "optPNPAusgang_Option2_3"}},
        {PnpPegel(), {"optAusgangAktive_0", "optAusgangAktive_1"}},
        {Autosendarten(),
         {"optkeinAutosend", "optAutosendohneTrigger", "optAutosendohneTriggerModbus",
          "optAutosendmitTriggerModbus"}},
        {Byteformate(),
         {"opt2StopbitsohneParität", "opt1StopbitParitätungerade", "opt1StopbitParitätgerade"}},
        {Gruppenverknuepfungen(), {"optGruppenzählerUnd_0", "optGruppenzählerOder_0"}},
    };
    Oeffne();
    for (const auto& [optionen, namen] : gruppen) {
        ASSERT_EQ(optionen.size(), namen.size());
        for (std::size_t i = 0; i < namen.size(); ++i)
            EXPECT_EQ(K<QRadioButton>(namen[i]).text().toStdString(), LadeText(optionen[i].text)) << namen[i];
    }
}

/// The editor with a part of 64 beams, in front.
class EditorverlaufTest : public KonfigurationEditTest {
protected:
    EditorverlaufTest() {
        Oeffne().show();
        dialog->activateWindow();
        EXPECT_TRUE(pruefung::WarteBis([&] { return dialog->isActiveWindow(); }));
    }
    void Rueckgaengig() { QTest::keyClick(dialog.get(), Qt::Key_Z, Qt::ControlModifier); }
    void Wiederhole() { QTest::keyClick(dialog.get(), Qt::Key_Y, Qt::ControlModifier); }
    /// The steps of the list, the state at the beginning among them.
    QStringList Liste() {
        const auto& ansicht = K<QUndoView>("lstVerlauf");
        QStringList zeilen;
        for (int zeile = 0; zeile < ansicht.model()->rowCount(); ++zeile)
            zeilen += ansicht.model()->index(zeile, 0).data().toString();
        return zeilen;
    }
};

TEST_F(EditorverlaufTest, A_changed_list_is_undone_and_done_again) {
    QComboBox& box = Box("cboAuflösung_0");
    const int vorher = box.currentIndex();
    box.setCurrentIndex(3);
    Rueckgaengig();
    EXPECT_EQ(box.currentIndex(), vorher);
    Wiederhole();
    EXPECT_EQ(box.currentIndex(), 3);
}

TEST_F(EditorverlaufTest, The_other_usual_key_does_a_step_again_too) {
    QComboBox& box = Box("cboAuflösung_0");
    box.setCurrentIndex(3);
    Rueckgaengig();
    ASSERT_NE(box.currentIndex(), 3);
    QTest::keyClick(dialog.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(box.currentIndex(), 3);
}

TEST_F(EditorverlaufTest, Steps_are_undone_one_by_one_in_reverse) {
    Box("cboAuflösung_0").setCurrentIndex(3);
    Box("cboReichweite_1").setCurrentIndex(5);
    Rueckgaengig();
    EXPECT_EQ(Box("cboAuflösung_0").currentIndex(), 3);
    EXPECT_EQ(Box("cboReichweite_1").currentIndex(), 3);
    Rueckgaengig();
    EXPECT_EQ(Box("cboAuflösung_0").currentIndex(), 0);
}

TEST_F(EditorverlaufTest, The_list_tells_the_changes_in_words_and_a_button_appears_with_the_first) {
    auto& knopf = K<QPushButton>("cmdVerlauf");
    EXPECT_FALSE(knopf.isVisible());
    Box("cboAuflösung_0").setCurrentIndex(2);
    Klicke("optAutosendmitTriggerModbus");
    EXPECT_TRUE(knopf.isVisible());
    EXPECT_EQ(knopf.text(), "Geändert: 2");
    EXPECT_FALSE(knopf.autoDefault()) << "Enter is not its key";
    EXPECT_TRUE(knopf.toolTip().contains("Strg+Z"));
    const QStringList liste = Liste();
    ASSERT_EQ(liste.size(), 3);
    EXPECT_EQ(liste[0], "Stand beim Öffnen");
    EXPECT_EQ(liste[1], "K1 Auflösung: 5mm → 20mm");
    EXPECT_TRUE(liste[2].startsWith("Autosend: ")) << liste[2].toStdString();
    Rueckgaengig();
    EXPECT_EQ(knopf.text(), "Geändert: 1");
}

TEST_F(EditorverlaufTest, What_is_changed_after_undoing_is_a_step_of_its_own) {
    Box("cboAuflösung_0").setCurrentIndex(3);
    Rueckgaengig();
    Box("cboReichweite_1").setCurrentIndex(5);
    EXPECT_EQ(Liste().size(), 2);
    Rueckgaengig();
    EXPECT_EQ(Box("cboReichweite_1").currentIndex(), 3);
}

TEST_F(EditorverlaufTest, A_form_that_is_filled_anew_begins_a_new_list) {
    Box("cboAuflösung_0").setCurrentIndex(2);
    dialog->InitKonfiguration({});
    EXPECT_FALSE(K<QPushButton>("cmdVerlauf").isVisible());
    EXPECT_EQ(Liste().size(), 1);
}

TEST_F(EditorverlaufTest, What_follows_from_a_mode_comes_back_with_it) {
    ASSERT_TRUE(Bedienbar("cbolOhneTriggerAutosendrate"));
    Klicke("optkeinAutosend");
    ASSERT_FALSE(Bedienbar("cbolOhneTriggerAutosendrate"));
    Rueckgaengig();
    EXPECT_TRUE(Bedienbar("cbolOhneTriggerAutosendrate"));
    EXPECT_TRUE(Angewaehlt("optAutosendohneTriggerModbus"));
    EXPECT_FALSE(Angewaehlt("optkeinAutosend"));
}

TEST_F(EditorverlaufTest, After_undoing_everything_closing_asks_nothing) {
    Box("cboAuflösung_0").setCurrentIndex(3);
    Klicke("optkeinAutosend");
    Rueckgaengig();
    Rueckgaengig();
    dialog->close();
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(EditorverlaufTest, A_change_that_was_done_again_is_asked_for) {
    Box("cboAuflösung_0").setCurrentIndex(3);
    Rueckgaengig();
    Wiederhole();
    umgebung.antworten = {Antwort::Abbrechen};
    dialog->close();
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(EditorverlaufTest, Undoing_and_cancelling_leave_image_and_mark_alone) {
    const auto vorher = Abbild();
    Box("cboAuflösung_0").setCurrentIndex(3);
    Klicke("optkeinAutosend");
    Rueckgaengig();
    Klicke("cmdCancel");
    EXPECT_EQ(Abbild(), vorher);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(EditorverlaufTest, A_field_undoes_its_own_typing_first_and_what_was_typed_before_is_a_step) {
    auto& feld = K<QLineEdit>("txtPausenzeit");
    K<QTabWidget>("tbsOptions").setCurrentIndex(5);
    feld.setFocus();
    feld.selectAll();
    QTest::keyClicks(&feld, "125");
    QTest::keyClick(&feld, Qt::Key_Return);
    feld.setFocus();
    QTest::keyClicks(&feld, "9");
    QTest::keyClick(&feld, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(feld.text(), "125");
    QTest::keyClick(&feld, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(feld.text(), "0");
}

TEST_F(EditorverlaufTest, Undoing_back_to_a_value_outside_its_list_tells_that_value_again) {
    Setze(Spezifisch, spezifisch::Aufloesung, 99, 0);
    Oeffne().show();
    dialog->activateWindow();
    ASSERT_TRUE(pruefung::WarteBis([&] { return dialog->isActiveWindow(); }));
    QComboBox& box = Box("cboAuflösung_0");
    const QString hinweis = box.toolTip();
    ASSERT_NE(hinweis, "");
    box.setCurrentIndex(1);
    Rueckgaengig();
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_EQ(box.toolTip(), hinweis);
}

TEST_F(EditorverlaufTest, What_a_sub_editor_has_stored_is_a_step_of_the_editor) {
    const auto vorher = modDaten::HoleParameter(Kommunikation, kommunikation::Datenblock);
    QTimer::singleShot(0, dialog.get(), [] {
        QWidget* const fenster = QApplication::activeModalWidget();
        fenster->findChild<QAbstractButton*>("Command3")->click();
        fenster->findChild<QAbstractButton*>("cmdOK")->click();
    });
    Klicke("cmdReihenfolge");
    ASSERT_NE(modDaten::HoleParameter(Kommunikation, kommunikation::Datenblock), vorher);
    ASSERT_EQ(Liste().size(), 2);
    dialog->activateWindow();
    ASSERT_TRUE(pruefung::WarteBis([&] { return dialog->isActiveWindow(); }));
    Rueckgaengig();
    EXPECT_EQ(modDaten::HoleParameter(Kommunikation, kommunikation::Datenblock), vorher);
}

TEST_F(KonfigurationEditTest, A_suggested_blanking_opens_its_sub_editor_on_the_page_of_its_part_once) {
    Werte muster(spezifisch::Blankingregister, 0);
    muster[0] = 0x0700;
    QStringList gesehene;
    Oeffne({.blankingvorschlag = Blankingvorschlag{2, muster}});
    QTimer beobachter;
    QObject::connect(&beobachter, &QTimer::timeout, dialog.get(), [&] {
        QWidget* const fenster = QApplication::activeModalWidget();
        if (fenster == nullptr || fenster == dialog.get() || fenster->objectName() != "frmBlankingmuster")
            return;
        gesehene += fenster->findChild<QLabel*>("lblOptikteil")->text() + " auf " +
                    K<QTabWidget>("tbsOptions").tabText(K<QTabWidget>("tbsOptions").currentIndex());
        fenster->findChild<QPushButton*>("cmdOK")->click();
    });
    beobachter.start(1);
    dialog->show();
    ASSERT_TRUE(pruefung::WarteBis([&] { return !gesehene.isEmpty(); }));
    EXPECT_EQ(gesehene, QStringList("K3 auf K3"));
    EXPECT_EQ(modDaten::HoleParameter(Spezifisch, spezifisch::Blankingmuster, 2), muster);
    EXPECT_FALSE(dialog->GetButtonDownLoad()) << "nothing goes to the controller by itself";
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(KonfigurationEditTest, A_suggestion_for_a_part_that_is_not_there_opens_nothing) {
    SetzeStrahlen({64, 64, 0, 64});
    Oeffne({.blankingvorschlag = Blankingvorschlag{2, Werte(spezifisch::Blankingregister, 0xFFFF)}});
    dialog->show();
    ASSERT_TRUE(pruefung::WarteBis(
        [&] { return AnzahlAnforderungen() == ZweiVersuche || Bereit(*dialog, "cmdDownLoad"); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeModalWidget() == nullptr ||
                  QApplication::activeModalWidget() == dialog.get(),
              true);
    EXPECT_EQ(modDaten::HoleParameter(Spezifisch, spezifisch::Blankingmuster, 2),
              Werte(spezifisch::Blankingregister, 0));
}

} // namespace varnoth
