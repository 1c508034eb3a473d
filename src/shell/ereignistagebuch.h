#pragma once

#include "ereignisanbieter.h"
#include "ereignismitschrift.h"
#include "tagebuchschreiber.h"

#include <QObject>
#include <QTimer>

#include <cstddef>
#include <optional>
#include <string>

namespace varnoth {

/// Appends events to a file of the day while that is wanted, in this run and, as the settings keep it, in
/// later ones. It looks once a second, makes the lines while the line is busy anyway, and has them written
/// beside. What could not be written follows as soon as it can be.
class Ereignistagebuch : public QObject {
    Q_OBJECT

public:
    /// No file of a day becomes longer than so many bytes.
    static constexpr std::size_t GroessteDatei = std::size_t{20} << 20U;

    explicit Ereignistagebuch(std::size_t hoechstens = GroessteDatei, Tagebuchschreiber::Weg weg = {});

    const Mitschriftstand& Stand() const { return stand; }
    /// Whether lines are on their way to the disk.
    bool Schreibt() const { return schreiber.Laeuft(); }
    /// Begins or ends writing; it begins with what happens from now on.
    void Setze(bool laeuft, const std::string& ordner);
    /// Looks now.
    void Sieh();
    /// Writes all that is due, as long as the disk answers: it waits for three seconds at most.
    void SchreibeAlles();

private:
    bool Schreibe();
    void SiehNach();
    bool Uebernimm(const Tagebuchschreiber::Ergebnis& ergebnis);
    void MerkeFehler(const std::string& fehler);

    std::size_t grenze;
    Mitschriftstand stand;
    std::optional<Ereignismitschrift> mitschrift;
    Tagebuchschreiber schreiber;
    QTimer takt;
    QTimer schreibtakt; ///< while it is being written
    bool geplant = false;
};

} // namespace varnoth
