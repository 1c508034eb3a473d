#include "verbindungsregel.h"

namespace varnoth {

namespace {

using enum Verbindungszustand;

// Longer than an exchange takes at 1200 baud.
constexpr Zeit Geduld = std::chrono::milliseconds(1200);
// A figure that changes more often cannot be read.
constexpr Zeit Ratenruhe = std::chrono::seconds(1);

void Dauert(Verbindungsbild& bild, Verbindungszustand zustand, Zeit dauer) {
    bild.zustand = zustand;
    bild.dauer = std::chrono::floor<std::chrono::seconds>(dauer);
}

Zeit SeitAntwort(const Verbindungstatsachen& tatsachen) {
    return tatsachen.letzteAntwort ? tatsachen.jetzt - *tatsachen.letzteAntwort : Zeit{0};
}

bool Hoert(const Verbindungstatsachen& tatsachen) {
    return tatsachen.unterwegs && !tatsachen.aufgehalten;
}

Zeit Wartezeit(const Verbindungstatsachen& tatsachen) {
    return Hoert(tatsachen) && tatsachen.wartetSeit ? tatsachen.jetzt - *tatsachen.wartetSeit : Zeit{0};
}

void UnterscheideLive(const Verbindungstatsachen& tatsachen, Verbindungsbild& bild) {
    if (Wartezeit(tatsachen) > Geduld)
        Dauert(bild, Wartet, Wartezeit(tatsachen));
    else if (!Hoert(tatsachen) && SeitAntwort(tatsachen) > Geduld)
        Dauert(bild, Pausiert, SeitAntwort(tatsachen));
    else
        bild.zustand = Live;
}

void UnterscheideOffenenPort(const Verbindungstatsachen& tatsachen, Verbindungsbild& bild) {
    if (Wartezeit(tatsachen) > Geduld)
        Dauert(bild, Wartet, Wartezeit(tatsachen));
    else
        bild.zustand = PortOffen;
}

} // namespace

Verbindungsbild Verbindungsregel::Betrachte(const Verbindungstatsachen& tatsachen) {
    MerkeEnde(tatsachen);
    Verbindungsbild bild{.simuliert = tatsachen.simuliert, .fehlschlaege = tatsachen.fehlschlaege};
    Unterscheide(tatsachen, bild);
    bild.durchgaengeJeSekunde = NimmRate(tatsachen, bild.zustand);
    if (bild.zustand == Angehalten || bild.zustand == Offline)
        bild.seit = seit;
    bild.startBieten = !tatsachen.liveDaten && !tatsachen.verbindet && !tatsachen.portOffen;
    bild.sucheBieten = bild.startBieten && tatsachen.fehlgeschlagen && !tatsachen.simuliert;
    return bild;
}

/// A stretch without live data is no part of any rate.
double Verbindungsregel::NimmRate(const Verbindungstatsachen& tatsachen, Verbindungszustand zustand) {
    if (zustand != Live) {
        rate = {};
        gezeigteRate = 0;
        return 0;
    }
    rate.Nimm(tatsachen.jetzt, tatsachen.durchgaenge);
    if (gezeigteRate > 0 && tatsachen.jetzt < rateGenommen + Ratenruhe)
        return gezeigteRate;
    gezeigteRate = rate.ProSekunde(tatsachen.jetzt);
    rateGenommen = tatsachen.jetzt;
    return gezeigteRate;
}

void Verbindungsregel::MerkeEnde(const Verbindungstatsachen& tatsachen) {
    const bool istLive = tatsachen.liveDaten && !tatsachen.verloren;
    if (seit.isNull() || (warLive && !istLive)) {
        seit = tatsachen.uhrzeit;
        angehalten = warLive && !tatsachen.liveDaten;
    }
    if (tatsachen.verbindet || tatsachen.liveDaten)
        angehalten = false;
    warLive = istLive;
}

void Verbindungsregel::Unterscheide(const Verbindungstatsachen& tatsachen, Verbindungsbild& bild) const {
    if (tatsachen.verbindet)
        bild.zustand = Verbindet;
    else if (tatsachen.liveDaten && !tatsachen.verloren)
        UnterscheideLive(tatsachen, bild);
    else if (tatsachen.portOffen && !tatsachen.liveDaten)
        UnterscheideOffenenPort(tatsachen, bild);
    else
        bild.zustand = angehalten ? Angehalten : Offline;
}

} // namespace varnoth
