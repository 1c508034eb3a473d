#include "zeitleiste.h"

#include "strahlfarben.h"
#include "texte.h"
#include "tipptext.h"
#include "wiedergabeworte.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextName = 6525, TextBedienung = 6548, TextLuecke = 6551, TextWechsel = 6552;
constexpr int Rand = 8;
constexpr int Fangweite = 5; // pixels beside a note that still mean it
constexpr double Deutlich = 2.5;
constexpr QColor Notizfarbe(0xc9, 0x7a, 0x00);

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

Zeitleiste::Zeitleiste(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    Lokalisiere();
}

void Zeitleiste::SetzeQuelle(const Messquelle* neue) {
    quelle = neue;
    notizen.clear();
    spanne = quelle != nullptr ? quelle->Spanne() : Zeitspanne{};
    position = spanne.von;
    spalten.clear();
    if (quelle != nullptr)
        spalten = Leistenspalten(quelle->DieUebersicht(), spanne, Bahn().width());
    update();
}

void Zeitleiste::SetzePosition(Zeit neue) {
    const bool anders = Stelle(neue) != Stelle(position);
    position = neue;
    if (quelle != nullptr)
        setAccessibleDescription(Q(Positionstext(quelle->Angaben(), spanne, position)));
    if (anders)
        update();
}

void Zeitleiste::NimmNotiz(const Sprungfund& notiz) {
    notizen.push_back(notiz);
    update();
}

void Zeitleiste::Lokalisiere() {
    setAccessibleName(Q(LadeText(TextName)));
    SetzePosition(position);
}

QSize Zeitleiste::sizeHint() const {
    return {400, 2 * fontMetrics().height() + 6};
}

QSize Zeitleiste::minimumSizeHint() const {
    return {120, sizeHint().height()};
}

QRect Zeitleiste::Bahn() const {
    const int hoehe = std::max(8, fontMetrics().height() - 2);
    return {Rand, height() - hoehe - 5, std::max(width() - 2 * Rand, 2), hoehe};
}

Zeit Zeitleiste::ZeitBei(int x) const {
    return ZeitDerSpalte(spanne, Bahn().width(), x - Rand);
}

int Zeitleiste::Stelle(Zeit laufzeit) const {
    return Rand + SpalteDerZeit(spanne, Bahn().width(), laufzeit);
}

/// What lies under the pointer: a note where one is near, else what the column holds.
QString Zeitleiste::Tipp(int x) const {
    if (quelle == nullptr)
        return {};
    QString text = Q(Positionstext(quelle->Angaben(), spanne, ZeitBei(x)));
    const auto spalte = static_cast<std::size_t>(std::clamp(x - Rand, 0, Bahn().width() - 1));
    if (spalte < spalten.size() && spalten[spalte].luecke)
        text += "\n" + Q(LadeText(TextLuecke));
    if (spalte < spalten.size() && spalten[spalte].wechsel)
        text += "\n" + Q(LadeText(TextWechsel));
    for (const Sprungfund& notiz : notizen)
        if (std::abs(Stelle(notiz.laufzeit) - x) <= Fangweite)
            text += "\n" + Q(Fundtext(notiz));
    return text + "\n" + Q(LadeText(TextBedienung));
}

void Zeitleiste::MaleBahn(QPainter& maler) const {
    const QRect bahn = Bahn();
    const QColor grund = palette().color(QPalette::Base);
    maler.fillRect(bahn, grund);
    maler.fillRect(QRect(bahn.topLeft(), QPoint(Stelle(position), bahn.bottom())),
                   AlsFlaeche(palette().color(QPalette::Highlight), grund));
    const QColor strich = Abgehoben(palette().color(QPalette::Highlight), grund, Deutlich);
    const QColor luecke = palette().color(QPalette::Mid);
    for (int x = 0; x < static_cast<int>(spalten.size()); ++x) {
        const Leistenspalte& spalte = spalten[static_cast<std::size_t>(x)];
        if (spalte.luecke)
            maler.fillRect(bahn.left() + x, bahn.top(), 1, bahn.height(), QBrush(luecke, Qt::SolidPattern));
        if (spalte.luecke && x % 4 < 2)
            maler.fillRect(bahn.left() + x, bahn.top(), 1, bahn.height() / 2, grund);
        if (spalte.wechsel)
            maler.fillRect(bahn.left() + x, bahn.bottom() - bahn.height() / 3, 1, bahn.height() / 3, strich);
    }
    maler.setPen(palette().color(QPalette::Mid));
    maler.setBrush(Qt::NoBrush);
    maler.drawRect(bahn.adjusted(0, 0, -1, -1));
}

void Zeitleiste::MaleNotizen(QPainter& maler) const {
    const QRect bahn = Bahn();
    const QColor farbe = Abgehoben(Notizfarbe, palette().color(QPalette::Window), Deutlich);
    maler.setPen(farbe);
    maler.setBrush(farbe);
    const int fahne = std::max(5, bahn.top() / 2);
    for (const Sprungfund& notiz : notizen) {
        const int x = Stelle(notiz.laufzeit);
        maler.drawLine(x, 1, x, bahn.bottom());
        maler.drawPolygon(QPolygon({{x, 1}, {x + fahne, 1 + fahne / 2}, {x, 1 + fahne}}));
    }
}

void Zeitleiste::MalePosition(QPainter& maler) const {
    const QRect bahn = Bahn();
    const int x = Stelle(position);
    const QColor farbe = palette().color(QPalette::WindowText);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(farbe, 2));
    maler.drawLine(x, bahn.top() - 2, x, bahn.bottom() + 2);
    maler.setBrush(farbe);
    maler.drawEllipse(QPoint(x, bahn.center().y()), 4, 4);
}

void Zeitleiste::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    MaleBahn(maler);
    MaleNotizen(maler);
    MalePosition(maler);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect rahmen;
    rahmen.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rahmen, &maler, this);
}

void Zeitleiste::mousePressEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton)
        emit Gezogen(ZeitBei(qRound(ereignis->position().x())));
}

void Zeitleiste::mouseMoveEvent(QMouseEvent* ereignis) {
    if ((ereignis->buttons() & Qt::LeftButton) != 0)
        emit Gezogen(ZeitBei(qRound(ereignis->position().x())));
}

void Zeitleiste::keyPressEvent(QKeyEvent* ereignis) {
    const bool strg = (ereignis->modifiers() & Qt::ControlModifier) != 0;
    switch (ereignis->key()) {
    case Qt::Key_Space:
        return emit Umschalten();
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const bool vorwaerts = ereignis->key() == Qt::Key_Right;
        return strg ? emit Sprung(vorwaerts) : emit Schritt(vorwaerts);
    }
    case Qt::Key_Home:
        return emit Gezogen(spanne.von);
    case Qt::Key_End:
        return emit Gezogen(spanne.bis);
    case Qt::Key_Plus:
        return emit Tempo(true);
    case Qt::Key_Minus:
        return emit Tempo(false);
    default:
        QWidget::keyPressEvent(ereignis);
    }
}

void Zeitleiste::resizeEvent(QResizeEvent* /*ereignis*/) {
    if (quelle != nullptr)
        spalten = Leistenspalten(quelle->DieUebersicht(), spanne, Bahn().width());
}

bool Zeitleiste::event(QEvent* ereignis) {
    if (ereignis->type() != QEvent::ToolTip)
        return QWidget::event(ereignis);
    const auto& hilfe = static_cast<const QHelpEvent&>(*ereignis);
    QToolTip::showText(hilfe.globalPos(), AlsTipp(Tipp(hilfe.pos().x())), this);
    return true;
}

} // namespace varnoth
