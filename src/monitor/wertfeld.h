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

private:
    QString zusatz;
};

} // namespace varnoth
