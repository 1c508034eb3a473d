// Files that are dropped on the main window or handed over to it from outside.

#include "frmmaintest.h"

#include "dateiabwurf.h"
#include "dateien.h"
#include "konfigurationsdatei.h"
#include "letztedateien.h"
#include "pruefsicherungen.h"
#include "texte.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMdiArea>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>

#include <string>
#include <vector>

namespace varnoth {

class DateienVonAussen : public pruefung::FrmMainTest {
protected:
    std::string Pfad(const QString& name) const { return ordner.filePath(name).toStdString(); }
    /// A configuration file with a first part of so many beams.
    std::string Lege(const QString& name, int strahlen) {
        Fenster();
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {strahlen});
        EXPECT_EQ(ErsetzeDatei(Pfad(name), modDaten::SpeichereKonfigurationsdatei()), "");
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {0});
        modDaten::LoescheGeaendert();
        return Pfad(name);
    }
    static QMimeData* Gezogen(const std::vector<std::string>& dateien) {
        auto* const daten = new QMimeData;
        QList<QUrl> orte;
        for (const std::string& datei : dateien)
            orte += QUrl::fromLocalFile(QString::fromStdString(datei));
        daten->setUrls(orte);
        return daten;
    }
    /// Whether a widget lets something be dropped on it; if so, that is done.
    static bool LassFallen(QWidget& worauf, const std::unique_ptr<QMimeData>& daten) {
        QDragEnterEvent herein({5, 5}, Qt::CopyAction, daten.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&worauf, &herein);
        if (!herein.isAccepted())
            return false;
        QDropEvent fall({5, 5}, Qt::CopyAction, daten.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&worauf, &fall);
        return true;
    }
    void LassFallen(const std::vector<std::string>& dateien) {
        EXPECT_TRUE(LassFallen(Fenster(), std::unique_ptr<QMimeData>(Gezogen(dateien))));
    }
    static int Strahlen() { return modDaten::Strahlenzahl(0); }

    QTemporaryDir ordner;
};

TEST_F(DateienVonAussen, A_file_dropped_anywhere_on_the_window_is_opened_by_the_main_loop) {
    const std::string datei = Lege("a b ü.con", 64);
    auto& bereich = *Fenster().findChild<QMdiArea*>("mdiBereich");
    auto& knopf = *Fenster().findChild<QPushButton*>("cmdWillkommenOeffnen");
    for (QWidget* worauf :
         {static_cast<QWidget*>(&Fenster()), bereich.viewport(), static_cast<QWidget*>(&knopf)}) {
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {0});
        modDaten::LoescheGeaendert();
        EXPECT_TRUE(LassFallen(*worauf, std::unique_ptr<QMimeData>(Gezogen({datei}))));
        EXPECT_EQ(Strahlen(), 0) << "not in the middle of the drop";
        Fenster().MenuAusführen();
        EXPECT_EQ(Strahlen(), 64) << worauf->objectName().toStdString();
    }
    EXPECT_EQ(modDaten::GetDateiname(), datei);
    EXPECT_EQ(LetzteDateien(), std::vector{datei});
    EXPECT_TRUE(Fenster().Fenster(0).isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(DateienVonAussen, A_file_dropped_on_a_view_is_opened) {
    const std::string datei = Lege("a.con", 64);
    MissEinmal({32, 0, 0, 0});
    EXPECT_TRUE(LassFallen(*Fenster().Fenster(0).findChild<QLabel*>("lblInhaltTU"),
                           std::unique_ptr<QMimeData>(Gezogen({datei}))));
    Fenster().MenuAusführen();
    EXPECT_EQ(Strahlen(), 64);
}

TEST_F(DateienVonAussen, Nothing_but_files_of_this_computer_can_be_dropped) {
    auto text = std::make_unique<QMimeData>();
    text->setText("/tmp/a.con");
    EXPECT_FALSE(LassFallen(Fenster(), text));
    auto netz = std::make_unique<QMimeData>();
    netz->setUrls({QUrl::fromLocalFile("/tmp/a.con"), QUrl("https://a.example/b.con")});
    EXPECT_FALSE(LassFallen(Fenster(), netz));
    EXPECT_FALSE(Fenster().BefehlWartet());
}

TEST_F(DateienVonAussen, Of_several_files_at_once_none_is_opened_and_that_is_said) {
    LassFallen({Lege("a.con", 64), Lege("b.con", 32)});
    Fenster().MenuAusführen();
    EXPECT_EQ(Strahlen(), 0);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(8810));
}

TEST_F(DateienVonAussen, What_is_no_configuration_gives_the_sentence_of_the_open_command) {
    ASSERT_EQ(ErsetzeDatei(Pfad("text.con"), "no configuration"), "");
    for (const std::string& datei : {Pfad("text.con"), Pfad("missing.con"), ordner.path().toStdString(),
                                     "/" + std::string(4090, 'x') + ".con", Pfad("a\nb.con")}) {
        umgebung.meldungen.clear();
        Fenster().LadeDatei(datei);
        const auto erwartet = umgebung.meldungen;
        EXPECT_EQ(erwartet.size(), 1U) << datei;
        umgebung.meldungen.clear();
        LassFallen({datei});
        Fenster().MenuAusführen();
        EXPECT_EQ(umgebung.meldungen, erwartet) << datei;
    }
}

