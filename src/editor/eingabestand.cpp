#include "eingabestand.h"

#include "listenbindung.h"

#include <QAbstractButton>
#include <QButtonGroup>
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

// Of a group all buttons are set before it looks after them again: none of them may be checked.
void StelleEingabestandHer(const QWidget& element, const QVariantMap& stand) {
    const auto gruppen = element.findChildren<QButtonGroup*>();
    for (QButtonGroup* const gruppe : gruppen)
        gruppe->setExclusive(false);
    for (auto* const knopf : element.findChildren<QAbstractButton*>())
        if (knopf->isCheckable())
            knopf->setChecked(stand.value(knopf->objectName()).toBool());
    for (QButtonGroup* const gruppe : gruppen)
        gruppe->setExclusive(true);
    for (auto* const box : element.findChildren<QComboBox*>()) {
        box->setCurrentIndex(stand.value(box->objectName()).toInt());
        ZeigeHinweis(*box);
    }
    for (auto* const feld : element.findChildren<QLineEdit*>())
        feld->setText(stand.value(feld->objectName()).toString());
}

} // namespace varnoth
