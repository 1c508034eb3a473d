#include "zufallsbenutzer.h"

#include "befehlstabelle.h"
#include "frmDocument.h"
#include "polling.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTabBar>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace varnoth::pruefung {

namespace {

/// Dialogs through which a user changes the controller.
constexpr std::array AenderndeDialoge{"frmKonfigurationSchreibenInHardware", "frmEinzelwerteLesenSchreiben",
                                      "frmResetHardware", "frmInitHardware"};
/// Ends the program, which this user does not want.
constexpr std::string_view Ende = "mnuBeenden";
/// Loads other values into the image.
constexpr std::string_view Oeffnen = "mnuOeffnen";
/// Writes single registers without any check, so that no configuration would be left to go on with.
constexpr std::string_view EinzelnesSchreiben = "cmdSchreiben";
constexpr std::string_view Einzelwerte = "frmEinzelwerteLesenSchreiben";
/// Windows that stay open beside the main one and have nothing to do with the port.
constexpr std::array<std::string_view, 5> Vergangenheit{"frmAufzeichnung", "frmEreignisse", "frmVerlauf",
                                                        "frmWasserfall", "frmWiedergabe"};

template<class Element>
std::vector<Element*> Bedienbare(QWidget& fenster) {
    std::vector<Element*> liste;
    for (Element* const element : fenster.findChildren<Element*>())
        if (element->isVisible() && element->isEnabled())
            liste.push_back(element);
    return liste;
}

/// A menu item, or the button of a command of the past, which no menu has.
bool IstBefehl(const QString& aktion) {
    return aktion.startsWith("mnu") || std::ranges::any_of(Befehlstabelle(), [&](const Befehlszeile& zeile) {
               return zeile.gruppe == Leistengruppe::Verlauf && zeile.textId != 0 && aktion == zeile.aktion;
           });
}

void SchaltNachher(QAbstractButton& knopf) {
    QMetaObject::invokeMethod(&knopf, &QAbstractButton::click, Qt::QueuedConnection);
}

} // namespace

Zufallsbenutzer::Zufallsbenutzer(Betrieb& bedienter, unsigned seed) : betrieb(bedienter), zufall(seed) {}

int Zufallsbenutzer::Zufall(int anzahl) {
    return static_cast<int>(zufall() % static_cast<unsigned>(anzahl));
}

bool Zufallsbenutzer::HatEingegriffen() {
    return std::exchange(eingegriffen, false);
}

