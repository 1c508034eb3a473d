#include "anschlusseingabe.h"

#include "porteinstellungen.h"
#include "texte.h"
#include "verbindungsauskunft.h"
#include "wortlaut.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextGeraetFehlt = 8336;
constexpr std::int16_t TextGeraetenameFalsch = 8337;

constexpr std::size_t LaengsterName = 255;

bool IstSteuerzeichen(char zeichen) {
    const auto byte = static_cast<unsigned char>(zeichen);
    return byte < ' ' || byte == 0x7F;
}

} // namespace

std::string GeraetenameBefund(const std::string& name) {
    if (name.empty())
        return LadeText(TextGeraetFehlt);
    if (name.size() > LaengsterName || std::ranges::any_of(name, IstSteuerzeichen))
        return LadeText(TextGeraetenameFalsch);
    return {};
}

std::string FormatBefund(const std::string& format) {
    return LiesPorteinstellungen(format) ? std::string() : KeinLeitungsformat(format);
}

bool IstGueltig(const Anschlusswahl& wahl) {
    return FormatBefund(wahl.format).empty() && std::ranges::all_of(wahl.geraete, [](const auto& geraet) {
               return GeraetenameBefund(geraet).empty();
           });
}

Anschlusswahl OhneBlanks(Anschlusswahl wahl) {
    for (std::string& geraet : wahl.geraete)
        geraet = std::string(OhneRand(geraet));
    wahl.format = std::string(OhneRand(wahl.format));
    return wahl;
}

bool BetrifftVerbindung(const Anschlussstand& stand, const Anschlusswahl& wahl) {
    const Anschlusswahl& alt = stand.wahl;
    return !stand.geraetDiesesLaufs.empty() || stand.simuliert || alt.nummer != wahl.nummer ||
           alt.format != wahl.format || alt.Geraet(alt.nummer) != wahl.Geraet(wahl.nummer);
}

bool HatWirkung(const Anschlussstand& stand, const Anschlusswahl& wahl) {
    return !stand.geraetDiesesLaufs.empty() || stand.wahl != wahl;
}

Anschlusswahl Nachgefuehrt(const Anschlusswahl& eingabe, const Anschlusswahl& alt, const Anschlusswahl& neu) {
    Anschlusswahl ergebnis = eingabe;
    for (int com = 1; com <= AnzahlCom; ++com)
        if (eingabe.Geraet(com) == alt.Geraet(com))
            ergebnis.Geraet(com) = neu.Geraet(com);
    if (eingabe.nummer == alt.nummer)
        ergebnis.nummer = neu.nummer;
    if (eingabe.format == alt.format)
        ergebnis.format = neu.format;
    return ergebnis;
}

Anschlusswahl MitFund(Anschlusswahl wahl, int com, const std::string& geraet, const std::string& format) {
    wahl.Geraet(com) = geraet;
    wahl.nummer = com;
    wahl.format = format;
    return wahl;
}

} // namespace varnoth
