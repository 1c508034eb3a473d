// The commands that turn a configuration into text and back.

#include "ablage.h"
#include "auftraege.h"
#include "konfigurationsdatei.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "pruefsumme.h"
#include "quelle.h"
#include "texte.h"
#include "textmitwerten.h"

#include <filesystem>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextZielFehlt = 8634;
constexpr std::int16_t TextZielIstQuelle = 8635;
constexpr std::int16_t TextNurDatei = 8637;

bool IstDieselbeDatei(const std::string& eine, const std::string& andere) {
    std::error_code fehler;
    return eine == andere || std::filesystem::equivalent(eine, andere, fehler);
}

/// What can be said of the arguments before anything is read.
Ende PruefeImport(const Lauf& lauf) {
    const std::string& von = lauf.zeile.argumente[0];
    const auto nach = lauf.zeile.Wert("output");
    if (!nach)
        return lauf.Scheitere(Ende::Bedienung, LadeText(TextZielFehlt));
    if (ArtVon(von) != Quellenart::Datei)
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextNurDatei, {von}));
    if (IstDieselbeDatei(von, *nach))
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextZielIstQuelle, {von}));
    return Ende::Erledigt;
}

} // namespace

Ende Export(Lauf& lauf) {
    std::optional<std::string> pfad;
    if (const Ende ende = WaehleZiel(lauf, pfad); ende != Ende::Erledigt)
        return ende;
    Leitungszugang zugang(lauf);
    Quelle quelle;
    if (const Ende ende = LiesGenannteQuelle(lauf, zugang, quelle); ende != Ende::Erledigt)
        return ende;
    return GibDokument(lauf, pfad, Quellentext(quelle), "text",
                       {{"source", AlsJson(quelle)}, {"checksum", Konfigurationspruefsumme(quelle.abbild)}});
}

Ende Import(Lauf& lauf) {
    if (const Ende ende = PruefeImport(lauf); ende != Ende::Erledigt)
        return ende;
    std::optional<std::string> pfad;
    if (const Ende ende = WaehleZiel(lauf, pfad); ende != Ende::Erledigt)
        return ende;
    Leitungszugang zugang(lauf);
    Quelle quelle;
    if (const Ende ende = LiesGenannteQuelle(lauf, zugang, quelle); ende != Ende::Erledigt)
        return ende;
    if (!PruefePlausibel(lauf, quelle.abbild))
        return Ende::Datei;
    if (const Ende ende = LegeDatei(lauf, *pfad, AlsKonfigurationsdatei(quelle.abbild));
        ende != Ende::Erledigt)
        return ende;
    if (lauf.InJson())
        lauf.Gib({}, {{"source", AlsJson(quelle)},
                      {"checksum", Konfigurationspruefsumme(quelle.abbild)},
                      {"file", *pfad}});
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
