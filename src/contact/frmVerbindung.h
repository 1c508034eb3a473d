#pragma once

#include "anschlussstand.h"
#include "portangabe.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

namespace varnoth {

namespace Ui {
class frmVerbindung;
}

class Verbindungsanbieter;
struct Pruefbefund;
struct Suchfund;
struct Suchstand;

/// The pages of the connection window.
enum class Verbindungsseite { Anschluesse, Suche, Leitung };

/// Everything about the connection, in a window of its own beside the main window: the ports of the machine,
/// the search for the controller, the check of the line. It never uses the line itself.
class frmVerbindung : public QWidget {
    Q_OBJECT

public:
    /// `anbieter` must outlive the window.
    explicit frmVerbindung(Verbindungsanbieter& anbieter);
    ~frmVerbindung() override;

    /// Shows the window or brings it to the front.
    void ZeigeVor();
    /// Turns to a page.
    void Schlage(Verbindungsseite seite);
    /// Looks at ports and settings now; the window does so by itself twice a second while it is visible.
    void Erneuere();
    /// Fills all texts in the current language again.
    void Lokalisiere();

    /// What was chosen is in force.
    void Uebernommen();
    /// A try of the search begins or has ended.
    void ZeigeVersuch(const Suchstand& versuch);
    /// The search has ended.
    void BeendeSuche(const Suchfund& fund);
    /// Numbers of the line check under way.
    void ZeigeZwischenstand(const Pruefbefund& bisher);
    /// The line check has ended.
    void BeendePruefung(const Pruefbefund& befund);
    /// A search or line check that was asked for will not begin.
    void Entfalle();

protected:
    void showEvent(QShowEvent* ereignis) override;
    void hideEvent(QHideEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void ErneuereBeiGelegenheit();
    void Zeige();

    std::unique_ptr<Ui::frmVerbindung> ui;
    Verbindungsanbieter& anbieter;
    QTimer takt{this};
    std::vector<Portangabe> ports;
    Anschlussstand stand;
};

} // namespace varnoth
