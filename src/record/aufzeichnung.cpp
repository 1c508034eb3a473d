#include "aufzeichnung.h"

#include <utility>

namespace varnoth {

namespace {

// Short enough that with the writing itself no more than a second is ever missing on the disk.
constexpr auto Schreibabstand = std::chrono::milliseconds(700);
constexpr std::size_t MeisteJeStueck = 1000;

} // namespace

Aufzeichnung::Aufzeichnung(Dateiablage& ablage, Aufzeichnungsauftrag auftrag, Uhr dieUhr)
    : uhr(std::move(dieUhr)), werk(ablage, std::move(auftrag)) {}

Aufzeichnung::~Aufzeichnung() {
    Beende();
}

int Aufzeichnung::Beginne(std::shared_ptr<const Abbild> konfiguration) {
    if (const int fehler = werk.Beginne(uhr(), std::move(konfiguration)); fehler != 0)
        return fehler;
    stand = werk.Stand();
    faden.emplace([this] { Laufe(); });
    return 0;
}

void Aufzeichnung::Beende() {
    if (!faden)
        return;
    {
        const std::lock_guard gesperrt(sperre);
        zuEnde = true;
    }
    wecker.notify_one();
    faden->join();
    faden.reset();
}

/// What follows belongs to the same stretch as long as the configuration does not change.
Messpaket& Aufzeichnung::LetztesStueck() {
    const auto istVoll = [](const Messpaket& inhalt) {
        return inhalt.durchgaenge.size() >= MeisteJeStueck || inhalt.ereignisse.size() >= MeisteJeStueck;
    };
    if (wartendes.stuecke.empty() || istVoll(wartendes.stuecke.back().inhalt))
        wartendes.stuecke.emplace_back();
    return wartendes.stuecke.back().inhalt;
}

void Aufzeichnung::Nimm(const Messdurchgang& durchgang) {
    const std::lock_guard gesperrt(sperre);
    if (wartendes.durchgaenge >= MeisteWartende) {
        ++wartendes.verworfene;
        return;
    }
    LetztesStueck().durchgaenge.push_back(durchgang);
    if (++wartendes.durchgaenge == MeisteWartende / 2)
        wecker.notify_one();
}

void Aufzeichnung::Nimm(Messereignis ereignis) {
    const std::lock_guard gesperrt(sperre);
    LetztesStueck().ereignisse.push_back(std::move(ereignis));
}

void Aufzeichnung::SetzeKonfiguration(std::shared_ptr<const Abbild> konfiguration) {
    const std::lock_guard gesperrt(sperre);
    wartendes.stuecke.push_back({.konfiguration = std::move(konfiguration), .inhalt = {}});
}

Aufzeichnungsstand Aufzeichnung::Stand() const {
    const std::lock_guard gesperrt(sperre);
    return stand;
}

void Aufzeichnung::Laufe() {
    for (bool letztesMal = false; !letztesMal;) {
        Wartendes geholtes;
        {
            std::unique_lock gesperrt(sperre);
            wecker.wait_for(gesperrt, Schreibabstand,
                            [this] { return zuEnde || wartendes.durchgaenge >= MeisteWartende / 2; });
            letztesMal = zuEnde;
            geholtes = std::exchange(wartendes, {});
        }
        werk.Schreibe(std::move(geholtes.stuecke), geholtes.verworfene, uhr());
        if (letztesMal)
            werk.Beende(uhr());
        const std::lock_guard gesperrt(sperre);
        stand = werk.Stand();
    }
}

} // namespace varnoth
