#pragma once

#include "pruefumgebung.h"
#include "registerabbild.h"

#include <gtest/gtest.h>

#include <numeric>

namespace varnoth {

/// Setting of the tests of the data model: looks into the image and changes it, parameter or not.
class ModellTest : public testing::Test {
protected:
    /// Any register of the image, whether a parameter starts there or not.
    static std::int32_t Wert(Speicherbereich bereich, std::int16_t adresse, int optikteil = 0) {
        return modDaten::Bereich(bereich)[Stelle(bereich, adresse, optikteil)];
    }
    static void SetzeWert(Speicherbereich bereich, std::int16_t adresse, int optikteil, std::int32_t wert) {
        const auto alte = modDaten::Bereich(bereich);
        Werte werte(alte.begin(), alte.end());
        werte[Stelle(bereich, adresse, optikteil)] = wert;
        modDaten::ErsetzeBereich(bereich, werte);
    }
    /// first, first + 1, ...
    static Werte Folge(std::int32_t erster, std::size_t anzahl) {
        Werte werte(anzahl);
        std::iota(werte.begin(), werte.end(), erster);
        return werte;
    }
    /// The image as it is now, to compare it with later.
    static Abbild Kopie() { return modDaten::DasAbbild(); }

    pruefung::PruefUmgebung umgebung;
};

} // namespace varnoth
