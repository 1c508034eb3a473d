#include "ausgangsanzeige.h"

#include "texte.h"
#include "verblassen.h"

#include <QEvent>

namespace varnoth {

namespace {

constexpr std::int16_t TextLetzterWert = 9003;
constexpr int TaktMs = 250;

} // namespace

Ausgangsanzeige::Ausgangsanzeige(QLabel& statusfeld) : feld(statusfeld) {
    takt.setInterval(TaktMs);
    feld.parentWidget()->installEventFilter(this);
    connect(&takt, &QTimer::timeout, this, &Ausgangsanzeige::PruefeAlter);
}

void Ausgangsanzeige::Zeige(const QString& text) {
    if (feld.text() != text)
        feld.setText(text);
    if (text.isEmpty()) {
        alter.Vergiss();
        takt.stop();
        feld.setToolTip({});
    } else {
        alter.Erneuert(DieUmgebung().Uhr());
        if (!takt.isActive())
            takt.start();
        ZeigeUhrzeit();
    }
    SetzeBlass(false);
}

void Ausgangsanzeige::ZeigeVon(const QString& text, const QString& uhrzeit) {
    Zeige({});
    if (feld.text() != text)
        feld.setText(text);
    if (!text.isEmpty())
        feld.setToolTip(QString::fromStdString(LadeText(TextLetzterWert)).arg(uhrzeit));
}

void Ausgangsanzeige::ZeigeUhrzeit() {
    const QTime jetzt = QTime::currentTime();
    if (!feld.toolTip().isEmpty() && jetzt.second() == gelesen.second() && gelesen.secsTo(jetzt) == 0)
        return;
    gelesen = jetzt;
    feld.setToolTip(QString::fromStdString(LadeText(TextLetzterWert)).arg(jetzt.toString("hh:mm:ss")));
}

void Ausgangsanzeige::PruefeAlter() {
    if (!alter.IstAlt(DieUmgebung().Uhr()))
        return;
    takt.stop();
    SetzeBlass(true);
}

void Ausgangsanzeige::SetzeBlass(bool neu) {
    if (neu == blass)
        return;
    blass = neu;
    Faerbe();
}

void Ausgangsanzeige::Faerbe() {
    Verblasse(feld, blass, feld.parentWidget()->palette());
}

bool Ausgangsanzeige::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::PaletteChange)
        Faerbe();
    return QObject::eventFilter(ziel, ereignis);
}

} // namespace varnoth
