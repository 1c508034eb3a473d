#pragma once

#include <QString>

#include <array>
#include <vector>

namespace varnoth::bench {

/// What one size of the controller costs, each in milliseconds.
struct Kosten {
    double groesse; ///< number of parts or of beams
    double durchgang;
    double rechenzeit;
    double zeichnen;
    double sprache;
};

/// One kind of cost and what it is called.
struct Kostenart {
    const char* name;
    double Kosten::*wert;
};

inline constexpr std::array Kostenarten{
    Kostenart{"time of a pass", &Kosten::durchgang},
    Kostenart{"processor time of a pass", &Kosten::rechenzeit},
    Kostenart{"drawing a scan", &Kosten::zeichnen},
    Kostenart{"switching the language", &Kosten::sprache},
};

/// Costs over one quantity, growing, at least two sizes.
struct Messreihe {
    QString name; ///< of the quantity
    std::vector<Kosten> punkte;
};

/// Exponent of the power law that fits best: 1 is linear, 0 is constant. Least squares over the logarithms.
double Exponent(const Messreihe& reihe, double Kosten::*wert);
/// The greatest exponent between two neighbouring sizes.
double SteilsterSchritt(const Messreihe& reihe, double Kosten::*wert);
/// The series as a table in Markdown.
QString Tabelle(const Messreihe& reihe);

} // namespace varnoth::bench
