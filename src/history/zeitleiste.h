#pragma once

#include "ereignissuche.h"
#include "leistenspalten.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace varnoth {

/// The time line of a record: gaps hatched, changes of state as strokes, notes as flags, and where the replay
/// stands. A click or a drag asks to go elsewhere; keys do the rest.
class Zeitleiste : public QWidget {
    Q_OBJECT

public:
    explicit Zeitleiste(QWidget* parent = nullptr);

    /// Shows a source from its beginning; nullptr: nothing. The source must live until another call.
    void SetzeQuelle(const Messquelle* neue);
    /// Where the replay stands.
    void SetzePosition(Zeit neue);
    /// Adds a note that was found in the source.
    void NimmNotiz(const Sprungfund& notiz);
    /// Fills all texts in the current language again.
    void Lokalisiere();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void Gezogen(Zeit laufzeit);
    /// A key asks to play or to stand still, for a step, an event, an end, or another speed; `vorwaerts` also
    /// stands for faster.
    void Umschalten();
    void Schritt(bool vorwaerts);
    void Sprung(bool vorwaerts);
    void Tempo(bool schneller);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    QRect Bahn() const;
    Zeit ZeitBei(int x) const;
    int Stelle(Zeit laufzeit) const;
    QString Tipp(int x) const;
    void MaleBahn(QPainter& maler) const;
    void MaleNotizen(QPainter& maler) const;
    void MalePosition(QPainter& maler) const;

    const Messquelle* quelle = nullptr;
    Zeitspanne spanne;
    Zeit position{0};
    std::vector<Leistenspalte> spalten;
    std::vector<Sprungfund> notizen;
};

} // namespace varnoth
