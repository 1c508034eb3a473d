// What the commands of the main window do one after the other: what goes over the line, what the views show
// meanwhile.

#include "frmmaintest.h"

#include "dateidialog.h"
#include "dateien.h"
#include "frmVergleich.h"
#include "konfigurationsdatei.h"
#include "muster.h"
#include "pruefsicherungen.h"
#include "qttexte.h"
#include "standardkonfiguration.h"
#include "standtext.h"
#include "texte.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

namespace varnoth {

class FrmMainAblauf : public pruefung::FrmMainTest {
protected:
    static constexpr const char* Dienste[] = {"mnuEinzelwerteLesenSchreiben", "mnuInitHardware",
                                              "mnuResetHardware"};

    /// A controller that is known, and no live data.
    void VerbindeUndStoppe(std::array<int, AnzahlOptikteile> strahlen) {
        SchliesseAn(strahlen);
        Fenster().ZeigeServicemenue();
        Fenster().Autostart();
        Waehle("mnuMessdatenVisualisierenStop");
        port.gesendet.clear();
    }
    /// Every request since then: "identify", "read <address> <count>", "write <address> <values>", numbers in
    /// hex.
    std::vector<std::string> Anforderungen() const {
        std::vector<std::string> zeilen(port.gesendet.size());
        std::ranges::transform(port.gesendet, zeilen.begin(), Zeile);
        return zeilen;
    }
    /// Rejects whatever dialog comes, once, and gives its name.
    void Verwerfe(QString& name) {
        auto* blick = new QTimer(&Fenster());
        QObject::connect(blick, &QTimer::timeout, blick, [blick, &name] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog->objectName() == "frmIdentifikationsAnforderung")
                return;
            blick->stop();
            name = dialog->objectName();
            dialog->reject();
        });
        blick->start(1);
    }
    QMdiSubWindow& Rahmen(int teil) {
        return *qobject_cast<QMdiSubWindow*>(Fenster().Fenster(teil).parentWidget());
    }
    /// Two views in a window with room for them in every arrangement, brought in disorder.
    void ZeigeZweiInUnordnung() {
        Fenster().resize(1000, 1000);
        SchliesseAn({32, 64, 0, 0});
        Fenster().Autostart();
        Fenster().resize(1000, 1000);
        Rahmen(0).setGeometry(10, 20, 430, 420);
        Rahmen(1).setGeometry(33, 55, 440, 440);
    }

private:
    static std::string Hex(int zahl) { return QString::number(zahl, 16).toStdString(); }
    static std::string Zeile(const std::string& bytes) {
        if (bytes.at(1) == 0x11)
            return "identify";
        const int anzahl = pruefung::Wort(bytes, 4);
        const std::string adresse = Hex(pruefung::Wort(bytes, 2));
        if (bytes.at(1) == 0x03)
            return "read " + adresse + ' ' + Hex(anzahl);
        std::string zeile = "write " + adresse;
        for (std::size_t i = 0; i < static_cast<std::size_t>(anzahl); ++i)
            zeile += ' ' + Hex(pruefung::Wort(bytes, 7 + 2 * i));
        return zeile;
    }
};

TEST_F(FrmMainAblauf, A_service_takes_the_controller_out_of_autosend_and_then_asks_who_it_is) {
    for (const char* dienst : Dienste) {
        VerbindeUndStoppe({32, 0, 0, 0});
        QString dialog;
        Verwerfe(dialog);
        Waehle(dienst);
        EXPECT_TRUE(dialog.startsWith("frm")) << dienst;
        EXPECT_EQ(Anforderungen(), (std::vector<std::string>{"write 4084 4", "identify"})) << dienst;
        fenster.reset();
    }
}

TEST_F(FrmMainAblauf, Each_service_opens_its_own_dialog) {
    std::vector<QString> dialoge;
    for (const char* dienst : Dienste) {
        VerbindeUndStoppe({32, 0, 0, 0});
        Verwerfe(dialoge.emplace_back());
        Waehle(dienst);
        fenster.reset();
    }
    EXPECT_EQ(dialoge,
              (std::vector<QString>{"frmEinzelwerteLesenSchreiben", "frmInitHardware", "frmResetHardware"}));
}

