#pragma once

#include <QImage>
#include <QString>

namespace varnoth::hilfebilder {

/// Stores a picture as a small PNG: at most 256 colours, those that the picture has most of.
/// @return whether it could be written
bool Speichere(const QImage& bild, const QString& pfad);

} // namespace varnoth::hilfebilder
