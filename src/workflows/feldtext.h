#pragma once

#include <QString>

class QLineEdit;
class QWidget;

namespace varnoth {

/// Shows a text from its beginning in a read-only field; nothing happens when the field shows it already.
void ZeigeText(QLineEdit& feld, const QString& text);

/// Makes a field or label at least as wide as a number of average characters of its font, if it is not
/// already.
void BietePlatz(QWidget& element, int zeichen);

} // namespace varnoth