TEST_F(FrmMainAblauf, After_a_download_the_controller_is_taken_out_of_autosend) {
    VerbindeUndStoppe({32, 0, 0, 0});
    Sobald("frmKonfigurationEdit", [](QDialog& dialog) {
        auto* download = dialog.findChild<QPushButton*>("cmdDownLoad");
        EXPECT_TRUE(pruefung::WarteBis([=] { return download->isEnabled(); }));
        download->click();
    });
    Sobald("frmKonfigurationSchreibenInHardware", [](QDialog& dialog) { dialog.reject(); });
    Waehle("mnuAnzeigeKonfiguration");
    EXPECT_EQ(Anforderungen(), (std::vector<std::string>{"identify", "write 4084 4"}));
}

TEST_F(FrmMainAblauf, An_editor_that_asks_for_no_download_sends_nothing_more) {
    VerbindeUndStoppe({32, 0, 0, 0});
    Sobald("frmKonfigurationEdit", [](QDialog& dialog) {
        const auto* download = dialog.findChild<QPushButton*>("cmdDownLoad");
        EXPECT_TRUE(pruefung::WarteBis([=] { return download->isEnabled(); }));
        dialog.reject();
    });
    Waehle("mnuAnzeigeKonfiguration");
    EXPECT_EQ(Anforderungen(), std::vector<std::string>{"identify"});
}

TEST_F(FrmMainAblauf, Views_and_their_menu_items_follow_the_beams_before_the_editor_opens) {
    VerbindeUndStoppe({32, 64, 0, 0});
    ASSERT_TRUE(
        modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 0, 1));
    ASSERT_TRUE(
        modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 16, 2));
    std::vector<bool> gezeigt;
    Sobald("frmKonfigurationEdit", [&](QDialog& dialog) {
        for (const int teil : {0, 1, 2})
            gezeigt.push_back(Fenster().Fenster(teil).isVisible());
        gezeigt.push_back(Aktion("mnuAnzeigeLichtleiste_1").isVisible());
        gezeigt.push_back(Aktion("mnuAnzeigeLichtleiste_2").isVisible());
        dialog.reject();
    });
    Waehle("mnuAnzeigeKonfiguration");
    EXPECT_EQ(gezeigt, (std::vector<bool>{true, false, true, false, true}));
    EXPECT_EQ(Fenster().Fenster(2).findChild<BeamBarControl*>()->Strahlanzahl(), 16);
}

TEST_F(FrmMainAblauf, The_texts_of_all_four_views_follow_the_language_shown_or_not) {
    VerbindeUndStoppe({32, 0, 0, 0});
    const auto texte = [this] {
        std::vector<std::string> zeilen;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
            auto& ansicht = Fenster().Fenster(teil);
            zeilen.push_back(ansicht.findChild<QRadioButton*>("Option1_0")->text().toStdString());
            zeilen.push_back(Titel(teil).toStdString());
        }
        return zeilen;
    };
    const std::vector<std::string> deutsch{
        "Aktuell", "1. Optikteil offline",         "Aktuell", "2. Optikteil nicht vorhanden",
        "Aktuell", "3. Optikteil nicht vorhanden", "Aktuell", "4. Optikteil nicht vorhanden"};
    EXPECT_EQ(texte(), deutsch);
    Waehle("mnuEnglisch");
    EXPECT_EQ(texte(), (std::vector<std::string>{"Current", "1. Optical part offline", "Current",
                                                 "2. Optical part not available", "Current",
                                                 "3. Optical part not available", "Current",
                                                 "4. Optical part not available"}));
    Waehle("mnuDeutsch");
    EXPECT_EQ(texte(), deutsch);
}

