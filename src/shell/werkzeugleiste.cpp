#include "werkzeugleiste.h"

#include "aktionen.h"
#include "einstellungen.h"
#include "leistenplan.h"
#include "symbolbild.h"
#include "texte.h"

#include <QActionEvent>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QResizeEvent>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace varnoth {

namespace {

constexpr std::int16_t TextTitel = 9500;
constexpr std::int16_t TextMehr = 9501;
constexpr int Bildgroesse = 20;

struct Seite {
    Fensterseite seite;
    Qt::ToolBarArea bereich;
};

constexpr Seite DieSeiten[] = {{Fensterseite::Oben, Qt::TopToolBarArea},
                               {Fensterseite::Unten, Qt::BottomToolBarArea},
                               {Fensterseite::Links, Qt::LeftToolBarArea},
                               {Fensterseite::Rechts, Qt::RightToolBarArea}};

QString Text(std::int16_t id) {
    return QString::fromStdString(LadeText(id));
}

QToolButton& Mehrknopf(const QToolBar& leiste) {
    auto* const knopf = leiste.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    if (knopf == nullptr)
        throw std::logic_error("a tool bar without a button at its end");
    return *knopf;
}

} // namespace

Werkzeugleiste::Werkzeugleiste(QMainWindow& hauptfenster, std::span<const Befehlszeile> befehle)
    : QToolBar(&hauptfenster), fenster(hauptfenster), mehr(Mehrknopf(*this)) {
    setObjectName(QStringLiteral("tlbBefehle"));
    setFloatable(false);
    setIconSize({Bildgroesse, Bildgroesse});
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    mehr.installEventFilter(this);
    connect(this, &QToolBar::orientationChanged, this, &Werkzeugleiste::ZeichneMehr);
    ZeichneMehr();
    FuelleLeiste(befehle);
    Lokalisiere();
    const Leistenplatz platz = LiesLeistenplatz(DieEinstellungen());
    fenster.addToolBar(std::ranges::find(DieSeiten, platz.seite, &Seite::seite)->bereich, this);
    setVisible(platz.sichtbar);
    connect(new QShortcut(Qt::Key_F10, &fenster), &QShortcut::activated, this, &Werkzeugleiste::Betritt);
    QStatusBar* const status = fenster.statusBar();
    status->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(status, &QWidget::customContextMenuRequested, this,
            [this, status](QPoint stelle) { ZeigeMenue(status->mapToGlobal(stelle)); });
}

/// Qt's own sign is dark on every ground.
void Werkzeugleiste::ZeichneMehr() {
    const bool liegt = orientation() == Qt::Horizontal;
    mehr.setIcon(Symbolbild(liegt ? QStringLiteral("mehr") : QStringLiteral("mehr_unten")));
}

void Werkzeugleiste::FuelleLeiste(std::span<const Befehlszeile> befehle) {
    for (const Befehlszeile* zeile : Leistenfolge(befehle)) {
        if (!werkzeuge.empty() && werkzeuge.back().zeile->gruppe != zeile->gruppe)
            addSeparator();
        QAction& vorbild = Aktion(fenster, QString::fromStdString(Aktionsname(*zeile, 0)));
        QAction& aktion = StehtImMenue(*zeile) ? Stellvertreter(vorbild) : vorbild;
        aktion.setProperty("Tag", zeile->textId);
        addAction(&aktion);
        werkzeuge.push_back({&aktion, zeile});
    }
}

/// The menu's action keeps its text and has no tip; the bar shows one of its own that does the same and can
/// be chosen when the other can.
QAction& Werkzeugleiste::Stellvertreter(QAction& vorbild) {
    auto* const aktion = new QAction(this);
    aktion->setObjectName(QLatin1String("tlb") + vorbild.objectName().mid(3));
    aktion->setIcon(vorbild.icon());
    const auto folge = [aktion, &vorbild] {
        aktion->setEnabled(vorbild.isEnabled());
        aktion->setVisible(vorbild.isVisible());
    };
    folge();
    connect(&vorbild, &QAction::changed, aktion, folge);
    connect(aktion, &QAction::triggered, &vorbild, &QAction::trigger);
    return *aktion;
}

void Werkzeugleiste::Lokalisiere() {
    setWindowTitle(Text(TextTitel));
    mehr.setToolTip(Text(TextMehr));
    mehr.setAccessibleName(Text(TextMehr));
    for (const auto& [aktion, zeile] : werkzeuge) {
        const std::string tasten =
            QKeySequence(QString::fromStdString(Kuerzel(*zeile, 0)), QKeySequence::PortableText)
                .toString(QKeySequence::NativeText)
                .toStdString();
        aktion->setText(Text(zeile->textId));
        const std::int16_t tipp = zeile->tippId != 0 ? zeile->tippId : zeile->textId;
        aktion->setToolTip(QString::fromStdString(Leistentipp(LadeText(tipp), tasten)));
    }
    VerteileTexte();
}

