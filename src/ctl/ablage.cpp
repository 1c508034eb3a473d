#include "ablage.h"

#include "dateien.h"
#include "lauf.h"
#include "texte.h"
#include "textmitwerten.h"

#include <filesystem>
#include <system_error>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextDateifehler = 8627;
constexpr std::int16_t TextErsetzen = 8630;
constexpr std::int16_t TextGeschrieben = 8631;

/// Whether a file may come to this path.
Ende DarfDatei(const Lauf& lauf, const std::string& pfad) {
    if (!GibtEsDatei(pfad))
        return Ende::Erledigt;
    std::error_code fehler;
    if (!std::filesystem::is_regular_file(pfad, fehler))
        return lauf.Scheitere(Ende::Datei,
                              LadeTextMit(TextDateifehler, {pfad, LiesDatei(pfad, 1).fehlertext}));
    return lauf.Erlaubnis(LadeTextMit(TextErsetzen, {pfad}));
}

} // namespace

Ende WaehleZiel(const Lauf& lauf, std::optional<std::string>& pfad) {
    pfad = lauf.zeile.Wert("output");
    return pfad ? DarfDatei(lauf, *pfad) : Ende::Erledigt;
}

Ende LegeDatei(const Lauf& lauf, const std::string& pfad, std::string_view bytes) {
    const std::string fehler = ErsetzeDatei(pfad, bytes);
    if (!fehler.empty())
        return lauf.Scheitere(Ende::Datei, LadeTextMit(TextDateifehler, {pfad, fehler}));
    lauf.Sage(LadeTextMit(TextGeschrieben, {pfad}));
    return Ende::Erledigt;
}

Ende GibDokument(const Lauf& lauf, const std::optional<std::string>& pfad, const std::string& dokument,
                 std::string_view name, std::vector<Json::Feld> felder) {
    if (pfad)
        if (const Ende ende = LegeDatei(lauf, *pfad, dokument); ende != Ende::Erledigt)
            return ende;
    felder.emplace_back("file", pfad ? Json(*pfad) : Json());
    felder.emplace_back(name, pfad ? Json() : Json(dokument));
    if (lauf.InJson())
        lauf.Gib({}, felder);
    else if (!pfad)
        lauf.konsole.Daten(dokument);
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
