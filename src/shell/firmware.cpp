#include "firmware.h"

#include "einstellungen.h"
#include "texte.h"
#include "transaktionen.h"
#include "umgebung.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextFirmwareFrage = 6004;

bool FrageNachUpdate() {
    return DieUmgebung().ZeigeMeldung({.text = LadeText(TextFirmwareFrage),
                                       .titel = LadeText(TextAchtung),
                                       .symbol = Symbol::Warnung,
                                       .knoepfe = Knoepfe::OkAbbrechen,
                                       .abbrechenVorgegeben = true}) == Antwort::Ok;
}

} // namespace

void AktualisiereFirmware(Firmwareziel& ziel) {
    const std::string parameter = LiesBegrenzt("Flasher", "Parameter", "");
    if (parameter.empty() || !FrageNachUpdate() || !ziel.Identifiziere())
        return;
    if (modModbus::SendeFunktion09Kommando() == False)
        return;
    const std::string fehler = ziel.StarteFlasher(parameter);
    if (!fehler.empty())
        ZeigeWarnung(fehler, LadeText(TextAchtung));
}

} // namespace varnoth
