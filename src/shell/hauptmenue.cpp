#include "hauptmenue.h"

#include "aktionen.h"
#include "gezeigtesabbild.h"
#include "symbolbild.h"
#include "texte.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

namespace varnoth {

namespace {

/// A menu item without a command, the action of the tool bar where its subject is found, the text that says
/// so.
struct Fundort {
    const char* punkt;
    const char* ziel;
    std::int16_t textId;
};

constexpr Fundort DieFundorte[] = {{"mnuDruckereinrichtung", "mnuBericht", 9535},
                                   {"mnuKonfigurationDrucken", "mnuBericht", 9535},
                                   {"mnuOptionFarben", "tlbDarstellung", 9536}};

/// The button behind which the menu bar keeps what has no room. Qt's own sign is dark on every ground.
void ZeichneMehr(const QMenuBar& leiste) {
    if (auto* const mehr = leiste.findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button")))
        mehr->setIcon(Symbolbild(QStringLiteral("mehr")));
}

} // namespace

Hauptmenue::Hauptmenue(QMainWindow& hauptfenster, const Klick& klick, std::span<const Befehlszeile> befehle)
    : fenster(hauptfenster) {
    for (const Befehlszeile& zeile : befehle)
        for (int platz = 0; platz < zeile.anzahl; ++platz)
            Verbinde(zeile, platz, klick);
    ZeichneMehr(*fenster.menuBar());
    Aktualisiere();
}

/// A click stores the command and nothing else: the check mark that Qt has already turned is turned back.
void Hauptmenue::Verbinde(const Befehlszeile& zeile, int platz, const Klick& klick) {
    const QString name = QString::fromStdString(Aktionsname(zeile, platz));
    QAction& aktion = StehtImMenue(zeile) ? Aktion(fenster, name) : NeueAktion(zeile, name);
    if (*zeile.symbol != 0)
        aktion.setIcon(Symbolbild(QLatin1String(zeile.symbol)));
    aktion.setShortcut(
        QKeySequence(QString::fromStdString(Kuerzel(zeile, platz)), QKeySequence::PortableText));
    QObject::connect(
        &aktion, &QAction::triggered, &fenster,
        [&aktion, klick, befehl = zeile.befehl, index = zeile.ersterIndex + platz](bool angehakt) {
            if (aktion.isCheckable())
                aktion.setChecked(!angehakt);
            klick(befehl, index);
        });
}

/// The action of a command that no menu has. It belongs to the window, so that its keys work with the tool
/// bar hidden, and its text follows the language as those of the menus do.
QAction& Hauptmenue::NeueAktion(const Befehlszeile& zeile, const QString& name) {
    auto* const aktion = new QAction(&fenster);
    aktion->setObjectName(name);
    aktion->setProperty("Tag", zeile.textId);
    aktion->setText(QString::fromStdString(LadeText(zeile.textId)));
    fenster.addAction(aktion);
    return *aktion;
}

void Hauptmenue::ZeigeFundorte() {
    for (const auto& [punkt, ziel, textId] : DieFundorte)
        if (fenster.findChild<QAction*>(QLatin1String(ziel)) != nullptr)
            ZeigeTipp(Aktion(fenster, QLatin1String(punkt)), textId);
}

/// Tips are shown in the item's own menu alone.
void Hauptmenue::ZeigeTipp(QAction& punkt, std::int16_t textId) {
    punkt.setToolTip(QString::fromStdString(LadeText(textId)));
    for (QObject* ort : punkt.associatedObjects())
        if (auto* const menue = qobject_cast<QMenu*>(ort))
            menue->setToolTipsVisible(true);
}

void Hauptmenue::Aktualisiere() {
    WendeAn(Menuezustand(zustand), fenster);
}

void Hauptmenue::SetzeLiveDaten(bool laufen) {
    zustand.liveDaten = laufen;
    Aktualisiere();
}

void Hauptmenue::SetzeAutosendWaehlbar(bool waehlbar) {
    zustand.autosendWaehlbar = waehlbar;
    Aktualisiere();
}

void Hauptmenue::ZeigeService() {
    zustand.service = true;
    Aktualisiere();
}

void Hauptmenue::FolgeStrahlenzahlen() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        zustand.hatStrahlen.at(static_cast<std::size_t>(teil)) = modDaten::GezeigteStrahlenzahl(teil) > 0;
    Aktualisiere();
}

void Hauptmenue::ZeigeTeile(const std::array<bool, AnzahlOptikteile>& teile) {
    zustand.hatStrahlen = teile;
    Aktualisiere();
}

void Hauptmenue::VerbergeAnsichten() {
    zustand.hatStrahlen = {};
    Aktualisiere();
}

void Hauptmenue::HakePort(int nummer) {
    for (int n = 1; n <= 4; ++n)
        Aktion(fenster, QStringLiteral("mnuCom_%1").arg(n)).setChecked(n == nummer);
}

void Hauptmenue::HakeSprache() {
    Aktion(fenster, QStringLiteral("mnuEnglisch")).setChecked(GetSprachoffset() == Englisch);
    Aktion(fenster, QStringLiteral("mnuDeutsch")).setChecked(GetSprachoffset() != Englisch);
}

void Hauptmenue::HakeAnsicht(int optikteil, bool gezeigt) {
    Aktion(fenster, QStringLiteral("mnuAnzeigeLichtleiste_%1").arg(optikteil)).setChecked(gezeigt);
}

bool Hauptmenue::UebertragenerWert() const {
    return Aktion(fenster, QStringLiteral("mnuUebertragenerWert")).isChecked();
}

void Hauptmenue::WechsleUebertragenerWert() {
    Aktion(fenster, QStringLiteral("mnuUebertragenerWert")).toggle();
}

} // namespace varnoth
