#include "vergleich.h"

#include "registeradressen.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

bool TraegtBedeutung(const Parameter& parameter) {
    return (parameter.bereich == Spezifisch && parameter.adresse == spezifisch::Strahlenzahl) ||
           (parameter.bereich == Speicherbereich::Kommunikationsdaten &&
            parameter.adresse == kommunikation::Bustyp);
}

bool NimmtTeil(const Parameter& parameter, Vergleichsumfang umfang) {
    if (umfang == Vergleichsumfang::Geschriebenes)
        return IstSchreibbar(parameter.beschreibung);
    return parameter.beschreibung.IstKonfiguration == 1 || TraegtBedeutung(parameter);
}

/// An image and what is known of it.
struct Seite {
    const Abbild& abbild;
    const Parametermenge& ungelesen;

    bool IstGelesen(const Parameterstelle& stelle) const { return !ungelesen.contains(stelle); }
    Werte Hole(const Parameterstelle& stelle) const {
        return abbild.HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil);
    }
    bool Fehlt(int teil) const {
        const Parameterstelle strahlen{Spezifisch, spezifisch::Strahlenzahl, teil};
        return IstGelesen(strahlen) && Hole(strahlen).at(0) <= 0;
    }
};

class Vergleichslauf {
public:
    Vergleichslauf(const Seite& eine, const Seite& andere, Vergleichsumfang was)
        : a(eine), b(andere), umfang(was) {}

    Vergleichsergebnis Laufe() {
        for (const auto bereich : AlleSpeicherbereiche)
            for (int teil = 0; teil < Exemplare(bereich); ++teil)
                Nimm(bereich, teil);
        return std::move(ergebnis);
    }

private:
    bool FehltDasTeil(const Seite& seite, Speicherbereich bereich, int teil) const {
        return umfang == Vergleichsumfang::Konfiguration && bereich == Spezifisch && seite.Fehlt(teil);
    }

    void Nimm(Speicherbereich bereich, int teil) {
        const bool fehltInA = FehltDasTeil(a, bereich, teil);
        const bool fehltInB = FehltDasTeil(b, bereich, teil);
        if (fehltInA && fehltInB) {
            ergebnis.nirgends.push_back(teil);
            return;
        }
        for (const Parameter& parameter : AlleParameter())
            if (parameter.bereich == bereich && NimmtTeil(parameter, umfang))
                Fuege({bereich, parameter.adresse, teil}, fehltInA, fehltInB);
    }

    void Fuege(const Parameterstelle& stelle, bool fehltInA, bool fehltInB) {
        Vergleichszeile zeile{stelle, Vergleichsklasse::Gleich, a.Hole(stelle), b.Hole(stelle)};
        if (!a.IstGelesen(stelle) || !b.IstGelesen(stelle))
            zeile.klasse = Vergleichsklasse::NichtLesbar;
        else if (fehltInA)
            zeile.klasse = Vergleichsklasse::NurInB;
        else if (fehltInB)
            zeile.klasse = Vergleichsklasse::NurInA;
        else if (!SindGleich(zeile.a, zeile.b))
            zeile.klasse = Vergleichsklasse::Verschieden;
        ergebnis.Fuege(std::move(zeile));
    }

    bool SindGleich(const Werte& eine, const Werte& andere) const {
        constexpr std::int32_t Register = 0xFFFF;
        if (umfang == Vergleichsumfang::Konfiguration)
            return eine == andere;
        return std::ranges::equal(
            eine, andere, [](std::int32_t x, std::int32_t y) { return (x & Register) == (y & Register); });
    }

    Seite a;
    Seite b;
    Vergleichsumfang umfang;
    Vergleichsergebnis ergebnis;
};

} // namespace

bool Vergleichszeile::HatA(const Parametermenge& ungelesen) const {
    return klasse != Vergleichsklasse::NurInB && !ungelesen.contains(stelle);
}

bool Vergleichszeile::HatB(const Parametermenge& ungelesen) const {
    return klasse != Vergleichsklasse::NurInA && !ungelesen.contains(stelle);
}

int Vergleichsergebnis::Unterschiede() const {
    return Anzahl(Vergleichsklasse::Verschieden) + Anzahl(Vergleichsklasse::NurInA) +
           Anzahl(Vergleichsklasse::NurInB);
}

bool Vergleichsergebnis::IstGleich() const {
    return !zeilen.empty() && Anzahl(Vergleichsklasse::Gleich) == static_cast<int>(zeilen.size());
}

void Vergleichsergebnis::Fuege(Vergleichszeile zeile) {
    ++anzahlen[Platz(zeile.klasse)];
    zeilen.push_back(std::move(zeile));
}

Vergleichsergebnis Vergleiche(const Abbild& a, const Abbild& b, const Ungelesenes& ungelesen,
                              Vergleichsumfang umfang) {
    return Vergleichslauf({a, ungelesen.inA}, {b, ungelesen.inB}, umfang).Laufe();
}

} // namespace varnoth
