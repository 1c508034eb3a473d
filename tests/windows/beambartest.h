#pragma once

#include "beambarcontrol.h"
#include "fenstertest.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QRegion>
#include <QScreen>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <set>

namespace varnoth::pruefung {

inline constexpr auto Frei = Strahlzustand::Frei;
inline constexpr auto Unterbrochen = Strahlzustand::Unterbrochen;
inline constexpr auto Geblankt = Strahlzustand::Geblankt;

/// Counts its paints and keeps where the last one drew.
class GezaehlterBalken : public BeamBarControl {
public:
    int gezeichnet = 0;
    QRegion gebiet;

protected:
    void paintEvent(QPaintEvent* ereignis) override {
        ++gezeichnet;
        gebiet = ereignis->region();
        BeamBarControl::paintEvent(ereignis);
    }
};

/// A beam bar of its own that is sized, fed, pointed at and painted.
class BeamBarTest : public testing::Test {
protected:
    void Stelle(int strahlen, int breite, int hoehe, int abstandMm = 10) {
        balken.resize(breite, hoehe);
        balken.SetzeStrahlanzahl(strahlen);
        balken.SetzeStrahlabstand(abstandMm);
    }
    void Setze(int strahl, Strahlzustand zustand) {
        balken.WaehleStrahl(strahl);
        balken.SetzeZustand(zustand);
    }
    QImage Bild(double dichte = 1) {
        QImage bild(QSizeF(balken.size() * dichte).toSize(), QImage::Format_RGB32);
        bild.setDevicePixelRatio(dichte);
        balken.render(&bild);
        return bild;
    }
    void Zeige() {
        balken.show();
        WarteBis([this] { return balken.gezeichnet > 0; });
        QApplication::processEvents();
        balken.gezeichnet = 0;
    }
    /// What a user sees, as the paints so far have left it.
    QImage Gesehenes() {
        return balken.screen()->grabWindow(balken.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    }
    void Maus(QEvent::Type art, const QPointF& stelle, Qt::MouseButton knopf = Qt::LeftButton) {
        const bool gedrueckt = art != QEvent::MouseButtonRelease && knopf != Qt::NoButton;
        QMouseEvent ereignis(art, stelle, balken.mapToGlobal(stelle),
                             art == QEvent::MouseMove ? Qt::NoButton : knopf,
                             gedrueckt ? knopf : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&balken, &ereignis);
    }
    void Ziehe(const QPointF& von, const QPointF& nach, Qt::MouseButton knopf = Qt::LeftButton) {
        Maus(QEvent::MouseButtonPress, von, knopf);
        Maus(QEvent::MouseMove, nach, knopf);
        Maus(QEvent::MouseButtonRelease, nach, knopf);
    }
    void Klicke(int strahl) { Ziehe(balken.Strahlmitte(strahl), balken.Strahlmitte(strahl)); }
    bool Rad(const QPointF& stelle, int rasten) {
        QWheelEvent ereignis(stelle, balken.mapToGlobal(stelle), {}, {0, 120 * rasten}, Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&balken, &ereignis);
        return ereignis.isAccepted();
    }
    bool Taste(int taste) {
        QKeyEvent ereignis(QEvent::KeyPress, taste, Qt::NoModifier);
        QApplication::sendEvent(&balken, &ereignis);
        return ereignis.isAccepted();
    }

    GezaehlterBalken balken;
};

inline QPalette Dunkel() {
    QPalette palette(QColor(50, 53, 58));
    palette.setColor(QPalette::Base, QColor(30, 32, 36));
    palette.setColor(QPalette::Text, QColor(225, 228, 232));
    return palette;
}

/// The pixel rows in which two pictures differ.
inline std::set<int> VerschiedeneZeilen(const QImage& eines, const QImage& anderes) {
    std::set<int> zeilen;
    for (int y = 0; y < eines.height(); ++y)
        for (int x = 0; x < eines.width() && !zeilen.contains(y); ++x)
            if (eines.pixel(x, y) != anderes.pixel(x, y))
                zeilen.insert(y);
    return zeilen;
}

} // namespace varnoth::pruefung
