#include "dunkelstil.h"

#include "darstellung.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

constexpr QStyle::PrimitiveElement ImmerMitRand[] = {QStyle::PE_FrameLineEdit, QStyle::PE_IndicatorCheckBox,
                                                     QStyle::PE_IndicatorRadioButton};
constexpr QStyle::PrimitiveElement MitRand[] = {QStyle::PE_PanelButtonCommand, QStyle::PE_FrameGroupBox,
                                                QStyle::PE_FrameMenu,          QStyle::PE_FrameTabWidget,
                                                QStyle::PE_PanelTipLabel,      QStyle::PE_FrameWindow};
constexpr QStyle::ControlElement TeileMitRand[] = {QStyle::CE_ProgressBarGroove, QStyle::CE_TabBarTabShape};
constexpr QStyle::ComplexControl GanzeMitRand[] = {QStyle::CC_ComboBox, QStyle::CC_SpinBox};
constexpr float Zurueckhaltend = 0.45F;
constexpr int LueckeUnterTitel = 3; // between the title of a group box and its frame

/// A list or tree is as dark as what it lies on.
bool IstListe(QStyle::PrimitiveElement element, const QWidget* widget) {
    return element == QStyle::PE_Frame && qobject_cast<const QAbstractItemView*>(widget) != nullptr;
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

/// The frame of a group box begins below its title.
QRectF Rahmen(QStyle::PrimitiveElement element, const QStyleOption& vorgabe, const QWidget* widget) {
    if (element != QStyle::PE_FrameGroupBox)
        return vorgabe.rect;
    const auto* const gruppe = qobject_cast<const QGroupBox*>(widget);
    const bool hatTitel = gruppe != nullptr && !gruppe->title().isEmpty();
    const int titel = hatTitel ? vorgabe.fontMetrics.height() : 0;
    return vorgabe.rect.adjusted(0, titel + LueckeUnterTitel, 0, 0);
}

/// A title bar that is not the active one, with the light signs of an active one on a ground of its own.
QStyleOptionTitleBar MitHellenZeichen(const QStyleOptionTitleBar& leiste) {
    QStyleOptionTitleBar lesbar(leiste);
    lesbar.titleBarState |= QStyle::State_Active;
    lesbar.palette.setColor(QPalette::Highlight, leiste.palette.color(QPalette::Button));
    return lesbar;
}

} // namespace

void Dunkelstil::drawPrimitive(PrimitiveElement element, const QStyleOption* vorgabe, QPainter* maler,
                               const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, vorgabe, maler, widget);
    const bool nurHoch = Enthaelt(MitRand, element) || IstListe(element, widget);
    if (Enthaelt(ImmerMitRand, element) || (IstHoherKontrast(vorgabe->palette) && nurHoch))
        Umrande(*maler, *vorgabe, Rahmen(element, *vorgabe, widget), element == PE_IndicatorRadioButton);
}

void Dunkelstil::drawControl(ControlElement element, const QStyleOption* vorgabe, QPainter* maler,
                             const QWidget* widget) const {
    QProxyStyle::drawControl(element, vorgabe, maler, widget);
    if (IstHoherKontrast(vorgabe->palette) && Enthaelt(TeileMitRand, element))
        Umrande(*maler, *vorgabe, vorgabe->rect);
}

void Dunkelstil::drawComplexControl(ComplexControl element, const QStyleOptionComplex* vorgabe,
                                    QPainter* maler, const QWidget* widget) const {
    const auto* const leiste = qstyleoption_cast<const QStyleOptionTitleBar*>(vorgabe);
    if (leiste != nullptr && (leiste->titleBarState & State_Active) == 0) {
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

} // namespace varnoth
