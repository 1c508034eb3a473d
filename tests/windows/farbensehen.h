#pragma once

#include <QColor>

#include <array>
#include <cmath>

namespace varnoth::pruefung {

/// Three linear parts of red, green and blue, or lightness and the two opponent colours.
using Dreizahl = std::array<double, 3>;
using Matrix = std::array<Dreizahl, 3>;

inline Dreizahl Mal(const Matrix& matrix, const Dreizahl& farbe) {
    Dreizahl ergebnis{};
    for (std::size_t i = 0; i < 3; ++i)
        ergebnis[i] = matrix[i][0] * farbe[0] + matrix[i][1] * farbe[1] + matrix[i][2] * farbe[2];
    return ergebnis;
}

/// What a person sees of linear red, green and blue: all, or without the cones for long, middle or short
/// waves (model of Machado, Oliveira and Fernandes, severity 1), or the lightness alone.
struct Sehweise {
    const char* name;
    Matrix sicht;
};

inline constexpr Sehweise DieSehweisen[] = {
    {"all colours", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanopia",
     {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}}},
    {"deuteranopia",
     {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}},
    {"tritanopia",
     {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}},
};
inline constexpr Sehweise NurHelligkeit{
    "no colours", {{{0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}}}};

inline double Linear(double anteil) {
    return anteil <= 0.04045 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
}

/// CIE L*a*b* (D65) of what is seen.
inline Dreizahl Eindruck(const QColor& farbe, const Sehweise& sehweise) {
    constexpr Matrix NachXyz{{{0.4124 / 0.95047, 0.3576 / 0.95047, 0.1805 / 0.95047},
                              {0.2126, 0.7152, 0.0722},
                              {0.0193 / 1.08883, 0.1192 / 1.08883, 0.9505 / 1.08883}}};
    Dreizahl gesehen =
        Mal(sehweise.sicht, {Linear(farbe.redF()), Linear(farbe.greenF()), Linear(farbe.blueF())});
    for (double& anteil : gesehen)
        anteil = std::clamp(anteil, 0.0, 1.0);
    Dreizahl f = Mal(NachXyz, gesehen);
    for (double& wert : f)
        wert = wert > 0.008856 ? std::cbrt(wert) : 7.787 * wert + 16.0 / 116;
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

/// How different two colours look (CIE 1976): 2 is just to be seen, black and white are 100 apart.
inline double Farbabstand(const QColor& eine, const QColor& andere, const Sehweise& sehweise) {
    const Dreizahl a = Eindruck(eine, sehweise);
    const Dreizahl b = Eindruck(andere, sehweise);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

} // namespace varnoth::pruefung
