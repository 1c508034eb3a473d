#include "wertfeld.h"

#include "ansichtsregeln.h"
#include "texte.h"

#include <QAccessibleWidget>
#include <QEnterEvent>

namespace varnoth {

namespace {

constexpr std::int16_t TextKeineWerte = 9000;

class Wertfeldzugang : public QAccessibleWidget {
public:
    explicit Wertfeldzugang(Wertfeld* wertfeld)
        : QAccessibleWidget(wertfeld, QAccessible::StaticText), feld(wertfeld) {}

    QString text(QAccessible::Text art) const override {
        if (art == QAccessible::Name)
            return feld->Ansage();
        return art == QAccessible::Value ? feld->text() : QAccessibleWidget::text(art);
    }

private:
    Wertfeld* feld;
};

QAccessibleInterface* MacheZugang(const QString& /*klasse*/, QObject* element) {
    auto* feld = qobject_cast<Wertfeld*>(element);
    return feld != nullptr ? new Wertfeldzugang(feld) : nullptr;
}

} // namespace

int Zeilenhoehe(const QFont& schrift) {
    return QFontMetrics(schrift).boundingRect(QRect(), 0, QStringLiteral("8")).height();
}

Wertfeld::Wertfeld(QWidget* eltern) : Zahlfeld(eltern) {
    QAccessible::installFactory(MacheZugang);
}

QString Wertfeld::Ansage() const {
    if (text() == QString::fromUtf8(KeinWert))
        return accessibleName() + QStringLiteral(": ") + QString::fromStdString(LadeText(TextKeineWerte));
    const QString wert = accessibleName() + QLatin1Char(' ') + text();
    return zusatz.isEmpty() ? wert : wert + QStringLiteral(", ") + zusatz;
}

void Wertfeld::SetzeZiffern(const QFont& schrift, int breite) {
    setFont(schrift);
    setFixedSize(breite, Zeilenhoehe(schrift));
}

void Wertfeld::enterEvent(QEnterEvent* ereignis) {
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    Zahlfeld::enterEvent(ereignis);
}

void Wertfeld::leaveEvent(QEvent* ereignis) {
    if (!hasSelectedText())
        setTextInteractionFlags(Qt::NoTextInteraction);
    Zahlfeld::leaveEvent(ereignis);
}

} // namespace varnoth
