#include "mithoeren.h"

#include "gestalt.h"
#include "startzustand.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace varnoth::modMithoeren {

namespace {

constexpr std::size_t HoechstensGemerkt = 8;        // requests whose reply may come late
constexpr std::size_t LaengstesUngefragtes = 4096;  // bytes that are gathered before they are told
constexpr std::size_t LaengstesEmpfangenes = 65536; // bytes of one exchange that are kept

struct Laufendes {
    std::string bytes{};
    Zeit beginn{0};
    Zeit letztes{0};
};

struct Zustand {
    bool dabei = false; ///< a request was sent since the first listener came
    bool offen = false; ///< a request was sent whose exchange has not ended
    Laufendes empfangenes{};
    Zeit aufenthaltDavor{0}; ///< until the request was sent
    Laufendes ungefragtes{};
    std::vector<std::string> unbeantwortete{};
};

Zustand zustand;
std::vector<Mithoerer*> mithoerer;
const Startwert startwert(zustand, mithoerer);

void Sage(const Mitschnitt& mitschnitt) {
    for (Mithoerer* const einer : mithoerer)
        einer->Hoere(mitschnitt);
}

bool PasstZuFrueherem(std::string_view antwort) {
    return std::ranges::any_of(zustand.unbeantwortete,
                               [&](const std::string& eine) { return Passt(antwort, eine); });
}

bool IstAblehnung(std::string_view antwort) {
    constexpr unsigned Ablehnungsbit = 0x80;
    return (static_cast<std::uint8_t>(antwort[1]) & Ablehnungsbit) != 0;
}

/// Whether the bytes are the beginning of a reply to the request: the same address, except for an
/// identification, and the same function.
bool BeginntWieAntwort(std::string_view bytes, const std::string& anforderung) {
    const bool adresse = bytes[0] == anforderung[0] || anforderung[0] == 0;
    return adresse && (bytes.size() == 1 || bytes[1] == anforderung[1]);
}

Austauschergebnis Befund(std::string_view bytes, const std::string& anforderung) {
    if (bytes.empty())
        return Austauschergebnis::Zeitueberschreitung;
    if (bytes.find(anforderung) != std::string_view::npos)
        return Austauschergebnis::Echo;
    const auto antworten = SucheAntworten(bytes);
    const auto passende =
        std::ranges::find_if(antworten, [&](std::string_view eine) { return Passt(eine, anforderung); });
    if (passende != antworten.end())
        return IstAblehnung(*passende) ? Austauschergebnis::Abgelehnt : Austauschergebnis::Pruefsumme;
    if (std::ranges::any_of(antworten, PasstZuFrueherem))
        return Austauschergebnis::Verspaetet;
    if (!antworten.empty())
        return Austauschergebnis::Fremd;
    if (EnthaeltAehnliche(bytes, anforderung))
        return Austauschergebnis::Pruefsumme;
    return BeginntWieAntwort(bytes, anforderung) ? Austauschergebnis::Zeitueberschreitung
                                                 : Austauschergebnis::Fremd;
}

Austauschergebnis Ergebnis(const std::string& anforderung, Ausgang ausgang, bool portOffen) {
    switch (ausgang) {
    case Ausgang::Gelungen:
        return Austauschergebnis::Beantwortet;
    case Ausgang::Pruefsumme: {
        const auto befund = Befund(zustand.empfangenes.bytes, anforderung);
        return befund == Austauschergebnis::Echo ? befund : Austauschergebnis::Pruefsumme;
    }
    case Ausgang::ZuFrueh:
        return Austauschergebnis::Fremd;
    case Ausgang::ZuSpaet:
        return Austauschergebnis::Verspaetet;
    case Ausgang::NichtBereit:
        return portOffen ? Austauschergebnis::NichtGesendet : Austauschergebnis::KeinPort;
    case Ausgang::Ausgeblieben:
        break;
    }
    return portOffen ? Befund(zustand.empfangenes.bytes, anforderung) : Austauschergebnis::KeinPort;
}

void MerkeUnbeantwortete(const std::string& anforderung, Austauschergebnis ergebnis) {
    if (ergebnis == Austauschergebnis::Beantwortet) {
        zustand.unbeantwortete.clear();
        return;
    }
    if (zustand.unbeantwortete.size() == HoechstensGemerkt)
        zustand.unbeantwortete.erase(zustand.unbeantwortete.begin());
    zustand.unbeantwortete.push_back(anforderung);
}

void SageUngefragtes() {
    Laufendes& ungefragtes = zustand.ungefragtes;
    if (ungefragtes.bytes.empty())
        return;
    const bool verspaetet = std::ranges::any_of(SucheAntworten(ungefragtes.bytes), PasstZuFrueherem);
    Sage({.art = Austauschart::Ungefragt,
          .ergebnis = verspaetet ? Austauschergebnis::Verspaetet : Austauschergebnis::Fremd,
          .empfangen = ungefragtes.bytes,
          .gesendet = ungefragtes.beginn,
          .letztesByte = ungefragtes.letztes});
    ungefragtes.bytes.clear();
}

void Sammle(Laufendes& gesammeltes, std::string_view bytes, Zeit wann) {
    if (gesammeltes.bytes.empty())
        gesammeltes.beginn = wann;
    gesammeltes.letztes = wann;
    gesammeltes.bytes += bytes.substr(0, LaengstesEmpfangenes - gesammeltes.bytes.size());
}

} // namespace

