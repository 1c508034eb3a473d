#include "fensterplatz.h"

#include "einstellungen.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMdiSubWindow>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace varnoth {

namespace {

constexpr int TwipsJePixel = 15;
// So much of a window stays on the screen, in logical pixels.
constexpr int GreifbarerRest = 80;

struct Schluessel {
    const char* name;
    int Fensterplatz::*feld;
};

constexpr std::array<Schluessel, 5> DieSchluessel{{{"WindowState", &Fensterplatz::zustand},
                                                   {"Left", &Fensterplatz::links},
                                                   {"Top", &Fensterplatz::oben},
                                                   {"Width", &Fensterplatz::breite},
                                                   {"Height", &Fensterplatz::hoehe}}};

// The widget that is moved: a view inside a main window has a frame of its own there.
template<class Fenster>
Fenster& Rahmen(Fenster& fenster) {
    QWidget* rahmen = qobject_cast<QMdiSubWindow*>(fenster.parentWidget());
    return rahmen ? *rahmen : fenster;
}

QRect Flaeche(const QWidget& rahmen, const QRect& platz) {
    if (!rahmen.isWindow())
        return rahmen.parentWidget()->rect();
    const QScreen* schirm = QGuiApplication::screenAt(platz.center());
    return (schirm ? schirm : rahmen.screen())->availableGeometry();
}

// No window is larger than all screens together: what a settings file asks for beyond that would only cost
// memory.
QSize Begrenzt(QSize groesse) {
    const QScreen* schirm = QGuiApplication::primaryScreen();
    const QSize hoechstens = schirm ? schirm->virtualSize() : QSize(1, 1);
    return groesse.boundedTo(hoechstens).expandedTo({1, 1});
}

// The place moved so far that its title can be taken hold of.
QRect Greifbar(QRect platz, const QRect& flaeche) {
    const int links = flaeche.left() - platz.width() + GreifbarerRest;
    const int rechts = flaeche.right() - GreifbarerRest;
    const int unten = flaeche.bottom() - GreifbarerRest;
    platz.moveLeft(std::max(std::min(platz.left(), rechts), links));
    platz.moveTop(std::max(std::min(platz.top(), unten), flaeche.top()));
    return platz;
}

void Stelle(QWidget& rahmen, const QRect& platz) {
    const QRect erreichbar = Greifbar(platz, Flaeche(rahmen, platz));
    rahmen.move(erreichbar.topLeft());
    rahmen.resize(erreichbar.size());
}

Qt::WindowStates MitZustand(Qt::WindowStates alter, int zustand) {
    alter &= ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (zustand == Fensterplatz::Minimiert)
        return alter | Qt::WindowMinimized;
    return zustand == Fensterplatz::Maximiert ? alter | Qt::WindowMaximized : alter;
}

// Follows one window: remembers the place it has when neither maximised nor minimised, and gives a window
// that was hidden its state when it appears.
class Verfolger : public QObject {
public:
    explicit Verfolger(QWidget& fenster)
        : QObject(&fenster), rahmen(fenster), normal(fenster.pos(), fenster.size()) {
        fenster.installEventFilter(this);
    }

    static Verfolger* Von(const QWidget& rahmen) {
        for (QObject* kind : rahmen.children())
            if (auto* verfolger = dynamic_cast<Verfolger*>(kind))
                return verfolger;
        return nullptr;
    }

    QRect Normalplatz() const { return normal; }
    void SetzeNormalplatz(const QRect& platz) { normal = platz; }
    void BeimErscheinen(int zustand) { beimErscheinen = zustand; }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::Move || ereignis->type() == QEvent::Resize)
            Merke();
        if (ereignis->type() == QEvent::Show && beimErscheinen)
            Erscheine(*std::exchange(beimErscheinen, std::nullopt));
        return QObject::eventFilter(objekt, ereignis);
    }

private:
    void Merke() {
        if (rahmen.isVisible() && !beimErscheinen && !rahmen.isMaximized() && !rahmen.isMinimized())
            normal = QRect(rahmen.pos(), rahmen.size());
    }
    void Erscheine(int zustand) {
        Stelle(rahmen, normal);
        rahmen.setWindowState(MitZustand(rahmen.windowState(), zustand));
    }

    QWidget& rahmen;
    QRect normal;
    std::optional<int> beimErscheinen;
};

