#pragma once

#include <QLabel>

namespace varnoth {

/// A label with one line of plain text that gets narrower than its text where room is short: it then ends
/// with an ellipsis.
class Kurzlabel : public QLabel {
public:
    /// @param zeichen so many average characters keep their room where the text has them
    explicit Kurzlabel(QWidget* parent, int zeichen = 4);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    int kleinsteZeichenzahl;
};

} // namespace varnoth
