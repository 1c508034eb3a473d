#pragma once

#include <QLabel>

namespace varnoth {

/// A label with a measured value. Its accessible name is the caption of the value; a screen reader hears
/// caption, value and what is added.
class Wertfeld : public QLabel {
    Q_OBJECT

public:
    explicit Wertfeld(QWidget* eltern = nullptr);

    /// What is said behind the value, such as its position or age; may be empty.
    void SetzeZusatz(const QString& neuer) { zusatz = neuer; }
    /// "TU 107, 530 mm"; without a value the caption and that there is none.
    QString Ansage() const;

    /// The place that any number with as many digits needs: another value is no reason to arrange the view
    /// anew.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* ereignis) override;

private:
    mutable QSize platz;
    mutable qsizetype zeichen = -1; // of the text that `platz` is for
    QString zusatz;
};

} // namespace varnoth
