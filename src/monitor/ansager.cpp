#include "ansager.h"

#include "startzustand.h"

#include <utility>

namespace varnoth {

namespace {

constexpr Zeit Abstand = std::chrono::milliseconds(500);

std::function<void(const QAccessibleEvent&)> derHoerer;
const Startwert startwert(derHoerer);

bool HoertJemand() {
    return derHoerer != nullptr || QAccessible::isActive();
}

void Sage(QAccessibleEvent& ereignis) {
    if (derHoerer)
        derHoerer(ereignis);
    else
        QAccessible::updateAccessibility(&ereignis);
}

} // namespace

void Ansager::SetzeHoerer(std::function<void(const QAccessibleEvent&)> hoerer) {
    derHoerer = std::move(hoerer);
}

void Ansager::Beobachte(QWidget& element, QAccessible::Event art, std::function<QString()> text) {
    stellen.push_back({&element, art, std::move(text), {}});
}

bool Ansager::Melde(Zeit jetzt) {
    if (!HoertJemand())
        return true;
    if (zuletzt && jetzt - *zuletzt < Abstand)
        return false;
    for (Stelle& stelle : stellen) {
        const QString text = stelle.text();
        if (text == stelle.gemeldet)
            continue;
        stelle.gemeldet = text;
        zuletzt = jetzt;
        QAccessibleEvent ereignis(stelle.element, stelle.art);
        Sage(ereignis);
    }
    return true;
}

} // namespace varnoth