Verfolger& VerfolgerVon(QWidget& rahmen) {
    Verfolger* verfolger = Verfolger::Von(rahmen);
    return verfolger ? *verfolger : *new Verfolger(rahmen);
}

QRect NormalplatzVon(const QWidget& rahmen) {
    if (const Verfolger* verfolger = Verfolger::Von(rahmen))
        return verfolger->Normalplatz();
    const bool normal = !rahmen.isMaximized() || rahmen.normalGeometry().isEmpty();
    return normal ? QRect(rahmen.pos(), rahmen.size()) : rahmen.normalGeometry();
}

} // namespace

int PixelAusTwips(int twips) {
    return static_cast<int>(std::lround(twips / static_cast<double>(TwipsJePixel)));
}

int TwipsAusPixel(int pixel) {
    return pixel * TwipsJePixel;
}

Fensterplatz LiesFensterplatz(Einstellungen& einstellungen, const std::string& abschnitt,
                              const Fensterplatz& standard) {
    Fensterplatz platz = standard;
    for (const auto& [name, feld] : DieSchluessel)
        platz.*feld = einstellungen.LiesZahl(abschnitt, name, standard.*feld);
    return platz;
}

void SchreibFensterplatz(Einstellungen& einstellungen, const std::string& abschnitt,
                         const Fensterplatz& platz) {
    for (const auto& [name, feld] : DieSchluessel)
        einstellungen.SchreibText(abschnitt, name, std::to_string(platz.*feld));
}

void VerfolgePlatz(QWidget& fenster) {
    VerfolgerVon(Rahmen(fenster));
}

std::optional<Fensterplatz> PlatzVon(const QWidget& fenster) {
    const QWidget& rahmen = Rahmen(fenster);
    if (rahmen.isMinimized())
        return std::nullopt;
    const QRect platz = rahmen.isMaximized() || !rahmen.isVisible() ? NormalplatzVon(rahmen)
                                                                    : QRect(rahmen.pos(), rahmen.size());
    return Fensterplatz{rahmen.isMaximized() ? Fensterplatz::Maximiert : Fensterplatz::Normal,
                        TwipsAusPixel(platz.x()), TwipsAusPixel(platz.y()), TwipsAusPixel(platz.width()),
                        TwipsAusPixel(platz.height())};
}

void WendeAn(const Fensterplatz& platz, QWidget& fenster) {
    QWidget& rahmen = Rahmen(fenster);
    const QRect pixel(QPoint(PixelAusTwips(platz.links), PixelAusTwips(platz.oben)),
                      Begrenzt({PixelAusTwips(platz.breite), PixelAusTwips(platz.hoehe)}));
    Verfolger& verfolger = VerfolgerVon(rahmen);
    verfolger.SetzeNormalplatz(pixel);
    if (!rahmen.isWindow() && !rahmen.isVisible()) {
        rahmen.setGeometry(pixel);
        verfolger.BeimErscheinen(platz.zustand);
        return;
    }
    Stelle(rahmen, pixel);
    rahmen.setWindowState(MitZustand(rahmen.windowState(), platz.zustand));
}

void StelleFensterHer(QWidget& fenster, const std::string& abschnitt, QSize anfang) {
    const Fensterplatz platz =
        LiesFensterplatz(DieEinstellungen(), abschnitt, {.zustand = ZustandNichtGespeichert});
    if (platz.zustand != ZustandNichtGespeichert)
        WendeAn(platz, fenster);
    else if (!anfang.isEmpty())
        fenster.resize(anfang.boundedTo(fenster.screen()->availableSize()));
}

void HoleNachVorn(QWidget& fenster) {
    fenster.isMinimized() ? fenster.showNormal() : fenster.show();
    fenster.raise();
    fenster.activateWindow();
}

void BewahreFensterplatz(const QWidget& fenster, const std::string& abschnitt) {
    if (const auto platz = PlatzVon(fenster))
        SchreibFensterplatz(DieEinstellungen(), abschnitt, *platz);
}

} // namespace varnoth
