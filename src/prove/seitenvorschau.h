#pragma once

#include "berichtsseiten.h"

#include <QAbstractScrollArea>
#include <QBuffer>
#include <QPdfWriter>
#include <QTimer>

#include <memory>

namespace varnoth {

/// The pages of a report as its PDF file holds them, one below the other and as wide as the window. Only
/// those in sight are painted.
class Seitenvorschau : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit Seitenvorschau(QWidget* parent = nullptr);

    /// Shows another report soon: it is read in one turn of the event loop and laid out in the next ones, so
    /// that what waits has its turn between them. What was there stays until then.
    void Zeige(Berichtsdruck druck);
    /// How many pages are shown; 0 as long as there are none.
    int Seitenzahl() const;

signals:
    /// Other pages are shown now.
    void Gezeigt();

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void Arbeite();
    double Massstab() const;
    QRectF Seitenfeld(int seite) const;
    void RichteBalken();
    void MaleSeite(QPainter& maler, int seite) const;

    QBuffer nirgends; ///< nothing is ever written
    QPdfWriter papier;
    QTimer arbeit;
    Berichtsdruck auftrag;
    std::unique_ptr<Berichtsseiten> naechste; ///< read, being laid out
    std::unique_ptr<Berichtsseiten> seiten;
};

} // namespace varnoth