void Zufallsbenutzer::Handle() {
    if (auto* const menue = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
        return BedieneMenue(*menue);
    QWidget* const vorn = QApplication::activeModalWidget();
    if (qobject_cast<QMessageBox*>(vorn) != nullptr)
        return; // is answered by somebody else
    if (auto* const dialog = qobject_cast<QDialog*>(vorn))
        BedieneDialog(*dialog);
    else if (vorn == nullptr && modPolling::GetPollingAktiv() == False && Zufall(2) == 0)
        betrieb.Waehle("mnuMessdatenVisualisierenStart");
    else if (vorn == nullptr && Zufall(3) == 0)
        BedieneFenster();
    else if (vorn == nullptr && Zufall(3) == 0)
        BedieneVergangenheit();
    else if (vorn == nullptr)
        WaehleCommand();
}

void Zufallsbenutzer::WaehleCommand() {
    std::vector<QAction*> posten;
    for (QAction* const aktion : betrieb.Hauptfenster().findChildren<QAction*>())
        if (IstBefehl(aktion->objectName()) && aktion->menu() == nullptr && !aktion->isSeparator() &&
            aktion->isEnabled() && aktion->isVisible() && aktion->objectName().toStdString() != Ende)
            posten.push_back(aktion);
    QAction& gewaehlt = *posten[zufall() % posten.size()];
    const std::string name = gewaehlt.objectName().toStdString();
    eingegriffen |= name == Oeffnen;
    Zaehle(name);
    gewaehlt.trigger();
}

/// A list that hangs on a button: an entry of it is chosen, or none.
void Zufallsbenutzer::BedieneMenue(QMenu& menue) {
    const auto eintraege = menue.actions();
    const bool waehlt = Zufall(2) == 0 && !eintraege.isEmpty();
    if (waehlt)
        menue.setActiveAction(eintraege[Zufall(static_cast<int>(eintraege.size()))]);
    Zaehle(waehlt ? "choose in a menu" : "leave a menu");
    QCoreApplication::postEvent(
        &menue, new QKeyEvent(QEvent::KeyPress, waehlt ? Qt::Key_Return : Qt::Key_Escape, Qt::NoModifier));
}

void Zufallsbenutzer::BedieneDialog(QDialog& dialog) {
    const std::string name = dialog.objectName().toStdString();
    eingegriffen |= std::ranges::find(AenderndeDialoge, name) != AenderndeDialoge.end();
    const auto knoepfe = Bedienbare<QAbstractButton>(dialog);
    constexpr int Geduld = 20;
    const int was = Zufall(Geduld);
    if (was == 0) {
        Zaehle("cancel " + name);
        QMetaObject::invokeMethod(&dialog, &QDialog::reject, Qt::QueuedConnection);
    } else if (was < Geduld / 2) {
        AendereFeld(dialog);
    } else if (was < Geduld - 5 && !knoepfe.empty()) {
        QAbstractButton& knopf = *knoepfe[zufall() % knoepfe.size()];
        if (name == Einzelwerte && knopf.objectName().toStdString() == EinzelnesSchreiben)
            return;
        Zaehle("click in " + name);
        SchaltNachher(knopf);
    }
}

void Zufallsbenutzer::AendereFeld(QWidget& dialog) {
    const auto listen = Bedienbare<QComboBox>(dialog);
    const auto felder = Bedienbare<QLineEdit>(dialog);
    const auto seiten = Bedienbare<QTabBar>(dialog);
    if (!seiten.empty() && Zufall(2) == 0)
        seiten.front()->setCurrentIndex(Zufall(std::max(1, seiten.front()->count())));
    else if (!listen.empty() && listen.front()->count() > 0)
        listen[zufall() % listen.size()]->setCurrentIndex(Zufall(listen.front()->count()));
    else if (!felder.empty())
        felder[zufall() % felder.size()]->setText(QString::number(Zufall(300)));
    Zaehle("change in " + dialog.objectName().toStdString());
}

void Zufallsbenutzer::BedieneVergangenheit() {
    std::vector<QWidget*> offene;
    for (QWidget* const fenster : QApplication::topLevelWidgets())
        if (fenster->isVisible() &&
            std::ranges::find(Vergangenheit, fenster->objectName().toStdString()) != Vergangenheit.end())
            offene.push_back(fenster);
    if (offene.empty())
        return;
    QWidget& fenster = *offene[zufall() % offene.size()];
    const auto knoepfe = Bedienbare<QAbstractButton>(fenster);
    if (Zufall(2) == 0 || knoepfe.empty())
        return AendereFeld(fenster);
    Zaehle("click in " + fenster.objectName().toStdString());
    SchaltNachher(*knoepfe[zufall() % knoepfe.size()]);
}

/// A window or view is moved, minimised, closed, shown.
struct Zufallsbenutzer::Tat {
    const char* name;
    void (*tue)(Betrieb& betrieb, QMdiSubWindow& ansicht, int zahl);
};

void Zufallsbenutzer::BedieneFenster() {
    static constexpr std::array<Tat, 6> alle{{
        {"close a view", [](Betrieb&, QMdiSubWindow& a, int) { a.close(); }},
        {"minimise a view", [](Betrieb&, QMdiSubWindow& a, int) { a.showMinimized(); }},
        {"restore a view", [](Betrieb&, QMdiSubWindow& a, int) { a.showNormal(); }},
        {"minimise the window", [](Betrieb& b, QMdiSubWindow&, int) { b.Hauptfenster().showMinimized(); }},
        {"restore the window", [](Betrieb& b, QMdiSubWindow&, int) { b.Hauptfenster().showNormal(); }},
        {"resize the window",
         [](Betrieb& b, QMdiSubWindow&, int zahl) { b.Hauptfenster().resize(600 + zahl, 400 + zahl / 2); }},
    }};
    constexpr int Spielraum = 700; // pixels
    const Tat& tat = alle[zufall() % alle.size()];
    frmDocument& ansicht = betrieb.Hauptfenster().Fenster(Zufall(AnzahlOptikteile));
    Zaehle(tat.name);
    tat.tue(betrieb, *qobject_cast<QMdiSubWindow*>(ansicht.parentWidget()), Zufall(Spielraum));
}

} // namespace varnoth::pruefung
