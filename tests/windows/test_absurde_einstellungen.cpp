#include "frmMain.h"

#include "fenstertest.h"
#include "frmDocument.h"
#include "inieinstellungen.h"
#include "pruefumgebung.h"
#include "schnittstelle.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

const char* const Zahlen[] = {
    "2147483647", "-2147483648", "100000000000", "1e300",  "-1e300", "nan",         "inf",
    "-1",         "0",           "65536",        "&HFFFF", "",       "twenty-five", "1500000"};
const char* const Fensterabschnitte[] = {"MDIForm", "0Form", "1Form", "2Form", "3Form", "frmBlankingmuster"};
const char* const Platzschluessel[] = {"WindowState", "Left", "Top", "Width", "Height"};

} // namespace

class AbsurdeEinstellungen : public testing::TestWithParam<const char*> {
protected:
    void SetzeAlle(const std::string& zahl) {
        for (const char* abschnitt : Fensterabschnitte)
            for (const char* schluessel : Platzschluessel)
                einstellungen.SchreibText(abschnitt, schluessel, zahl);
        einstellungen.SchreibText("Settings", "ComPort", zahl);
        einstellungen.SchreibText("Settings", "Sprache", zahl);
    }

    pruefung::PruefUmgebung umgebung;
    QTemporaryDir ordner;
    IniEinstellungen einstellungen{ordner.filePath(QStringLiteral("varnoth.ini"))};
};

TEST_P(AbsurdeEinstellungen, Make_no_window_larger_than_the_screens_and_choose_no_port_that_is_not_there) {
    SetzeAlle(GetParam());
    frmMain fenster;
    fenster.show();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        fenster.Fenster(teil).Zeige();
    QApplication::processEvents();
    const QSize schirme = QGuiApplication::primaryScreen()->virtualSize();
    EXPECT_EQ(fenster.size().boundedTo(schirme), fenster.size());
    for (const auto* rahmen : fenster.findChildren<QMdiSubWindow*>())
        EXPECT_EQ(rahmen->size().boundedTo(schirme), rahmen->size());
    EXPECT_TRUE(fenster.screen()->virtualGeometry().intersects(fenster.frameGeometry()));
    EXPECT_GE(modSchnittstelle::GetComPort(), 1);
    EXPECT_LE(modSchnittstelle::GetComPort(), 4);
}

INSTANTIATE_TEST_SUITE_P(EveryNumber, AbsurdeEinstellungen, testing::ValuesIn(Zahlen));

} // namespace varnoth
