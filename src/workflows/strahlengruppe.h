#pragma once

#include "strahlenzahlen.h"

#include <QWidget>

#include <array>
#include <cstdint>
#include <memory>

class QComboBox;
class QRadioButton;

namespace varnoth {

namespace Ui {
class Strahlengruppe;
}

/// The string ids that a form has of its own for its beam counts.
struct Strahlentexte {
    std::int16_t anzahlDerOptikteile;
    std::int16_t strahlenanzahlL1; ///< those of the other parts follow
    std::int16_t zuVieleStrahlen;
};

/// The controls with which a form asks for the beam counts of a new configuration: the number of optical
/// parts, a list for each, and the total against what the controller can have.
class Strahlengruppe : public QWidget {
public:
    explicit Strahlengruppe(QWidget* eltern = nullptr);
    ~Strahlengruppe() override;

    /// The form's own texts; to be called before the form is localised.
    void SetzeTexte(const Strahlentexte& neue);
    /// Makes the new configuration in the register image. False, after a message, for too many beams
    /// together, and where changes that would be lost could not be put aside and the user keeps them.
    bool Uebernimm();
    /// The keys go to the number of optical parts that is chosen: an arrow key changes it from there.
    void NimmFokus();

private:
    void FuelleListen();
    void NimmOptikteile(int anzahl);
    void ZeigeSumme();
    Strahlenzahlen Eingabe() const;

    std::unique_ptr<Ui::Strahlengruppe> ui;
    std::array<QComboBox*, AnzahlOptikteile> Combo1;
    std::array<QRadioButton*, AnzahlOptikteile> Option1;
    /// What a list showed before its part was taken out, to be shown again when the part comes back.
    Strahlenzahlen gemerkt{};
    Strahlentexte texte{};
};

} // namespace varnoth
