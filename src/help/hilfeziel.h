#pragma once

#include "hilfedatei.h"

#include <QString>

class QWidget;

namespace varnoth {

/// A place in the help.
struct Hilfeziel {
    QString seite;
    QString anker{}; ///< empty: the top of the page

    bool operator==(const Hilfeziel&) const = default;
};

/// The place that tells of a control: the page of its window or of the part of it that it stands in, at the
/// control's own paragraph where the page has one. A message box leads to its message. A window that the help
/// does not know, or none, leads to the first page.
Hilfeziel ZielZu(const Hilfedatei& datei, const QWidget* stelle);

/// The control with the focus in the window in front; in a window of child windows the active child window.
/// nullptr when no window of the program is in front.
QWidget* StelleVorn();

} // namespace varnoth
