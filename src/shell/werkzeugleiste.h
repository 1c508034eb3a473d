#pragma once

#include "befehlstabelle.h"

#include <QPointer>
#include <QToolBar>

#include <span>
#include <vector>

class QMainWindow;
class QToolButton;

namespace varnoth {

/// The tool bar: a button for each command that has a text for it, beside the menus, which stay as they are.
///
/// It can be moved to each side of the window and hidden; a right click on it, on the menu bar or on the
/// status bar tells both. F10 shows it and steps into it, and out again; inside, the arrow keys, Home and End
/// move, Enter or space presses, Escape steps out. Where it lacks room, some groups show their pictures
/// alone; what does not fit all the same waits behind the button at its end.
class Werkzeugleiste : public QToolBar {
    Q_OBJECT

public:
    /// Takes its place in the window as the settings say. The actions of the commands must be there.
    explicit Werkzeugleiste(QMainWindow& fenster, std::span<const Befehlszeile> befehle = Befehlstabelle());

    /// Texts and tips in the current language.
    void Lokalisiere();
    /// Stores place and visibility.
    void SpeicherePlatz() const;
    /// Where on the screen a menu of the command's button opens: below it; in the bar's corner where the
    /// button is not in sight.
    QPoint StelleUnter(Befehl befehl) const;
    /// What F10 does: shows the bar and steps into it; out of it when it has the keys already.
    void Betritt();

protected:
    void actionEvent(QActionEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    struct Werkzeug {
        QAction* aktion;
        const Befehlszeile* zeile;
    };

    void ZeichneMehr();
    void VerteileTexte();
    void ZeigeTexte(Leistengruppe gruppe, bool ob);
    void FuelleLeiste(std::span<const Befehlszeile> befehle);
    QAction& Stellvertreter(QAction& vorbild);
    void ZeigeMenue(QPoint stelle) const;
    std::vector<QToolButton*> Knoepfe() const;
    bool BehandleTaste(QToolButton& knopf, int taste);
    void Gehe(std::ptrdiff_t von, int schritt);
    void Druecke(QToolButton& knopf);
    void Verlasse();

    QMainWindow& fenster;
    QToolButton& mehr; ///< Qt's own button at the end of a bar that is too long
    QPointer<QWidget> vorher;
    bool oeffnet = false; ///< the further rows are to appear
    std::vector<Werkzeug> werkzeuge;
};

} // namespace varnoth
