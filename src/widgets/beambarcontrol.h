#pragma once

#include "strahlbild.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace varnoth {

/// What the mouse and the keyboard do on a beam bar.
enum class Bedienart { Blanking = 0, Zoom = 1 };

/// Shows the beams of one optical part, beam 0 at the bottom, transmitter left, receiver right, with a scale
/// in millimetres. The wheel zooms, dragging with the middle button or on the scale moves the view. In the
/// mode Zoom dragging over beams zooms in on them and a double click shows all; in the mode Blanking a click
/// or drag blanks beams and frees them.
class BeamBarControl : public QWidget {
    Q_OBJECT

public:
    explicit BeamBarControl(QWidget* eltern = nullptr);

    /// Sets the number of beams, 0 and up; beams that are new are free. Another number shows all beams again.
    void SetzeStrahlanzahl(int anzahl);
    int Strahlanzahl() const { return static_cast<int>(zustaende.size()); }
    /// Sets the distance of two beams in millimetres; without one (0) there is no scale.
    void SetzeStrahlabstand(int mm);
    int Strahlabstand() const { return abstandMm; }

    /// Selects the beam that the next two operations mean. An index that is no beam selects none.
    void WaehleStrahl(int index);
    /// Sets the selected beam's display state; does nothing when none is selected.
    void SetzeZustand(Strahlzustand zustand);
    /// The selected beam's display state; free when none is selected.
    Strahlzustand Zustand() const;
    /// The display state of any beam; free for an index that is no beam.
    Strahlzustand Zustand(int index) const;

    /// Off: changes are collected. On: what has changed meanwhile is drawn, once.
    void SetzeAutomatischesZeichnen(bool an);

    /// Whether the states are true now; old ones are drawn pale, without any the beams are grey and hatched
    /// whatever their states. At first they are true.
    void SetzeDatenstand(Datenstand neuer);
    Datenstand Stand() const { return stand; }

    /// More for those who watch than for those who edit: a zoomed bar shows all its beams in a strip beside
    /// the others, where a click or drag moves the view, and the row of the beam under the pointer is marked
    /// across the whole width. Off at first.
    void SetzeBeobachtung(bool an);

    void SetzeBedienart(Bedienart art);
    Bedienart Bedienung() const { return bedienart; }

    /// The zoom window.
    const Ausschnitt& SichtbarerAusschnitt() const { return ausschnitt; }
    void ZeigeAusschnitt(const Ausschnitt& ausschnitt);
    void ZeigeAlles();
    bool IstGezoomt() const { return ausschnitt != GanzerAusschnitt(Strahlanzahl()); }
    /// The room above the beams that is left for a line of text about the view.
    QRect Kopfzeile() const;

    /// The beam at a place in the widget, -1 when there is none.
    int StrahlBei(const QPointF& stelle) const;
    /// The middle of a beam in the widget.
    QPointF Strahlmitte(int strahl) const;
    /// The beam under the pointer or the keyboard's cursor, as StrahlUnterMaus told it last, and its place.
    int StrahlAmZeiger() const { return zeiger; }
    QPointF Zeigerstelle() const { return zeigerstelle; }

    /// What a screen reader says of the beams, in the current language: how many, which are interrupted or
    /// blanked, and the beam at the pointer or cursor.
    QString Ansage() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Another beam (index) is under the pointer or under the keyboard's cursor; -1: none.
    void StrahlUnterMaus(int index);
    /// The user has blanked or freed a beam.
    void BlankingGeaendert(int index, bool geblankt);
    /// Another part of the beams is shown.
    void AusschnittGeaendert();

protected:
    bool event(QEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

private:
    enum class Zug { Keiner, Schieben, Band, Malen, Uebersicht };

    Bildvorgabe Vorgabe(double dichte) const;
    Aufteilung Plan() const;
    int GeraeteY(const QPointF& stelle) const;
    bool IstStrahl(int index) const { return index >= 0 && index < Strahlanzahl(); }
    void Geaendert();
    void StrahlGeaendert(int strahl);
    void ErneuereStrahlen();
    void NimmAusschnitt(const Ausschnitt& neuer);
    bool AufUebersicht(const QPointF& stelle) const;
    void GeheInUebersicht(const QPointF& stelle);
    void ZeigeUnterMaus(int strahl);
    void SetzeCursor(int strahl);
    void Blanke(int strahl, bool geblankt);
    void Male(int von, int bis);
    void BeginneMalen(int strahl);
    void ZieheWeiter(const QPointF& stelle);
    void BeendeBand();
    bool Zoomtaste(int taste);
    std::optional<int> Cursorziel(int taste) const;

    std::vector<Strahlzustand> zustaende;
    int abstandMm = 0;
    int gewaehlt = -1;
    bool automatisch = true;
    bool geaendert = false;
    std::vector<int> geaenderteStrahlen;
    Datenstand stand = Datenstand::Gueltig;
    bool beobachtung = false;
    Bedienart bedienart = Bedienart::Zoom;
    Ausschnitt ausschnitt;
    Strahlbild bild;

    int zeiger = -1;
    QPointF zeigerstelle;
    int cursor = 0;
    bool zeigeCursor = false;
    Zug zug = Zug::Keiner;
    QPointF zugStart;
    Ausschnitt zugAusschnitt;
    int bandEnde = 0;
    int letzterGemalt = -1;
    bool malzustand = false;
};

} // namespace varnoth
