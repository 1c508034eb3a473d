#include "sicherungen.h"

#include "geraetestand.h"
#include "registerabbild.h"
#include "startzustand.h"
#include "texte.h"
#include "textmitwerten.h"
#include "umgebung.h"
#include "vergleich.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextUngesichert = 9762;
constexpr std::int16_t TextTrotzdem = 9920;

Sicherungen* dieSicherungen = nullptr;
std::optional<Abbild> ausgangslage;
const Startwert startwert(dieSicherungen, ausgangslage);

bool HatStrahlen() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (modDaten::Strahlenzahl(teil) > 0)
            return true;
    return false;
}

bool EntsprichtGeraet(const Abbild& abbild) {
    const auto stand = modGeraetestand::HoleGeraetestand();
    return stand && Vergleiche(abbild, stand->abbild, {.inB = stand->unbekannt}).IstGleich();
}

bool GingeVerloren(const Abbild& abbild) {
    return modDaten::IstGeaendert() != False && HatStrahlen() &&
           !(ausgangslage && Vergleiche(abbild, *ausgangslage).IstGleich()) && !EntsprichtGeraet(abbild);
}

std::string Lege(const Abbild& abbild, Sicherungsanlass anlass) {
    auto angaben = AngabenZu(abbild, std::chrono::system_clock::now());
    angaben.anlass = anlass;
    return dieSicherungen->Lege(abbild, angaben);
}

} // namespace

Sicherungen* DieSicherungen() {
    return dieSicherungen;
}

void SetzeSicherungen(Sicherungen* sicherungen) {
    dieSicherungen = sicherungen;
}

void MerkeAusgangslage() {
    ausgangslage = modDaten::DasAbbild();
}

std::string SichereAenderungen(Sicherungsanlass anlass) {
    if (dieSicherungen == nullptr || !GingeVerloren(modDaten::DasAbbild()))
        return {};
    return Lege(modDaten::DasAbbild(), anlass);
}

bool DarfErsetzen(Sicherungsanlass anlass) {
    const std::string fehler = SichereAenderungen(anlass);
    return fehler.empty() ||
           DieUmgebung().ZeigeMeldung({.text = LadeTextMit(TextUngesichert, {fehler}),
                                       .titel = LadeText(TextAchtung),
                                       .symbol = Symbol::Warnung,
                                       .knoepfe = Knoepfe::OkAbbrechen,
                                       .abbrechenVorgegeben = true,
                                       .informativtext = LadeText(TextTrotzdem)}) == Antwort::Ok;
}

bool IstGeraetestandSicherbar() {
    const auto stand = modGeraetestand::HoleGeraetestand();
    return dieSicherungen != nullptr && stand && stand->IstVollstaendig();
}

std::string SichereGeraetestand() {
    if (!IstGeraetestandSicherbar())
        return {};
    return Lege(modGeraetestand::HoleGeraetestand()->abbild, Sicherungsanlass::VorDemSchreiben);
}

} // namespace varnoth
