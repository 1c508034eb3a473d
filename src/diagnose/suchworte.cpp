#include "suchworte.h"

#include "texte.h"
#include "textmitwerten.h"
#include "textschutz.h"

#include <array>

namespace varnoth {

namespace {

constexpr std::int16_t TextGefunden = 8216;
constexpr std::int16_t TextEchoAbschalten = 8217;
constexpr std::int16_t TextNichtGefunden = 8218;
constexpr std::int16_t TextOhnePort = 8219;
constexpr std::int16_t TextAbgebrochen = 8220;
constexpr std::int16_t TextEinVersuch = 8221;
constexpr std::int16_t TextVersuche = 8222;
constexpr std::int16_t TextSimuliert = 8223;
constexpr std::int16_t TextNurEcho = 8224;
constexpr std::int16_t TextUnverstanden = 8225;
constexpr std::int16_t TextStille = 8226;
constexpr std::int16_t TextVerschlossen = 8227;
constexpr std::int16_t TextOhneSeriennummer = 8228;

std::string Gefunden(const Suchfund& fund) {
    const Identifikation& ident = fund.ident;
    const std::string seriennummer =
        ident.text2.empty() ? LadeText(TextOhneSeriennummer) : Einzeilig(IdenttextAlsUtf8(ident.text2));
    const std::string text = LadeTextMit(TextGefunden, {fund.versuch.geraet, fund.versuch.format,
                                                        Einzeilig(IdenttextAlsUtf8(ident.text1)),
                                                        seriennummer, std::to_string(ident.slaveAdresse)});
    return fund.mitEcho ? text + " " + LadeText(TextEchoAbschalten) : text;
}

/// The likeliest reason why nothing was found.
std::string Grund(const Suchbilanz& bilanz) {
    if (bilanz.verschlossene == bilanz.geraete)
        return bilanz.verschlossen;
    if (!bilanz.unverstandenAn.empty())
        return LadeTextMit(TextUnverstanden, {bilanz.unverstandenAn});
    if (!bilanz.echoAn.empty())
        return LadeTextMit(TextNurEcho, {bilanz.echoAn});
    const std::string stille = LadeText(TextStille);
    return bilanz.verschlossene == 0 ? stille
                                     : stille + " " + LadeTextMit(TextVerschlossen, {bilanz.verschlossen});
}

} // namespace

std::string Versuchstext(Suchergebnis ergebnis) {
    constexpr std::array<std::int16_t, 6> Texte{8210, 8211, 8212, 8213, 8214, 8215};
    return LadeText(Texte.at(static_cast<std::size_t>(ergebnis)));
}

std::string Fundtext(const Suchfund& fund, const Suchbilanz& bilanz) {
    if (fund.ident.gueltig == True)
        return Gefunden(fund);
    if (bilanz.simuliert)
        return LadeText(TextSimuliert);
    if (bilanz.geraete == 0)
        return LadeText(TextOhnePort);
    const std::string versuche = LadeAnzahltext(TextEinVersuch, TextVersuche, fund.versuche);
    if (fund.abgebrochen)
        return LadeTextMit(TextAbgebrochen, {versuche});
    return LadeTextMit(TextNichtGefunden, {versuche, Grund(bilanz)});
}

} // namespace varnoth
