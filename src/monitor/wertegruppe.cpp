#include "wertegruppe.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace varnoth {

void Wertegruppe::paintEvent(QPaintEvent* /*ereignis*/) {
    QStyleOptionGroupBox vorgabe;
    initStyleOption(&vorgabe);
    vorgabe.subControls &= ~QStyle::SubControls(QStyle::SC_GroupBoxFrame);
    QStylePainter(this).drawComplexControl(QStyle::CC_GroupBox, vorgabe);
}

} // namespace varnoth
