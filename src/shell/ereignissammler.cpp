#include "ereignissammler.h"

#include "ereignisse.h"
#include "leitungsstatistik.h"
#include "umgebung.h"

namespace varnoth {

namespace {

constexpr int TaktMs = 1000;

} // namespace

Ereignissammler::Ereignissammler() : ableitung(modEreignisse::Alle()), fehlschlaege(modEreignisse::Alle()) {
    modMesshoerer::MeldeAn(*this);
    QObject::connect(&takt, &QTimer::timeout, &takt, [this] { Sieh(); });
    takt.start(TaktMs);
    Sieh();
}

Ereignissammler::~Ereignissammler() {
    modMesshoerer::MeldeAb(*this);
}

void Ereignissammler::Sieh() {
    const Zeit jetzt = DieUmgebung().Uhr();
    ableitung.Verstreiche(jetzt);
    fehlschlaege.Nimm(modLeitungsstatistik::GetStand().anzahl, jetzt, std::chrono::system_clock::now());
}

void Ereignissammler::Hoere(const Messdurchgang& durchgang) {
    ableitung.Nimm(durchgang);
}

void Ereignissammler::Hoere(const Liveereignis& ereignis) {
    ableitung.Nimm(
        Messereignis{.art = ArtVon(ereignis.art), .laufzeit = ereignis.uhr, .zeit = ereignis.zeit});
}

} // namespace varnoth