TEST_F(FrmMainAblauf, A_view_opened_from_the_menu_is_named_by_what_is_known_of_its_part) {
    SchliesseAn({32, 64, 0, 0});
    geraet.Spezifisch(1, spezifisch::Optikteilstatus) = 0;
    Fenster().Autostart();
    Waehle("mnuAnzeigeLichtleiste_0");
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    Waehle("mnuAnzeigeLichtleiste_1");
    EXPECT_EQ(Titel(1), "2. Optikteil nicht vorhanden");
    Waehle("mnuMessdatenVisualisierenStop");
    Waehle("mnuAnzeigeLichtleiste_0");
    EXPECT_EQ(Titel(0), "1. Optikteil offline");
    Waehle("mnuAnzeigeLichtleiste_1");
    EXPECT_EQ(Titel(1), "2. Optikteil nicht vorhanden");
}

TEST_F(FrmMainAblauf, While_it_connects_every_view_says_offline_and_has_no_menu_item) {
    VerbindeUndStoppe({32, 64, 0, 0});
    std::vector<QString> titel;
    bool einEintrag = false;
    geraet.schweige = [&](const std::string& anforderung) {
        if (anforderung.at(1) == 0x11)
            for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
                titel.push_back(Titel(teil));
                einEintrag |= Aktion(("mnuAnzeigeLichtleiste_" + std::to_string(teil)).c_str()).isVisible();
            }
        return false;
    };
    Fenster().Autostart();
    EXPECT_EQ(titel, (std::vector<QString>{"1. Optikteil offline", "2. Optikteil offline",
                                           "3. Optikteil offline", "4. Optikteil offline"}));
    EXPECT_FALSE(einEintrag);
}

TEST_F(FrmMainAblauf, The_question_after_a_failed_connection_says_why_it_failed) {
    geraet.schweige = [](const std::string&) { return true; };
    QString ursache;
    Sobald("frmKeinKonturAngeschlossen", [&ursache](QDialog& dialog) {
        const auto* zeile = dialog.findChild<QLabel*>("lblUrsache");
        ursache = zeile->isVisible() ? zeile->text() : "none";
        dialog.reject();
    });
    Fenster().Autostart();
    EXPECT_EQ(ursache.toStdString(), LadeText(9140));
}

TEST_F(FrmMainAblauf, The_question_names_no_cause_where_the_controller_has_answered_or_nobody_has_asked_it) {
    std::vector<bool> nennt;
    const auto sieheNach = [&] {
        Sobald("frmKeinKonturAngeschlossen", [&nennt](QDialog& dialog) {
            nennt.push_back(dialog.findChild<QLabel*>("lblUrsache")->isVisible());
            dialog.reject();
        });
    };
    sieheNach();
    Waehle("mnuAnzeigeKonfiguration");
    SchliesseAn({32, 0, 0, 0});
    geraet.schweige = [](const std::string& anforderung) {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (anforderung.at(1) == 0x03 && dialog != nullptr)
            dialog->reject();
        return false;
    };
    sieheNach();
    Fenster().Autostart();
    EXPECT_EQ(nennt, (std::vector<bool>{false, false}));
}

TEST_F(FrmMainAblauf, A_file_dialog_that_was_cancelled_leads_back_to_the_question_for_a_configuration) {
    int gefragt = 0;
    SetzeDateiantwort([&](const Dateifrage&) -> std::optional<std::string> {
        ++gefragt;
        Sobald("frmKeinKonturAngeschlossen", [](QDialog& dialog) { dialog.reject(); });
        return std::nullopt;
    });
    Sobald("frmKeinKonturAngeschlossen", [](QDialog& dialog) {
        dialog.findChild<QRadioButton*>(QString::fromUtf8("optKonfigurationöffnen"))->click();
        dialog.findChild<QPushButton*>("cmdOK")->click();
    });
    Waehle("mnuAnzeigeKonfiguration");
    SetzeDateiantwort({});
    EXPECT_EQ(gefragt, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(Fenster().Fenster(0).isVisible());
}

TEST_F(FrmMainAblauf, The_last_configuration_that_was_saved_is_loaded_where_there_is_no_controller) {
    const QTemporaryDir ordner;
    const std::string pfad = ordner.filePath("letzte.con").toStdString();
    Abbild letzte = Standardkonfiguration();
    ASSERT_TRUE(letzte.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 24));
    ASSERT_EQ(ErsetzeDatei(pfad, AlsKonfigurationsdatei(letzte)), "");
    einstellungen.texte[{"frmMain", "mnuSpeichernUnter"}] = pfad;
    geraet.schweige = [](const std::string&) { return true; };
    Sobald("frmKeinKonturAngeschlossen", [](QDialog& dialog) {
        dialog.findChild<QRadioButton*>("optLadeletztenKonfigurationsdatensatz")->click();
        dialog.findChild<QPushButton*>("cmdOK")->click();
    });
    Fenster().Autostart();
    EXPECT_EQ(modDaten::GetDateiname(), pfad);
    EXPECT_TRUE(Fenster().Fenster(0).isVisible());
    EXPECT_EQ(Fenster().Fenster(0).findChild<BeamBarControl*>()->Strahlanzahl(), 24);
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_0").isVisible());
}

