#include "eingabestand.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace varnoth {

// By name, since the order of children changes whenever a page comes to the front.
QVariantMap EingabestandVon(const QWidget& element) {
    QVariantMap stand;
    for (const auto* const box : element.findChildren<QComboBox*>())
        stand[box->objectName()] = box->currentIndex();
    for (const auto* const knopf : element.findChildren<QAbstractButton*>())
        if (!knopf->objectName().isEmpty())
            stand[knopf->objectName()] = knopf->isChecked();
    for (const auto* const feld : element.findChildren<QLineEdit*>())
        stand[feld->objectName()] = feld->text();
    return stand;
}

} // namespace varnoth
