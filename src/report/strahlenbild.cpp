#include "strahlenbild.h"

#include <algorithm>

namespace varnoth {

namespace {

// In thousandths of a pixel, so that the text does not depend on how a number with a point is written.
constexpr int Mass = 1000;
constexpr int Rand = 12 * Mass;
constexpr int Breite = Strahlenbildbreite * Mass - 2 * Rand;
constexpr int Oben = 2 * Mass;
constexpr int Balkenhoehe = 22 * Mass;
constexpr int Marke = 4 * Mass;
constexpr int Grundlinie = 40 * Mass;
constexpr int HoechstensMarken = 16;

std::string Zahl(int tausendstel) {
    return std::to_string(tausendstel);
}

std::string Rechteck(int links, int breite, const char* farbe) {
    return R"(<rect x=")" + Zahl(links) + R"(" y=")" + Zahl(Oben) + R"(" width=")" + Zahl(breite) +
           R"(" height=")" + Zahl(Balkenhoehe) + R"(" fill=")" + farbe + R"("/>)";
}

std::string Linie(int x, int von, int bis) {
    return R"(<path d="M)" + Zahl(x) + " " + Zahl(von) + "V" + Zahl(bis) +
           R"(" stroke="#000000" stroke-width="600"/>)";
}

/// The picture of some beams.
class Zeichner {
public:
    explicit Zeichner(const Geblankte& strahlen)
        : geblankte(strahlen), anzahl(static_cast<int>(strahlen.size())) {}

    std::string Svg() const {
        return R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" + Zahl(Strahlenbildbreite) +
               R"(" height=")" + Zahl(Strahlenbildhoehe) + R"(" viewBox="0 0 )" +
               Zahl(Strahlenbildbreite * Mass) + " " + Zahl(Strahlenbildhoehe * Mass) + R"(">)" +
               Rechteck(Rand, Breite, "#ffffff") + Balken() + Umriss() + Skala() + "</svg>";
    }

private:
    /// Where beam `strahl`, from 0, begins.
    int Kante(int strahl) const { return Rand + static_cast<int>(std::int64_t{Breite} * strahl / anzahl); }

    /// One bar for beams that follow one another.
    std::string Balken() const {
        std::string balken;
        for (int erster = 0; erster < anzahl; ++erster) {
            int ende = erster;
            while (ende < anzahl && geblankte[static_cast<std::size_t>(ende)])
                ++ende;
            if (ende > erster)
                balken += Rechteck(Kante(erster), Kante(ende) - Kante(erster), "#000000");
            erster = std::max(erster, ende);
        }
        return balken;
    }

    static std::string Umriss() {
        return R"(<rect x=")" + Zahl(Rand) + R"(" y=")" + Zahl(Oben) + R"(" width=")" + Zahl(Breite) +
               R"(" height=")" + Zahl(Balkenhoehe) +
               R"(" fill="none" stroke="#000000" stroke-width="1000"/>)";
    }

    /// Numbers at the first beam and at each multiple of a step.
    std::string Skala() const {
        const int schritt = Schritt();
        std::string skala = Nummer(1);
        for (int strahl = schritt; strahl <= anzahl; strahl += schritt)
            if (strahl > schritt / 2)
                skala += Nummer(strahl);
        return skala;
    }

    int Schritt() const {
        for (const int schritt : {4, 8, 16, 32})
            if (anzahl / schritt <= HoechstensMarken)
                return schritt;
        return 64;
    }

    std::string Nummer(int strahl) const {
        const int mitte = (Kante(strahl - 1) + Kante(strahl)) / 2;
        return Linie(mitte, Oben + Balkenhoehe, Oben + Balkenhoehe + Marke) + R"(<text x=")" + Zahl(mitte) +
               R"(" y=")" + Zahl(Grundlinie) +
               R"(" font-family="sans-serif" font-size="10000" text-anchor="middle">)" + Zahl(strahl) +
               "</text>";
    }

    const Geblankte& geblankte;
    int anzahl;
};

} // namespace

std::string Strahlenbild(const Geblankte& geblankte) {
    return geblankte.empty() ? std::string() : Zeichner(geblankte).Svg();
}

} // namespace varnoth