TEST_F(FrmMainAblauf, Side_by_side_puts_the_views_in_one_row) {
    ZeigeZweiInUnordnung();
    Waehle("mnuFensterNebeneinander");
    EXPECT_EQ(Rahmen(0).y(), Rahmen(1).y());
    EXPECT_GT(Rahmen(1).x(), Rahmen(0).geometry().right());
}

TEST_F(FrmMainAblauf, One_below_the_other_puts_the_views_in_one_column) {
    ZeigeZweiInUnordnung();
    Waehle("mnuFensterUntereinander");
    EXPECT_EQ(Rahmen(0).x(), Rahmen(1).x());
    EXPECT_GT(Rahmen(1).y(), Rahmen(0).geometry().bottom());
}

TEST_F(FrmMainAblauf, Overlapping_puts_the_views_one_over_the_other_each_with_its_title_in_sight) {
    ZeigeZweiInUnordnung();
    Waehle("mnuFensterÜberlappend");
    const QPoint versatz = Rahmen(1).pos() - Rahmen(0).pos();
    EXPECT_TRUE(Rahmen(0).geometry().intersects(Rahmen(1).geometry()));
    EXPECT_GT(versatz.x() * versatz.y(), 0) << "to the right and down, or to the left and up";
    EXPECT_EQ(std::min(Rahmen(0).y(), Rahmen(1).y()), 0) << "from the corner of the area";
}

TEST_F(FrmMainAblauf, A_window_that_was_closed_maximised_comes_back_so_and_knows_its_normal_place) {
    einstellungen.texte[{"MDIForm", "WindowState"}] = "2";
    einstellungen.texte[{"MDIForm", "Left"}] = "300";
    einstellungen.texte[{"MDIForm", "Top"}] = "450";
    einstellungen.texte[{"MDIForm", "Width"}] = "7500";
    einstellungen.texte[{"MDIForm", "Height"}] = "6000";
    EXPECT_TRUE(pruefung::WarteBis([this] { return Fenster().isMaximized(); }));
    const auto vorher = einstellungen.texte;
    Fenster().close();
    EXPECT_EQ(einstellungen.texte, vorher);
}

TEST_F(FrmMainAblauf, The_about_box_shows_the_symbol_of_the_program) {
    QImage bild;
    Sobald("frmInfo", [&bild](QDialog& dialog) {
        bild = dialog.findChild<QLabel*>("Image1")->pixmap().toImage();
        dialog.accept();
    });
    Waehle("mnuInfo");
    EXPECT_EQ(bild, Fenster().windowIcon().pixmap(QSize(72, 72)).toImage());
    EXPECT_NE(bild.pixelColor(bild.rect().center()).alpha(), 0);
}

TEST_F(FrmMainAblauf, Behind_the_report_live_data_goes_on_with_what_it_showed_and_reads_nothing_anew) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    port.gesendet.clear();
    Sobald("frmBericht", [](QDialog& dialog) { dialog.reject(); });
    Waehle("mnuBericht");
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
    EXPECT_EQ(Anforderungen(), std::vector<std::string>{"write 4084 4"});
}

