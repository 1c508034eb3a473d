#include "stellenhelfer.h"

namespace varnoth::pruefung {

namespace {

std::vector<Stelle> Sammle() {
    std::vector<Stelle> alle;
    for (const auto& einige :
         {VerbindungsStellen(), KonfigurationsStellen(), DienstStellen(), KommandoStellen()})
        alle.insert(alle.end(), einige.begin(), einige.end());
    return alle;
}

} // namespace

std::span<const Stelle> AlleStellen() {
    static const std::vector<Stelle> alle = Sammle();
    return alle;
}

bool ZeigtZahlAb(Zelle& z, const char* fenster, const char* feld, int zahl) {
    return z.betrieb.Text(fenster, feld).toInt() >= zahl;
}

bool KnopfIstFrei(const char* fenster, const char* knopf) {
    const QWidget* const sichtbares = SichtbaresFenster(fenster);
    return sichtbares != nullptr && sichtbares->findChild<QWidget*>(knopf)->isEnabled();
}

bool IstZurueck(Zelle& z) {
    return z.betrieb.HatRuhe();
}

Handlung BereiteNichts(Zelle& z) {
    co_await z.regie.Bis("the main window", [&z] { return z.betrieb.HatRuhe(); });
}

Handlung BereiteLiveDaten(Zelle& z) {
    co_await z.GeheLive();
}

Handlung BereiteStehendeVerbindung(Zelle& z) {
    co_await z.GeheLive();
    co_await z.Stoppe();
}

} // namespace varnoth::pruefung
