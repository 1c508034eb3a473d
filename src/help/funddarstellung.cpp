#include "funddarstellung.h"

#include <QApplication>
#include <QListView>
#include <QPainter>

namespace varnoth {

namespace {

constexpr int Rand = 4;
constexpr int Umbruch = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

QFont Titelschrift(QFont schrift) {
    schrift.setBold(true);
    return schrift;
}

/// The room for title and excerpt in a list of this width.
QRect Textbreite(const QStyleOptionViewItem& option) {
    const auto* const liste = qobject_cast<const QListView*>(option.widget);
    const int breite = liste != nullptr ? liste->viewport()->width() : option.rect.width();
    return {0, 0, breite - 2 * Rand, 0};
}

QSize Textgroesse(const QFont& schrift, const QStyleOptionViewItem& option, const QString& text) {
    return QFontMetrics(schrift).boundingRect(Textbreite(option), Umbruch, text).size();
}

QString Auszug(const QModelIndex& index) {
    return index.data(Funddarstellung::AuszugRolle).toString();
}

} // namespace

QSize Funddarstellung::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize titel = Textgroesse(Titelschrift(option.font), option, index.data().toString());
    const QSize auszug = Textgroesse(option.font, option, Auszug(index));
    return {Textbreite(option).width(), titel.height() + auszug.height() + 2 * Rand};
}

void Funddarstellung::paint(QPainter* maler, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    QStyleOptionViewItem feld(option);
    initStyleOption(&feld, index);
    feld.text.clear();
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &feld, maler, option.widget);

    const bool gewaehlt = option.state.testFlag(QStyle::State_Selected);
    const QString titel = index.data().toString();
    QRect platz = option.rect.adjusted(Rand, Rand, -Rand, -Rand);
    maler->save();
    maler->setPen(option.palette.color(gewaehlt ? QPalette::HighlightedText : QPalette::Text));
    maler->setFont(Titelschrift(option.font));
    maler->drawText(platz, Umbruch, titel);
    platz.setTop(platz.top() + Textgroesse(maler->font(), option, titel).height());
    maler->setFont(option.font);
    maler->drawText(platz, Umbruch, Auszug(index));
    maler->restore();
}

} // namespace varnoth
