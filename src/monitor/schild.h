#pragma once

#include <QLabel>

namespace varnoth {

/// A text on a plate over another element. It lets the mouse through and is hidden while it has no text.
class Schild : public QLabel {
public:
    Schild(const QString& name, QWidget& darunter);

    /// Shows a text; an empty one takes the plate away.
    void SetzeText(const QString& text);

protected:
    /// As wide as the text, at most as what lies below; then wrapped.
    void PasseGroesseAn();
};

} // namespace varnoth
