#pragma once

#include "wasserfallzeichner.h"

#include <QWidget>

#include <optional>

namespace varnoth {

class Messanbieter;

/// Shows the past of one optical part: time from left to right, beams from bottom to top. It follows the
/// newest, shows all there is, or stands still. The wheel zooms the time, with Ctrl or over the beam numbers
/// the beams; dragging in the picture chooses a time, on the axes it zooms in, with the middle button or
/// Shift it moves the picture; a double click shows everything again.
class Wasserfallbild : public QWidget {
    Q_OBJECT

public:
    explicit Wasserfallbild(QWidget* eltern = nullptr);

    /// Whose source is shown; it must outlive the widget. Without one nothing is drawn.
    void SetzeAnbieter(Messanbieter& neuer);
    /// Shows optical part 0..3.
    void SetzeTeil(int neuer);
    int Teil() const { return teil; }
    /// Another source is looked at; a record is shown from its beginning to its end, live data as it comes.
    void NimmNeueQuelle();
    /// There is more or less to be shown.
    void NimmZuwachs();

    /// Which time is in view.
    enum class Blick { Fest, Folgt, Alles };
    Blick DerBlick() const { return blick; }
    void SetzeBlick(Blick neuer);
    /// All beams, and all the time there is.
    void ZeigeAlles();

    const Zeitfenster& Fenster() const { return fenster; }
    void SetzeFenster(const Zeitfenster& neues);
    const Ausschnitt& SichtbareStrahlen() const { return ausschnitt; }
    int Strahlen() const { return vorgabe.strahlen; }
    int Strahlabstand() const { return vorgabe.abstandMm; }

    /// The time that the user has chosen.
    const std::optional<Zeitspanne>& Gewaehlt() const { return marken.gewaehlt; }
    void Waehle(std::optional<Zeitspanne> zeitraum);

    /// The place under the pointer or the keyboard's cursor.
    const std::optional<Strahlstelle>& Stelle() const { return marken.stelle; }
    void SetzeStelle(std::optional<Strahlstelle> neue);
    /// What there is to tell of it: time, beam, position and state; empty without a place.
    QString Stellentext() const;
    /// What a screen reader says of the picture.
    QString Ansage() const;
    /// Where a place lies in the widget, and what lies at a point of the widget, if it is in the picture.
    QPointF PunktVon(const Strahlstelle& stelle) const;
    std::optional<Strahlstelle> StelleBei(const QPointF& punkt) const;

    /// The picture as it is drawn, with its axes.
    QImage AlsBild();
    /// Whether more packets have to be read for what is in view.
    bool IstUnvollstaendig() const { return unvollstaendig; }

    QSize sizeHint() const override { return {900, 420}; }
    QSize minimumSizeHint() const override { return {320, 180}; }

signals:
    /// Another place is under the pointer or the cursor.
    void StelleGeaendert();
    /// The user has chosen a time or let go of it.
    void ZeitraumGeaendert();
    /// The user has clicked at a time of the source.
    void ZeitAngeklickt(qint64 mikrosekunden);
    /// It follows, shows everything or stands still now.
    void BlickGeaendert();

protected:
    bool event(QEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;

private:
    enum class Zug { Keiner, Waehlen, Schieben, Zeitzoom, Strahlzoom };

    void Richte();
    void LiesStrahlen();
    void FolgeQuelle();
    void Rechne();
    std::optional<Zellenart> Stellenzelle() const;
    void VergleicheStelle();
    void PlaneMehr();
    QPointF Geraetepunkt(const QPointF& punkt) const { return punkt * vorgabe.dichte; }
    Strahlfeld Feld() const { return plan.Feld(vorgabe.strahlen, ausschnitt); }
    Zeit ZeitBei(double x) const;
    void ZoomeZeit(Zeit um, int schritte);
    void ZoomeStrahlen(double um, double faktor);
    void SetzeAusschnitt(const Ausschnitt& neuer);
    void ZieheWeiter(const QPointF& punkt);
    void BeendeZug(const QPointF& punkt);
    bool Zoomtaste(const QKeyEvent& taste);
    bool Wahltaste(const QKeyEvent& taste);
    bool Cursortaste(const QKeyEvent& taste);

    Messanbieter* anbieter = nullptr;
    int teil = 0;
    Blick blick = Blick::Folgt;
    Zeitfenster fenster;
    Ausschnitt ausschnitt;
    Wasserfallvorgabe vorgabe;
    Wasserfallplan plan;
    Wasserfallmarken marken;
    Wasserfallzeichner zeichner;
    Strahlreduktion reduktion;
    bool neuZuZeigen = true;                 ///< nothing of the source has been shown yet
    std::optional<Zellenart> erzaehlteZelle; ///< that was at the place when it was drawn last
    bool unvollstaendig = false;
    bool mehrGeplant = false;

    Zug zug = Zug::Keiner;
    bool gezogen = false;
    QPointF zugBeginn; ///< device pixels
    Zeitfenster zugFenster;
    Ausschnitt zugAusschnitt;
    double radrest = 0;
};

} // namespace varnoth
