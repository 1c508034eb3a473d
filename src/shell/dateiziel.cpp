#include "dateiziel.h"

#include "dateien.h"
#include "einstellungen.h"
#include "konfigurationsbefehle.h"
#include "texte.h"
#include "umgebung.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextErsetzen = 2001;
constexpr std::int16_t TextDokumentSpeichern = 9676;

constexpr const char* Abschnitt = "frmBericht";
constexpr const char* Schluessel = "Ordner";

bool DarfErsetzen(const std::string& pfad) {
    return DieUmgebung().ZeigeMeldung({.text = pfad + LadeText(TextErsetzen),
                                       .symbol = Symbol::Warnung,
                                       .knoepfe = Knoepfe::OkAbbrechen}) == Antwort::Ok;
}

} // namespace

std::optional<std::string> FrageNachZiel(Dateifrage frage) {
    frage.art = Dateiwahl::Speichern;
    while (auto pfad = FrageNachDatei(frage)) {
        if (!GibtEsDatei(*pfad) || DarfErsetzen(*pfad))
            return pfad;
        frage.name = *pfad;
    }
    return std::nullopt;
}

std::string Ordner(const std::string& pfad) {
    const auto ende = pfad.find_last_of("/\\");
    return ende == std::string::npos ? std::string() : pfad.substr(0, ende + 1);
}

std::string Dokumentordner() {
    return DieEinstellungen().LiesText(Abschnitt, Schluessel, "");
}

void MerkeDokumentordner(const std::string& pfad) {
    DieEinstellungen().SchreibText(Abschnitt, Schluessel, Ordner(pfad));
}

bool SpeichereDokument(const std::string& filter, const std::string& name, const std::string& bytes) {
    const auto pfad = FrageNachZiel({.titel = LadeText(TextDokumentSpeichern),
                                     .filter = filter,
                                     .ordner = Dokumentordner(),
                                     .name = name});
    if (!pfad)
        return false;
    MerkeDokumentordner(*pfad);
    const std::string fehler = ErsetzeDatei(*pfad, bytes);
    if (!fehler.empty())
        ZeigeWarnung(Dateifehlertext(fehler, *pfad));
    return fehler.empty();
}

} // namespace varnoth
