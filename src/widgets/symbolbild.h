#pragma once

#include <QByteArray>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace varnoth {

/// The two colours in which a picture is drawn.
struct Symbolfarben {
    QColor linie;
    QColor betonung;

    bool operator==(const Symbolfarben&) const = default;
};

/// The colours of a picture on a control that uses this palette. A chosen row of a menu or list and a control
/// that cannot be chosen have but one.
Symbolfarben SymbolfarbenAus(const QPalette& palette, QIcon::Mode mode);

/// The SVG text of a picture with the two colours that it is designed in, #222222 for lines and #2a6fb5 for
/// what stands out, replaced by these.
QByteArray Umgefaerbt(QByteArray svg, const Symbolfarben& farben);

/// A picture of the program by its file name without ending, drawn in the colours of the application's
/// palette at the time, light or dark. Empty where there is none of that name.
QIcon Symbolbild(const QString& name);

/// An SVG file or resource as a picture of any size, in its own colours. Empty where there is none.
QIcon FarbigesBild(const QString& datei);

} // namespace varnoth
