#include "eingabestand.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace varnoth {

QVariantList EingabestandVon(const QWidget& element) {
    QVariantList stand;
    for (const auto* const box : element.findChildren<QComboBox*>())
        stand += box->currentIndex();
    for (const auto* const knopf : element.findChildren<QAbstractButton*>())
        stand += knopf->isChecked();
    for (const auto* const feld : element.findChildren<QLineEdit*>())
        stand += feld->text();
    return stand;
}

} // namespace varnoth
