#include "ablage.h"

#include "dateien.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "pruefsumme.h"
#include "texte.h"
#include "textmitwerten.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextDateifehler = 8627;
constexpr std::int16_t TextErsetzen = 8630;
constexpr std::int16_t TextGeschrieben = 8631;

/// Whether a file may come to this path.
Ende DarfDatei(const Lauf& lauf, const std::string& pfad) {
    if (!GibtEsDatei(pfad))
        return Ende::Erledigt;
    if (!IstGewoehnlicheDatei(pfad))
        return lauf.Scheitere(Ende::Datei,
                              LadeTextMit(TextDateifehler, {pfad, LiesDatei(pfad, 1).fehlertext}));
    return lauf.Erlaubnis(LadeTextMit(TextErsetzen, {pfad}));
}

} // namespace

Ende LiesFuerZiel(const Lauf& lauf, Umwandlung& umwandlung) {
    umwandlung.ziel = lauf.zeile.Wert("output");
    if (umwandlung.ziel)
        if (const Ende ende = DarfDatei(lauf, *umwandlung.ziel); ende != Ende::Erledigt)
            return ende;
    const auto& argumente = lauf.zeile.argumente;
    Leitungszugang zugang(lauf);
    return LiesQuelle(lauf, argumente.empty() ? WortGeraet : argumente.front(), zugang, {},
                      umwandlung.quelle);
}

bool IstDasselbe(const std::string& ein, const std::string& anderes) {
    return ein == anderes || IstDieselbeDatei(ein, anderes);
}

Ende LegeDatei(const Lauf& lauf, const std::string& pfad, std::string_view bytes) {
    const std::string fehler = ErsetzeDatei(pfad, bytes);
    if (!fehler.empty())
        return lauf.Scheitere(Ende::Datei, LadeTextMit(TextDateifehler, {pfad, fehler}));
    lauf.Sage(LadeTextMit(TextGeschrieben, {pfad}));
    return Ende::Erledigt;
}

Ende GibDokument(const Lauf& lauf, const Umwandlung& umwandlung, const std::string& dokument,
                 std::string_view name) {
    const auto& [quelle, ziel] = umwandlung;
    if (ziel)
        if (const Ende ende = LegeDatei(lauf, *ziel, dokument); ende != Ende::Erledigt)
            return ende;
    if (lauf.InJson())
        lauf.Gib({}, {{"source", AlsJson(quelle)},
                      {"checksum", Konfigurationspruefsumme(quelle.abbild)},
                      {"file", ziel ? Json(*ziel) : Json()},
                      {name, ziel ? Json() : Json(dokument)}});
    else if (!ziel)
        lauf.konsole.Daten(dokument);
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
