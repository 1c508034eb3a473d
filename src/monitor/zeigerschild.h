#pragma once

#include "schild.h"

namespace varnoth {

/// A plate beside the mouse pointer that tells which beam it points at.
class Zeigerschild : public Schild {
public:
    explicit Zeigerschild(QWidget& ansicht);

    /// Shows a text beside a place, inside of what lies below; an empty text takes it away.
    void Zeige(const QString& text, const QPoint& stelle);
};

} // namespace varnoth
