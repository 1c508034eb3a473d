#include "wertfeld.h"

#include "ansichtsregeln.h"
#include "texte.h"

#include <QAccessibleWidget>
#include <QEvent>

#include <algorithm>

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

Wertfeld::Wertfeld(QWidget* eltern) : QLabel(eltern) {
    QAccessible::installFactory(MacheZugang);
}

QString Wertfeld::Ansage() const {
    if (text() == QString::fromUtf8(KeinWert))
        return accessibleName() + QStringLiteral(": ") + QString::fromStdString(LadeText(TextKeineWerte));
    const QString wert = accessibleName() + QLatin1Char(' ') + text();
    return zusatz.isEmpty() ? wert : wert + QStringLiteral(", ") + zusatz;
}

QSize Wertfeld::sizeHint() const {
    if (zeichen != text().size()) {
        zeichen = text().size();
        QString breiteste = text();
        std::ranges::replace_if(
            breiteste, [](QChar eines) { return eines.isDigit(); }, QLatin1Char('8'));
        platz = QLabel::minimumSizeHint();
        platz.rwidth() +=
            fontMetrics().horizontalAdvance(breiteste) - fontMetrics().horizontalAdvance(text());
    }
    return platz;
}

void Wertfeld::changeEvent(QEvent* ereignis) {
    zeichen = -1;
    QLabel::changeEvent(ereignis);
}

} // namespace varnoth
