#include "textimport.h"

#include "dateidialog.h"
#include "dateien.h"
#include "dateiziel.h"
#include "konfigurationsbefehle.h"
#include "plausibilitaet.h"
#include "registerabbild.h"
#include "standtext.h"
#include "texte.h"
#include "umgebung.h"
#include "vergleichsworte.h"
#include "zykluszeiten.h"

#include <optional>

namespace varnoth {

namespace {

constexpr std::int16_t TextNichtsUebernommen = 9672;
constexpr std::int16_t TextUnplausibel = 9673;
constexpr std::int16_t TextFilter = 9674;
constexpr std::int16_t TextImportieren = 9675;

void MeldeFehler(const std::vector<Standfehler>& fehler) {
    std::string alle;
    for (const Standfehler& einer : fehler)
        alle += (alle.empty() ? "" : "\n") + Fehlertext(einer);
    DieUmgebung().ZeigeMeldung({.text = Fehlertext(fehler.front()),
                                .informativtext = LadeText(TextNichtsUebernommen),
                                .details = fehler.size() > 1 ? alle : std::string()});
}

/// The configuration of a file, if all of it is right; otherwise it was told what is not.
std::optional<Abbild> LiesText(const std::string& pfad) {
    const auto datei = LiesDatei(pfad, LaengsterStandtext + 1);
    if (!datei.gelungen) {
        ZeigeWarnung(Dateifehlertext(datei.fehlertext, pfad));
        return std::nullopt;
    }
    Standbefund befund = LiesStandtext(datei.bytes);
    if (!befund.abbild)
        MeldeFehler(befund.fehler);
    else if (!IstPlausibel(*befund.abbild)) {
        ZeigeWarnung(LadeText(TextUnplausibel) +
                     Wertzeilen(*befund.abbild, UnplausibleStellen(*befund.abbild)));
        return std::nullopt;
    }
    return befund.abbild;
}

} // namespace

bool ImportiereKonfigurationstext() {
    const auto pfad = FrageNachDatei({.art = Dateiwahl::Oeffnen,
                                      .titel = LadeText(TextImportieren),
                                      .filter = LadeText(TextFilter),
                                      .ordner = Dokumentordner()});
    if (!pfad)
        return false;
    MerkeDokumentordner(*pfad);
    const auto abbild = LiesText(*pfad);
    if (!abbild || !FrageNachSpeichern())
        return false;
    modDaten::ErsetzeAbbild(*abbild);
    modDaten::SetzeGeaendert();
    modHilfsFunktionen::BerechneZykluszeiten();
    return true;
}

} // namespace varnoth
