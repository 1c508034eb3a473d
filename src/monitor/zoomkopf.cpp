#include "zoomkopf.h"

#include "ansichtsregeln.h"
#include "texte.h"

#include <QEvent>
#include <QHBoxLayout>

namespace varnoth {

namespace {

constexpr std::int16_t TextAlle = 9011;
constexpr std::int16_t TextAlleZeigen = 9012;
constexpr int SchmalerKnopf = 18;
constexpr int Abstand = 3;

} // namespace

Zoomkopf::Zoomkopf(BeamBarControl& strahlbalken) : QWidget(&strahlbalken), balken(strahlbalken) {
    setObjectName(QStringLiteral("Zoomkopf"));
    lblAusschnitt.setObjectName(QStringLiteral("lblAusschnitt"));
    lblAusschnitt.setTextFormat(Qt::PlainText);
    lblAusschnitt.setForegroundRole(QPalette::Text);
    lblAusschnitt.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cmdAlleStrahlen.setObjectName(QStringLiteral("cmdAlleStrahlen"));
    cmdAlleStrahlen.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    auto* reihe = new QHBoxLayout(this);
    reihe->setContentsMargins({});
    reihe->setSpacing(Abstand);
    reihe->addWidget(&lblAusschnitt, 1);
    reihe->addWidget(&cmdAlleStrahlen);
    balken.installEventFilter(this);
    connect(&balken, &BeamBarControl::AusschnittGeaendert, this, &Zoomkopf::ZeigeAusschnitt);
    connect(&cmdAlleStrahlen, &QToolButton::clicked, &balken, &BeamBarControl::ZeigeAlles);
    hide();
}

void Zoomkopf::Lokalisiere() {
    cmdAlleStrahlen.setText(QString::fromStdString(LadeText(TextAlle)));
    cmdAlleStrahlen.setAccessibleName(cmdAlleStrahlen.text());
    cmdAlleStrahlen.setToolTip(QString::fromStdString(LadeText(TextAlleZeigen)));
    ZeigeAusschnitt();
}

bool Zoomkopf::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize)
        ZeigeAusschnitt();
    return QWidget::eventFilter(ziel, ereignis);
}

bool Zoomkopf::HatPlatz(const QString& text) const {
    const int platz = width() - cmdAlleStrahlen.sizeHint().width() - Abstand;
    return lblAusschnitt.fontMetrics().horizontalAdvance(text) <= platz;
}

// The short form where the whole text has no room, and a sign on the button where even that has none.
void Zoomkopf::ZeigeAusschnitt() {
    setVisible(balken.IstGezoomt());
    if (!balken.IstGezoomt())
        return;
    setGeometry(balken.Kopfzeile());
    const auto bereich = SichtbareStrahlen(balken.SichtbarerAusschnitt(), balken.Strahlanzahl());
    const QString ganz = QString::fromStdString(Ausschnittstext(bereich, balken.Strahlanzahl()));
    const QString kurz = QString::fromStdString(Bereichstext({&bereich, 1}));
    cmdAlleStrahlen.setText(QString::fromStdString(LadeText(TextAlle)));
    const bool eng = !HatPlatz(kurz);
    if (eng)
        cmdAlleStrahlen.setText(QStringLiteral("↕"));
    cmdAlleStrahlen.setMaximumWidth(eng ? SchmalerKnopf : QWIDGETSIZE_MAX);
    layout()->setSpacing(eng ? 0 : Abstand);
    lblAusschnitt.setText(HatPlatz(ganz) ? ganz : kurz);
    lblAusschnitt.setAccessibleName(ganz);
    lblAusschnitt.setToolTip(ganz);
}

} // namespace varnoth
