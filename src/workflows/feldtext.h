#pragma once

#include <QString>

class QLineEdit;
class QProgressBar;
class QWidget;

namespace varnoth {

/// Shows a text from its beginning in a read-only field; nothing happens when the field shows it already.
void ZeigeText(QLineEdit& feld, const QString& text);

/// Makes a read-only field look like what it is: text without the frame and ground of an input field, and no
/// stop for the Tab key. Its text can still be marked with the mouse and copied.
void MacheZurAnzeige(QLineEdit& feld);

/// Shows a value in a progress bar, which is painted together with all else that has changed. By itself it
/// would paint at once, and keep the line waiting.
void ZeigeStand(QProgressBar& balken, int wert);

/// Makes a field or label at least as wide as a number of average characters of its font, if it is not
/// already.
void BietePlatz(QWidget& element, int zeichen);

/// Keeps the place of an element that is hidden, so that nothing around it moves when it comes and goes.
void BehaltePlatz(QWidget& element);

} // namespace varnoth
