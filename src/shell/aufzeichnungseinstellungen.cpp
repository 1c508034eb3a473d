#include "aufzeichnungseinstellungen.h"

#include "einstellungen.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <string_view>

namespace varnoth {

namespace {

constexpr const char* Abschnitt = "Aufzeichnung";
constexpr const char* SchluesselRhythmus = "Rhythmus";
constexpr const char* SchluesselCsvart = "Csvart";
constexpr const char* SchluesselOrdner = "Ordner";
constexpr const char* SchluesselAlleTeile = "FlugschreiberAlleTeile";
constexpr const char* SchluesselSpeicher = "FlugschreiberMB";

constexpr std::string_view Rhythmen[] = {"JederDurchgang", "BeiAenderung", "AlleSekunden"};
constexpr std::string_view Csvarten[] = {"Standard", "ExcelDeutsch"};

struct Zahlenschluessel {
    const char* name;
    int Aufzeichnungswahl::*feld;
};

constexpr Zahlenschluessel DieZahlen[] = {{"Sekunden", &Aufzeichnungswahl::sekunden},
                                          {"Megabyte", &Aufzeichnungswahl::megabyte},
                                          {"EndeMinuten", &Aufzeichnungswahl::endeMinuten},
                                          {"BehalteStunden", &Aufzeichnungswahl::behalteStunden}};

struct Schalterschluessel {
    const char* name;
    bool Aufzeichnungswahl::*feld;
};

constexpr Schalterschluessel DieSchalter[] = {{"Vrec", &Aufzeichnungswahl::vrec},
                                              {"Csv", &Aufzeichnungswahl::csv},
                                              {"Mitternacht", &Aufzeichnungswahl::mitternacht}};

/// One of several words; the first where the settings have another.
template<class Art, std::size_t N>
Art LiesWort(Einstellungen& einstellungen, const char* schluessel, const std::string_view (&worte)[N]) {
    const std::string wort = einstellungen.LiesText(Abschnitt, schluessel, std::string(worte[0]));
    const auto* const da = std::ranges::find(worte, wort);
    return da == std::ranges::end(worte) ? Art{} : static_cast<Art>(da - worte);
}

void Schreib(Einstellungen& einstellungen, const char* schluessel, const std::string& text) {
    einstellungen.SchreibText(Abschnitt, schluessel, text);
}

} // namespace

Aufzeichnungswahl LiesAufzeichnungswahl(Einstellungen& einstellungen) {
    Aufzeichnungswahl wahl;
    for (const auto& [name, feld] : DieSchalter)
        wahl.*feld = einstellungen.LiesZahl(Abschnitt, name, wahl.*feld ? 1 : 0) != 0;
    for (const auto& [name, feld] : DieZahlen)
        wahl.*feld = einstellungen.LiesZahl(Abschnitt, name, wahl.*feld);
    wahl.rhythmus = LiesWort<Rhythmus>(einstellungen, SchluesselRhythmus, Rhythmen);
    wahl.csvart = LiesWort<Csvart>(einstellungen, SchluesselCsvart, Csvarten);
    return Begrenzt(wahl);
}

void SchreibAufzeichnungswahl(Einstellungen& einstellungen, const Aufzeichnungswahl& wahl) {
    const Aufzeichnungswahl alte = LiesAufzeichnungswahl(einstellungen);
    for (const auto& [name, feld] : DieSchalter)
        if (wahl.*feld != alte.*feld)
            Schreib(einstellungen, name, wahl.*feld ? "1" : "0");
    for (const auto& [name, feld] : DieZahlen)
        if (wahl.*feld != alte.*feld)
            Schreib(einstellungen, name, std::to_string(wahl.*feld));
    if (wahl.rhythmus != alte.rhythmus)
        Schreib(einstellungen, SchluesselRhythmus,
                std::string(Rhythmen[static_cast<std::size_t>(wahl.rhythmus)]));
    if (wahl.csvart != alte.csvart)
        Schreib(einstellungen, SchluesselCsvart,
                std::string(Csvarten[static_cast<std::size_t>(wahl.csvart)]));
}

Flugschreiber LiesFlugschreiber(Einstellungen& einstellungen) {
    const Flugschreiber standard;
    return {.alleTeile =
                einstellungen.LiesZahl(Abschnitt, SchluesselAlleTeile, standard.alleTeile ? 1 : 0) != 0,
            .megabyte = std::clamp(einstellungen.LiesZahl(Abschnitt, SchluesselSpeicher, standard.megabyte),
                                   Flugschreiberbereich.kleinster, Flugschreiberbereich.groesster)};
}

void SchreibFlugschreiber(Einstellungen& einstellungen, const Flugschreiber& wahl) {
    const Flugschreiber alte = LiesFlugschreiber(einstellungen);
    if (wahl.alleTeile != alte.alleTeile)
        Schreib(einstellungen, SchluesselAlleTeile, wahl.alleTeile ? "1" : "0");
    if (wahl.megabyte != alte.megabyte)
        Schreib(einstellungen, SchluesselSpeicher, std::to_string(wahl.megabyte));
}

std::string LiesAufzeichnungsordner(Einstellungen& einstellungen) {
    const QDir dokumente(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const std::string ordner = einstellungen.LiesText(Abschnitt, SchluesselOrdner, "");
    return ordner.empty() ? dokumente.filePath(QStringLiteral("Varnoth")).toStdString() : ordner;
}

void SchreibAufzeichnungsordner(Einstellungen& einstellungen, const std::string& ordner) {
    if (ordner != LiesAufzeichnungsordner(einstellungen))
        Schreib(einstellungen, SchluesselOrdner, ordner);
}

} // namespace varnoth
