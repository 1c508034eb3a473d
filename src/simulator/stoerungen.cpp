#include "stoerungen.h"

#include "wortleser.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>

namespace varnoth::simulator {

namespace {

constexpr std::uint8_t Streuzeichen = 0x55; // no function code and hardly a station address
constexpr std::size_t Crclaenge = 2;

Bytes& Rahmen(Sendung& sendung) {
    return sendung.front().zeichen;
}

void ErneuereCrc(Bytes& rahmen) {
    rahmen.resize(rahmen.size() - Crclaenge);
    HaengeCrcAn(rahmen);
}

void Schweige(Sendung& sendung, const Umstaende&) {
    sendung.clear();
}

void VerdirbCrc(Sendung& sendung, const Umstaende&) {
    Rahmen(sendung).back() ^= 0xFF;
}

void TauscheAdresse(Sendung& sendung, const Umstaende&) {
    ++Rahmen(sendung)[0];
    ErneuereCrc(Rahmen(sendung));
}

void LehneAb(Sendung& sendung, const Umstaende& umstaende) {
    Bytes& rahmen = Rahmen(sendung);
    rahmen = {rahmen[0], static_cast<std::uint8_t>(rahmen[1] | 0x80),
              static_cast<std::uint8_t>(umstaende.wert)};
    HaengeCrcAn(rahmen);
}

void StreueDavor(Sendung& sendung, const Umstaende& umstaende) {
    Rahmen(sendung).insert(Rahmen(sendung).begin(), static_cast<std::size_t>(umstaende.wert), Streuzeichen);
}

void Zerteile(Sendung& sendung, const Umstaende& umstaende) {
    constexpr std::size_t StueckZahl = 3;
    const Bytes ganz = Rahmen(sendung);
    sendung.clear();
    for (std::size_t i = 0; i < StueckZahl; ++i) {
        const auto grenze = [&ganz](std::size_t k) {
            return ganz.begin() + static_cast<std::ptrdiff_t>(ganz.size() * k / StueckZahl);
        };
        sendung.push_back(
            {std::chrono::milliseconds{i == 0 ? 0 : umstaende.wert}, Bytes(grenze(i), grenze(i + 1))});
    }
}

void HaengeUeberzaehligeAn(Sendung& sendung, const Umstaende& umstaende) {
    Rahmen(sendung).insert(Rahmen(sendung).end(), static_cast<std::size_t>(umstaende.wert), Streuzeichen);
}

void Verspaete(Sendung& sendung, const Umstaende& umstaende) {
    sendung.front().pause = std::chrono::milliseconds{umstaende.wert};
}

void Kippe(Bytes& rahmen, int bit) {
    rahmen[static_cast<std::size_t>(bit / 8) % rahmen.size()] ^= static_cast<std::uint8_t>(1U << (bit % 8));
}

void KippeBit(Sendung& sendung, const Umstaende& umstaende) {
    Kippe(Rahmen(sendung), umstaende.wert);
}

void Wiederhole(Sendung& sendung, const Umstaende& umstaende) {
    sendung.push_back({std::chrono::milliseconds{umstaende.wert}, Rahmen(sendung)});
}

void WiederholeZweimal(Sendung& sendung, const Umstaende& umstaende) {
    Wiederhole(sendung, umstaende);
    Wiederhole(sendung, umstaende);
}

void WiederholeGekippt(Sendung& sendung, const Umstaende& umstaende) {
    sendung.push_back({umstaende.nach, Rahmen(sendung)});
    Kippe(sendung.back().zeichen, umstaende.wert);
}

void WiederholeFruehere(Sendung& sendung, const Umstaende& umstaende) {
    if (const Bytes* fruehere = umstaende.verlauf.Frueher(umstaende.wert))
        sendung.push_back({umstaende.nach, *fruehere});
}

constexpr int LaengstePause = 60000;
constexpr int HoechstesBit = 8 * 256 - 1;
constexpr int HoechsteAdresse = 0xFFFF;
constexpr int MeisteVorbei = 1000;
constexpr Stoerungsart Arten[] = {
    {"silence", 0, 0, Schweige, false},
    {"crc", 0, 0, VerdirbCrc, false},
    {"address", 0, 0, TauscheAdresse, false},
    {"exception", 4, 255, LehneAb, true},
    {"stray", 1, 255, StreueDavor, false},
    {"pieces", 50, LaengstePause, Zerteile, false},
    {"surplus", 1, 255, HaengeUeberzaehligeAn, false},
    {"late", 1500, LaengstePause, Verspaete, false},
    {"flip", 24, HoechstesBit, KippeBit, false},
    {"repeat", 50, LaengstePause, Wiederhole, false},
    {"repeat-twice", 50, LaengstePause, WiederholeZweimal, false},
    {"repeat-flip", 24, HoechstesBit, WiederholeGekippt, false, 50, LaengstePause},
    {"repeat-earlier", 1, static_cast<int>(Antwortverlauf::Laenge) - 1, WiederholeFruehere, false, 50,
     LaengstePause},
    {"forget", 0, HoechsteAdresse, nullptr, false, 0, MeisteVorbei, Eingriff::Vergessen},
    {"restart-at", 0, HoechsteAdresse, nullptr, false, 0, MeisteVorbei, Eingriff::Neustart},
};

const Stoerungsart& FindeArt(std::string_view name) {
    const auto art = std::ranges::find(Arten, name, &Stoerungsart::name);
    if (art != std::end(Arten))
        return *art;
    std::string namen;
    for (const Stoerungsart& bekannte : Arten)
        namen += (namen.empty() ? "" : ", ") + std::string(bekannte.name);
    throw std::invalid_argument("fault: \"" + std::string(name) + "\" is none of " + namen);
}

/// Cuts off what follows the last separator, nothing when there is none.
std::optional<std::string_view> SchneideAb(std::string_view& text, char trenner) {
    const std::size_t stelle = text.rfind(trenner);
    if (stelle == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = text.substr(stelle + 1);
    text = text.substr(0, stelle);
    return rest;
}

} // namespace

void Antwortverlauf::Nimm(const Bytes& antwort) {
    if (antworten.size() == Laenge)
        antworten.pop_front();
    antworten.push_back(antwort);
}

const Bytes* Antwortverlauf::Frueher(int zurueck) const {
    const auto davor = static_cast<std::size_t>(zurueck);
    return davor < antworten.size() ? &antworten[antworten.size() - 1 - davor] : nullptr;
}

void Stoerung::Verfaelsche(Sendung& sendung, const Antwortverlauf& verlauf) const {
    art->verfaelsche(sendung, {wert, std::chrono::milliseconds{nach}, verlauf});
}

Stoerung LiesStoerung(std::string_view text) {
    const auto funktion = SchneideAb(text, '@');
    const auto anzahl = SchneideAb(text, ':');
    const auto nach = SchneideAb(text, ',');
    const auto wert = SchneideAb(text, '=');
    const Stoerungsart& art = FindeArt(text);
    Stoerung stoerung{.art = &art, .wert = art.vorgabe, .nach = art.vorgabeNach};
    if (nach)
        stoerung.nach = LiesZahl(*nach, "fault " + std::string(text), 0, art.groesstesNach);
    if (wert)
        stoerung.wert = LiesZahl(*wert, "fault " + std::string(text), 0, art.groesste);
    else if (art.eingriff != Eingriff::Antwort)
        throw std::invalid_argument("fault " + std::string(text) + ": the address is missing");
    if (anzahl)
        stoerung.anzahl = LiesZahl(*anzahl, "fault count", 1, std::numeric_limits<int>::max());
    if (funktion)
        stoerung.funktion = LiesZahl(*funktion, "fault function", 1, 127);
    return stoerung;
}

std::optional<Stoerung> Stoerungen::Nimm(int funktion) {
    const auto passt = [funktion](const Stoerung& s) {
        return s.art->eingriff == Eingriff::Antwort && s.funktion.value_or(funktion) == funktion;
    };
    const auto gefunden = std::ranges::find_if(liste, passt);
    if (gefunden == liste.end())
        return std::nullopt;
    const Stoerung stoerung = *gefunden;
    ZaehleHerunter(gefunden);
    return stoerung;
}

std::vector<int> Stoerungen::NimmSchreibend(Eingriff eingriff, int adresse, int anzahl) {
    std::vector<int> getroffene;
    for (std::size_t i = liste.size(); i-- > 0;) {
        const int stelle = liste[i].wert;
        if (liste[i].art->eingriff != eingriff || stelle < adresse || stelle >= adresse + anzahl)
            continue;
        if (liste[i].nach > 0) {
            --liste[i].nach;
            continue;
        }
        getroffene.push_back(stelle);
        ZaehleHerunter(liste.begin() + static_cast<std::ptrdiff_t>(i));
    }
    return getroffene;
}

/// A fault that has struck as often as it should goes.
void Stoerungen::ZaehleHerunter(std::vector<Stoerung>::iterator stoerung) {
    if (stoerung->anzahl && --*stoerung->anzahl == 0)
        liste.erase(stoerung);
}

} // namespace varnoth::simulator
