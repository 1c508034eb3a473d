#include "dunkelstil.h"

#include "darstellung.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <iterator>
#include <optional>

namespace varnoth {

namespace {

constexpr QStyle::PrimitiveElement ImmerMitRand[] = {QStyle::PE_FrameLineEdit, QStyle::PE_IndicatorCheckBox,
                                                     QStyle::PE_IndicatorRadioButton, QStyle::PE_PanelMenu};
constexpr QStyle::PrimitiveElement MitRand[] = {QStyle::PE_PanelButtonCommand, QStyle::PE_FrameGroupBox,
                                                QStyle::PE_FrameMenu,          QStyle::PE_FrameTabWidget,
                                                QStyle::PE_PanelTipLabel,      QStyle::PE_FrameWindow};
constexpr QStyle::ControlElement TeileMitRand[] = {QStyle::CE_ProgressBarGroove, QStyle::CE_TabBarTabShape,
                                                   QStyle::CE_HeaderSection};
constexpr QStyle::ComplexControl GanzeMitRand[] = {QStyle::CC_ComboBox, QStyle::CC_SpinBox};
/// On the buttons of a window that fills the main window.
constexpr QStyle::StandardPixmap Fensterzeichen[] = {
    QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton, QStyle::SP_TitleBarCloseButton};
constexpr float Zurueckhaltend = 0.45F;
constexpr int LueckeUnterTitel = 3; // between the title of a group box and its frame
constexpr int EinzugInLeiste = 6;   // of a line at both its ends
constexpr int EinzugImMenue = 5;

/// A list, a tree or a page of text is as dark as what it lies on.
bool IstBlatt(QStyle::PrimitiveElement element, const QWidget* widget) {
    return element == QStyle::PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

bool Enthaelt(const auto& liste, auto element) {
    return std::ranges::find(liste, element) != std::ranges::end(liste);
}

QPen Stift(const QStyleOption& vorgabe) {
    const bool waehlbar = vorgabe.state.testFlag(QStyle::State_Enabled);
    const bool hoch = IstHoherKontrast(vorgabe.palette);
    QColor farbe =
        vorgabe.palette.color(waehlbar ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    farbe.setAlphaF(hoch ? 1 : Zurueckhaltend);
    return {farbe, hoch && vorgabe.state.testFlag(QStyle::State_HasFocus) ? 2.0 : 1.0};
}

void Umrande(QPainter& maler, const QStyleOption& vorgabe, const QRectF& rand, bool rund = false) {
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Stift(vorgabe));
    maler.setBrush(Qt::NoBrush);
    const double halb = maler.pen().widthF() / 2;
    const QRectF linie = rand.adjusted(halb, halb, -halb, -halb);
    if (rund)
        maler.drawEllipse(linie);
    else
        maler.drawRect(linie);
    maler.restore();
}

void Ziehe(QPainter& maler, const QStyleOption& vorgabe, const QLine& linie) {
    maler.save();
    maler.setPen(Stift(vorgabe));
    maler.drawLine(linie);
    maler.restore();
}

/// A line in the middle of a rectangle, that long before its ends.
QLine Mittellinie(const QRect& platz, bool senkrecht, int einzug) {
    const QPoint mitte = platz.center();
    if (senkrecht)
        return {mitte.x(), platz.top() + einzug, mitte.x(), platz.bottom() - einzug};
    return {platz.left() + einzug, mitte.y(), platz.right() - einzug, mitte.y()};
}

/// The line of a menu's separator begins behind its text.
QLine Menuelinie(const QStyleOptionMenuItem& eintrag) {
    const int text =
        eintrag.text.isEmpty() ? 0 : eintrag.fontMetrics.horizontalAdvance(eintrag.text) + EinzugImMenue;
    return Mittellinie(eintrag.rect.adjusted(text, 0, 0, 0), false, EinzugImMenue);
}

/// What separates, where the style beneath leaves it dark on dark; nothing for all else.
std::optional<QLine> Trennlinie(QStyle::ControlElement element, const QStyleOption& vorgabe) {
    const auto* const eintrag = qstyleoption_cast<const QStyleOptionMenuItem*>(&vorgabe);
    if (element == QStyle::CE_MenuItem && eintrag != nullptr &&
        eintrag->menuItemType == QStyleOptionMenuItem::Separator)
        return Menuelinie(*eintrag);
    const auto* const rahmen = qstyleoption_cast<const QStyleOptionFrame*>(&vorgabe);
    if (element != QStyle::CE_ShapedFrame || rahmen == nullptr || !IstHoherKontrast(vorgabe.palette) ||
        (rahmen->frameShape != QFrame::HLine && rahmen->frameShape != QFrame::VLine))
        return std::nullopt;
    return Mittellinie(vorgabe.rect, rahmen->frameShape == QFrame::VLine, 0);
}

/// A sign in the colour of the writing.
QIcon Hell(const QIcon& zeichen) {
    QIcon hell;
    for (const QSize groesse : zeichen.availableSizes()) {
        QPixmap bild = zeichen.pixmap(groesse);
        QPainter maler(&bild);
        maler.setCompositionMode(QPainter::CompositionMode_SourceIn);
        maler.fillRect(bild.rect(), QApplication::palette().color(QPalette::WindowText));
        maler.end();
        hell.addPixmap(bild);
    }
    return hell;
}

/// The frame of a group box begins below its title.
QRectF Rahmen(QStyle::PrimitiveElement element, const QStyleOption& vorgabe, const QWidget* widget) {
    if (element != QStyle::PE_FrameGroupBox)
        return vorgabe.rect;
    const auto* const gruppe = qobject_cast<const QGroupBox*>(widget);
    const bool hatTitel = gruppe != nullptr && !gruppe->title().isEmpty();
    const int titel = hatTitel ? vorgabe.fontMetrics.height() : 0;
    return vorgabe.rect.adjusted(0, titel + LueckeUnterTitel, 0, 0);
}

/// A title bar with the light signs of an active one, on a ground of its own where it is none. What the style
/// beneath takes for the shadow of the title is the colour of texts, here as light as the title.
QStyleOptionTitleBar MitHellenZeichen(const QStyleOptionTitleBar& leiste) {
    QStyleOptionTitleBar lesbar(leiste);
    lesbar.palette.setColor(QPalette::Text, Qt::black);
    if ((leiste.titleBarState & QStyle::State_Active) == 0) {
        lesbar.titleBarState |= QStyle::State_Active;
        lesbar.palette.setColor(QPalette::Highlight, leiste.palette.color(QPalette::Button));
    }
    return lesbar;
}

} // namespace

void Dunkelstil::drawPrimitive(PrimitiveElement element, const QStyleOption* vorgabe, QPainter* maler,
                               const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, vorgabe, maler, widget);
    const bool nurHoch = Enthaelt(MitRand, element) || IstBlatt(element, widget);
    QStyleOption rand(*vorgabe);
    rand.state.setFlag(State_Enabled, element == PE_PanelMenu || rand.state.testFlag(State_Enabled));
    if (Enthaelt(ImmerMitRand, element) || (IstHoherKontrast(vorgabe->palette) && nurHoch))
        Umrande(*maler, rand, Rahmen(element, *vorgabe, widget), element == PE_IndicatorRadioButton);
    if (element == PE_IndicatorToolBarSeparator)
        Ziehe(*maler, *vorgabe,
              Mittellinie(vorgabe->rect, vorgabe->state.testFlag(State_Horizontal), EinzugInLeiste));
}

void Dunkelstil::drawControl(ControlElement element, const QStyleOption* vorgabe, QPainter* maler,
                             const QWidget* widget) const {
    QProxyStyle::drawControl(element, vorgabe, maler, widget);
    if (IstHoherKontrast(vorgabe->palette) && Enthaelt(TeileMitRand, element))
        Umrande(*maler, *vorgabe, vorgabe->rect);
    if (const auto linie = Trennlinie(element, *vorgabe))
        Ziehe(*maler, *vorgabe, *linie);
}

void Dunkelstil::drawComplexControl(ComplexControl element, const QStyleOptionComplex* vorgabe,
                                    QPainter* maler, const QWidget* widget) const {
    if (const auto* const leiste = qstyleoption_cast<const QStyleOptionTitleBar*>(vorgabe)) {
        const QStyleOptionTitleBar lesbar = MitHellenZeichen(*leiste);
        QProxyStyle::drawComplexControl(element, &lesbar, maler, widget);
        return;
    }
    QProxyStyle::drawComplexControl(element, vorgabe, maler, widget);
    if (!IstHoherKontrast(vorgabe->palette))
        return;
    if (Enthaelt(GanzeMitRand, element))
        Umrande(*maler, *vorgabe, vorgabe->rect);
    if (element == CC_ScrollBar)
        Umrande(*maler, *vorgabe, subControlRect(element, vorgabe, SC_ScrollBarSlider, widget));
}

QIcon Dunkelstil::standardIcon(StandardPixmap zeichen, const QStyleOption* vorgabe,
                               const QWidget* widget) const {
    const QIcon bild = QProxyStyle::standardIcon(zeichen, vorgabe, widget);
    return Enthaelt(Fensterzeichen, zeichen) ? Hell(bild) : bild;
}

/// What cannot be chosen has no light shadow.
int Dunkelstil::styleHint(StyleHint frage, const QStyleOption* vorgabe, const QWidget* widget,
                          QStyleHintReturn* ausfuehrlich) const {
    return frage == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(frage, vorgabe, widget, ausfuehrlich);
}

} // namespace varnoth
