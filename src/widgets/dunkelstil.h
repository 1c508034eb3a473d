#pragma once

#include <QProxyStyle>

namespace varnoth {

/// Draws on dark grounds what the style beneath would draw dark on dark: the edges of what can be clicked or
/// filled in, the lines that part groups of commands, and the title bars of windows inside the main window.
/// With high contrast the edges have the colour of the writing, and all that has a shape has one.
class Dunkelstil : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* vorgabe, QPainter* maler,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* vorgabe, QPainter* maler,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl element, const QStyleOptionComplex* vorgabe, QPainter* maler,
                            const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap zeichen, const QStyleOption* vorgabe,
                       const QWidget* widget) const override;
    int styleHint(StyleHint frage, const QStyleOption* vorgabe, const QWidget* widget,
                  QStyleHintReturn* ausfuehrlich) const override;
};

} // namespace varnoth
