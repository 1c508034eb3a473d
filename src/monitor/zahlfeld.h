#pragma once

#include "textvorrat.h"

#include <QLabel>

#include <memory>

namespace varnoth {

/// A label for one line of text that changes many times a second. It looks like any other label, but lays
/// each text out only once: numbers come again and again.
class Zahlfeld : public QLabel {
    Q_OBJECT

public:
    explicit Zahlfeld(QWidget* eltern = nullptr);

    /// Uses what is laid out for another field of the same font, and the other way round.
    void TeileVorrat(const Zahlfeld& anderes) { vorrat = anderes.vorrat; }
    const Textvorrat& Vorrat() const { return *vorrat; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    std::shared_ptr<Textvorrat> vorrat = std::make_shared<Textvorrat>();
};

} // namespace varnoth
