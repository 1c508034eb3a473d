#pragma once

#include "befehlstabelle.h"
#include "menuezustand.h"

#include <cstdint>
#include <functional>
#include <span>

class QAction;
class QMainWindow;

namespace varnoth {

/// The commands of the main window as actions, those of the menu bar and those that no menu has: what a click
/// stores, what can be chosen in which state of the program, what is ticked.
class Hauptmenue {
public:
    using Klick = std::function<void(Befehl befehl, int index)>;

    /// Binds every action of the commands to `klick` and makes those that no menu has. The window must
    /// outlive this object.
    /// @throws std::logic_error when an action of a menu or of the state table is missing
    Hauptmenue(QMainWindow& fenster, const Klick& klick,
               std::span<const Befehlszeile> befehle = Befehlstabelle());

    /// Live data runs or does not.
    void SetzeLiveDaten(bool laufen);
    /// The configuration lets autosend start or does not.
    void SetzeAutosendWaehlbar(bool waehlbar);
    /// The service mode: its two items appear.
    void ZeigeService();
    /// Each part's item is visible exactly when the part has beams in the image.
    void FolgeStrahlenzahlen();
    /// Which parts' items are visible.
    std::array<bool, AnzahlOptikteile> GezeigteTeile() const { return zustand.hatStrahlen; }
    void ZeigeTeile(const std::array<bool, AnzahlOptikteile>& teile);
    /// No part's item is visible.
    void VerbergeAnsichten();

    /// Ticks serial port 1..4 alone; another number ticks none.
    void HakePort(int nummer);
    /// Ticks the current language alone.
    void HakeSprache();
    /// Tells, in the current language, where the subjects of menu items without a command are found by now.
    void ZeigeFundorte();
    /// Ticks the view of optical part 0..3 or takes the tick away.
    void HakeAnsicht(int optikteil, bool gezeigt);
    bool UebertragenerWert() const;
    /// Turns the tick of the transmitted value.
    void WechsleUebertragenerWert();

private:
    void Verbinde(const Befehlszeile& zeile, int platz, const Klick& klick);
    QAction& NeueAktion(const Befehlszeile& zeile, const QString& name);
    void Aktualisiere();
    void ZeigeTipp(QAction& punkt, std::int16_t textId);

    QMainWindow& fenster;
    Programmzustand zustand;
};

} // namespace varnoth
