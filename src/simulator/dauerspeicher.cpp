#include "dauerspeicher.h"

#include "eigenedatei.h"
#include "registername.h"
#include "wortleser.h"

#include <sstream>
#include <stdexcept>
#include <string>

namespace varnoth::simulator {

namespace {

constexpr std::string_view Kopf = "varnoth-simulator 1";

template<class Speicher, class Tun>
void FuerJedesRegister(Speicher& speicher, Tun tun) {
    for (int teil = 0; teil < Optikteile; ++teil)
        tun(Registername{{Bereich::Spezifisch, reg::Strahlenzahl}, teil},
            speicher.Spezifisch(teil, reg::Strahlenzahl));
    for (const Eintrag& eintrag : Schreibbare()) {
        if (eintrag.art == Art::Steuerung)
            continue;
        for (int teil = 0; teil < (eintrag.bereich == Bereich::Spezifisch ? Optikteile : 1); ++teil)
            for (int i = 0; i < eintrag.anzahl; ++i) {
                const Registername name{{eintrag.bereich, eintrag.adresse + i}, teil};
                tun(name, speicher.Block(name.ort, teil, 1)[0]);
            }
    }
}

bool SchreibeNeu(const std::filesystem::path& pfad, std::string_view text) {
    const Dateideskriptor datei = OeffneZumSchreiben(pfad);
    return datei.Nummer() >= 0 && SchreibeAlles(datei, text);
}

bool WirdBehalten(Ort ort) {
    const Eintrag* eintrag = FindeSchreibbar(ort);
    return (ort.bereich == Bereich::Spezifisch && ort.adresse == reg::Strahlenzahl) ||
           (eintrag != nullptr && eintrag->art != Art::Steuerung);
}

void LiesZeile(Registerspeicher& speicher, std::string_view zeile) {
    auto woerter = Woerter(zeile);
    std::span<const std::string_view> rest = woerter;
    const Registername name = LiesRegistername(rest);
    if (rest.size() != 1 || !WirdBehalten(name.ort))
        throw std::invalid_argument("is not a stored register with its value");
    speicher.Block(name.ort, name.teil, 1)[0] =
        static_cast<std::uint16_t>(LiesZahl(rest[0], "value", 0, 0xFFFF));
}

} // namespace

Dauerspeicher::Dauerspeicher(const Registerspeicher& anfang, std::filesystem::path ablage)
    : inhalt(anfang), datei(std::move(ablage)) {
    if (IstVerweis(datei))
        throw std::runtime_error(datei.string() + " is a symbolic link: choose another path");
    if (!datei.empty() && std::filesystem::exists(datei))
        Lies();
}

bool Dauerspeicher::Behalte(const Registerspeicher& speicher, Art art) {
    Uebernimm(inhalt, speicher, art);
    if (art == Art::Konfiguration)
        for (int teil = 0; teil < Optikteile; ++teil)
            inhalt.Spezifisch(teil, reg::Strahlenzahl) = speicher.Spezifisch(teil, reg::Strahlenzahl);
    return datei.empty() || Schreibe();
}

void Dauerspeicher::Lies() {
    std::string text, zeile;
    const bool gelesen = LiesAlles(datei, text);
    std::istringstream strom(text);
    if (!gelesen || !std::getline(strom, zeile) || zeile != Kopf)
        throw std::runtime_error(datei.string() + " is not a store of this program, or cannot be read");
    for (int nummer = 2; std::getline(strom, zeile); ++nummer)
        try {
            LiesZeile(inhalt, zeile);
        } catch (const std::invalid_argument& fehler) {
            throw std::runtime_error(datei.string() + ", line " + std::to_string(nummer) + ": " +
                                     fehler.what());
        }
}

/// Replaces the file in one step. Neither it nor what stands beside it under the new name may be a link.
bool Dauerspeicher::Schreibe() const {
    std::ostringstream text;
    text << Kopf << '\n';
    FuerJedesRegister(inhalt, [&text](const Registername& name, std::uint16_t wert) {
        text << Text(name) << ' ' << wert << '\n';
    });
    std::filesystem::path neu = datei;
    neu += ".new";
    std::error_code fehler;
    if (IstVerweis(datei) || !SchreibeNeu(neu, text.str()))
        return false;
    std::filesystem::rename(neu, datei, fehler);
    return !fehler;
}

} // namespace varnoth::simulator
