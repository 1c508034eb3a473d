#include "verlaufswahl.h"

#include "abbild.h"
#include "registeradressen.h"
#include "strahlposition.h"
#include "texte.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextErstesOptikteil = 5200;
constexpr std::int16_t TextErsterWert = 4006;
constexpr const char* KeineStelle = "–";

constexpr int WerteJeGruppe = 3; // lowest, highest, number

bool IstAnzahl(Messreihe reihe) {
    return reihe.wert % WerteJeGruppe == WerteJeGruppe - 1;
}

std::uint32_t Bit(Messreihe reihe) {
    return std::uint32_t{1} << static_cast<unsigned>(reihe.teil * AnzahlKurvenwerte + reihe.wert);
}

} // namespace

std::string Reihenname(Messreihe reihe) {
    return LadeText(static_cast<std::int16_t>(TextErstesOptikteil + reihe.teil)) + " " +
           LadeText(static_cast<std::int16_t>(TextErsterWert + reihe.wert));
}

Strahlabstaende StrahlabstaendeVon(const Messquelle& quelle) {
    Strahlabstaende abstaende{};
    if (quelle.Erstes() == quelle.Ende())
        return abstaende;
    if (const auto abbild = quelle.Konfiguration(quelle.Ende() - 1))
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            abstaende[static_cast<std::size_t>(teil)] =
                abbild->HoleRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Aufloesung, teil);
    return abstaende;
}

bool Verlaufswahl::Hat(Messreihe reihe) const {
    return (kurven & Bit(reihe)) != 0;
}

void Verlaufswahl::Setze(Messreihe reihe, bool gewaehlt) {
    kurven = gewaehlt ? kurven | Bit(reihe) : kurven & ~Bit(reihe);
}

std::vector<Messreihe> Verlaufswahl::Reihen() const {
    std::vector<Messreihe> reihen;
    for (int i = 0; i < AnzahlMessreihen; ++i)
        if (Hat(ReiheAn(i)))
            reihen.push_back(ReiheAn(i));
    return reihen;
}

bool Verlaufswahl::HatTeil(int teil) const {
    for (int wert = 0; wert < AnzahlKurvenwerte; ++wert)
        if (Hat({teil, wert}))
            return true;
    return false;
}

Verlaufswahl AnfangswahlFuer(int teil) {
    Verlaufswahl wahl;
    for (int wert = 0; wert < WerteJeGruppe; ++wert)
        wahl.Setze({teil, wert}, true);
    return wahl;
}

int ErsterTeil(const Messquelle& quelle) {
    if (quelle.Erstes() == quelle.Ende())
        return 0;
    const auto paket = quelle.Lies(quelle.Ende() - 1);
    if (paket && !paket->durchgaenge.empty())
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            if (paket->durchgaenge.back().teile[static_cast<std::size_t>(teil)].vorhanden)
                return teil;
    return 0;
}

std::optional<double> Achsenwert(const Verlaufswahl& wahl, const Strahlabstaende& abstaende, Messreihe reihe,
                                 int wert) {
    if (!wahl.millimeter)
        return wert;
    const int abstand = abstaende[static_cast<std::size_t>(reihe.teil)];
    if (abstand <= 0)
        return {};
    if (IstAnzahl(reihe))
        return Strahlenbreite(wert, abstand);
    return Strahlposition(wert, abstand).value_or(0);
}

std::string Werttext(const Verlaufswahl& wahl, const Strahlabstaende& abstaende, Messreihe reihe, int wert) {
    if (!wahl.millimeter)
        return std::to_string(wert);
    const int abstand = abstaende[static_cast<std::size_t>(reihe.teil)];
    const auto mm = IstAnzahl(reihe) ? Strahlenbreite(wert, abstand) : Strahlposition(wert, abstand);
    return mm ? Positionstext(mm) : KeineStelle;
}

} // namespace varnoth
