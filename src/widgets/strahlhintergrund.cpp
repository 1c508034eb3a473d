#include "strahlhintergrund.h"

#include "strahlmasse.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

// A picture of the ground while it is drawn.
struct Blatt {
    QPainter& maler;
    const Bildvorgabe& vorgabe;
    const Aufteilung& plan;
    const Strahlfarben& farben;
    QFontMetrics masse;

    int Pixel(double logisch) const { return Geraetepixel(logisch, vorgabe.dichte); }
    // Above the beams of a zoomed bar stands what is told of the view.
    bool RagtInKopfzeile(double mitte) const {
        const int unterkante = plan.feld.oben - Pixel(Masse::Ueberstand);
        return vorgabe.ZeigtUebersicht() && mitte - masse.height() / 2.0 < unterkante;
    }
    void Text(int links, int breite, double mitte, int ausrichtung, const QString& text) const {
        const int hoehe = masse.height();
        const int oben = static_cast<int>(std::lround(mitte - hoehe / 2.0));
        maler.drawText(QRect(links, oben, breite, hoehe), ausrichtung | Qt::AlignVCenter, text);
    }
};

void ZeichneStrich(const Blatt& blatt, double y, double laenge) {
    const int rechts = blatt.plan.senderLinks - blatt.Pixel(Masse::Luecke);
    const int dicke = blatt.Pixel(1);
    const int oben = static_cast<int>(std::floor(y - dicke / 2.0 + 0.5));
    blatt.maler.fillRect(rechts - blatt.Pixel(laenge), oben, blatt.Pixel(laenge), dicke,
                         blatt.farben.striche);
}

void ZeichneSkala(const Blatt& blatt) {
    const Strahlfeld& feld = blatt.plan.feld;
    const int abstand = blatt.vorgabe.abstandMm;
    if (blatt.plan.skala == 0 || abstand <= 0)
        return;
    const double jeMm = feld.Teilung() / abstand;
    const Teilstriche teilung =
        WaehleTeilstriche(jeMm, 1.6 * blatt.masse.height(), Masse::Strichabstand * blatt.vorgabe.dichte);
    const double von = std::max(0.0, (feld.ausschnitt.unten - 0.5) * abstand);
    const double bis = std::min((feld.strahlen - 1.0) * abstand,
                                (feld.ausschnitt.unten + feld.ausschnitt.anzahl - 0.5) * abstand);
    const double einheitUnten = blatt.Pixel(Masse::Rand) + blatt.masse.height();
    const int zahlenBreite = blatt.plan.skala - blatt.Pixel(Masse::Strich + 2 * Masse::Luecke);
    for (int mm = static_cast<int>(std::ceil(von / teilung.neben)) * teilung.neben; mm <= bis;
         mm += teilung.neben) {
        const double y = feld.Y(static_cast<double>(mm) / abstand + 0.5);
        const bool haupt = mm % teilung.haupt == 0;
        ZeichneStrich(blatt, y, haupt ? Masse::Strich : Masse::Strich / 2);
        if (haupt && y - blatt.masse.height() / 2.0 >= einheitUnten)
            blatt.Text(blatt.Pixel(Masse::Rand), zahlenBreite - blatt.Pixel(Masse::Rand), y, Qt::AlignRight,
                       QString::number(mm));
    }
    blatt.Text(blatt.Pixel(Masse::Rand), zahlenBreite - blatt.Pixel(Masse::Rand),
               blatt.Pixel(Masse::Rand) + blatt.masse.height() / 2.0, Qt::AlignRight, QStringLiteral("mm"));
}

void ZeichneNummern(const Blatt& blatt) {
    if (blatt.plan.nummern == 0)
        return;
    const int links = blatt.plan.EmpfaengerLinks() + blatt.plan.gehaeuse + blatt.Pixel(Masse::Luecke);
    const int breite = blatt.plan.nummern - blatt.Pixel(Masse::Luecke);
    for (const int nummer : Strahlnummern(blatt.plan.feld, 1.3 * blatt.masse.height()))
        if (const double y = blatt.plan.feld.Y(nummer - 0.5); !blatt.RagtInKopfzeile(y))
            blatt.Text(links, breite, y, Qt::AlignLeft, QString::number(nummer));
}

void ZeichneGehaeuse(const Blatt& blatt, int links) {
    const Strahlfeld& feld = blatt.plan.feld;
    const int ueberstand = blatt.Pixel(Masse::Ueberstand);
    const double halb = blatt.vorgabe.dichte / 2;
    const QRectF aussen(links, feld.oben - ueberstand, blatt.plan.gehaeuse, feld.hoehe + 2 * ueberstand);
    blatt.maler.setRenderHint(QPainter::Antialiasing);
    blatt.maler.setPen(QPen(blatt.farben.gehaeuserand, blatt.vorgabe.dichte));
    blatt.maler.setBrush(blatt.farben.gehaeuse);
    blatt.maler.drawRoundedRect(aussen.adjusted(halb, halb, -halb, -halb), ueberstand * 0.7,
                                ueberstand * 0.7);
    blatt.maler.setRenderHint(QPainter::Antialiasing, false);
}

