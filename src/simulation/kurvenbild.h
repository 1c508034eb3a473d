#pragma once

#include "kurven.h"

#include <QLocale>
#include <QWidget>

namespace varnoth {

/// Shows a diagram of speed over size: the curves of objects and of holes with a legend, the marked points
/// with guides to both axes. Numbers are written as the user's system does.
class Kurvenbild : public QWidget {
    Q_OBJECT

public:
    explicit Kurvenbild(QWidget* eltern = nullptr);

    /// Sets how numbers are written; at first as the system does.
    void SetzeGebiet(const QLocale& neues);

    /// Shows another diagram; drawn once, however often it is called before.
    void Zeige(const Diagramm& neues);

    /// Where a size and a speed lie in the widget.
    QPointF Stelle(const Diagrammpunkt& punkt) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Kurvenfeld Feld() const;

    Diagramm diagramm;
    QLocale gebiet = QLocale::system();
};

} // namespace varnoth
