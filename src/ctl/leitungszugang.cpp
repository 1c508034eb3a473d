#include "leitungszugang.h"

#include "einstellungen.h"
#include "geraetename.h"
#include "geraetepfade.h"
#include "lauf.h"
#include "porteinstellungen.h"
#include "schnittstelle.h"
#include "texte.h"
#include "textmitwerten.h"
#include "transaktionen.h"
#include "verbindungsauskunft.h"
#include "versuche.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextKeinComPort = 8615;
constexpr std::int16_t TextKeineDauer = 8616;
constexpr std::int16_t TextKeinPort = 8617;
constexpr std::int16_t TextKeineVerbindung = 8618;
constexpr std::int16_t TextAbgelehnt = 8619;
constexpr std::int16_t TextUnterbrochen = 8620;

constexpr std::string_view ComName = "COM";

/// Whether the words are "COM" and a number.
bool IstComName(std::string_view worte) {
    const auto gleich = [](char a, char b) { return std::toupper(static_cast<unsigned char>(a)) == b; };
    return worte.size() > ComName.size() &&
           std::ranges::equal(worte.substr(0, ComName.size()), ComName, gleich) &&
           std::ranges::all_of(worte.substr(ComName.size()), [](char zeichen) {
               return std::isdigit(static_cast<unsigned char>(zeichen)) != 0;
           });
}

Ende WaehlePort(const Lauf& lauf, const std::string& worte) {
    if (worte.empty())
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextKeinComPort, {worte}));
    const bool istCom = IstComName(worte);
    const std::string nummer = istCom ? worte.substr(ComName.size()) : std::string();
    const bool istEingestellter = nummer.size() == 1 && nummer >= "1" && nummer <= "4";
    if (!istCom || (!istEingestellter && KenntComNummern())) {
        SetzeGeraetepfad(GanzerGeraetename(worte));
        return Ende::Erledigt;
    }
    if (!istEingestellter)
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextKeinComPort, {worte}));
    modSchnittstelle::SetzeComPort(static_cast<std::int16_t>(nummer[0] - '0'));
    return Ende::Erledigt;
}

} // namespace

Ende WaehleAnschluss(const Lauf& lauf) {
    modSchnittstelle::SetzeComPort(
        modSchnittstelle::GueltigerComPort(DieEinstellungen().LiesZahl("Settings", "ComPort", 1)));
    const std::string format = lauf.zeile.Wert("format").value_or(
        LiesBegrenzt("Settings", "ComSettings", modSchnittstelle::StandardComSettings));
    modSchnittstelle::SetzeComSettings(format);
    if (lauf.zeile.Hat("format") && !LiesPorteinstellungen(format))
        return lauf.Scheitere(Ende::Bedienung, KeinLeitungsformat(format));
    if (!Hoechstdauer(lauf))
        return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextKeineDauer, {*lauf.zeile.Wert("timeout")}));
    const auto port = lauf.zeile.Wert("port");
    return port ? WaehlePort(lauf, *port) : Ende::Erledigt;
}

Leitungszugang::~Leitungszugang() {
    modSchnittstelle::CloseCommPort();
}

Ende Leitungszugang::Scheitere(Ende ende, std::int16_t text) const {
    const std::string geraet = modSchnittstelle::GetAnschluss().geraet;
    const std::string ursache = LiesVerbindungsauskunft().ursache;
    return lauf.Scheitere(ende, LadeTextMit(text, {geraet, modSchnittstelle::GetComSettings(), ursache}));
}

Ende Leitungszugang::Oeffne() {
    if (const Ende ende = WaehleAnschluss(lauf); ende != Ende::Erledigt)
        return ende;
    modSchnittstelle::OpenCommPort();
    return modSchnittstelle::GetPortIstOffen() != False ? Ende::Erledigt
                                                        : Scheitere(Ende::Port, TextKeinPort);
}

Ende Leitungszugang::Verbinde() {
    if (const Ende ende = Oeffne(); ende != Ende::Erledigt)
        return ende;
    Geduld geduld(lauf);
    Geduldsanzeige anzeige(geduld);
    const bool gelungen = VersucheBisErfolg(
        anzeige, [](int /*versuch*/) {}, modModbus::RTUModeH11IndentifikationsAnforderung);
    return gelungen ? Ende::Erledigt : EndeNachAbbruch();
}

Ende Leitungszugang::EndeNachAbbruch() const {
    if (lauf.konsole.Unterbrochen())
        return lauf.Scheitere(Ende::Unterbrochen, LadeText(TextUnterbrochen));
    if (modSchnittstelle::GetPortIstOffen() == False ||
        modSchnittstelle::GetPortbefund().hindernis != Hindernis::Keines)
        return Scheitere(Ende::Port, TextKeinPort);
    if (modModbus::RTUModeH11IndentifikationsAnforderung() != False)
        return lauf.Scheitere(Ende::Abgelehnt, LadeText(TextAbgelehnt));
    return Scheitere(Ende::KeineAntwort, TextKeineVerbindung);
}

std::string Geraetename() {
    return IdenttextAlsUtf8(modModbus::GetIdentText1());
}

std::string Geraetecopyright() {
    return IdenttextAlsUtf8(modModbus::GetIdentText3());
}

Json GeraetAlsJson() {
    using namespace modModbus;
    return GeraetAlsJson({.gueltig = GetIdentGueltig(),
                          .slaveAdresse = GetSlaveAdresse(),
                          .byte1 = GetIdentByte1(),
                          .byte2 = GetIdentByte2(),
                          .text1 = GetIdentText1(),
                          .text2 = GetIdentText2(),
                          .text3 = GetIdentText3()});
}

Json GeraetAlsJson(const Identifikation& ident) {
    return Json::Objekt({{"name", IdenttextAlsUtf8(ident.text1)},
                         {"serialNumber", IdenttextAlsUtf8(ident.text2)},
                         {"copyright", IdenttextAlsUtf8(ident.text3)},
                         {"address", Json(std::int32_t{ident.slaveAdresse})},
                         {"deviceType", Json(std::int32_t{ident.byte2})},
                         {"switchingState", Json(std::int32_t{ident.byte1})}});
}

} // namespace varnoth::ctl
