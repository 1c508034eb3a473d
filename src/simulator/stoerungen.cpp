#include "stoerungen.h"

#include "zahltext.h"

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

void Schweige(Sendung& sendung, int) {
    sendung.clear();
}

void VerdirbCrc(Sendung& sendung, int) {
    Rahmen(sendung).back() ^= 0xFF;
}

void TauscheAdresse(Sendung& sendung, int) {
    ++Rahmen(sendung)[0];
    ErneuereCrc(Rahmen(sendung));
}

void LehneAb(Sendung& sendung, int code) {
    Bytes& rahmen = Rahmen(sendung);
    rahmen = {rahmen[0], static_cast<std::uint8_t>(rahmen[1] | 0x80), static_cast<std::uint8_t>(code)};
    HaengeCrcAn(rahmen);
}

void StreueDavor(Sendung& sendung, int anzahl) {
    Rahmen(sendung).insert(Rahmen(sendung).begin(), static_cast<std::size_t>(anzahl), Streuzeichen);
}

void Zerteile(Sendung& sendung, int pause) {
    constexpr std::size_t StueckZahl = 3;
    const Bytes ganz = Rahmen(sendung);
    sendung.clear();
    for (std::size_t i = 0; i < StueckZahl; ++i) {
        const auto grenze = [&ganz](std::size_t k) {
            return ganz.begin() + static_cast<std::ptrdiff_t>(ganz.size() * k / StueckZahl);
        };
        sendung.push_back({std::chrono::milliseconds{i == 0 ? 0 : pause}, Bytes(grenze(i), grenze(i + 1))});
    }
}

void HaengeUeberzaehligeAn(Sendung& sendung, int anzahl) {
    Rahmen(sendung).insert(Rahmen(sendung).end(), static_cast<std::size_t>(anzahl), Streuzeichen);
}

void Verspaete(Sendung& sendung, int millisekunden) {
    sendung.front().pause = std::chrono::milliseconds{millisekunden};
}

void KippeBit(Sendung& sendung, int bit) {
    const auto stelle = static_cast<std::size_t>(bit / 8) % Rahmen(sendung).size();
    Rahmen(sendung)[stelle] ^= static_cast<std::uint8_t>(1U << (bit % 8));
}

constexpr int LaengstePause = 60000;
constexpr Stoerungsart Arten[] = {
    {"silence", 0, 0, false, Schweige},
    {"crc", 0, 0, false, VerdirbCrc},
    {"address", 0, 0, false, TauscheAdresse},
    {"exception", 4, 255, true, LehneAb},
    {"stray", 1, 255, false, StreueDavor},
    {"pieces", 50, LaengstePause, false, Zerteile},
    {"surplus", 1, 255, false, HaengeUeberzaehligeAn},
    {"late", 1500, LaengstePause, false, Verspaete},
    {"flip", 24, 8 * 256 - 1, false, KippeBit},
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

Stoerung LiesStoerung(std::string_view text) {
    const auto funktion = SchneideAb(text, '@');
    const auto anzahl = SchneideAb(text, ':');
    const auto wert = SchneideAb(text, '=');
    const Stoerungsart& art = FindeArt(text);
    Stoerung stoerung{&art, art.vorgabe};
    if (wert)
        stoerung.wert = LiesZahl(*wert, "fault " + std::string(text), 0, art.groesste);
    if (anzahl)
        stoerung.anzahl = LiesZahl(*anzahl, "fault count", 1, std::numeric_limits<int>::max());
    if (funktion)
        stoerung.funktion = LiesZahl(*funktion, "fault function", 1, 127);
    return stoerung;
}

std::optional<Stoerung> Stoerungen::Nimm(int funktion) {
    const auto passt = [funktion](const Stoerung& s) { return s.funktion.value_or(funktion) == funktion; };
    const auto gefunden = std::ranges::find_if(liste_, passt);
    if (gefunden == liste_.end())
        return std::nullopt;
    const Stoerung stoerung = *gefunden;
    if (gefunden->anzahl && --*gefunden->anzahl == 0)
        liste_.erase(gefunden);
    return stoerung;
}

} // namespace varnoth::simulator
