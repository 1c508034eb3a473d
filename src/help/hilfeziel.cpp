#include "hilfeziel.h"

#include "meldungsanker.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QTabWidget>

namespace varnoth {

namespace {

/// What may have a paragraph of its own on the page of the widget, the innermost first.
QStringList Anker(const QWidget& stelle, const QWidget& fenster) {
    if (const auto* const meldung = qobject_cast<const QMessageBox*>(&fenster))
        return {Meldungsanker(meldung->text())};
    QStringList anker;
    for (const QWidget* element = &stelle; element != &fenster; element = element->parentWidget())
        anker.append(OhneIndex(element->objectName()));
    return anker;
}

/// The page of a widget, or, of tabs, that of the page they show.
const Hilfeseite* SeiteZu(const Inhaltsverzeichnis& inhalt, const QWidget& element) {
    if (const auto* const reiter = qobject_cast<const QTabWidget*>(&element);
        reiter && reiter->currentWidget())
        return SeiteZuFenster(inhalt, reiter->currentWidget()->objectName());
    return SeiteZuFenster(inhalt, element.objectName());
}

Hilfeziel ZielAuf(const Hilfedatei& datei, const QString& seite, const QStringList& anker) {
    for (const QString& einer : anker)
        if (!einer.isEmpty() && datei.HatAnker(seite, einer))
            return {seite, einer};
    return {seite};
}

/// The dialog in front or the active window; of an open list the window that the list belongs to.
QWidget* FensterVorn() {
    QWidget* const modal = QApplication::activeModalWidget();
    QWidget* fenster = modal != nullptr ? modal : QApplication::activeWindow();
    while (fenster != nullptr && fenster->windowType() == Qt::Popup && fenster->parentWidget() != nullptr)
        fenster = fenster->parentWidget()->window();
    return fenster;
}

} // namespace

Hilfeziel ZielZu(const Hilfedatei& datei, const QWidget* stelle) {
    const QWidget* element = stelle;
    while (element != nullptr) {
        if (const Hilfeseite* const seite = SeiteZu(datei.Inhalt(), *element))
            return ZielAuf(datei, seite->name, Anker(*stelle, *element));
        element = element->isWindow() ? nullptr : element->parentWidget();
    }
    return {datei.Inhalt().constFirst().name};
}

QWidget* StelleVorn() {
    QWidget* const fenster = FensterVorn();
    if (fenster == nullptr)
        return nullptr;
    const auto* const bereich = fenster->findChild<QMdiArea*>();
    if (bereich != nullptr && bereich->currentSubWindow() != nullptr)
        return bereich->currentSubWindow()->widget();
    return fenster->focusWidget() != nullptr ? fenster->focusWidget() : fenster;
}

} // namespace varnoth
