#pragma once

#include <QWidget>

namespace varnoth {

/// A small corner in a control that says: not the factory default. It takes no clicks.
class Abweichungsmarke : public QWidget {
public:
    explicit Abweichungsmarke(QWidget& element);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
};

} // namespace varnoth
