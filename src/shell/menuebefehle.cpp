#include "menuebefehle.h"

#include "befehlstabelle.h"

namespace varnoth {

bool StopptLiveDaten(Befehl befehl) {
    const Befehlszeile* const zeile = ZeileZu(befehl);
    return zeile != nullptr && zeile->live != Live::LaeuftWeiter;
}

bool StartetLiveDatenWieder(Befehl befehl) {
    const Befehlszeile* const zeile = ZeileZu(befehl);
    return zeile != nullptr && zeile->live == Live::StopptUndStartetWieder;
}

bool SetztLiveDatenFort(Befehl befehl) {
    const Befehlszeile* const zeile = ZeileZu(befehl);
    return zeile != nullptr && zeile->live == Live::Ruht;
}

bool ZeigtFenster(Befehl befehl) {
    const Befehlszeile* const zeile = ZeileZu(befehl);
    return zeile != nullptr && zeile->auftritt == Auftritt::Zeigt;
}

void Befehlsspeicher::Klick(Befehl befehl, int index) {
    befehlscode = befehl;
    menueindex = index;
    ++klicks;
}

void Befehlsspeicher::FuehreAus(Befehlsziel& ziel) {
    if (!Wartet())
        return;
    const Befehl befehl = befehlscode;
    const int index = menueindex;
    klicksBeimBeginn = klicks;
    const bool liefLive = ziel.LiveDatenLaufen();
    if (liefLive && StopptLiveDaten(befehl))
        ziel.StoppeLiveDaten();
    ziel.FuehreAus(befehl, index);
    if (liefLive && SetztLiveDatenFort(befehl))
        ziel.SetzeLiveDatenFort();
    if (KlickSeitBeginn())
        return;
    befehlscode = liefLive && StartetLiveDatenWieder(befehl) ? Befehl::VisualisierenStart : Befehl::Keiner;
}

} // namespace varnoth
