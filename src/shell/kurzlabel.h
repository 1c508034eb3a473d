#pragma once

#include <QLabel>

namespace varnoth {

/// A label with one line of plain text that gets narrower than its text where room is short: it then ends
/// with an ellipsis.
class Kurzlabel : public QLabel {
public:
    explicit Kurzlabel(QWidget* parent);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
};

} // namespace varnoth