TEST_F(DateienVonAussen, Changes_that_are_not_saved_are_put_aside_before_a_file_is_opened) {
    pruefung::PruefSicherungen sicherungen;
    const std::string datei = Lege("a.con", 64);
    modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {48});
    modDaten::SetzeGeaendert();
    Fenster().Uebergib({datei});
    Fenster().MenuAusführen();
    EXPECT_EQ(Strahlen(), 64);
    ASSERT_EQ(sicherungen.gelegte.size(), 1U);
    EXPECT_EQ(sicherungen.gelegte[0].first.angaben.anlass, Sicherungsanlass::VorDemOeffnen);
}

TEST_F(DateienVonAussen, Live_data_stops_before_a_file_is_opened_and_does_not_start_again) {
    const std::string datei = Lege("a.con", 64);
    MissEinmal({32, 0, 0, 0});
    EXPECT_EQ(modPolling::GetPollingAktiv(), True);
    Fenster().Uebergib({datei});
    EXPECT_TRUE(Fenster().BefehlWartet()) << "so that a pass ends early";
    Fenster().MenuAusführen();
    Fenster().MenuAusführen();
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_EQ(Strahlen(), 64);
}

TEST_F(DateienVonAussen, While_a_dialog_is_open_a_file_waits_and_that_is_said) {
    const std::string datei = Lege("a.con", 64);
    Sobald("frmInfo", [&](QDialog& dialog) {
        Fenster().Uebergib({datei});
        EXPECT_EQ(Statusfeld(1).text(), "Erst das Fenster vorn schließen: a.con");
        EXPECT_EQ(Strahlen(), 0);
        dialog.accept();
    });
    Waehle("mnuInfo");
    EXPECT_EQ(Strahlen(), 0);
    Fenster().MenuAusführen();
    EXPECT_EQ(Strahlen(), 64);
    EXPECT_EQ(Statusfeld(1).text(), "");
}

TEST_F(DateienVonAussen, A_dialog_that_is_open_comes_to_the_front_with_the_window) {
    Sobald("frmInfo", [&](QDialog& dialog) {
        Fenster().KommNachVorn();
        EXPECT_TRUE(pruefung::WarteBis([&] { return dialog.isActiveWindow(); }));
        dialog.accept();
    });
    Waehle("mnuInfo");
}

TEST_F(DateienVonAussen, Without_a_dialog_nothing_is_said_of_waiting) {
    Fenster().Uebergib({Lege("a.con", 64)});
    EXPECT_EQ(Statusfeld(1).text(), "");
}

TEST_F(DateienVonAussen, A_click_that_comes_before_or_after_does_not_make_a_file_be_forgotten) {
    const std::string datei = Lege("a.con", 64);
    const auto klickt = [&] { Aktion("mnuUebertragenerWert").trigger(); };
    const auto uebergibt = [&] { Fenster().Uebergib({datei}); };
    for (const bool klickZuerst : {true, false}) {
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {0});
        const bool vorher = Aktion("mnuUebertragenerWert").isChecked();
        klickZuerst ? klickt() : uebergibt();
        klickZuerst ? uebergibt() : klickt();
        Fenster().MenuAusführen();
        Fenster().MenuAusführen();
        EXPECT_NE(Aktion("mnuUebertragenerWert").isChecked(), vorher) << klickZuerst;
        EXPECT_EQ(Strahlen(), 64) << klickZuerst;
    }
}

TEST_F(DateienVonAussen, Files_handed_over_one_after_the_other_are_opened_in_this_order) {
    for (const std::string& datei : {Lege("a.con", 64), Lege("b.con", 32)})
        Fenster().Uebergib({datei});
    for (const int strahlen : {64, 32}) {
        EXPECT_TRUE(Fenster().HatUebergebene());
        Fenster().MenuAusführen();
        EXPECT_EQ(Strahlen(), strahlen);
    }
    EXPECT_FALSE(Fenster().HatUebergebene());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(DateienVonAussen, A_program_that_is_about_to_end_opens_nothing_more) {
    const std::string datei = Lege("a.con", 64);
    Aktion("mnuBeenden").trigger();
    Fenster().Uebergib({datei});
    EXPECT_FALSE(Fenster().HatUebergebene());
    Fenster().MenuAusführen();
    EXPECT_EQ(Fenster().OffeneFormulare(), 0);
    EXPECT_EQ(Strahlen(), 0);
}

TEST_F(DateienVonAussen, A_minimised_window_comes_to_the_front_as_large_as_it_was) {
    Fenster().showMaximized();
    Fenster().showMinimized();
    Fenster().KommNachVorn();
    EXPECT_FALSE(Fenster().isMinimized());
    EXPECT_TRUE(Fenster().isMaximized());
    EXPECT_TRUE(pruefung::WarteBis([this] { return Fenster().isActiveWindow(); }));
}

} // namespace varnoth
