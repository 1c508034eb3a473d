#include "strahlbalkenzugang.h"

#include "beambarcontrol.h"
#include "strahlansage.h"

#include <QAccessibleWidget>

namespace varnoth {

namespace {

class Strahlbalkenzugang : public QAccessibleWidget {
public:
    explicit Strahlbalkenzugang(BeamBarControl* strahlbalken)
        : QAccessibleWidget(strahlbalken, QAccessible::Graphic), balken(strahlbalken) {}

    QString text(QAccessible::Text art) const override {
        if (art == QAccessible::Value)
            return balken->Ansage();
        if (art != QAccessible::Description)
            return QAccessibleWidget::text(art);
        const QString status = balken->accessibleDescription();
        return status.isEmpty() ? balken->Ansage() : status + QStringLiteral("; ") + balken->Ansage();
    }

private:
    BeamBarControl* balken;
};

QAccessibleInterface* MacheZugang(const QString& /*klasse*/, QObject* element) {
    auto* balken = qobject_cast<BeamBarControl*>(element);
    return balken != nullptr ? new Strahlbalkenzugang(balken) : nullptr;
}

} // namespace

void RichteStrahlbalkenzugangEin() {
    QAccessible::installFactory(MacheZugang);
}

QString BeamBarControl::Ansage() const {
    return QString::fromStdString(
        Strahlansage(zustaende, stand, zeiger >= 0 || !hasFocus() ? zeiger : cursor, abstandMm));
}

} // namespace varnoth