void Werkzeugleiste::ZeigeTexte(Leistengruppe gruppe, bool ob) {
    for (const auto& [aktion, zeile] : werkzeuge)
        if (auto* const knopf = qobject_cast<QToolButton*>(widgetForAction(aktion));
            zeile->gruppe == gruppe && knopf != nullptr)
            knopf->setToolButtonStyle(ob ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
}

/// All texts where they have room; else one group after the other goes without.
void Werkzeugleiste::VerteileTexte() {
    for (const Leistengruppe gruppe : Textverzicht())
        ZeigeTexte(gruppe, true);
    if (orientation() != Qt::Horizontal)
        return;
    for (const Leistengruppe gruppe : Textverzicht()) {
        if (sizeHint().width() <= width())
            return;
        ZeigeTexte(gruppe, false);
    }
}

void Werkzeugleiste::resizeEvent(QResizeEvent* ereignis) {
    QToolBar::resizeEvent(ereignis);
    if (ereignis->size().width() != ereignis->oldSize().width() && !mehr.isChecked())
        VerteileTexte();
}

void Werkzeugleiste::SpeicherePlatz() const {
    const auto* const da = std::ranges::find(DieSeiten, fenster.toolBarArea(this), &Seite::bereich);
    const Fensterseite seite = da == std::ranges::end(DieSeiten) ? Fensterseite::Oben : da->seite;
    SchreibLeistenplatz(DieEinstellungen(), {.sichtbar = !isHidden(), .seite = seite});
}

QPoint Werkzeugleiste::StelleUnter(Befehl befehl) const {
    for (const auto& [aktion, zeile] : werkzeuge)
        if (const QWidget* const knopf = widgetForAction(aktion);
            zeile->befehl == befehl && knopf != nullptr && knopf->isVisible())
            return knopf->mapToGlobal(knopf->rect().bottomLeft());
    return isVisible() ? mapToGlobal(rect().bottomLeft()) : fenster.mapToGlobal(QPoint());
}

void Werkzeugleiste::ZeigeMenue(QPoint stelle) const {
    QMenu* const menue = fenster.createPopupMenu();
    menue->setAttribute(Qt::WA_DeleteOnClose);
    menue->popup(stelle);
}

void Werkzeugleiste::actionEvent(QActionEvent* ereignis) {
    QToolBar::actionEvent(ereignis);
    if (ereignis->type() != QEvent::ActionAdded)
        return;
    if (auto* const knopf = qobject_cast<QToolButton*>(widgetForAction(ereignis->action()))) {
        knopf->setObjectName(QLatin1String("cmd") + ereignis->action()->objectName().mid(3));
        knopf->installEventFilter(this);
    }
}

/// The buttons in sight, and at the end the one behind which the others wait.
std::vector<QToolButton*> Werkzeugleiste::Knoepfe() const {
    std::vector<QToolButton*> knoepfe;
    for (QAction* aktion : actions())
        if (auto* const knopf = qobject_cast<QToolButton*>(widgetForAction(aktion));
            knopf && knopf->isVisible())
            knoepfe.push_back(knopf);
    if (mehr.isVisible())
        knoepfe.push_back(&mehr);
    return knoepfe;
}

void Werkzeugleiste::Betritt() {
    if (isAncestorOf(QApplication::focusWidget())) {
        Verlasse();
        return;
    }
    vorher = QApplication::focusWidget();
    show();
    Gehe(-1, 1);
}

void Werkzeugleiste::Verlasse() {
    oeffnet = false;
    if (mehr.isChecked())
        mehr.click();
    QWidget* const ziel = vorher ? vorher.data() : fenster.centralWidget();
    if (ziel != nullptr)
        ziel->setFocus(Qt::ShortcutFocusReason);
}

void Werkzeugleiste::Gehe(std::ptrdiff_t von, int schritt) {
    const auto knoepfe = Knoepfe();
    std::vector<bool> waehlbar(knoepfe.size());
    std::transform(knoepfe.begin(), knoepfe.end(), waehlbar.begin(), std::mem_fn(&QToolButton::isEnabled));
    if (const auto platz = NaechsterKnopf(waehlbar, von, schritt))
        knoepfe[*platz]->setFocus(Qt::TabFocusReason);
}

/// The button at the end opens further rows; the keys go on in them as soon as they appear.
void Werkzeugleiste::Druecke(QToolButton& knopf) {
    knopf.click();
    oeffnet = &knopf == &mehr && mehr.isChecked();
}

bool Werkzeugleiste::BehandleTaste(QToolButton& knopf, int taste) {
    const auto knoepfe = Knoepfe();
    const auto platz = std::ranges::find(knoepfe, &knopf) - knoepfe.begin();
    switch (taste) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        Gehe(platz, 1);
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
        Gehe(platz, -1);
        break;
    case Qt::Key_Home:
        Gehe(-1, 1);
        break;
    case Qt::Key_End:
        Gehe(static_cast<std::ptrdiff_t>(knoepfe.size()), -1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Druecke(knopf);
        break;
    case Qt::Key_Escape:
        Verlasse();
        break;
    default:
        return false;
    }
    return true;
}

bool Werkzeugleiste::eventFilter(QObject* objekt, QEvent* ereignis) {
    auto* const knopf = qobject_cast<QToolButton*>(objekt);
    if (knopf != nullptr && ereignis->type() == QEvent::KeyPress)
        return BehandleTaste(*knopf, static_cast<QKeyEvent*>(ereignis)->key());
    if (oeffnet && knopf != nullptr && knopf->isEnabled() && ereignis->type() == QEvent::Show) {
        oeffnet = false;
        knopf->setFocus(Qt::TabFocusReason);
    }
    return QToolBar::eventFilter(objekt, ereignis);
}

} // namespace varnoth