void MeldeAn(Mithoerer& neuer) {
    if (std::ranges::find(mithoerer, &neuer) == mithoerer.end())
        mithoerer.push_back(&neuer);
}

void MeldeAb(Mithoerer& alter) {
    std::erase(mithoerer, &alter);
    if (mithoerer.empty())
        zustand = {};
}

void Gesendet(Zeit wann) {
    if (mithoerer.empty())
        return;
    SageUngefragtes();
    zustand.dabei = true;
    zustand.offen = true;
    zustand.empfangenes.bytes.clear();
    zustand.empfangenes.beginn = zustand.empfangenes.letztes = wann;
    zustand.aufenthaltDavor = DieUmgebung().GetAufenthalt().gesamt;
}

void Empfangen(std::string_view bytes, Zeit wann) {
    if (mithoerer.empty() || !zustand.dabei || bytes.empty())
        return;
    if (!zustand.offen) {
        Sammle(zustand.ungefragtes, bytes, wann);
        if (zustand.ungefragtes.bytes.size() >= LaengstesUngefragtes)
            SageUngefragtes();
        return;
    }
    const Zeit gesendet = zustand.empfangenes.beginn;
    Sammle(zustand.empfangenes, bytes, wann);
    zustand.empfangenes.beginn = gesendet;
}

void Endet(Austauschart art, const std::string& anforderung, Ausgang ausgang, bool portOffen) {
    if (mithoerer.empty())
        return;
    const bool gesendet = std::exchange(zustand.offen, false);
    if (!gesendet && !zustand.dabei && portOffen)
        return; // it began before anybody listened
    Laufendes& empfangenes = zustand.empfangenes;
    if (!gesendet) {
        SageUngefragtes();
        empfangenes.bytes.clear();
        empfangenes.beginn = empfangenes.letztes = DieUmgebung().Uhr();
    }
    const auto ergebnis = art == Austauschart::OhneAntwort
                              ? (gesendet ? Austauschergebnis::Gesendet : Austauschergebnis::KeinPort)
                              : Ergebnis(anforderung, ausgang, portOffen);
    Sage({.art = art,
          .ergebnis = ergebnis,
          .anforderung = anforderung,
          .empfangen = empfangenes.bytes,
          .gesendet = empfangenes.beginn,
          .letztesByte = empfangenes.letztes,
          .aufgehalten = gesendet && DieUmgebung().GetAufenthalt().gesamt != zustand.aufenthaltDavor});
    if (gesendet)
        MerkeUnbeantwortete(anforderung, ergebnis);
}

} // namespace varnoth::modMithoeren
