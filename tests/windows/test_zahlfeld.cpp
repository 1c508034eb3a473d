#include "zahlfeld.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

using namespace varnoth;

constexpr const char* Texte[] = {"0", "11", "107", "65535", "\u2013", "530 mm"};
constexpr QSize Groesse(130, 61);

class ZahlfeldTest : public testing::Test {
protected:
    ZahlfeldTest() {
        for (QLabel* eines : {static_cast<QLabel*>(&feld), &vorbild}) {
            eines->setTextFormat(Qt::PlainText);
            eines->setAutoFillBackground(true);
            eines->setFixedSize(Groesse);
        }
    }

    void Zeige(const char* text) {
        feld.setText(QString::fromUtf8(text));
        vorbild.setText(QString::fromUtf8(text));
    }
    void NimmSchrift(const QFont& schrift) {
        feld.setFont(schrift);
        vorbild.setFont(schrift);
    }
    void Richte(Qt::Alignment lage) {
        feld.setAlignment(lage);
        vorbild.setAlignment(lage);
    }
    static QImage Bild(QWidget& element, double dichte = 1) {
        QImage bild(element.size() * dichte, QImage::Format_RGB32);
        bild.setDevicePixelRatio(dichte);
        element.render(&bild);
        return bild;
    }
    /// Twice, since the second time the text is laid out already.
    void ErwarteGleiches(double dichte = 1) {
        const QImage soll = Bild(vorbild, dichte);
        EXPECT_EQ(Bild(feld, dichte), soll) << feld.text().toStdString();
        EXPECT_EQ(Bild(feld, dichte), soll) << feld.text().toStdString();
    }

    Zahlfeld feld;
    QLabel vorbild;
};

TEST_F(ZahlfeldTest, It_looks_like_any_other_label_in_every_font_and_place) {
    for (const char* familie : {"Sans", "Serif", "Monospace"})
        for (const int groesse : {9, 13, 22, 40})
            for (const Qt::Alignment lage :
                 {Qt::AlignRight | Qt::AlignVCenter, Qt::AlignLeft | Qt::AlignVCenter}) {
                QFont schrift(QString::fromLatin1(familie));
                schrift.setPixelSize(groesse);
                NimmSchrift(schrift);
                Richte(lage);
                for (const char* text : Texte) {
                    SCOPED_TRACE(testing::Message() << familie << ' ' << groesse);
                    Zeige(text);
                    ErwarteGleiches();
                }
            }
}

TEST_F(ZahlfeldTest, It_looks_like_any_other_label_on_a_screen_of_high_density) {
    Richte(Qt::AlignRight | Qt::AlignVCenter);
    for (const int groesse : {13, 19, 22})
        for (const double dichte : {1.5, 2.0})
            for (const char* text : Texte) {
                QFont schrift = feld.font();
                schrift.setPixelSize(groesse);
                NimmSchrift(schrift);
                Zeige(text);
                ErwarteGleiches(dichte);
            }
}

TEST_F(ZahlfeldTest, It_looks_like_any_other_label_in_other_colours_and_when_it_is_grey) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::darkCyan);
    palette.setColor(QPalette::Window, Qt::yellow);
    feld.setPalette(palette);
    vorbild.setPalette(palette);
    Zeige("107");
    ErwarteGleiches();
    feld.setEnabled(false);
    vorbild.setEnabled(false);
    ErwarteGleiches();
}

TEST_F(ZahlfeldTest, It_shows_what_is_selected) {
    Zeige("107");
    const QImage ohne = Bild(feld);
    feld.setTextInteractionFlags(Qt::TextSelectableByMouse);
    feld.setSelection(0, 2);
    EXPECT_NE(Bild(feld), ohne);
}

TEST_F(ZahlfeldTest, A_text_that_comes_again_is_not_laid_out_again) {
    for (const char* text : {"1", "2", "1", "2", ""}) {
        Zeige(text);
        Bild(feld);
    }
    EXPECT_EQ(feld.Vorrat().Anzahl(), 2);
}

TEST_F(ZahlfeldTest, Fields_that_share_lay_a_text_out_once_for_all) {
    Zahlfeld zweites;
    zweites.setFixedSize(Groesse);
    zweites.TeileVorrat(feld);
    Zeige("107");
    Bild(feld);
    zweites.setText(QStringLiteral("107"));
    Bild(zweites);
    EXPECT_EQ(&zweites.Vorrat(), &feld.Vorrat());
    EXPECT_EQ(feld.Vorrat().Anzahl(), 1);
}

TEST_F(ZahlfeldTest, Another_font_begins_anew) {
    Zeige("107");
    Bild(feld);
    QFont schrift = feld.font();
    schrift.setPixelSize(30);
    NimmSchrift(schrift);
    ErwarteGleiches();
    EXPECT_EQ(feld.Vorrat().Anzahl(), 1);
}

TEST_F(ZahlfeldTest, No_more_than_six_hundred_texts_are_kept) {
    for (int zahl = 0; zahl <= Textvorrat::Hoechstzahl; ++zahl) {
        feld.setNum(zahl);
        Bild(feld);
        EXPECT_LE(feld.Vorrat().Anzahl(), 600);
    }
    vorbild.setNum(Textvorrat::Hoechstzahl);
    ErwarteGleiches();
}

} // namespace
