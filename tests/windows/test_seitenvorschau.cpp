#include "seitenvorschau.h"

#include "fenstertest.h"

#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <optional>

namespace varnoth {

namespace {

constexpr QSize Groesse(640, 480);
constexpr double PapierbreitePt = 595;

Berichtsdruck Druck(int absaetze, const QString& fuss = {}) {
    QString html;
    for (int i = 0; i < absaetze; ++i)
        html += QStringLiteral("<p>Absatz %1</p>").arg(i);
    return {html, fuss, QStringLiteral("%1/%2")};
}

/// Counts how often it was painted.
struct Gezaehlte : Seitenvorschau {
    void paintEvent(QPaintEvent* ereignis) override {
        ++gemalt;
        Seitenvorschau::paintEvent(ereignis);
    }
    int gemalt = 0;
};

/// What is darker than the ground and the edge of a page, within an area.
QRect Tinte(const QImage& bild, const QRect& feld) {
    QRect tinte;
    for (int y = feld.top(); y <= feld.bottom(); ++y)
        for (int x = feld.left(); x <= feld.right(); ++x)
            if (qGray(bild.pixel(x, y)) < 100)
                tinte |= QRect(x, y, 1, 1);
    return tinte;
}

} // namespace

class SeitenvorschauTest : public testing::Test {
protected:
    SeitenvorschauTest() {
        vorschau.resize(Groesse);
        vorschau.show();
    }
    void Zeige(const Berichtsdruck& druck) {
        const auto vorher = gezeigt.size();
        vorschau.Zeige(druck);
        ASSERT_TRUE(pruefung::WarteBis([&] { return gezeigt.size() > vorher; }));
    }
    QImage Bild() { return vorschau.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QScrollBar& Balken() { return *vorschau.verticalScrollBar(); }
    double Stelle() {
        return Balken().value() / static_cast<double>(Balken().maximum() + Balken().pageStep());
    }

    Gezaehlte vorschau;
    QSignalSpy gezeigt{&vorschau, &Seitenvorschau::Gezeigt};
};

TEST_F(SeitenvorschauTest, Reading_and_laying_out_take_turns_with_what_waits) {
    vorschau.Zeige(Druck(1000));
    EXPECT_EQ(vorschau.Seitenzahl(), 0);
    int klicks = 0;
    std::optional<int> dazwischen;
    QTimer klicker; // begun later than the work, and so behind it in each turn
    QObject::connect(&klicker, &QTimer::timeout, [&] { ++klicks; });
    klicker.start(0);
    QObject::connect(&vorschau, &Seitenvorschau::Gezeigt, [&] { dazwischen = klicks; });
    ASSERT_TRUE(gezeigt.wait());
    EXPECT_GT(dazwischen, 2) << "laying out takes more than one turn";
    EXPECT_GT(vorschau.Seitenzahl(), 10);
}

TEST_F(SeitenvorschauTest, Pages_are_laid_out_in_steps_until_all_are) {
    QBuffer nirgends;
    QPdfWriter papier(&nirgends);
    Berichtsseiten seiten(Druck(1000), papier);
    int schritte = 0;
    while (seiten.LegeAus())
        ++schritte;
    EXPECT_GE(schritte, 3);
    EXPECT_LT(schritte, seiten.Anzahl());
}

TEST_F(SeitenvorschauTest, What_was_there_stays_until_the_other_one_is_laid_out_and_only_the_last_is) {
    Zeige(Druck(1000));
    const int vorher = vorschau.Seitenzahl();
    EXPECT_GT(vorher, 10);
    vorschau.Zeige(Druck(500));
    vorschau.Zeige(Druck(1));
    EXPECT_EQ(vorschau.Seitenzahl(), vorher);
    ASSERT_TRUE(gezeigt.wait());
    EXPECT_EQ(vorschau.Seitenzahl(), 1);
}

TEST_F(SeitenvorschauTest, Another_report_takes_the_place_of_one_that_is_read_already) {
    vorschau.Zeige(Druck(500));
    QTimer nachDemLesen;
    nachDemLesen.setSingleShot(true);
    QObject::connect(&nachDemLesen, &QTimer::timeout, [&] { vorschau.Zeige(Druck(1)); });
    nachDemLesen.start(0);
    ASSERT_TRUE(gezeigt.wait());
    EXPECT_EQ(vorschau.Seitenzahl(), 1);
    EXPECT_EQ(gezeigt.size(), 1);
}

TEST_F(SeitenvorschauTest, Another_report_of_as_many_pages_is_painted_at_once) {
    Zeige(Druck(3));
    ASSERT_TRUE(pruefung::WarteBis([&] { return vorschau.gemalt > 0; }));
    QCoreApplication::processEvents();
    vorschau.gemalt = 0;
    Zeige(Druck(4));
    EXPECT_TRUE(pruefung::WarteBis([&] { return vorschau.gemalt > 0; }));
}

TEST_F(SeitenvorschauTest, Paper_is_white_and_as_wide_as_the_window) {
    Zeige(Druck(3));
    for (const int breite : {640, 900}) {
        vorschau.resize(breite, Groesse.height());
        const QImage bild = Bild();
        EXPECT_NE(bild.pixel(5, 40), qRgb(255, 255, 255));
        EXPECT_EQ(bild.pixel(20, 40), qRgb(255, 255, 255));
        EXPECT_EQ(bild.pixel(bild.width() - 20, 40), qRgb(255, 255, 255));
        EXPECT_NE(bild.pixel(bild.width() - 5, 40), qRgb(255, 255, 255));
    }
}

TEST_F(SeitenvorschauTest, Scrolling_shows_every_page_to_the_end_of_the_last) {
    Zeige(Druck(300));
    const QImage anfang = Bild();
    EXPECT_FALSE(Tinte(anfang, anfang.rect()).isEmpty());
    Balken().setValue(Balken().maximum());
    const QImage ende = Bild();
    EXPECT_FALSE(Tinte(ende, ende.rect()).isEmpty());
    EXPECT_NE(ende, anfang);
    EXPECT_NE(ende.pixel(ende.width() / 2, ende.height() - 3), qRgb(255, 255, 255)) << "the ground below it";
    EXPECT_EQ(ende.pixel(ende.width() / 2, ende.height() - 20), qRgb(255, 255, 255));
}

TEST_F(SeitenvorschauTest, The_place_in_the_report_stays_when_the_window_grows_and_when_a_letter_changes) {
    Zeige(Druck(300));
    Balken().setValue(Balken().maximum() / 2);
    const double vorher = Stelle();
    vorschau.resize(900, Groesse.height());
    EXPECT_NEAR(Stelle(), vorher, 0.01);
    Zeige(Druck(301));
    EXPECT_NEAR(Stelle(), vorher, 0.01);
}

TEST_F(SeitenvorschauTest, Cells_have_thin_edges_between_them) {
    vorschau.resize(1600, 600);
    Zeige({"<style>table { border-collapse: collapse; border-color: #000000; }</style>"
           "<table border=\"1\" cellspacing=\"0\" cellpadding=\"40\" width=\"100%\">"
           "<tr><td></td><td></td></tr></table>",
           "", "%1/%2"});
    const QImage bild = Bild();
    const int y = 12 + bild.width() * 15 / 210 + 20; // within the first row
    int dicke = 0;                                   // of the line between the cells
    for (int x = bild.width() / 4; x < bild.width() * 3 / 4; ++x)
        dicke += qGray(bild.pixel(x, y)) < 200 ? 1 : 0;
    EXPECT_GE(dicke, 1);
    EXPECT_LE(dicke, 3);
}

TEST_F(SeitenvorschauTest, The_foot_stands_at_the_end_of_the_page_in_letters_of_its_own_size) {
    vorschau.resize(Groesse.width(), 1200);
    Zeige(Druck(0, "Halle"));
    const QImage bild = Bild();
    const QRect links(30, 0, bild.width() / 2, bild.height());
    const QRect tinte = Tinte(bild, links);
    const double punkt = (bild.width() - 24) / PapierbreitePt;
    ASSERT_FALSE(tinte.isEmpty());
    EXPECT_NEAR(tinte.height() / punkt, 5.7, 1.5) << "a capital letter of 7.5 points";
    const double papierhoehe = (bild.width() - 24) * 297.0 / 210;
    EXPECT_NEAR(tinte.bottom(), 12 + papierhoehe * (297 - 15) / 297, 4);
}

} // namespace varnoth
