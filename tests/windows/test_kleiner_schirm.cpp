// What every window of the program holds to on a small screen.

#include "allefenster.h"
#include "dialogplatz.h"
#include "dialogtest.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <QDir>
#include <QDirIterator>
#include <QScrollArea>

namespace varnoth {

namespace {

using pruefung::AlleFenster;

constexpr QSize KleinerSchirm(960, 540);
/// A screen of 1280 x 720 at 200 %.
constexpr QSize KleinsterSchirm(640, 360);

/// The names of all forms in the sources that are windows.
QStringList Formulare() {
    QStringList namen;
    for (QDirIterator i(QStringLiteral(VARNOTH_QUELLEN), {QStringLiteral("frm*.ui")}, QDir::Files,
                        QDirIterator::Subdirectories);
         i.hasNext();)
        namen.append(QFileInfo(i.next()).completeBaseName());
    namen.sort();
    return namen;
}

/// What scrolls has all the room that its controls need.
void ErwarteNichtsGequetscht(const QWidget& fenster) {
    if (const auto* const inhalt = fenster.findChild<QWidget*>("Dialoginhalt")) {
        EXPECT_GE(inhalt->width(), inhalt->minimumSizeHint().width());
        EXPECT_GE(inhalt->height(), inhalt->minimumSizeHint().height());
    }
}

} // namespace

class KleinerSchirmTest : public pruefung::DialogTest {
protected:
    KleinerSchirmTest() {
        Schweige();
        modDaten::InitRegisterbeschreibung();
        modDaten::LadeStandardkonfiguration();
        for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
            modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, teil, {128});
    }
    /// Every window in both languages, each given no more room than `schirm`.
    static void Erwarte(QSize schirm) {
        for (const std::int16_t sprache : {Deutsch, Englisch})
            for (const auto& [name, mache] : AlleFenster()) {
                SCOPED_TRACE(name);
                SetzeSprachoffset(sprache);
                const auto fenster = mache();
                PasseEin(*fenster, schirm);
                fenster->show();
                for (int mal = 0; mal < 3; ++mal) // a layout inside a layout asks the outer one again
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
                ErwarteNichtsGequetscht(*fenster);
                EXPECT_LE(fenster->width(), schirm.width());
                EXPECT_LE(fenster->height(), schirm.height());
            }
    }
};

TEST_F(KleinerSchirmTest, No_form_of_the_program_is_missing_here) {
    QStringList namen{QStringLiteral("frmMain")};
    for (const auto& [name, mache] : AlleFenster()) {
        namen.append(QString::fromLatin1(name));
        EXPECT_TRUE(mache()->objectName().startsWith(QLatin1String(name))) << name;
    }
    namen.sort();
    EXPECT_EQ(namen, Formulare());
}

TEST_F(KleinerSchirmTest, Every_window_fits_a_small_screen_or_scrolls) {
    Erwarte(KleinerSchirm);
}

TEST_F(KleinerSchirmTest, Every_window_fits_the_smallest_screen_or_scrolls) {
    Erwarte(KleinsterSchirm);
}

} // namespace varnoth
