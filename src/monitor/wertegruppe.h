#pragma once

#include <QGroupBox>

namespace varnoth {

/// The group of measured values: its title and nothing else. It is drawn anew with every value, and a frame
/// costs more than the values.
class Wertegruppe : public QGroupBox {
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
};

} // namespace varnoth
