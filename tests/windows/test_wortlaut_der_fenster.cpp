// What windows show of a controller, a file and the settings is text, whatever tags stand in it.

#include "frmMain.h"

#include "dialogtest.h"
#include "frmBlankingmuster.h"
#include "frmDocument.h"
#include "frmEinzelwerteLesenSchreiben.h"
#include "frmHilfe.h"
#include "frmHoleLichtleistenInfo.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmInfo.h"
#include "frmInitHardware.h"
#include "frmKeinKonturAngeschlossen.h"
#include "frmKonfigurationEdit.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "frmReihenfolge.h"
#include "frmResetHardware.h"
#include "frmSimulation.h"
#include "frmSplash.h"
#include "frmStrahlenBestimmen.h"
#include "meldungsfenster.h"
#include "polling.h"
#include "registeradressen.h"
#include "zykluszeiten.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSet>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTimer>

namespace varnoth {

namespace {

const std::string Boese = "<b>SN</b><img src=x>"; // as long as a serial number

/// A label or tool tip that would show tags as what they mean.
bool Deutet(const QString& text) {
    return Qt::mightBeRichText(text) && text.contains(QStringLiteral("<img"));
}

/// Looks at a window and all that is in it; gives the names of those that hold the text of the controller.
QSet<QString> Pruefe(const QWidget& fenster) {
    QSet<QString> traeger;
    auto alle = fenster.findChildren<QWidget*>();
    alle += const_cast<QWidget*>(&fenster);
    for (const QWidget* element : alle) {
        const auto name = element->objectName().toStdString();
        if (const auto* label = qobject_cast<const QLabel*>(element)) {
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
                << name << " in " << fenster.objectName().toStdString();
            if (label->text().contains("SN"))
                traeger += element->objectName();
        }
        if (const auto* feld = qobject_cast<const QLineEdit*>(element); feld && feld->text().contains("SN"))
            traeger += element->objectName();
        EXPECT_FALSE(Deutet(element->toolTip())) << name << ": " << element->toolTip().toStdString();
        if (element->toolTip().contains("SN"))
            traeger += element->objectName() + " tip";
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
        QFile(datei).open(QIODevice::WriteOnly);
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
    const std::function<std::unique_ptr<QWidget>()> fenster[] = {
        [] { return std::make_unique<frmIdentifikationsAnforderung>(); },
        [] { return std::make_unique<frmKonfigurationLesenAusHardware>(); },
        [] { return std::make_unique<frmKonfigurationSchreibenInHardware>(); },
        [] { return std::make_unique<frmHoleLichtleistenInfo>(); },
        [] { return std::make_unique<frmResetHardware>(); },
        [] { return std::make_unique<frmInitHardware>(); },
        [] { return std::make_unique<frmEinzelwerteLesenSchreiben>(); },
        [] { return std::make_unique<frmStrahlenBestimmen>(); },
        [] { return std::make_unique<frmKeinKonturAngeschlossen>(); },
        [] { return std::make_unique<frmReihenfolge>(); },
        [] { return std::make_unique<frmSimulation>(); },
        [] { return std::make_unique<frmInfo>(nullptr); },
        [] { return std::make_unique<frmSplash>(); },
        [] {
            auto editor = std::make_unique<frmKonfigurationEdit>();
            editor->InitKonfiguration({.zeigeUebertrageneWerte = true});
            return editor;
        },
        [] {
            auto muster = std::make_unique<frmBlankingmuster>();
            muster->InitFormBlankingmuster(0);
            return muster;
        },
    };
    QSet<QString> traeger;
    for (const auto& mache : fenster) {
        const auto eines = mache();
        eines->show();
        QCoreApplication::processEvents();
        traeger += Pruefe(*eines);
    }
    for (const char* name : {"txtBezeichnung", "txtSeriennr", "txtCopyright", "lblInhaltSeriennummer",
                             "txtSeriennummer", "lblDatensatz", "lblDatensatz tip"})
        EXPECT_TRUE(traeger.contains(QString::fromUtf8(name))) << name;
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
