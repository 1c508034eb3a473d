#pragma once

#include "zahlfeld.h"

namespace varnoth {

/// The height, in pixels, that a label needs for a line of digits.
int Zeilenhoehe(const QFont& schrift);

/// A label with a measured value. Its accessible name is the caption of the value; a screen reader hears
/// caption, value and what is added. Its text can be selected while the pointer is over it: a label whose
/// text can be takes several times as long to show another.
class Wertfeld : public Zahlfeld {
    Q_OBJECT

public:
    explicit Wertfeld(QWidget* eltern = nullptr);

    /// What is said behind the value, such as its position or age; may be empty.
    void SetzeZusatz(const QString& neuer) { zusatz = neuer; }
    /// "TU 107, 530 mm"; without a value the caption and that there is none.
    QString Ansage() const;

    /// Gives the field its font and, once for all values, a place of so many pixels: another value is no
    /// reason to arrange the view anew.
    void SetzeZiffern(const QFont& schrift, int breite);

protected:
    void enterEvent(QEnterEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;

private:
    QString zusatz;
};

} // namespace varnoth
