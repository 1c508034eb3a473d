#include "schreibfolge.h"

#include "texte.h"
#include "textmitwerten.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextGespeichert = 9170;
constexpr std::int16_t TextNichtGespeichert = 9171;
constexpr std::int16_t TextEinesGespeichert = 9900;
constexpr std::int16_t TextEinesNichtGespeichert = 9901;
constexpr std::int16_t TextGeprueftGespeichert = 9905;
constexpr std::int16_t TextGeprueftNichtGespeichert = 9906;

/// Every writable parameter of which it is known what the controller held.
Schreibauftrag Rueckweg(const Geraetestand& vorher) {
    Schreibauftrag auftrag{.abbild = vorher.abbild};
    for (const Parameterstelle& stelle : vorher.unbekannt)
        auftrag.stellen.erase(stelle);
    return auftrag;
}

Schreibfolge FolgeDesAbbruchs(const Schreibergebnis& ergebnis, const std::optional<Geraetestand>& vorher) {
    Schreibfolge folge;
    if (vorher)
        folge.naechster = Rueckweg(*vorher);
    else
        folge.naechster.stellen.clear();
    folge.befund = BefundDesAbbruchs(ergebnis.auftrag, ergebnis.spur, !folge.naechster.stellen.empty());
    return folge;
}

Schreibfolge FolgeDerPruefung(const Schreibergebnis& ergebnis) {
    Schreibauftrag naechster{.abbild = ergebnis.auftrag.abbild, .stellen = ergebnis.pruefung->abweichend};
    naechster.stellen.insert(ergebnis.pruefung->nichtVerglichen.begin(),
                             ergebnis.pruefung->nichtVerglichen.end());
    return {.befund = BefundDerPruefung(ergebnis.auftrag, *ergebnis.pruefung, ergebnis.ruecklesung),
            .naechster = std::move(naechster)};
}

} // namespace

std::string Schreibsatz(const Schreibergebnis& ergebnis, bool dauerhaft, const std::string& wann) {
    if (ergebnis.pruefung)
        return wann + ": " + Pruefsatz(*ergebnis.pruefung) + " " +
               LadeText(dauerhaft ? TextGeprueftGespeichert : TextGeprueftNichtGespeichert);
    const int anzahl = AnzahlRegister(ergebnis.auftrag.stellen);
    if (anzahl == 1)
        return LadeTextMit(dauerhaft ? TextEinesGespeichert : TextEinesNichtGespeichert, {"1", wann});
    return LadeTextMit(dauerhaft ? TextGespeichert : TextNichtGespeichert, {wann, std::to_string(anzahl)});
}

std::optional<Schreibfolge> FolgeAus(const Schreibergebnis& ergebnis,
                                     const std::optional<Geraetestand>& vorher) {
    const bool nichtsGesendet = ergebnis.spur.geschrieben.empty() && ergebnis.spur.ungewiss.empty();
    if (!ergebnis.vollstaendig && !nichtsGesendet)
        return FolgeDesAbbruchs(ergebnis, vorher);
    if (ergebnis.pruefung && !ergebnis.pruefung->IstGut())
        return FolgeDerPruefung(ergebnis);
    return std::nullopt;
}

} // namespace varnoth
