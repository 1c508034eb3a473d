#pragma once

#include "darstellung.h"
#include "messanbieter.h"
#include "notizliste.h"
#include "verlaufszeichner.h"

#include <QPixmap>
#include <QWidget>

#include <array>
#include <functional>
#include <limits>

namespace varnoth {

/// Measured values over time: curves, the band of their minimum and maximum registers, rows of states, gaps,
/// notes, a cursor and two marks. What it shows is kept by columns; while it follows live data only what is
/// new is worked out and drawn. It says `Angesehen` whenever cursor or marks have other values.
class Verlaufsbild : public QWidget {
    Q_OBJECT

public:
    explicit Verlaufsbild(QWidget* eltern = nullptr);

    /// What it is drawn from; must outlive it.
    void SetzeAnbieter(Messanbieter& neuer);
    /// Another source is looked at.
    void Beginne();
    /// The source has grown, or a replay stands elsewhere.
    void Erneuere();

    void SetzeWahl(const Verlaufswahl& neue);
    const Verlaufswahl& Wahl() const { return blatt.wahl; }

    void Folge(bool neu);
    void SetzeBreite(Zeit breite);
    void ZeigeAlles();
    const Verlaufsblick& Blick() const { return blick; }
    /// The stretch of time in view.
    Zeitspanne Spanne() const { return blatt.spanne; }

    /// The time at which the cursor stands: that of a pass.
    std::optional<Zeit> Zeiger() const { return blatt.zeiger; }
    /// Puts the cursor on the pass nearest to a time.
    void SetzeZeiger(Zeit laufzeit);
    /// Puts a mark where the cursor stands.
    void SetzeMarke(bool zweite);
    void LoescheMarken();
    /// What the cursor and the marks show, in words; empty without them.
    QString Zeigerworte() const;
    QString Markenworte() const;
    const Strahlabstaende& Abstaende() const { return blatt.abstaende; }

    /// Looks for a note that somebody has just made for a time.
    void SiehNotizNach(Zeit laufzeit);
    /// Whether everything that it shows is as exact as it becomes.
    bool IstFertig() const;
    /// Where a time and a value lie, in its own pixels.
    QPointF Stelle(Zeit laufzeit, double wert) const;

    /// Draws all of it as it is, in the colours of a palette, on whatever has its size.
    void Male(QPainter& maler, const QPalette& vorbild);
    /// Fills all texts in the current language again.
    void Lokalisiere();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Cursor or marks have moved, or what they show has changed.
    void Angesehen();
    /// The view follows, shows all, or no longer does.
    void Geblickt();
    /// A place in time was clicked.
    void Angeklickt(qint64 laufzeit);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    static constexpr std::int64_t KeineSpalte = std::numeric_limits<std::int64_t>::max();

    /// What the picture of the curves was drawn of.
    struct Gemaltes {
        std::int64_t erste = 0;
        Zeit spaltenbreite{};
        QSize groesse{};
        Wertebereich werte{};
        Verlaufswahl wahl{};
        Strahlabstaende abstaende{};
        Messangaben angaben{};

        bool operator==(const Gemaltes&) const = default;
    };

    /// What a picture shows, apart from what is set by hand.
    struct Gezeigtes {
        Gemaltes spuren{};
        QRectF kurven{};
        std::optional<Zeit> jetzt{};
        QString hinweis{};

        bool operator==(const Gezeigtes&) const = default;
    };

    /// What the layout was made of.
    struct Feldgrund {
        Verlaufswahl wahl{};
        Wertebereich werte{};
        QSize groesse{};
        double dichte = 1;

        bool operator==(const Feldgrund&) const = default;
    };

    /// What the colours were made of.
    struct Farbgrund {
        QPalette palette{};
        Strahlfarbsatz satz{};

        bool operator==(const Farbgrund&) const = default;
    };

    void Richte();
    void RichteFeld();
    void FordereBild();
    int ErsteZuMalende() const;
    const Verlaufsfarben& Farben();
    void RichteSpalten();
    Wertebereich GanzeWerte() const;
    void MerkeStrahlen();
    void Plane();
    void Arbeite();
    void Deute();
    void MerkeGeaendert(std::optional<std::int64_t> ab);
    void ErneuereGemaltes();
    Gemaltes Jetziges() const;
    void GehZumDurchgang(int richtung, bool einzeln);
    bool Taste(int taste, Qt::KeyboardModifiers mit);
    void Nach(const std::function<void()>& bewegung);

    Messanbieter* anbieter = nullptr;
    Verlaufsblick blick;
    Spaltenspeicher spalten;
    std::vector<Spaltensinn> sinn;
    std::int64_t sinnAb = 0; ///< the column of the first of them
    Notizliste notizen;
    Verlaufsblatt blatt;
    Verlaufsfeld feld;
    std::optional<Feldgrund> feldVon;
    Verlaufsfarben farben;
    std::optional<Farbgrund> farbenVon;
    std::array<int, AnzahlOptikteile> strahlen{}; ///< the most that were seen
    std::optional<Messdurchgang> amZeiger, anMarkeA, anMarkeB;
    QPixmap gemaltes;
    Gemaltes gemaltVon;
    Gezeigtes gefordert;                    ///< what the last picture was asked for of
    std::int64_t geaendertAb = KeineSpalte; ///< columns from here on have changed
    std::int64_t zuMalenAb = KeineSpalte;   ///< and from here on they are not drawn yet
    std::optional<QPointF> gedrueckt;
    QPointF gezogenBis;
    bool gezogen = false;
    bool geplant = false;
};

} // namespace varnoth
