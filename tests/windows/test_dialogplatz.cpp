#include "dialogplatz.h"

#include "dialogtest.h"
#include "frmBlankingmuster.h"
#include "frmEinzelwerteLesenSchreiben.h"
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
#include "frmStrahlenBestimmen.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <memory>

namespace varnoth {

namespace {

constexpr QSize KleinerSchirm(960, 540);

template<class Dialog, class... Argumente>
std::unique_ptr<QDialog> Mache(Argumente... argumente) {
    return std::make_unique<Dialog>(argumente...);
}

} // namespace

class DialogplatzTest : public pruefung::DialogTest {
protected:
    DialogplatzTest() {
        modDaten::InitRegisterbeschreibung();
        modDaten::LadeStandardkonfiguration();
        for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
            modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, teil, {128});
    }

    pruefung::PruefEinstellungen einstellungen;
};

/// A column of buttons of 40 logical pixels each.
class HoherDialog : public QDialog {
public:
    explicit HoherDialog(int knoepfe) {
        auto* const spalte = new QVBoxLayout(this);
        for (int i = 1; i <= knoepfe; ++i) {
            auto* const knopf = new QPushButton(QString::number(i));
            knopf->setObjectName(QStringLiteral("cmd_%1").arg(i));
            knopf->setMinimumHeight(40);
            spalte->addWidget(knopf);
        }
    }
};

namespace {

/// What scrolls has all the room that its controls need.
void ErwarteNichtsGequetscht(const QDialog& dialog) {
    if (const auto* const inhalt = dialog.findChild<QWidget*>("Dialoginhalt")) {
        EXPECT_GE(inhalt->width(), inhalt->minimumSizeHint().width()) << dialog.objectName().toStdString();
        EXPECT_GE(inhalt->height(), inhalt->minimumSizeHint().height()) << dialog.objectName().toStdString();
    }
}

} // namespace

TEST_F(DialogplatzTest, A_dialog_that_fits_keeps_its_layout) {
    HoherDialog dialog(3);
    PasseEin(dialog, KleinerSchirm);
    EXPECT_EQ(dialog.findChild<QScrollArea*>(), nullptr);
    EXPECT_EQ(dialog.layout()->count(), 3);
}

TEST_F(DialogplatzTest, A_dialog_that_is_too_high_scrolls_and_keeps_the_order_of_its_controls) {
    HoherDialog dialog(30);
    const QString vorher = Tabfolge(dialog);
    PasseEin(dialog, KleinerSchirm);
    dialog.show();
    EXPECT_EQ(Tabfolge(dialog), vorher);
    EXPECT_LE(dialog.height(), 540);
    const auto* const bereich = dialog.findChild<QScrollArea*>("Dialogrollbereich");
    ASSERT_NE(bereich, nullptr);
    EXPECT_GT(bereich->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(bereich->horizontalScrollBar()->maximum(), 0);
}

TEST_F(DialogplatzTest, A_dialog_that_was_made_larger_than_the_screen_is_made_smaller) {
    HoherDialog dialog(3);
    dialog.resize(2000, 1500);
    PasseEin(dialog, KleinerSchirm);
    EXPECT_EQ(dialog.size(), KleinerSchirm);
}

TEST_F(DialogplatzTest, Every_dialog_of_the_program_is_fitted_when_it_appears) {
    const Dialogplatz platz;
    HoherDialog dialog(100);
    dialog.show();
    EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
    EXPECT_NE(dialog.findChild<QScrollArea*>("Dialogrollbereich"), nullptr);
}

TEST_F(DialogplatzTest, Every_dialog_fits_a_small_screen_or_scrolls) {
    Schweige();
    const std::function<std::unique_ptr<QDialog>()> dialoge[] = {
        [] { return Mache<frmBlankingmuster>(nullptr); },
        [] { return Mache<frmEinzelwerteLesenSchreiben>(nullptr); },
        [] { return Mache<frmHoleLichtleistenInfo>(nullptr); },
        [] { return Mache<frmIdentifikationsAnforderung>(nullptr); },
        [] { return Mache<frmInfo>(nullptr); },
        [] { return Mache<frmInitHardware>(nullptr); },
        [] { return Mache<frmKeinKonturAngeschlossen>(nullptr); },
        [] {
            auto editor = std::make_unique<frmKonfigurationEdit>(nullptr);
            editor->InitKonfiguration({});
            return editor;
        },
        [] { return Mache<frmKonfigurationLesenAusHardware>(nullptr); },
        [] { return Mache<frmKonfigurationSchreibenInHardware>(nullptr); },
        [] { return Mache<frmReihenfolge>(nullptr); },
        [] { return Mache<frmResetHardware>(nullptr); },
        [] { return Mache<frmSimulation>(nullptr); },
        [] { return Mache<frmStrahlenBestimmen>(nullptr); },
    };
    for (const std::int16_t sprache : {Deutsch, Englisch})
        for (const auto& mache : dialoge) {
            SetzeSprachoffset(sprache);
            const auto dialog = mache();
            PasseEin(*dialog, KleinerSchirm);
            dialog->show();
            for (int mal = 0; mal < 3; ++mal) // a layout inside a layout asks the outer one again
                QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            ErwarteNichtsGequetscht(*dialog);
            EXPECT_LE(dialog->width(), KleinerSchirm.width()) << dialog->objectName().toStdString();
            EXPECT_LE(dialog->height(), KleinerSchirm.height()) << dialog->objectName().toStdString();
        }
}

} // namespace varnoth
