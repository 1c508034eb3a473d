#pragma once

#include "fensteranordnung.h"
#include "werte.h"

#include <QEvent>
#include <QObject>
#include <QSize>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

class QMdiArea;
class QMdiSubWindow;

namespace varnoth {

class frmDocument;

/// The views of the four optical parts in the main window's area: their captions, their places, which of them
/// are shown. While the last arrangement was a tiling the views follow the size of the area; a view that the
/// user moves or sizes ends that.
class Ansichten : public QObject {
    Q_OBJECT

public:
    /// The area must outlive this object. The four views are made when one of them is needed for the first
    /// time: an empty main window is there sooner without them.
    explicit Ansichten(QMdiArea& bereich);

    /// The view of optical part 0..3.
    frmDocument& Ansicht(int optikteil);
    /// The views follow the beam counts in the image: those of parts with beams are built anew and shown, the
    /// others are closed. Where some of them have a place of their own, those keep it. True when all are to
    /// be arranged: one that appears has no place yet, and none of the others has one of its own.
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
    /// Whether the views show a replay: each caption then begins with the word, and nothing becomes old.
    void SetzeWiedergabe(bool ob);
    /// The values of a part are in the image that is shown, as after a polling pass.
    void ZeigeDurchgang(int optikteil);
    /// What the view of a part shows holds no longer; its caption stays.
    void VerwirfWerte(int optikteil);

    /// What is shown, and under which captions.
    struct Stand {
        std::array<bool, AnzahlOptikteile> gezeigt{};
        std::array<std::int16_t, AnzahlOptikteile> titeltexte{};
    };
    Stand HoleStand() const;
    /// Shows what was shown then, set up for the image that is shown now; without values, for they are not
    /// those of now.
    void StelleHer(const Stand& stand);

    /// Fills all texts in the current language again.
    void Lokalisiere();

    /// Arranges the shown views so that they fill the area.
    void Ordne(Anordnung art);
    /// Arranges them in the way of the last tiling, else side by side.
    void OrdneWieZuvor();
    /// Puts the shown views one over the other.
    void Staffle();
    /// The view in front, else the first that is shown, fills the area with its values and beams; a second
    /// call takes that back.
    void SchalteGrossanzeige();
    /// Stores the place of every view and whether they are tiled.
    void SpeicherePlaetze() const;

signals:
    /// A view was set up or closed: its menu item is to follow.
    void Gewechselt(int optikteil, bool gezeigt);
    /// A view has appeared or gone.
    void ZahlGewechselt();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    bool SindGeladen() const;
    void LadeAlle();
    void Lade(int optikteil);
    std::vector<QMdiSubWindow*> Gezeigte() const;
    QSize KleinsterRahmen();
    void ZeigeGebaute();
    void StelleTeilHer(int optikteil, bool gezeigt);
    bool EineMaximiert() const;
    void BemerkeWechsel();
    void BemerkeRahmen(QEvent::Type ereignis, const QMdiSubWindow& fenster);
    void FolgeFlaeche();

    QMdiArea& bereich;
    std::array<frmDocument*, AnzahlOptikteile> ansichten{};
    std::array<QMdiSubWindow*, AnzahlOptikteile> rahmen{};
    std::array<bool, AnzahlOptikteile> hatPlatz{}; // stands where the user or an arrangement has put it
    std::optional<Anordnung> kachelung;            // the views are tiled in this way
    bool vonFrueher = false;                       // the tiling is that of an earlier run
    bool ordnet = false;                           // the views' places are being changed from here
    bool wechselt = false;                         // a view is being maximised, minimised or restored
    bool nachzuholen = false;                      // the area has changed while a view was maximised
    std::array<std::int16_t, AnzahlOptikteile> titeltexte{};
    bool wiedergabe = false;
};

} // namespace varnoth
