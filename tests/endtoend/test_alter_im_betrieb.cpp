// Pictures of a view whose line is pulled out: from when on none of them looks live.

#include "programmtest.h"

#include "beambarcontrol.h"
#include "strahlfarben.h"

#include <QImage>
#include <QPixmap>
#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

namespace varnoth::pruefung {

namespace {

/// Whether a picture holds a colour of live data: that of a free or an interrupted beam, as line or area.
bool SiehtLiveAus(const QImage& bild, const QPalette& palette) {
    const Strahlfarben farben = FarbenAus(palette);
    const QRgb lebendige[] = {farben.frei.rgb(), farben.unterbrochen.rgb(),
                              AlsFlaeche(farben.frei, farben.grund).rgb(),
                              AlsFlaeche(farben.unterbrochen, farben.grund).rgb()};
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (std::ranges::find(lebendige, bild.pixel(x, y) | 0xFF000000U) != std::end(lebendige))
                return true;
    return false;
}

} // namespace

class AlterImBetrieb : public ProgrammTest {
protected:
    bool SiehtLiveAus(int teil) {
        auto& balken = Kind<BeamBarControl>(Ansicht(teil), "BeamBar1");
        return pruefung::SiehtLiveAus(balken.grab().toImage(), balken.palette());
    }
    /// Takes pictures of the first view for so many milliseconds from now on, does something then, and gives
    /// when the last one that looked live was taken. Pictures of a moment when the machine had no time for
    /// us, be it for the program or for the camera, tell nothing.
    qint64 LetztesLebendigesBild(qint64 genug, const std::function<void()>& danach) {
        constexpr int AbstandMs = 50;
        constexpr int LaengsteLueckeMs = 150;
        qint64 letztes = -1;
        qint64 stockung = 0;
        bool fertig = false;
        QElapsedTimer seitBeginn;
        QElapsedTimer seitBild;
        QTimer kamera;
        QObject::connect(&kamera, &QTimer::timeout, &kamera, [&] {
            stockung += std::max<qint64>(0, seitBild.restart() - LaengsteLueckeMs);
            if (SiehtLiveAus(0))
                letztes = seitBeginn.elapsed() - stockung;
            if (seitBeginn.elapsed() <= genug + stockung)
                return;
            aufschrift = Kind<QLabel>(Ansicht(0), "lblHinweis").text().toStdString();
            kamera.stop();
            danach();
            fertig = true;
        });
        seitBeginn.start();
        seitBild.start();
        kamera.start(AbstandMs);
        EXPECT_TRUE(LaufeBis([&] { return fertig && !Hauptfenster().BefehlWartet(); }));
        return letztes;
    }

    std::string aufschrift; ///< over the beams of the last picture
};

TEST_F(AlterImBetrieb, No_picture_later_than_one_and_a_half_seconds_after_the_line_was_pulled_looks_live) {
    GeheLive();
    ASSERT_TRUE(LaufeDurchgaenge(5));
    ASSERT_TRUE(SiehtLiveAus(0));
    geraet->Befehl("unplug");
    const qint64 letztes = LetztesLebendigesBild(2500, [this] { Waehle("mnuMessdatenVisualisierenStop"); });
    RecordProperty("LastLivePictureMs", std::to_string(letztes));
    EXPECT_GT(letztes, 500) << "values do not fade while they are young";
    EXPECT_LE(letztes, 1500);
    EXPECT_THAT(aufschrift, testing::StartsWith("vor "));
}

TEST_F(AlterImBetrieb, Values_that_come_again_look_live_again) {
    GeheLive();
    ASSERT_TRUE(LaufeDurchgaenge(5));
    geraet->Befehl("fault silence");
    EXPECT_LE(LetztesLebendigesBild(2000, [this] { geraet->Befehl("fault none"); }), 1500);
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_TRUE(SiehtLiveAus(0));
}

TEST_F(AlterImBetrieb, Passes_on_a_good_line_never_look_old) {
    GeheLive();
    int alte = 0;
    QTimer blick;
    QObject::connect(&blick, &QTimer::timeout, &blick, [&] {
        alte += Kind<BeamBarControl>(Ansicht(0), "BeamBar1").Stand() == Datenstand::Veraltet ? 1 : 0;
    });
    blick.start(20);
    ASSERT_TRUE(LaufeDurchgaenge(30));
    EXPECT_EQ(alte, 0);
}

} // namespace varnoth::pruefung
