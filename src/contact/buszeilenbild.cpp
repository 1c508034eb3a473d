#include "buszeilenbild.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableView>

#include <algorithm>

namespace varnoth {

namespace {

/// The text as far as the room goes. Nothing behind what would fit in the narrowest letters is measured.
QString Gekuerzt(const QString& text, const QFontMetrics& masse, int breite) {
    const int hoechstens = std::max(breite, 0) / std::max(masse.horizontalAdvance(u'i'), 1) + 2;
    return masse.elidedText(text.left(hoechstens), Qt::ElideRight, breite);
}

class Zeilenmaler : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* maler, const QStyleOptionViewItem& vorgabe,
               const QModelIndex& stelle) const override {
        QStyleOptionViewItem zelle = vorgabe;
        initStyleOption(&zelle, stelle);
        const QStyle& stil = *zelle.widget->style();
        stil.drawPrimitive(QStyle::PE_PanelItemViewItem, &zelle, maler, zelle.widget);
        const int rand = stil.pixelMetric(QStyle::PM_FocusFrameHMargin, &zelle, zelle.widget) + 1;
        const QRect platz = zelle.rect.adjusted(rand, 0, -rand, 0);
        const bool gewaehlt = zelle.state.testFlag(QStyle::State_Selected);
        const auto gruppe = zelle.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        maler->setPen(zelle.palette.color(gruppe, gewaehlt ? QPalette::HighlightedText : QPalette::Text));
        maler->drawText(platz, static_cast<int>(zelle.displayAlignment) | Qt::TextSingleLine,
                        Gekuerzt(zelle.text, zelle.fontMetrics, platz.width()));
    }
};

} // namespace

void MaleSchnell(QTableView& tabelle) {
    tabelle.setItemDelegate(new Zeilenmaler(&tabelle));
}

} // namespace varnoth
