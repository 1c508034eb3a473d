#include "reduktion.h"

#include "uebersicht.h"

#include <algorithm>
#include <memory>

namespace varnoth {

namespace {

// More packets than this are never read for one picture: the overview has to do.
constexpr std::uint64_t MeistePakete = 4000;

bool IstVerbindungsereignis(Messereignisart art) {
    using enum Messereignisart;
    return art == LiveBegonnen || art == LiveBeendet || art == Verloren || art == Zurueck;
}

} // namespace

void Spaltenspeicher::Beginne(Zeit neueBreite, unsigned neueTeile) {
    breite = std::max(neueBreite, Zeit(1));
    teile = neueTeile;
    spalten.clear();
    basis = 0;
    bekanntBis = Zeit(-1);
    fertig = true;
}

std::int64_t Spaltenspeicher::NummerUm(Zeit zeit) const {
    const std::int64_t nummer = zeit / breite;
    return zeit < Zeit(0) && nummer * breite != zeit ? nummer - 1 : nummer;
}

bool Spaltenspeicher::IstFertig() const {
    return fertig;
}

std::optional<std::int64_t> Spaltenspeicher::Decke(const Messquelle& quelle, std::int64_t erste,
                                                   std::int64_t anzahl) {
    Schiebe(erste, anzahl);
    FolgeDerQuelle(quelle);
    const std::int64_t geaendert = std::min(VergissBis(NummerUm(quelle.Spanne().von)), FuelleGrob(quelle));
    return geaendert < Ende() ? std::optional(geaendert) : std::nullopt;
}

void Spaltenspeicher::Schiebe(std::int64_t erste, std::int64_t anzahl) {
    if (erste >= Ende() || erste + anzahl <= basis) {
        spalten.clear();
        basis = erste;
    }
    while (basis > erste) {
        spalten.emplace_front();
        --basis;
    }
    while (basis < erste) {
        spalten.pop_front();
        ++basis;
    }
    spalten.resize(static_cast<std::size_t>(anzahl));
}

/// The column with which the source ended was not full.
void Spaltenspeicher::FolgeDerQuelle(const Messquelle& quelle) {
    const Zeitspanne ganz = quelle.Spanne();
    if (ganz.bis != bekanntBis && bekanntBis >= Zeit(0))
        for (std::int64_t i = std::max(basis, NummerUm(std::min(bekanntBis, ganz.bis))); i < Ende(); ++i)
            An(i) = {};
    bekanntBis = ganz.bis;
    anfang = ganz.von;
}

/// Columns before the beginning of the source have nothing any more. Gives the first one that had something.
std::int64_t Spaltenspeicher::VergissBis(std::int64_t ende) {
    std::int64_t geaendert = Ende();
    for (std::int64_t i = std::min(Ende(), ende) - 1; i >= basis; --i) {
        if (An(i).spalte != Messspalte{})
            geaendert = i;
        An(i) = {.guete = Guete::Genau, .spalte = {}};
    }
    return geaendert;
}

std::int64_t Spaltenspeicher::ErsteOhne(Guete guete, std::int64_t von) const {
    while (von < Ende() && An(von).guete >= guete)
        ++von;
    return von;
}

/// Gives the first column that had to be filled.
std::int64_t Spaltenspeicher::FuelleGrob(const Messquelle& quelle) {
    const bool genuegt = GenuegtUebersicht(quelle);
    const std::int64_t erste = ErsteOhne(Guete::Grob, basis);
    for (std::int64_t von = erste; von < Ende(); von = ErsteOhne(Guete::Grob, von)) {
        std::int64_t bis = von;
        while (bis < Ende() && An(bis).guete == Guete::Fehlt)
            An(bis++).guete = genuegt ? Guete::Genau : Guete::Grob;
        NimmAbschnitte(quelle.DieUebersicht(), von, bis);
    }
    fertig = ErsteOhne(Guete::Genau, basis) == Ende();
    return erste;
}

/// Takes in what the overview knows of the columns from `von` up to before `bis`.
void Spaltenspeicher::NimmAbschnitte(const Uebersicht& uebersicht, std::int64_t von, std::int64_t bis) {
    uebersicht.Trage({.breite = breite,
                      .von = von,
                      .bis = bis,
                      .teile = teile,
                      .hole = [this](std::int64_t nummer) -> Messspalte& { return An(nummer).spalte; }});
}

/// Columns as wide as two stretches of the overview gain nothing from the passes themselves.
bool Spaltenspeicher::GenuegtUebersicht(const Messquelle& quelle) const {
    const Uebersicht& uebersicht = quelle.DieUebersicht();
    if (uebersicht.Anzahl() == 0 || quelle.Erstes() == quelle.Ende())
        return true;
    const Zeitspanne mitte = uebersicht.Spanne(uebersicht.AbschnittUm(Beginn(basis + Anzahl() / 2)));
    if (breite >= 2 * (mitte.bis - mitte.von) && breite >= std::chrono::seconds(2))
        return true;
    return quelle.PaketUm(Beginn(Ende())) - quelle.PaketUm(Beginn(basis)) > MeistePakete;
}

std::optional<std::int64_t> Spaltenspeicher::Verfeinere(const Messquelle& quelle, int pakete) {
    const std::int64_t von = ErsteOhne(Guete::Genau, basis);
    if (von == Ende() || quelle.Erstes() == quelle.Ende()) {
        fertig = true;
        return {};
    }
    std::int64_t bis = von;
    while (bis < Ende() && An(bis).guete != Guete::Genau)
        ++bis;
    std::vector<std::shared_ptr<const Messpaket>> gelesene;
    std::uint64_t nummer = quelle.PaketUm(Beginn(von));
    const auto weiter = [&] { return nummer < quelle.Ende() && quelle.Spanne(nummer).von < Beginn(bis); };
    for (; weiter() && pakete > 0; ++nummer, --pakete)
        if (auto paket = quelle.Lies(nummer))
            gelesene.push_back(std::move(paket));
    if (weiter())
        bis = NummerUm(quelle.Spanne(nummer).von);
    if (bis > von)
        NimmGenau(gelesene, von, bis);
    else
        An(von).guete = Guete::Genau; // it needs more packets than may be read: what the overview knows stays
    fertig = ErsteOhne(Guete::Genau, von) == Ende();
    return von;
}

void Spaltenspeicher::NimmGenau(const std::vector<std::shared_ptr<const Messpaket>>& pakete, std::int64_t von,
                                std::int64_t bis) {
    for (std::int64_t nummer = von; nummer < bis; ++nummer)
        An(nummer) = {.guete = Guete::Genau, .spalte = {}};
    for (const auto& paket : pakete) {
        for (const Messdurchgang& durchgang : paket->durchgaenge)
            if (const auto n = NummerUm(durchgang.uhr); n >= von && n < bis)
                An(n).spalte.Nimm(durchgang, teile);
        for (const Messereignis& ereignis : paket->ereignisse)
            if (const auto n = NummerUm(ereignis.laufzeit);
                n >= von && n < bis && IstVerbindungsereignis(ereignis.art))
                An(n).spalte.luecke = true;
    }
}

std::vector<Spaltensinn> Spaltenspeicher::Deute(Zeit jetzt) const {
    std::vector<Spaltensinn> sinn(spalten.size(), Spaltensinn::Leer);
    const auto setze = [&](std::int64_t von, std::int64_t bis, Spaltensinn was) {
        std::fill(sinn.begin() + von, sinn.begin() + bis, was);
    };
    const auto lang = [&](std::int64_t von, std::int64_t bis) {
        return (bis - von) * breite > LaengstePause;
    };
    const std::int64_t ende = std::clamp<std::int64_t>(NummerUm(jetzt) + 1 - basis, 0, Anzahl());
    std::int64_t seit = std::clamp<std::int64_t>(NummerUm(anfang) - basis, 0, ende);
    bool gemessen = false;
    bool unterbrochen = false;
    for (std::int64_t i = seit; i < ende; ++i) {
        const Messspalte& spalte = spalten[static_cast<std::size_t>(i)].spalte;
        unterbrochen |= spalte.luecke;
        if (!spalte.durchgang)
            continue;
        if (unterbrochen || lang(seit, i))
            setze(seit, i, Spaltensinn::Luecke);
        else if (gemessen)
            setze(seit, i, Spaltensinn::Gehalten);
        setze(i, i + 1, Spaltensinn::Gemessen);
        seit = i + 1;
        gemessen = true;
        unterbrochen = spalte.luecke;
    }
    if (unterbrochen || lang(seit, ende))
        setze(seit, ende, Spaltensinn::Luecke);
    return sinn;
}

} // namespace varnoth
