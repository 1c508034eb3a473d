#pragma once

#include <QString>

namespace varnoth {

/// The program's version: major, minor and revision, joined by points.
const QString& Versionstext();

/// The two lines that splash window and about box show, in the current language: product with version, and
/// owner.
QString Produktzeile();
QString Eigentuemerzeile();

} // namespace varnoth
