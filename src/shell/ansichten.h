#pragma once

#include "fensteranordnung.h"
#include "werte.h"

#include <QObject>
#include <QSize>

#include <array>
#include <cstdint>

class QMdiArea;
class QMdiSubWindow;

namespace varnoth {

class frmDocument;

/// The views of the four optical parts in the main window's area: their captions, their places, which of them
/// are shown.
class Ansichten : public QObject {
    Q_OBJECT

public:
    /// Makes the four views in the area, which must outlive this object; none is shown.
    explicit Ansichten(QMdiArea& bereich);

    /// The view of optical part 0..3.
    frmDocument& Ansicht(int optikteil);
    /// The views follow the beam counts in the image: those of parts with beams are built anew and shown, the
    /// others are closed. True when one of them appears for the first time and has no place yet.
    bool BaueAuf();
    /// Builds one view anew, shows it and brings it to the front.
    /// @param live live data is running on a line that answers
    void Zeige(int optikteil, bool live);
    /// How many views are shown.
    int AnzahlGezeigter() const;

    /// Which text follows the part's number in its caption.
    void SetzeTitel(int optikteil, std::int16_t textId);
    /// The captions of parts as polling knows them.
    void ZeigeZustaende(bool live);
    /// All captions say offline.
    void ZeigeAlleOffline();
    /// Fills all texts in the current language again.
    void Lokalisiere();

    /// Arranges the shown views so that they fill the area.
    void Ordne(Anordnung art);
    /// Puts the shown views one over the other.
    void Staffle();
    /// Stores the place of every view.
    void SpeicherePlaetze() const;

signals:
    /// A view was set up or closed: its menu item is to follow.
    void Gewechselt(int optikteil, bool gezeigt);

private:
    void Lade(int optikteil);
    QSize KleinsterRahmen() const;

    QMdiArea& bereich;
    std::array<frmDocument*, AnzahlOptikteile> ansichten{};
    std::array<QMdiSubWindow*, AnzahlOptikteile> rahmen{};
    std::array<bool, AnzahlOptikteile> hatPlatz{}; // stands where the user or an arrangement has put it
    std::array<std::int16_t, AnzahlOptikteile> titeltexte{};
};

} // namespace varnoth
