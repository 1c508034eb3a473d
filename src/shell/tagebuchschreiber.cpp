#include "tagebuchschreiber.h"

#include <QFileInfo>

#include <utility>

namespace varnoth {

Tagebuchschreiber::Tagebuchschreiber(Weg welcher) : weg(welcher ? std::move(welcher) : HaengeAnDatei) {}

Tagebuchschreiber::~Tagebuchschreiber() {
    if (Laeuft() && !Hole(Nebenfaden::LaengstesSchweigen))
        LasseZurueck();
}

void Tagebuchschreiber::Beginne(Auftrag auftrag) {
    begonnen = DieUmgebung().Uhr();
    ergebnis = std::make_shared<Ergebnis>(Ergebnis{.datei = auftrag.datei});
    faden.emplace([auftrag = std::move(auftrag), ergebnis = ergebnis, weg = weg] {
        if (QFileInfo(QString::fromStdString(auftrag.ordner)).isDir())
            ergebnis->angehaengt = weg(auftrag.datei, auftrag.zeilen, auftrag.hoechstens);
        else
            ergebnis->ohneOrdner = true;
    });
}

bool Tagebuchschreiber::SchweigtLange() const {
    return Laeuft() && DieUmgebung().Uhr() - begonnen > Nebenfaden::LaengstesSchweigen;
}

std::optional<Tagebuchschreiber::Ergebnis> Tagebuchschreiber::Hole(std::chrono::milliseconds hoechstens) {
    if (!faden || !faden->WarteAufEnde(hoechstens))
        return {};
    faden.reset();
    return *std::exchange(ergebnis, {});
}

void Tagebuchschreiber::LasseZurueck() {
    if (faden)
        faden->LasseZurueck();
    faden.reset();
    ergebnis.reset();
}

} // namespace varnoth
