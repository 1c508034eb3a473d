#include "geraetestatus.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "statusbits.h"
#include "texte.h"
#include "umgebung.h"

namespace varnoth::modDaten {

namespace {

constexpr const char* Zeilenumbruch = "\r\n";

using namespace geraetestatus;

constexpr std::int16_t TextKeinOptikteil = 3103;
constexpr std::int16_t TextOptikteil = 3104;
constexpr std::int16_t TextStrahlenzahlGeaendert = 3105;
constexpr std::int16_t TextNichtLesbar = 3106;

/// The parts, numbered from 1, whose bit is set, the first part's bit being `erstesBit`: "Optikteil1, ...".
std::string Optikteilliste(std::int32_t statuswort, int erstesBit) {
    std::string liste;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        if ((statuswort & (1 << (erstesBit + teil))) == 0)
            continue;
        if (!liste.empty())
            liste += ", ";
        liste += LadeText(TextOptikteil) + std::to_string(teil + 1);
    }
    return liste;
}

void HaengeAn(std::string& meldung, const std::string& liste, std::int16_t textId) {
    if (liste.empty())
        return;
    if (!meldung.empty())
        meldung += Zeilenumbruch;
    meldung += liste + Zeilenumbruch + LadeText(textId);
}

} // namespace

std::string Geraetestatustext(std::int32_t statuswort) {
    std::string meldung;
    if ((statuswort & KeinOptikteil) != 0)
        meldung = LadeText(TextKeinOptikteil);
    HaengeAn(meldung, Optikteilliste(statuswort, StrahlenzahlGeaendertBit), TextStrahlenzahlGeaendert);
    HaengeAn(meldung, Optikteilliste(statuswort, NichtLesbarBit), TextNichtLesbar);
    return meldung;
}

bool IstOptikteilVorhanden(std::int32_t statuswort) {
    return (statuswort & optikteilstatus::Vorhanden) != 0;
}

void ZeigeGeraetestatus() {
    const std::string meldung =
        Geraetestatustext(HoleRegister(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus));
    if (!meldung.empty())
        ZeigeWarnung(meldung);
}

} // namespace varnoth::modDaten
