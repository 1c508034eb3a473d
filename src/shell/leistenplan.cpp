#include "leistenplan.h"

#include "einstellungen.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr const char* Abschnitt = "Werkzeugleiste"; // of the settings file
constexpr const char* SchluesselSichtbar = "Sichtbar";
constexpr const char* SchluesselSeite = "Seite";

struct Seitenname {
    Fensterseite seite;
    const char* name;
};

constexpr Seitenname DieSeiten[] = {{Fensterseite::Oben, "Oben"},
                                    {Fensterseite::Unten, "Unten"},
                                    {Fensterseite::Links, "Links"},
                                    {Fensterseite::Rechts, "Rechts"}};

Fensterseite SeiteZu(const std::string& name) {
    const auto* const da = std::ranges::find(DieSeiten, name, &Seitenname::name);
    return da == std::ranges::end(DieSeiten) ? Leistenplatz().seite : da->seite;
}

} // namespace

std::vector<const Befehlszeile*> Leistenfolge(std::span<const Befehlszeile> befehle) {
    std::vector<const Befehlszeile*> folge;
    for (const Befehlszeile& zeile : befehle)
        if (zeile.textId != 0)
            folge.push_back(&zeile);
    std::ranges::stable_sort(folge, {}, &Befehlszeile::gruppe);
    return folge;
}

std::span<const Leistengruppe> Textverzicht() {
    using enum Leistengruppe;
    static constexpr Leistengruppe folge[] = {Verlauf, Pruefen};
    return folge;
}

std::string Leistentipp(std::string was, const std::string& tasten) {
    std::erase(was, '&');
    if (was.ends_with("..."))
        was.erase(was.size() - 3);
    return tasten.empty() ? was : was + " (" + tasten + ")";
}

std::optional<std::size_t> NaechsterKnopf(const std::vector<bool>& waehlbar, std::ptrdiff_t von,
                                          int schritt) {
    const auto anzahl = static_cast<std::ptrdiff_t>(waehlbar.size());
    for (std::ptrdiff_t i = 1; i <= anzahl; ++i) {
        const auto platz = static_cast<std::size_t>((von + i * schritt + 2 * anzahl) % anzahl);
        if (waehlbar[platz])
            return platz;
    }
    return std::nullopt;
}

Leistenplatz LiesLeistenplatz(Einstellungen& einstellungen) {
    const Leistenplatz standard;
    return {.sichtbar = einstellungen.LiesZahl(Abschnitt, SchluesselSichtbar, standard.sichtbar ? 1 : 0) != 0,
            .seite = SeiteZu(einstellungen.LiesText(Abschnitt, SchluesselSeite, ""))};
}

void SchreibLeistenplatz(Einstellungen& einstellungen, const Leistenplatz& platz) {
    const Leistenplatz gespeichert = LiesLeistenplatz(einstellungen);
    if (platz.sichtbar != gespeichert.sichtbar)
        einstellungen.SchreibText(Abschnitt, SchluesselSichtbar, platz.sichtbar ? "1" : "0");
    if (platz.seite != gespeichert.seite)
        einstellungen.SchreibText(Abschnitt, SchluesselSeite,
                                  std::ranges::find(DieSeiten, platz.seite, &Seitenname::seite)->name);
}

} // namespace varnoth
