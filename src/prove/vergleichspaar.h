#pragma once

#include "uebernahme.h"
#include "vergleich.h"
#include "vergleichsseite.h"
#include "vergleichsworte.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// Two sides and what comes of comparing them.
class Vergleichspaar {
public:
    /// Both sides are the factory default at first.
    Vergleichspaar();

    /// Puts another side in place and compares anew. The factory default is always that of a controller like
    /// the one on the other side.
    void Setze(Seitenwahl wahl, Vergleichsseite seite);
    const Vergleichsseite& Seite(Seitenwahl wahl) const;

    const Vergleichsergebnis& Ergebnis() const { return ergebnis; }
    /// Every row in words of the current language.
    std::vector<Vergleichsworte> Zeilen() const;
    /// "Comparison: A - B", naming both sides.
    std::string Titel() const;
    /// The comparison as a text for a file: what was compared, the counts, and the rows given.
    std::string Text(const std::vector<Vergleichsworte>& zeilen) const;

    /// The side whose values can be taken over into the configuration being edited: the other one of the two
    /// must be that configuration. Nothing where neither side is, or both are.
    std::optional<Seitenwahl> Geberseite() const;
    /// Whether a row can be taken over.
    bool IstUebernehmbar(const Parameterstelle& stelle) const;
    /// Takes parameters over into a copy of the configuration being edited as it is now. Only with a
    /// `Geberseite`.
    Uebernahme Uebernimm(const Abbild& inBearbeitung, const Parametermenge& stellen) const;

private:
    Vergleichsseite& DieSeite(Seitenwahl wahl) { return seiten.at(static_cast<std::size_t>(wahl)); }
    void Vergleiche();

    std::array<Vergleichsseite, 2> seiten;
    Vergleichsergebnis ergebnis;
};

/// The sentence for a take-over that was refused: it names the values that would not be plausible.
std::string Ablehnung(const Uebernahme& uebernahme);

} // namespace varnoth