// Half the height of one beam's optics; 0 where beams lie too close for optics of their own.
double Optikhalbmesser(const Strahlfeld& feld, double dichte) {
    const double halb = std::min(3.5 * dichte, feld.Teilung() / 2 - dichte);
    return halb < 2 * dichte ? 0 : halb;
}

// Optics of the transmitter: a triangle that points along the light.
void ZeichneSendeoptik(const Blatt& blatt, double y, double halb) {
    const double rechts = blatt.plan.senderLinks + blatt.plan.gehaeuse - 3 * blatt.vorgabe.dichte;
    QPainterPath pfad;
    pfad.moveTo(rechts, y);
    pfad.lineTo(rechts - 1.7 * halb, y - halb);
    pfad.lineTo(rechts - 1.7 * halb, y + halb);
    blatt.maler.fillPath(pfad, blatt.farben.schrift);
}

// Optics of the receiver: a lens that opens towards the light.
void ZeichneEmpfangsoptik(const Blatt& blatt, double y, double halb) {
    const double links = blatt.plan.EmpfaengerLinks() + 3 * blatt.vorgabe.dichte;
    QPainterPath pfad;
    pfad.moveTo(links, y - halb);
    pfad.arcTo(QRectF(links - halb, y - halb, 2 * halb, 2 * halb), 90, -180);
    blatt.maler.fillPath(pfad, blatt.farben.schrift);
}

// Where beams lie too close for optics of their own, one long lens.
void ZeichneLeisten(const Blatt& blatt) {
    const Strahlfeld& feld = blatt.plan.feld;
    const int dicke = blatt.Pixel(2);
    const int abstand = blatt.Pixel(3);
    const int rechts = blatt.plan.senderLinks + blatt.plan.gehaeuse - abstand - dicke;
    blatt.maler.fillRect(rechts, feld.oben, dicke, feld.hoehe, blatt.farben.schrift);
    blatt.maler.fillRect(blatt.plan.EmpfaengerLinks() + abstand, feld.oben, dicke, feld.hoehe,
                         blatt.farben.schrift);
}

void ZeichneOptik(const Blatt& blatt) {
    const Strahlfeld& feld = blatt.plan.feld;
    const double halb = Optikhalbmesser(feld, blatt.vorgabe.dichte);
    if (halb <= 0) {
        ZeichneLeisten(blatt);
        return;
    }
    blatt.maler.setRenderHint(QPainter::Antialiasing);
    for (int strahl = 0; strahl < feld.strahlen; ++strahl) {
        const double y = feld.Y(strahl + 0.5);
        if (y - halb < feld.oben || y + halb > feld.oben + feld.hoehe)
            continue;
        ZeichneSendeoptik(blatt, y, halb);
        ZeichneEmpfangsoptik(blatt, y, halb);
    }
    blatt.maler.setRenderHint(QPainter::Antialiasing, false);
}

// Where there is no strip with all beams, a slim bar at the right edge: how much of all beams the window
// shows, and where.
void ZeichneAusschnitt(const Blatt& blatt) {
    const Strahlfeld& feld = blatt.plan.feld;
    if (feld.strahlen == 0 || blatt.plan.uebersicht > 0 || feld.ausschnitt == GanzerAusschnitt(feld.strahlen))
        return;
    const int breite = blatt.Pixel(Masse::Leiste);
    const int links = blatt.vorgabe.groesse.width() - breite;
    const Strahlfeld alles{feld.oben, feld.hoehe, feld.strahlen, GanzerAusschnitt(feld.strahlen)};
    const double oben = alles.Y(feld.ausschnitt.unten + feld.ausschnitt.anzahl);
    const double unten = std::max(alles.Y(feld.ausschnitt.unten), oben + blatt.Pixel(Masse::Leiste));
    blatt.maler.fillRect(links, feld.oben, breite, feld.hoehe, blatt.farben.gehaeuse);
    blatt.maler.fillRect(QRectF(links, oben, breite, unten - oben).toAlignedRect(), blatt.farben.marke);
}

} // namespace

QPixmap Hintergrund(const Bildvorgabe& vorgabe, const Aufteilung& aufteilung, const Strahlfarben& farben) {
    QPixmap bild(vorgabe.groesse.expandedTo({1, 1}));
    bild.fill(farben.grund);
    QPainter maler(&bild);
    maler.setFont(vorgabe.schrift);
    maler.setPen(farben.schrift);
    const Blatt blatt{maler, vorgabe, aufteilung, farben, QFontMetrics(vorgabe.schrift)};
    ZeichneSkala(blatt);
    ZeichneNummern(blatt);
    ZeichneAusschnitt(blatt);
    ZeichneGehaeuse(blatt, aufteilung.senderLinks);
    ZeichneGehaeuse(blatt, aufteilung.EmpfaengerLinks());
    ZeichneOptik(blatt);
    return bild;
}

} // namespace varnoth
