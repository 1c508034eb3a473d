#include "lauf.h"

#include "ctlhilfe.h"
#include "texte.h"
#include "textmitwerten.h"

#include <algorithm>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextNaechsterSchritt = 8602;
constexpr std::int16_t TextBrauchtJa = 8603;
constexpr std::int16_t TextNichtsGetan = 8604;

std::string Befehlsname(const Befehlszeile& zeile) {
    return zeile.befehl == nullptr ? "varnothctl" : "varnothctl " + std::string(zeile.befehl->name);
}

} // namespace

void Lauf::Sage(std::string_view text) const {
    if (!zeile.Hat("quiet"))
        konsole.Meldung(text);
}

void Lauf::ZeigeFortschritt(std::string_view text) const {
    if (!zeile.Hat("quiet"))
        konsole.Fortschritt(text);
}

Ende Lauf::Scheitere(Ende ende, std::string_view text) const {
    konsole.Meldung(Befehlsname(zeile) + ": " + std::string(text));
    return ende;
}

void Lauf::Gib(std::string_view text, const std::vector<Json::Feld>& felder) const {
    GibAls(zeile.befehl->name, text, felder);
}

void Lauf::GibAls(std::string_view name, std::string_view text, const std::vector<Json::Feld>& felder) const {
    if (InJson())
        return konsole.Daten(Json::Objekt({{"command", name}}, felder).Text() + "\n");
    for (const std::string_view eine : Zeilen(text))
        konsole.Zeile(eine);
}

Ende Lauf::KannErlaubnisBekommen() const {
    if (zeile.Hat("yes") || konsole.KannFragen())
        return Ende::Erledigt;
    return Scheitere(Ende::Bedienung, LadeText(TextBrauchtJa));
}

Ende Lauf::Erlaubnis(std::string_view frage) const {
    if (const Ende ende = KannErlaubnisBekommen(); ende != Ende::Erledigt)
        return ende;
    if (zeile.Hat("yes") || konsole.Frage(frage))
        return Ende::Erledigt;
    return Scheitere(Ende::Unterbrochen, LadeText(TextNichtsGetan));
}

std::vector<std::string_view> Zeilen(std::string_view text) {
    std::vector<std::string_view> zeilen;
    while (!text.empty()) {
        const auto ende = std::min(text.find('\n'), text.size());
        zeilen.push_back(text.substr(0, ende));
        text.remove_prefix(std::min(ende + 1, text.size()));
    }
    return zeilen;
}

Ende FuehreAus(std::span<const std::string> worte, Konsole& konsole) {
    const Zeilenbefund befund = LiesBefehlszeile(worte);
    Lauf lauf{befund.zeile, konsole};
    if (!befund.fehler.empty()) {
        lauf.Scheitere(Ende::Bedienung, befund.fehler);
        konsole.Meldung(LadeTextMit(TextNaechsterSchritt, {Befehlsname(befund.zeile)}));
        return Ende::Bedienung;
    }
    if (befund.zeile.Hat("version"))
        return ZeigeVersion(lauf);
    if (befund.zeile.Hat("help"))
        return ZeigeHilfe(lauf);
    return befund.zeile.befehl->tat(lauf);
}

} // namespace varnoth::ctl
