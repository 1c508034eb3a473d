#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <QTextDocument>

namespace varnoth {

/// A report as it goes to paper.
struct Berichtsdruck {
    QString html;
    QString fuss;      ///< at the foot of each page, beside its number
    QString seitewort; ///< "Seite %1 von %2"
};

/// The pages of a report as a device lays them out, to be painted one by one, black on white whatever the
/// colours of the screen.
class Berichtsseiten {
public:
    /// Reads the report. The device must live as long as the pages do.
    Berichtsseiten(const Berichtsdruck& druck, QPagedPaintDevice& geraet);

    /// Lays some more of them out; a long table takes its time all the same. Whether there is more to do.
    /// Nobody has to call it.
    bool LegeAus();
    /// How many there are, at least one. Lays out what is not yet.
    int Anzahl() const;
    /// Paints what lies within the margins of a page, from 0 on. The painter's origin is the corner of the
    /// margins, its unit a point of the device.
    void Male(QPainter& maler, int seite) const;

private:
    /// The report alone.
    class Dokument : public QTextDocument {
    protected:
        QVariant loadResource(int art, const QUrl& name) override;
    };

    QFont Schrift(double punkte) const;
    void MaleInhalt(QPainter& maler, int seite) const;
    void MaleFuss(QPainter& maler, int seite) const;

    Dokument dokument;
    QString fuss;
    QString seitewort;
    int punktdichte; ///< of the device, per inch
    double fusshoehe;
    int gelegteSeiten = 0;
};

} // namespace varnoth
