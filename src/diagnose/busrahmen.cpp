#include "busrahmen.h"

#include "gestalt.h"
#include "rahmen.h"

#include <string>

namespace varnoth {

namespace {

constexpr std::size_t Adressstelle = 2, Anzahlstelle = 4, Wertestelle = 7, Datenstelle = 3, Pruefsumme = 2;
constexpr unsigned Ablehnungsbit = 0x80;

std::uint8_t Byte(std::string_view rahmen, std::size_t stelle) {
    return static_cast<std::uint8_t>(rahmen[stelle]);
}

std::uint16_t Wort(std::string_view rahmen, std::size_t stelle) {
    return static_cast<std::uint16_t>(Byte(rahmen, stelle) << 8 | Byte(rahmen, stelle + 1));
}

bool Hat(std::string_view rahmen, Funktion funktion) {
    return Funktionscode(rahmen) == static_cast<std::uint8_t>(funktion);
}

Werte WerteIn(std::string_view daten) {
    Werte werte;
    for (std::size_t i = 0; i + 1 < daten.size(); i += 2)
        werte.push_back(Wort(daten, i));
    return werte;
}

/// The last whole reply that a recogniser could have taken for the request's own.
std::string_view LetztePassende(std::string_view anforderung, std::string_view empfangen) {
    const std::string frage(anforderung);
    std::string_view letzte;
    for (const std::string_view antwort : SucheAntworten(empfangen))
        if (Passt(antwort, frage))
            letzte = antwort;
    return letzte;
}

} // namespace

bool Beruehren(const Registerbezug& eines, const Registerbezug& anderes) {
    return eines.bereich == anderes.bereich && eines.adresse < anderes.adresse + anderes.anzahl &&
           anderes.adresse < eines.adresse + eines.anzahl;
}

std::optional<std::uint8_t> Funktionscode(std::string_view rahmen) {
    return rahmen.size() < Adressstelle ? std::nullopt : std::optional(Byte(rahmen, 1));
}

bool IstLeserahmen(std::string_view rahmen) {
    return Hat(rahmen, Funktion::Lesen);
}

bool IstSchreibrahmen(std::string_view rahmen) {
    return Hat(rahmen, Funktion::Schreiben);
}

std::optional<Adressangabe> AdressangabeVon(std::string_view anforderung) {
    if ((!IstLeserahmen(anforderung) && !IstSchreibrahmen(anforderung)) ||
        anforderung.size() < Anzahlstelle + 2)
        return std::nullopt;
    return Adressangabe{Wort(anforderung, Adressstelle), Wort(anforderung, Anzahlstelle)};
}

std::optional<Registerbezug> RegisterbezugVon(std::string_view anforderung) {
    const auto angabe = AdressangabeVon(anforderung);
    if (!angabe)
        return std::nullopt;
    for (const Speicherbereich bereich : AlleSpeicherbereiche) {
        const int adresse = angabe->adresse - Bereichsanfang(bereich);
        if (adresse >= 0 && adresse < AnzahlAdressen(bereich))
            return Registerbezug{bereich, adresse, angabe->anzahl};
    }
    return std::nullopt;
}

Werte GeschriebeneWerte(std::string_view anforderung) {
    const auto angabe = AdressangabeVon(anforderung);
    if (!angabe || !IstSchreibrahmen(anforderung) ||
        anforderung.size() < Wertestelle + std::size_t{2} * angabe->anzahl)
        return {};
    return WerteIn(anforderung.substr(Wertestelle, std::size_t{2} * angabe->anzahl));
}

Werte GeleseneWerte(std::string_view anforderung, std::string_view empfangen) {
    const std::string_view antwort =
        IstLeserahmen(anforderung) ? LetztePassende(anforderung, empfangen) : std::string_view();
    if (!IstLeserahmen(antwort))
        return {};
    return WerteIn(antwort.substr(Datenstelle, antwort.size() - Datenstelle - Pruefsumme));
}

std::string_view Identifikationsdaten(std::string_view empfangen) {
    std::string_view letzte;
    for (const std::string_view antwort : SucheAntworten(empfangen))
        if (Hat(antwort, Funktion::Identifikation))
            letzte = antwort.substr(Datenstelle, antwort.size() - Datenstelle - Pruefsumme);
    return letzte;
}

std::optional<std::uint8_t> Ablehnungscode(std::string_view anforderung, std::string_view empfangen) {
    if (anforderung.size() < Adressstelle)
        return std::nullopt;
    const std::string_view antwort = LetztePassende(anforderung, empfangen);
    const bool abgelehnt = antwort.size() > 2 && (Byte(antwort, 1) & Ablehnungsbit) != 0;
    return abgelehnt ? std::optional(Byte(antwort, 2)) : std::nullopt;
}

} // namespace varnoth
