#include "zellenmuster.h"

#include "darstellung.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cmath>

namespace varnoth {

namespace {

constexpr Zellenart DieArten[] = {Zellenart::Leer,        Zellenart::Luecke,   Zellenart::NichtGemessen,
                                  Zellenart::Frei,        Zellenart::Geblankt, Zellenart::Zeitweise,
                                  Zellenart::Unterbrochen};

std::vector<Strahlfarben> AlleFarben() {
    std::vector<Strahlfarben> alle;
    for (const Erscheinung erscheinung : DieErscheinungen)
        for (const Strahlfarbsatz satz : DieFarbsaetze)
            alle.push_back(
                FarbenAus(PaletteFuer(erscheinung).value_or(QPalette()), Datenstand::Gueltig, satz));
    return alle;
}

/// How bright a pixel is to somebody who sees no colours, 0 to 255.
double Helligkeit(QRgb pixel) {
    return 0.2126 * qRed(pixel) + 0.7152 * qGreen(pixel) + 0.0722 * qBlue(pixel);
}

} // namespace

TEST(Zellenmuster, Any_two_kinds_differ_without_colour_in_every_look_and_set) {
    for (const Strahlfarben& farben : AlleFarben()) {
        const Zellenmuster muster(farben, 1);
        for (const Zellenart eine : DieArten)
            for (const Zellenart andere : DieArten) {
                if (eine >= andere)
                    continue;
                double unterschied = 0;
                for (int y = 0; y < muster.Seite(); ++y)
                    for (int x = 0; x < muster.Seite(); ++x)
                        unterschied += std::abs(Helligkeit(muster.Zeile(eine, y)[x]) -
                                                Helligkeit(muster.Zeile(andere, y)[x]));
                EXPECT_GT(unterschied / muster.Seite() / muster.Seite(), 8)
                    << static_cast<int>(eine) << ' ' << static_cast<int>(andere) << ' '
                    << farben.grund.name().toStdString() << ' ' << farben.frei.name().toStdString();
            }
    }
}

TEST(Zellenmuster, No_pixel_of_what_was_interrupted_looks_free) {
    for (const Strahlfarben& farben : AlleFarben()) {
        const Zellenmuster muster(farben, 2);
        const QColor frei = QColor::fromRgb(muster.Zeile(Zellenart::Frei, 0)[0]);
        for (const Zellenart art : {Zellenart::Zeitweise, Zellenart::Unterbrochen})
            for (int y = 0; y < muster.Seite(); ++y)
                for (int x = 0; x < muster.Seite(); ++x)
                    ASSERT_GT(Kontrast(QColor::fromRgb(muster.Zeile(art, y)[x]), frei), 1.25)
                        << farben.grund.name().toStdString() << ' ' << farben.frei.name().toStdString();
    }
}

TEST(Zellenmuster, A_pattern_is_as_coarse_as_the_screen_is_dense) {
    const Strahlfarben farben = FarbenAus(QPalette());
    const Zellenmuster einfach(farben, 1);
    const Zellenmuster doppelt(farben, 2);
    ASSERT_EQ(doppelt.Seite(), 2 * einfach.Seite());
    for (int y = 0; y < doppelt.Seite(); ++y)
        for (int x = 0; x < doppelt.Seite(); ++x)
            ASSERT_EQ(doppelt.Zeile(Zellenart::Zeitweise, y)[x],
                      einfach.Zeile(Zellenart::Zeitweise, y / 2)[x / 2]);
}

} // namespace varnoth
