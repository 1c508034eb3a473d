// What windows show of a controller, a file and the settings is text, whatever tags stand in it.

#include "frmMain.h"

#include "allefenster.h"
#include "dialogtest.h"
#include "meldungsfenster.h"
#include "polling.h"
#include "registeradressen.h"
#include "zykluszeiten.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSet>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>

namespace varnoth {

namespace {

using pruefung::AlleFenster;

const std::string Boese = pruefung::TextMitTags;

/// A label or tool tip that would show tags as what they mean.
bool Deutet(const QString& text) {
    return Qt::mightBeRichText(text) && text.contains(QStringLiteral("<img"));
}

/// Looks at the items of a list, tree or table, and at those below `eltern`; gives whether one holds the
/// text.
bool PruefeEintraege(const QAbstractItemModel& modell, const QModelIndex& eltern = {}) {
    bool traegt = false;
    for (int zeile = 0; zeile < modell.rowCount(eltern); ++zeile)
        for (int spalte = 0; spalte < modell.columnCount(eltern); ++spalte) {
            const QModelIndex eintrag = modell.index(zeile, spalte, eltern);
            const QString tipp = eintrag.data(Qt::ToolTipRole).toString();
            EXPECT_FALSE(Deutet(tipp)) << tipp.toStdString();
            traegt |= eintrag.data().toString().contains(QStringLiteral("SN"));
            traegt |= spalte == 0 && PruefeEintraege(modell, eintrag);
        }
    return traegt;
}

/// Looks at a control; gives whether it holds the text of the controller.
bool PruefeElement(const QWidget& element) {
    if (const auto* const label = qobject_cast<const QLabel*>(&element)) {
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()));
        return label->text().contains(QStringLiteral("SN"));
    }
    if (const auto* const text = qobject_cast<const QTextEdit*>(&element)) {
        EXPECT_FALSE(text->toHtml().contains(QStringLiteral("<img src=\"x\"")));
        return text->toPlainText().contains(QStringLiteral("SN"));
    }
    if (const auto* const feld = qobject_cast<const QLineEdit*>(&element))
        return feld->text().contains(QStringLiteral("SN"));
    const auto* const liste = qobject_cast<const QAbstractItemView*>(&element);
    return liste != nullptr && liste->model() != nullptr && PruefeEintraege(*liste->model());
}

/// Looks at a window and all that is in it; gives the names of those that hold the text of the controller.
QSet<QString> Pruefe(const QWidget& fenster) {
    QSet<QString> traeger;
    auto alle = fenster.findChildren<QWidget*>();
    alle += const_cast<QWidget*>(&fenster);
    for (const QWidget* element : alle) {
        const QString name = element->objectName();
        SCOPED_TRACE(fenster.objectName().toStdString() + ": " + name.toStdString());
        if (PruefeElement(*element))
            traeger += name;
        EXPECT_FALSE(Deutet(element->toolTip())) << element->toolTip().toStdString();
        if (element->toolTip().contains("SN"))
            traeger += name + " tip";
        for (const QAction* aktion : element->actions())
            EXPECT_FALSE(Deutet(aktion->toolTip())) << aktion->toolTip().toStdString();
    }
    return traeger;
}

} // namespace

