#include "fundworte.h"

#include "identifikation.h"
#include "portzeile.h"
#include "suchworte.h"
#include "texte.h"
#include "textmitwerten.h"

#include <algorithm>
#include <cstdint>

namespace varnoth {

namespace {

constexpr std::int16_t TextBezeichnung = 8363;
constexpr std::int16_t TextSeriennummer = 9114;
constexpr std::int16_t TextAdresse = 8364;
constexpr std::int16_t TextWo = 8365;
constexpr std::int16_t TextEcho = 8366;
constexpr std::int16_t TextLaeuft = 8354;
constexpr std::int16_t TextNichtGefunden = 8358;
constexpr std::int16_t TextAbgebrochen = 8359;

} // namespace

std::string Fundzeilen(const Suchfund& fund) {
    const Identifikation& ident = fund.ident;
    std::string text = LadeTextMit(TextBezeichnung, {IdenttextAlsUtf8(ident.text1)});
    if (!ident.text2.empty())
        text += "\n" + LadeTextMit(TextSeriennummer, {IdenttextAlsUtf8(ident.text2)});
    text += "\n" + LadeTextMit(TextAdresse, {std::to_string(ident.slaveAdresse)});
    text += "\n" + LadeTextMit(TextWo, {fund.versuch.geraet, fund.versuch.format});
    return fund.mitEcho ? text + "\n" + LadeText(TextEcho) : text;
}

std::string Versuchsergebnis(const Suchstand& versuch, std::int16_t spracheDerWorte) {
    if (!versuch.ergebnis)
        return LadeText(TextLaeuft);
    return spracheDerWorte == GetSprachoffset() ? versuch.text : Versuchstext(*versuch.ergebnis);
}

std::string Suchausgang(const Suchfund& fund, std::int16_t spracheDerWorte) {
    if (spracheDerWorte == GetSprachoffset())
        return fund.text;
    if (fund.ident.gueltig == True)
        return Versuchstext(fund.mitEcho ? Suchergebnis::NurMitEcho : Suchergebnis::Gefunden);
    return LadeTextMit(fund.abgebrochen ? TextAbgebrochen : TextNichtGefunden,
                       {std::to_string(fund.versuche)});
}

const Portangabe* Fundport(const Suchfund& fund, const std::vector<Portangabe>& ports) {
    const auto port = std::ranges::find(ports, fund.versuch.geraet, &Portangabe::geraet);
    return port == ports.end() ? nullptr : &*port;
}

std::string Fundgeraet(const Suchfund& fund, const std::vector<Portangabe>& ports) {
    const Portangabe* const port = Fundport(fund, ports);
    return port == nullptr ? fund.versuch.geraet : BesterName(*port);
}

int Fundnummer(const Suchfund& fund, const std::vector<Portangabe>& ports, const Anschlussstand& stand) {
    const int benutzte = stand.wahl.nummer;
    const Portangabe* const port = Fundport(fund, ports);
    if (port == nullptr)
        return benutzte;
    const std::vector<int> nummern = ComZu(*port, stand);
    const bool schon = std::ranges::find(nummern, benutzte) != nummern.end();
    return nummern.empty() || schon ? benutzte : nummern.front();
}

std::vector<std::string> Geraetenamen(const std::vector<Portangabe>& ports) {
    std::vector<std::string> namen;
    std::ranges::transform(ports, std::back_inserter(namen), &Portangabe::geraet);
    return namen;
}

} // namespace varnoth
