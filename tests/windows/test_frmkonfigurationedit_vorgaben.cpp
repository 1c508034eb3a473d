// What the editor marks as other than the factory default, and the way back.

#include "abweichungsmarke.h"
#include "darstellung.h"
#include "dialogtest.h"
#include "frmKonfigurationEdit.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "strahlfarben.h"
#include "texte.h"
#include "zykluszeiten.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QRadioButton>
#include <QToolTip>
#include <QUndoStack>
#include <QUndoView>

namespace varnoth {

/// The editor on a default configuration with one part.
class EditorvorgabenTest : public pruefung::DialogTest {
protected:
    EditorvorgabenTest() {
        modDaten::LadeStandardkonfiguration();
        Setze(Spezifisch, spezifisch::Strahlenzahl, 64);
        modHilfsFunktionen::BerechneZykluszeiten();
    }

    static void Setze(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert) {
        EXPECT_TRUE(modDaten::SetzeRegister(bereich, adresse, wert));
    }
    frmKonfigurationEdit& Editor() {
        if (!editor) {
            editor = std::make_unique<frmKonfigurationEdit>();
            editor->InitKonfiguration({});
        }
        return *editor;
    }
    template<class Element>
    Element& K(const char* name) {
        return Kind<Element>(Editor(), name);
    }
    /// The names of the controls that bear a mark.
    QString Markierte() {
        QStringList namen;
        for (const QWidget* marke : Editor().findChildren<QWidget*>(QStringLiteral("Abweichungsmarke")))
            if (!marke->isHidden())
                namen.append(marke->parentWidget()->objectName());
        namen.sort();
        return namen.join(' ');
    }
    /// Chooses "back to default" in the context menu of a control; false where it cannot be chosen.
    bool StelleZurueck(const char* name) {
        QWidget& element = K<QWidget>(name);
        QContextMenuEvent ereignis(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(&element, &ereignis);
        QMenu& menue = *element.findChild<QMenu*>(QStringLiteral("mnuVorgabe"));
        QAction& zurueck = *menue.findChild<QAction*>(QStringLiteral("mnuZurVorgabe"));
        EXPECT_EQ(zurueck.text(), "Auf Werksvorgabe zurücksetzen");
        const bool waehlbar = zurueck.isEnabled();
        zurueck.trigger();
        menue.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return waehlbar;
    }
    QString Tipp(const char* name) {
        QHelpEvent ereignis(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QToolTip::hideText();
        QApplication::sendEvent(&K<QWidget>(name), &ereignis);
        return QToolTip::text();
    }

    std::unique_ptr<frmKonfigurationEdit> editor;
};

TEST_F(EditorvorgabenTest, Nothing_is_marked_in_a_default_configuration) {
    EXPECT_EQ(Markierte(), "");
}

TEST_F(EditorvorgabenTest, Values_that_differ_when_the_editor_opens_are_marked) {
    Setze(Spezifisch, spezifisch::Reichweite, 5);
    Setze(Kommunikation, kommunikation::Pausenzeit, 7);
    EXPECT_EQ(Markierte(), "cboReichweite_0 txtPausenzeit");
}

TEST_F(EditorvorgabenTest, A_selection_is_marked_while_it_differs_and_tells_the_default) {
    QComboBox& box = K<QComboBox>("cboReichweite_0");
    const int vorgabe = box.currentIndex();
    const QString worte = box.currentText();
    box.setCurrentIndex(0);
    EXPECT_EQ(Markierte(), "cboReichweite_0");
    EXPECT_EQ(box.accessibleDescription(), "Werksvorgabe: " + worte);
    box.setCurrentIndex(vorgabe);
    EXPECT_EQ(Markierte(), "");
    EXPECT_EQ(box.accessibleDescription(), "");
}

TEST_F(EditorvorgabenTest, Of_several_options_the_chosen_one_is_marked) {
    K<QRadioButton>("optGruppenzählerOder_0").click();
    EXPECT_EQ(Markierte(), QStringLiteral("optGruppenzählerOder_0"));
    EXPECT_EQ(K<QWidget>("optGruppenzählerOder_0").accessibleDescription(), "Werksvorgabe: UND");
}

TEST_F(EditorvorgabenTest, What_the_switching_output_does_is_marked_for_each_of_its_three_choices) {
    for (const char* name : {"optPNPAusgang_Option1_3", "optPNPAusgang_Option2_2", "optAusgangAktive_0"})
        K<QRadioButton>(name).click();
    EXPECT_EQ(Markierte(), "optAusgangAktive_0 optPNPAusgang_Option1_3 optPNPAusgang_Option2_2");
}

TEST_F(EditorvorgabenTest, What_a_trigger_starts_is_marked_and_set_back) {
    K<QRadioButton>("optAutosendmitTriggerModbus").click();
    EXPECT_EQ(Markierte(), "optAutosendmitTriggerModbus");
    const char* const spaeter = "optTriggerStartetDatenübertragungNachVollständigenScan";
    K<QRadioButton>(spaeter).click();
    EXPECT_EQ(Markierte(), QString("optAutosendmitTriggerModbus ") + spaeter);
    EXPECT_TRUE(StelleZurueck(spaeter));
    EXPECT_TRUE(K<QRadioButton>("optTriggerStartetDatenübertragungSofort").isChecked());
}

TEST_F(EditorvorgabenTest, What_can_no_longer_be_set_loses_its_mark) {
    Setze(Spezifisch, spezifisch::Reichweite, 5);
    EXPECT_EQ(Markierte(), "cboReichweite_0");
    K<QComboBox>("cboReichweite_0").setEnabled(false);
    EXPECT_EQ(Markierte(), "");
}

TEST_F(EditorvorgabenTest, The_context_menu_leads_back_to_the_default) {
    Setze(Spezifisch, spezifisch::Reichweite, 5);
    Setze(Kommunikation, kommunikation::Pausenzeit, 7);
    K<QRadioButton>("optGruppenzählerOder_0").click();
    for (const char* name : {"cboReichweite_0", "txtPausenzeit", "optGruppenzählerOder_0"})
        EXPECT_TRUE(StelleZurueck(name)) << name;
    EXPECT_EQ(Markierte(), "");
    EXPECT_TRUE(K<QRadioButton>("optGruppenzählerUnd_0").isChecked());
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Reichweite), 5) << "not applied yet";
}

TEST_F(EditorvorgabenTest, Each_way_back_to_the_default_is_one_step_that_can_be_undone) {
    Werte muster(32, 0);
    muster[0] = 0x7C;
    ASSERT_TRUE(modDaten::SetzeParameter(Spezifisch, spezifisch::Blankingmuster, muster));
    Setze(Spezifisch, spezifisch::Reichweite, 5);
    Setze(Kommunikation, kommunikation::Pausenzeit, 7);
    K<QRadioButton>("optGruppenzählerOder_0").click();
    K<QCheckBox>("chkStrahldatenMerken").click();
    QUndoStack& schritte = *K<QUndoView>("lstVerlauf").stack();
    for (const char* name : {"cboReichweite_0", "txtPausenzeit", "optGruppenzählerOder_0",
                             "chkStrahldatenMerken", "cmdBlankingmuster_0"}) {
        const int davor = schritte.count();
        EXPECT_TRUE(StelleZurueck(name)) << name;
        EXPECT_EQ(schritte.count(), davor + 1) << name;
        EXPECT_FALSE(Markierte().contains(name)) << name;
        schritte.undo();
        EXPECT_TRUE(Markierte().contains(name)) << name;
        schritte.redo();
    }
}

TEST_F(EditorvorgabenTest, What_is_the_default_cannot_be_set_back) {
    EXPECT_FALSE(StelleZurueck("cboReichweite_0"));
}

TEST_F(EditorvorgabenTest, Going_back_to_the_default_mode_lets_its_controls_follow) {
    Setze(Kommunikation, kommunikation::Autosend, 0);
    EXPECT_TRUE(StelleZurueck("optkeinAutosend"));
    EXPECT_TRUE(K<QRadioButton>("optAutosendohneTriggerModbus").isChecked());
    EXPECT_TRUE(K<QComboBox>("cbolOhneTriggerAutosendrate").isEnabled());
}

TEST_F(EditorvorgabenTest, What_a_window_behind_a_button_edits_is_marked_at_the_button_and_set_back_at_once) {
    Werte muster(32, 0);
    muster[0] = 0x7C;
    ASSERT_TRUE(modDaten::SetzeParameter(Spezifisch, spezifisch::Blankingmuster, muster));
    ASSERT_TRUE(modDaten::SetzeParameter(Kommunikation, kommunikation::Datenblock, Werte(30, 0)));
    EXPECT_EQ(Markierte(), "cmdBlankingmuster_0 cmdReihenfolge");
    EXPECT_EQ(K<QWidget>("cmdBlankingmuster_0").accessibleDescription(), "Werksvorgabe: keine");
    EXPECT_TRUE(StelleZurueck("cmdBlankingmuster_0"));
    EXPECT_EQ(Markierte(), "cmdReihenfolge");
    EXPECT_EQ(modDaten::HoleParameter(Spezifisch, spezifisch::Blankingmuster), Werte(32, 0));
}

TEST_F(EditorvorgabenTest, What_cannot_be_set_is_not_marked) {
    Setze(Kommunikation, kommunikation::Autosend, 0x80);
    EXPECT_FALSE(K<QWidget>("chkStrahldatenMerken").isEnabled());
    EXPECT_EQ(Markierte(), "optkeinAutosend");
}

TEST_F(EditorvorgabenTest, The_tool_tip_tells_the_default_below_what_it_has_said_before) {
    Setze(Spezifisch, spezifisch::Aufloesung, 99);
    Editor().show();
    const QString eigener = K<QComboBox>("cboAuflösung_0").toolTip();
    EXPECT_FALSE(eigener.isEmpty());
    EXPECT_EQ(Tipp("cboReichweite_0"), "");
    EXPECT_EQ(Tipp("cboAuflösung_0"), eigener + "\nWerksvorgabe: 5mm");
}

TEST_F(EditorvorgabenTest, Marks_change_neither_what_is_applied_nor_what_counts_as_changed) {
    Setze(Spezifisch, spezifisch::Reichweite, 5);
    const Abbild vorher = modDaten::DasAbbild();
    Kind<QPushButton>(Editor(), "cmdUebernehmen").setEnabled(true);
    Kind<QPushButton>(Editor(), "cmdUebernehmen").click();
    EXPECT_EQ(modDaten::DasAbbild(), vorher);
}

TEST(Abweichungsmarke, Is_told_from_every_ground) {
    for (const Erscheinung erscheinung :
         {Erscheinung::Hell, Erscheinung::Dunkel, Erscheinung::HoherKontrast}) {
        QWidget element;
        element.setPalette(*PaletteFuer(erscheinung));
        Abweichungsmarke marke(element);
        const QColor grund = element.palette().color(QPalette::Button);
        EXPECT_GE(Kontrast(marke.grab().toImage().pixelColor(1, 1), grund), 4);
    }
}

} // namespace varnoth
