#pragma once

#include <QStyledItemDelegate>

namespace varnoth {

/// How a find looks in a list: the title in bold letters, below it the excerpt in as many lines as it takes.
class Funddarstellung : public QStyledItemDelegate {
public:
    /// The role of the excerpt; the title is the item's text.
    static constexpr int AuszugRolle = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* maler, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace varnoth
