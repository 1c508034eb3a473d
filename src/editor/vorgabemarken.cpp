#include "vorgabemarken.h"

#include "abweichungsmarke.h"
#include "texte.h"
#include "textmitwerten.h"
#include "tipptext.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextVorgabe = 9620;
constexpr std::int16_t TextZurVorgabe = 9621;

/// The menu that the control has anyway, or an empty one.
QMenu* NeuesMenue(QWidget& element) {
    auto* const feld = qobject_cast<QLineEdit*>(&element);
    QMenu* const menue = feld != nullptr ? feld->createStandardContextMenu() : new QMenu(&element);
    if (feld != nullptr)
        menue->addSeparator();
    menue->setObjectName(QStringLiteral("mnuVorgabe"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    return menue;
}

} // namespace

Vorgabemarken::Vorgabemarken(QObject* eltern) : QObject(eltern) {}

void Vorgabemarken::Fuege(Vorgabe vorgabe) {
    for (QWidget* const element : vorgabe.elemente) {
        marken.push_back({element, new Abweichungsmarke(*element), vorgaben.size()});
        element->installEventFilter(this);
        Beobachte(*element);
    }
    vorgaben.push_back(std::move(vorgabe));
}

void Vorgabemarken::Beobachte(QWidget& element) {
    const auto aktualisiere = [this] { Aktualisiere(); };
    if (auto* const box = qobject_cast<QComboBox*>(&element))
        connect(box, &QComboBox::currentIndexChanged, this, aktualisiere);
    if (auto* const knopf = qobject_cast<QAbstractButton*>(&element))
        connect(knopf, &QAbstractButton::toggled, this, aktualisiere);
    if (auto* const feld = qobject_cast<QLineEdit*>(&element))
        connect(feld, &QLineEdit::textChanged, this, aktualisiere);
}

void Vorgabemarken::Aktualisiere() {
    for (const Marke& marke : marken) {
        const bool markiert = IstMarkiert(marke);
        marke.zeichen->setVisible(markiert);
        marke.element->setAccessibleDescription(markiert ? Tipp(marke) : QString());
    }
}

bool Vorgabemarken::IstMarkiert(const Marke& marke) const {
    const Vorgabe& vorgabe = vorgaben[marke.vorgabe];
    const bool traegt = !vorgabe.traeger || vorgabe.traeger() == marke.element;
    return traegt && marke.element->isEnabled() && vorgabe.weichtAb();
}

QString Vorgabemarken::Tipp(const Marke& marke) const {
    return QString::fromStdString(LadeTextMit(TextVorgabe, {vorgaben[marke.vorgabe].worte().toStdString()}));
}

/// Whatever else the control has to say comes first.
void Vorgabemarken::ZeigeTipp(const Marke& marke, QPoint wo) const {
    const QString eigener = marke.element->toolTip();
    const QString text = eigener.isEmpty() ? Tipp(marke) : eigener + "\n" + Tipp(marke);
    QToolTip::showText(wo, AlsTipp(text), marke.element);
}

void Vorgabemarken::ZeigeMenue(const Marke& marke, QPoint wo) {
    const Vorgabe& vorgabe = vorgaben[marke.vorgabe];
    QMenu* const menue = NeuesMenue(*marke.element);
    QAction* const zurueck = menue->addAction(QString::fromStdString(LadeText(TextZurVorgabe)));
    zurueck->setObjectName(QStringLiteral("mnuZurVorgabe"));
    zurueck->setEnabled(vorgabe.weichtAb());
    connect(zurueck, &QAction::triggered, this, [this, nummer = marke.vorgabe] {
        vorgaben[nummer].stelleZurueck();
        Aktualisiere();
        emit Zurueckgestellt();
    });
    menue->popup(wo);
}

bool Vorgabemarken::eventFilter(QObject* objekt, QEvent* ereignis) {
    const auto marke = std::ranges::find(marken, objekt, &Marke::element);
    if (marke == marken.end())
        return false;
    if (ereignis->type() == QEvent::EnabledChange)
        Aktualisiere();
    if (ereignis->type() == QEvent::ToolTip && IstMarkiert(*marke)) {
        ZeigeTipp(*marke, static_cast<const QHelpEvent*>(ereignis)->globalPos());
        return true;
    }
    if (ereignis->type() == QEvent::ContextMenu) {
        ZeigeMenue(*marke, static_cast<const QContextMenuEvent*>(ereignis)->globalPos());
        return true;
    }
    return false;
}

} // namespace varnoth
