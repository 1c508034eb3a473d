#include "tipptext.h"

#include <QTextDocument>

namespace varnoth {

QString AlsTipp(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace varnoth
