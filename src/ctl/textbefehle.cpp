// The commands that turn a configuration into text and back.

#include "ablage.h"
#include "auftraege.h"
#include "konfigurationsdatei.h"
#include "lauf.h"
#include "pruefsumme.h"
#include "texte.h"
#include "textmitwerten.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextZielFehlt = 8634;
constexpr std::int16_t TextZielIstQuelle = 8635;
constexpr std::int16_t TextNurDatei = 8637;

/// What can be said of the arguments before anything is read.
Ende PruefeImport(const Lauf& lauf) {
    const std::string& von = lauf.zeile.argumente[0];
    const auto nach = lauf.zeile.Wert("output");
    if (!nach)
        return lauf.Scheitere(Ende::Bedienung, LadeText(TextZielFehlt));
    if (ArtVon(von) != Quellenart::Datei)
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextNurDatei, {von}));
    if (IstDasselbe(von, *nach))
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextZielIstQuelle, {von}));
    return Ende::Erledigt;
}

} // namespace

Ende Export(Lauf& lauf) {
    Umwandlung umwandlung;
    if (const Ende ende = LiesFuerZiel(lauf, umwandlung); ende != Ende::Erledigt)
        return ende;
    return GibDokument(lauf, umwandlung, Quellentext(umwandlung.quelle), "text");
}

Ende Import(Lauf& lauf) {
    if (const Ende ende = PruefeImport(lauf); ende != Ende::Erledigt)
        return ende;
    Umwandlung umwandlung;
    if (const Ende ende = LiesFuerZiel(lauf, umwandlung); ende != Ende::Erledigt)
        return ende;
    const auto& [quelle, pfad] = umwandlung;
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
