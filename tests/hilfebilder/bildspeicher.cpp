#include "bildspeicher.h"

#include <QHash>
#include <QList>

#include <algorithm>

namespace varnoth::hilfebilder {

namespace {

constexpr qsizetype MeisteFarben = 256;
constexpr int StaerksteKompression = 0; // Qt's quality of a PNG runs the other way

/// The colours of a picture, the most frequent first; of equally frequent ones the order is fixed.
QList<QRgb> FarbenNachHaeufigkeit(const QImage& bild) {
    QHash<QRgb, int> anzahl;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            ++anzahl[bild.pixel(x, y)];
    QList<QRgb> farben = anzahl.keys();
    std::ranges::sort(farben,
                      [&](QRgb a, QRgb b) { return anzahl[a] != anzahl[b] ? anzahl[a] > anzahl[b] : a < b; });
    return farben;
}

} // namespace

bool Speichere(const QImage& bild, const QString& pfad) {
    const QImage deckend = bild.convertToFormat(QImage::Format_RGB32);
    const QList<QRgb> farben = FarbenNachHaeufigkeit(deckend).mid(0, MeisteFarben);
    return deckend.convertToFormat(QImage::Format_Indexed8, farben, Qt::AvoidDither)
        .save(pfad, "PNG", StaerksteKompression);
}

} // namespace varnoth::hilfebilder
