#pragma once

#include "ereignisse.h"
#include "verbindungsregel.h"
#include "verbindungstexte.h"
#include "zustandsmerker.h"

#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <optional>

class QPushButton;
class QStatusBar;

namespace varnoth {

class Kurzlabel;
class Verbindungssymbol;

/// The part of the status bar that always shows the connection: its state as sign, text and colour, passes a
/// second and failures a minute, a button that starts live data where it is not running, and one that leads
/// to the search for the controller once it has not answered. It looks at the link four times a second and
/// asks it nothing.
class Verbindungsanzeige : public QWidget {
public:
    /// @param starte runs at a click on the button that starts live data
    /// @param suche runs at a click on the button that is there after a failed connection
    Verbindungsanzeige(QStatusBar& leiste, const std::function<void()>& starte,
                       const std::function<void()>& suche);

    /// The connection flow begins or ends.
    void SetzeVerbindet(bool ob);
    /// A record is shown instead of a connection; nothing: no longer.
    void SetzeWiedergabe(std::optional<Verbindungsgegenstand> woraus);
    /// Looks now.
    void Aktualisiere();

private:
    /// What the texts depend on.
    struct Inhalt {
        Verbindungsbild bild;
        Verbindungsgegenstand gegenstand;
        QDate tag;
        std::int16_t sprache;

        bool operator==(const Inhalt&) const = default;
    };

    QPushButton* MacheKnopf(const QString& name, const std::function<void()>& tat);
    void Zeige(const Inhalt& inhalt, const QDateTime& jetzt);
    void MerkeZustand(const Inhalt& inhalt);

    Verbindungssymbol* symbol;
    Kurzlabel* zustandstext;
    Kurzlabel* zahlen;
    QPushButton* start;
    QPushButton* suchen;
    QTimer takt;
    Verbindungsregel regel;
    std::optional<Inhalt> gezeigt;
    std::optional<Verbindungsgegenstand> wiedergabe;
    Zustandsmerker merker{modEreignisse::Alle()};
    bool verbindet = false;
};

} // namespace varnoth