TEST_F(FrmMainAblauf, Behind_a_report_that_took_another_configuration_in_live_data_stays_off) {
    const QTemporaryDir ordner;
    std::string pfad = ordner.filePath("stand.txt").toStdString();
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    modDaten::LoescheGeaendert();
    Abbild andere = modDaten::DasAbbild();
    ASSERT_TRUE(andere.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 64));
    ASSERT_EQ(ErsetzeDatei(pfad, Standtext(andere)), "");
    SetzeDateiantwort([&](const Dateifrage&) { return pfad; });
    Sobald("frmBericht", [](QDialog& dialog) {
        dialog.findChild<QPushButton*>("cmdTextImport")->click();
        dialog.reject();
    });
    Waehle("mnuBericht");
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_EQ(Fenster().Fenster(0).findChild<BeamBarControl*>()->Strahlanzahl(), 64);
    Waehle("mnuMessdatenVisualisierenStart");
    Sobald("frmBericht", [](QDialog& dialog) { dialog.reject(); });
    Waehle("mnuBericht");
    EXPECT_EQ(modPolling::GetPollingAktiv(), True) << "it is the next report that counts";
}

TEST_F(FrmMainAblauf, A_backup_that_is_chosen_is_compared_with_what_is_being_edited) {
    pruefung::PruefSicherungen backups;
    backups.gelegte.emplace_back(Sicherung{"/backups/a.con", {}}, modDaten::DasAbbild());
    Waehle("mnuSicherungen");
    ASSERT_NE(Offenes("frmSicherungen"), nullptr);
    auto& liste = *Offenes("frmSicherungen")->findChild<QTreeWidget*>("lstSicherungen");
    liste.setCurrentItem(liste.topLevelItem(0)->child(0));
    emit liste.itemDoubleClicked(liste.currentItem(), 0);
    auto* const vergleich = dynamic_cast<frmVergleich*>(Offenes("frmVergleich"));
    ASSERT_NE(vergleich, nullptr);
    EXPECT_EQ(vergleich->Paar().Seite(Seitenwahl::A).quelle, Vergleichsquelle::Sicherung);
    EXPECT_EQ(vergleich->Paar().Seite(Seitenwahl::A).einzelheit, "/backups/a.con");
    EXPECT_EQ(vergleich->Paar().Seite(Seitenwahl::B).quelle, Vergleichsquelle::InBearbeitung);
}

TEST_F(FrmMainAblauf, What_the_program_orders_itself_waits_like_a_click) {
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    Fenster().mnuMessdatenVisualisierenStop_Click();
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
    Fenster().MenuAusführen();
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    modDaten::LoescheGeaendert();
    int gefragt = 0;
    SetzeDateiantwort([&](const Dateifrage&) {
        ++gefragt;
        return std::optional<std::string>();
    });
    Fenster().mnuOeffnen_Click();
    EXPECT_EQ(gefragt, 0);
    Fenster().MenuAusführen();
    EXPECT_EQ(gefragt, 1);
}

TEST_F(FrmMainAblauf, A_report_tells_the_state_that_live_data_last_saw_of_the_parts) {
    const QTemporaryDir ordner;
    std::string pfad = ordner.filePath("bericht.html").toStdString();
    SchliesseAn({32, 0, 0, 0});
    Fenster().Autostart();
    SetzeDateiantwort([&](const Dateifrage&) { return pfad; });
    const auto bericht = [&] {
        Sobald("frmBericht", [](QDialog& dialog) {
            dialog.findChild<QPushButton*>("cmdHtml")->click();
            dialog.reject();
        });
        Waehle("mnuBericht");
        return LiesDatei(pfad, 1 << 20).bytes;
    };
    EXPECT_THAT(bericht(), testing::Not(testing::HasSubstr("Zustand am "))) << "no pass has ended yet";
    modPolling::PollingZyklus();
    EXPECT_THAT(bericht(),
                pruefung::EnthaeltMuster(R"(Zustand am [0-9]+\.[0-9]+\.[0-9]{4} [0-9]{2}:[0-9]{2}: )"));
    SetzeSprachoffset(Englisch);
    EXPECT_THAT(bericht(), pruefung::EnthaeltMuster("State on [0-9]+/[0-9]+/[0-9]{4} [0-9]{2}:[0-9]{2}: "));
}

} // namespace varnoth
