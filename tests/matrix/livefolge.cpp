#include "livefolge.h"

#include "statusbits.h"
#include "strahlbits.h"
#include "umgebung.h"

#include <algorithm>

namespace varnoth::pruefung {

namespace {

using namespace std::chrono_literals;

constexpr Zeit Durchgangsdauer = 60ms;
constexpr int Strahlen = 128;
constexpr int Objektlaenge = 40;

// Once in so many passes.
constexpr unsigned Schaltet = 40, TeilGeht = 5000, TeilKommt = 500, GehtVerloren = 20'000;

/// An object that covers some beams, and what is measured of it.
Teilmessung Gemessen(int oben, int dicke) {
    Teilmessung messung{.vorhanden = true,
                        .gemessen = true,
                        .status =
                            static_cast<std::uint16_t>(optikteilstatus::Vorhanden | (dicke == 0 ? 1 : 4)),
                        .strahlen = Strahlen};
    messung.werte.fill(static_cast<std::uint16_t>(dicke));
    Werte muster(Strahlen / 16, 0xFFFF);
    for (int strahl = oben; strahl < std::min(oben + dicke, Strahlen); ++strahl)
        SetzeStrahlBit(muster, strahl, false);
    std::ranges::transform(muster, messung.strahlregister.begin(),
                           [](std::int32_t wert) { return static_cast<std::uint16_t>(wert); });
    return messung;
}

} // namespace

Livefolge::Livefolge(unsigned seed)
    : zufall(seed), beginnUhr(DieUmgebung().Uhr()), beginn(std::chrono::system_clock::now()), uhr(beginnUhr) {
    modMesshoerer::Melde(Liveereignis{.art = Liveereignisart::Begonnen, .zeit = Jetzt(), .uhr = uhr});
}

void Livefolge::Erzaehle(Zeit dauer) {
    for (const Zeit ende = uhr + dauer; uhr < ende; uhr += Durchgangsdauer) {
        if (Selten(GehtVerloren))
            Verliere();
        modMesshoerer::Melde(Naechster());
        ++durchgaenge;
    }
}

Messdurchgang Livefolge::Naechster() {
    aktiv ^= Selten(Schaltet);
    if (Selten(fehlender < 0 ? TeilGeht : TeilKommt))
        fehlender = fehlender < 0 ? static_cast<int>(zufall() % AnzahlOptikteile) : -1;
    Messdurchgang durchgang{.zeit = Jetzt(), .uhr = uhr, .anzahlTeile = AnzahlOptikteile};
    durchgang.geraetestatus = static_cast<std::uint16_t>(aktiv ? geraetestatus::PnpAktiv : 0);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (teil != fehlender) {
            const bool objekt = durchgaenge / Objektlaenge % 2 != 0;
            durchgang.teile.at(static_cast<std::size_t>(teil)) = Gemessen(
                10 + static_cast<int>(zufall() % 4), objekt ? 30 + static_cast<int>(zufall() % 8) : 0);
        }
    return durchgang;
}

void Livefolge::Verliere() {
    modMesshoerer::Melde(Liveereignis{.art = Liveereignisart::Verloren, .zeit = Jetzt(), .uhr = uhr});
    uhr += std::chrono::seconds(zufall() % 100);
    modMesshoerer::Melde(Liveereignis{.art = Liveereignisart::Zurueck, .zeit = Jetzt(), .uhr = uhr});
    ++verluste;
}

} // namespace varnoth::pruefung
