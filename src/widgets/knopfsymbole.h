#pragma once

#include <string>
#include <string_view>

class QDialogButtonBox;
class QWidget;

namespace varnoth {

/// The file name without ending of the picture for a button by the object names of its form and itself; empty
/// where none belongs to it. Buttons of the same speaking name do the same kind of thing in every window.
std::string_view SymbolFuerKnopf(const std::string& form, const std::string& name);

/// Gives the push buttons of a form that have no picture theirs. What is inside forms of their own is left
/// out.
void GibKnoepfenSymbole(QWidget& form);

/// Gives the buttons of one of Qt's own dialogs the same pictures in place of Qt's, and none to those whose
/// kind has none here. To be called when the buttons are there.
void GibKnoepfenSymbole(const QDialogButtonBox& knoepfe);

} // namespace varnoth
