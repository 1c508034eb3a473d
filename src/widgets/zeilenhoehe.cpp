#include "zeilenhoehe.h"

#include <QAbstractItemView>
#include <QStyledItemDelegate>

#include <algorithm>

namespace varnoth {

namespace {

constexpr int Luft = 4; // logical pixels, above and below together

class Luftdelegat : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& vorgabe, const QModelIndex& stelle) const override {
        QSize groesse = QStyledItemDelegate::sizeHint(vorgabe, stelle);
        groesse.setHeight(std::max(groesse.height(), vorgabe.fontMetrics.height() + Luft));
        return groesse;
    }
};

} // namespace

void GibZeilenLuft(QAbstractItemView& liste) {
    liste.setItemDelegate(new Luftdelegat(&liste));
}

} // namespace varnoth