class FensterwortlautTest : public pruefung::DialogTest {
protected:
    FensterwortlautTest() {
        geraet.identtext = Boese + ";" + Boese + ";" + Boese;
        for (std::size_t i = 0; i < Boese.size() / 2; ++i)
            geraet.Register(global::Seriennummer + static_cast<int>(i)) =
                Boese[2 * i] * 256 + Boese[2 * i + 1];
        for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
            geraet.Spezifisch(teil, spezifisch::Strahlenzahl) = 32;
            geraet.Spezifisch(teil, spezifisch::Aufloesung) = 5;
            for (const int adresse :
                 {spezifisch::Filterdurchlaeufe, spezifisch::Gruppenzaehler, spezifisch::MinMaxHaltezeit,
                  spezifisch::Lochgroesse, spezifisch::Mittentoleranz})
                geraet.Spezifisch(teil, adresse) = 1;
            geraet.Spezifisch(teil, spezifisch::Optikteilstatus) = 0x80;
        }
        geraet.Register(0x4000 + kommunikation::Stationsadresse) = 1;
        geraet.Register(0x4000 + kommunikation::Autosend) = 259;
        geraet.Register(0x4000 + kommunikation::Datenblock) = 20;
        const QString datei = ordner.filePath(QStringLiteral("<b>SN<img src=x>.con"));
        dateinameTraegt = QFile(datei).open(QIODevice::WriteOnly);
        EXPECT_EQ(dateinameTraegt, QSysInfo::productType() != "windows") << "which allows no such name";
        einstellungen.texte[{"frmMain", "mnuSpeichernUnter"}] = datei.toStdString();
        einstellungen.texte[{"Settings", "ComGeraet1"}] = "/dev/" + Boese;
        einstellungen.texte[{"Settings", "ComSettings"}] = Boese;
        einstellungen.texte[{"frmInitHardware", "Seriennummer"}] = Boese;
    }
    /// Connects, and looks at every window that comes up meanwhile, the main window last.
    QSet<QString> VerbindeUndPruefe(frmMain& fenster) {
        QSet<QString> traeger;
        fenster.show();
        umgebung.beiEreignissen = [&] {
            QCoreApplication::processEvents();
            for (const QWidget* offenes : QApplication::topLevelWidgets())
                if (offenes->isVisible())
                    traeger += Pruefe(*offenes);
        };
        fenster.Autostart();
        modPolling::PollingZyklus();
        umgebung.beiEreignissen = [] { QCoreApplication::processEvents(); };
        return traeger + Pruefe(fenster);
    }

    pruefung::PruefEinstellungen einstellungen;
    QTemporaryDir ordner;
    bool dateinameTraegt = false;
};

TEST_F(FensterwortlautTest, Connecting_to_a_controller_whose_texts_hold_tags_shows_them_as_text) {
    frmMain fenster;
    const QSet<QString> traeger = VerbindeUndPruefe(fenster);
    for (const char* name : {"sbStatusBar_2", "sbStatusBar_2 tip"})
        EXPECT_TRUE(traeger.contains(QString::fromUtf8(name))) << name;
    for (const Meldung& meldung : umgebung.meldungen)
        ADD_FAILURE() << meldung.text;
}

TEST_F(FensterwortlautTest, Every_dialog_shows_texts_with_tags_as_text) {
    frmMain hauptfenster;
    VerbindeUndPruefe(hauptfenster);
    modPolling::StoppePolling();
    QSet<QString> traeger;
    for (const auto& [name, mache] : AlleFenster()) {
        SCOPED_TRACE(name);
        const auto eines = mache();
        eines->show();
        QCoreApplication::processEvents();
        traeger += Pruefe(*eines);
    }
    for (const char* name :
         {"txtBezeichnung", "txtSeriennr", "txtCopyright", "lblInhaltSeriennummer", "txtSeriennummer",
          "lblBefund", "lstRegister", "lstSicherungen", "lblEinzelheitA", "lstPorts", "lblFund",
          "lstVersuche", "lblLeitung", "lblHinweis"})
        EXPECT_TRUE(traeger.contains(QString::fromUtf8(name))) << name;
    for (const char* name : {"lblDatensatz", "lblDatensatz tip"})
        EXPECT_EQ(traeger.contains(QString::fromUtf8(name)), dateinameTraegt) << name;
}

TEST_F(FensterwortlautTest, A_message_box_shows_tags_as_text) {
    QTimer::singleShot(0, qApp, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_FALSE(Pruefe(*box).isEmpty());
        box->accept();
    });
    ZeigeMeldungsfenster({.text = Boese, .titel = Boese});
}

} // namespace varnoth
