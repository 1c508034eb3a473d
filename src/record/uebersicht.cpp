#include "uebersicht.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

/// Passes that lie further apart have a gap between them, whatever was told of it.
constexpr Zeit LaengstePause = std::chrono::seconds(5);

constexpr int Registerbits = 16;

constexpr std::size_t Registerzahl(int strahlen) {
    return std::min<std::size_t>((static_cast<std::size_t>(strahlen) + Registerbits - 1) / Registerbits,
                                 MaxStrahlregister);
}

/// The bits of a register that are beams, of a part with so many.
std::uint16_t Strahlbits(int strahlen, std::size_t register_) {
    const int hier = std::clamp(strahlen - static_cast<int>(register_) * Registerbits, 0, Registerbits);
    if (hier <= 8)
        return static_cast<std::uint16_t>(((1U << hier) - 1) << 8U);
    return static_cast<std::uint16_t>(0xFF00U | ((1U << (hier - 8)) - 1));
}

} // namespace

Uebersicht::Uebersicht(std::size_t hoechstensBytes) : hoechstens(hoechstensBytes) {}

void Uebersicht::Nimm(const Messpaket& paket) {
    auto ereignis = paket.ereignisse.begin();
    for (const Messdurchgang& durchgang : paket.durchgaenge) {
        for (; ereignis != paket.ereignisse.end() && ereignis->laufzeit < durchgang.uhr; ++ereignis)
            Nimm(*ereignis);
        Nimm(durchgang);
    }
    for (; ereignis != paket.ereignisse.end(); ++ereignis)
        Nimm(*ereignis);
}

void Uebersicht::Nimm(const Messdurchgang& durchgang) {
    if (letzter && durchgang.uhr - *letzter > LaengstePause)
        Unterbrich();
    Abschnitt& abschnitt = AbschnittFuer(durchgang.uhr);
    abschnitt.luecke |= std::exchange(unterbrochen, false);
    letzter = durchgang.uhr;
    abschnitt.geraetestatus.Nimm(durchgang.geraetestatus);
    const std::size_t vorher = Bytes(abschnitt);
    for (std::size_t teil = 0; teil < durchgang.teile.size(); ++teil)
        if (durchgang.teile[teil].gemessen)
            Nimm(abschnitt.teile[teil], durchgang.teile[teil]);
        else if (static_cast<int>(teil) < durchgang.anzahlTeile)
            abschnitt.teile[teil].status.Nimm(durchgang.teile[teil].status);
    belegt += Bytes(abschnitt) - vorher;
    while (belegt > hoechstens && abschnitte.size() > 1)
        Verdopple();
}

void Uebersicht::Nimm(const Messereignis& ereignis) {
    switch (ereignis.art) {
    case Messereignisart::LiveBeendet:
    case Messereignisart::Verloren:
    case Messereignisart::Verworfen:
        Unterbrich();
        break;
    case Messereignisart::LiveBegonnen:
    case Messereignisart::Zurueck:
    case Messereignisart::Notiz:
        break;
    }
}

void Uebersicht::NimmLuecke() {
    Unterbrich();
}

void Uebersicht::VergissBis(Zeit laufzeit) {
    for (; !abschnitte.empty() && Spanne(0).bis < laufzeit; ++vergessene) {
        if (abschnitte.size() == 1)
            Schliesse(abschnitte.front());
        belegt -= Bytes(abschnitte.front());
        abschnitte.pop_front();
    }
    bloecke.Vergiss(vergessene);
}

std::size_t Uebersicht::Anzahl() const {
    return abschnitte.size();
}

std::size_t Uebersicht::AbschnittUm(Zeit laufzeit) const {
    const auto danach = std::ranges::upper_bound(abschnitte, laufzeit / laenge, {}, &Abschnitt::nummer);
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(danach - abschnitte.begin(), 1) - 1);
}

Zeitspanne Uebersicht::Spanne(std::size_t i) const {
    const Zeit von = laenge * abschnitte.at(i).nummer;
    return {von, von + laenge - Zeit(1)};
}

bool Uebersicht::HatLuecke(std::size_t i) const {
    return abschnitte.at(i).luecke;
}

Bitspanne Uebersicht::Geraetestatus(std::size_t i) const {
    return abschnitte.at(i).geraetestatus;
}

std::uint32_t Uebersicht::Durchgaenge(std::size_t i, int teil) const {
    return Teil(i, teil).durchgaenge;
}

Wertspanne Uebersicht::Wert(std::size_t i, int teil, int wert) const {
    return Teil(i, teil).werte.at(static_cast<std::size_t>(wert));
}

std::span<const Wertspanne> Uebersicht::Werte(std::size_t i, int teil) const {
    return Teil(i, teil).werte;
}

Bitspanne Uebersicht::Status(std::size_t i, int teil) const {
    return Teil(i, teil).status;
}

int Uebersicht::Strahlen(std::size_t i, int teil) const {
    return Teil(i, teil).strahlen;
}

std::span<const std::uint16_t> Uebersicht::UnterbrochenEinmal(std::size_t i, int teil) const {
    const auto& alle = Teil(i, teil).unterbrochen;
    return std::span(alle).first(alle.size() / 2);
}

std::span<const std::uint16_t> Uebersicht::UnterbrochenImmer(std::size_t i, int teil) const {
    const auto& alle = Teil(i, teil).unterbrochen;
    return std::span(alle).last(alle.size() / 2);
}

/// What a column sees of a stretch.
void Uebersicht::Nimm(Messspalte& ziel, const Abschnitt& abschnitt, unsigned teile) {
    ziel.geraetestatus.Nimm(abschnitt.geraetestatus);
    ziel.durchgang |= abschnitt.geraetestatus != Bitspanne{};
    ziel.luecke |= abschnitt.luecke;
    for (std::size_t teil = 0; teil < abschnitt.teile.size(); ++teil) {
        const Teilabschnitt& gesehenes = abschnitt.teile[teil];
        if ((teile >> teil & 1U) == 0 || gesehenes.durchgaenge == 0)
            continue;
        Teilspalte& seines = ziel.teile[teil];
        seines.gemessen = true;
        seines.status.Nimm(gesehenes.status);
        seines.strahlen = std::max(seines.strahlen, gesehenes.strahlen);
        for (std::size_t k = 0; k < AnzahlKurvenwerte; ++k) {
            seines.aktuell[k].Nimm(gesehenes.werte[k]);
            seines.band[k].Nimm(gesehenes.werte[ErstesMinimum + k]);
            seines.band[k].Nimm(gesehenes.werte[ErstesMaximum + k]);
        }
    }
}

/// What lies in one column comes from a block where there is one; the stretches in it are not even looked at.
void Uebersicht::Trage(const Spalten& spalten) const {
    const auto spalteUm = [&](Zeit zeit) { return zeit / spalten.breite; };
    const auto liegtInEiner = [&](const Abschnittsbloecke::Block& block) {
        const std::int64_t spalte = spalteUm(laenge * block.erster);
        return spalte >= spalten.von && laenge * (block.letzter + 1) <= spalten.breite * (spalte + 1);
    };
    for (std::size_t i = AbschnittUm(spalten.breite * spalten.von); i < abschnitte.size();) {
        const auto* const block = bloecke.Ab(vergessene + i, liegtInEiner);
        const Zeit beginn = laenge * (block != nullptr ? block->erster : abschnitte[i].nummer);
        const std::int64_t erste = spalteUm(beginn);
        if (erste >= spalten.bis)
            break;
        if (block != nullptr) {
            spalten.hole(erste).Nimm(block->inhalt, spalten.teile);
            i += block->anzahl;
            continue;
        }
        const std::int64_t letzte = spalteUm(beginn + laenge - Zeit(1));
        for (auto n = std::max(erste, spalten.von); n <= std::min(letzte, spalten.bis - 1); ++n)
            Nimm(spalten.hole(n), abschnitte[i], spalten.teile);
        ++i;
    }
}

std::size_t Uebersicht::Bytes(const Abschnitt& abschnitt) {
    constexpr std::size_t jeBlock = 16; // what the system keeps beside each block of memory
    std::size_t bytes = sizeof abschnitt + Abschnittsbloecke::BytesJeAbschnitt;
    for (const Teilabschnitt& teil : abschnitt.teile)
        if (!teil.unterbrochen.empty())
            bytes += teil.unterbrochen.capacity() * sizeof(std::uint16_t) + jeBlock;
    return bytes;
}

/// Makes room for more registers. A beam that the part did not have before was interrupted at no time.
void Uebersicht::Erweitere(Teilabschnitt& ziel, std::size_t anzahl) {
    const std::size_t alte = ziel.unterbrochen.size() / 2;
    if (anzahl <= alte)
        return;
    std::vector<std::uint16_t> neue(2 * anzahl);
    const auto immer = ziel.unterbrochen.begin() + static_cast<std::ptrdiff_t>(alte);
    std::copy(ziel.unterbrochen.begin(), immer, neue.begin());
    std::copy(immer, ziel.unterbrochen.end(), neue.begin() + static_cast<std::ptrdiff_t>(anzahl));
    if (ziel.durchgaenge == 0)
        std::fill(neue.begin() + static_cast<std::ptrdiff_t>(anzahl), neue.end(), std::uint16_t{0xFFFF});
    ziel.unterbrochen = std::move(neue);
}

void Uebersicht::Nimm(Teilabschnitt& ziel, const Teilmessung& messung) {
    Erweitere(ziel, Registerzahl(messung.strahlen));
    ++ziel.durchgaenge;
    ziel.status.Nimm(messung.status);
    ziel.strahlen = std::max(ziel.strahlen, messung.strahlen);
    for (std::size_t i = 0; i < messung.werte.size(); ++i)
        ziel.werte[i].Nimm(messung.werte[i]);
    const std::size_t anzahl = ziel.unterbrochen.size() / 2;
    for (std::size_t i = 0; i < anzahl; ++i) {
        const auto unterbrochene =
            static_cast<std::uint16_t>(~messung.strahlregister[i] & Strahlbits(messung.strahlen, i));
        ziel.unterbrochen[i] |= unterbrochene;
        ziel.unterbrochen[anzahl + i] &= unterbrochene;
    }
}

void Uebersicht::Nimm(Teilabschnitt& ziel, const Teilabschnitt& spaeterer) {
    ziel.status.Nimm(spaeterer.status);
    if (spaeterer.durchgaenge == 0)
        return;
    const std::size_t seine = spaeterer.unterbrochen.size() / 2;
    Erweitere(ziel, seine);
    ziel.durchgaenge += spaeterer.durchgaenge;
    ziel.strahlen = std::max(ziel.strahlen, spaeterer.strahlen);
    for (std::size_t i = 0; i < ziel.werte.size(); ++i)
        ziel.werte[i].Nimm(spaeterer.werte[i]);
    const std::size_t anzahl = ziel.unterbrochen.size() / 2;
    for (std::size_t i = 0; i < anzahl; ++i) {
        ziel.unterbrochen[i] |= i < seine ? spaeterer.unterbrochen[i] : std::uint16_t{0};
        ziel.unterbrochen[anzahl + i] &= i < seine ? spaeterer.unterbrochen[seine + i] : std::uint16_t{0};
    }
}

const Uebersicht::Teilabschnitt& Uebersicht::Teil(std::size_t i, int teil) const {
    return abschnitte.at(i).teile.at(static_cast<std::size_t>(teil));
}

Uebersicht::Abschnitt& Uebersicht::AbschnittFuer(Zeit laufzeit) {
    const std::int64_t nummer = laufzeit / laenge;
    if (abschnitte.empty() || abschnitte.back().nummer < nummer) {
        if (!abschnitte.empty())
            Schliesse(abschnitte.back());
        abschnitte.push_back({.nummer = nummer});
        belegt += Bytes(abschnitte.back());
    }
    return abschnitte.back();
}

/// Nothing more comes into it.
void Uebersicht::Schliesse(const Abschnitt& abschnitt) {
    Messspalte inhalt;
    Nimm(inhalt, abschnitt, ~0U);
    bloecke.Nimm(abschnitt.nummer, inhalt);
}

/// The last stretch has a gap, and so has the next.
void Uebersicht::Unterbrich() {
    if (!abschnitte.empty())
        abschnitte.back().luecke = unterbrochen = true;
}

/// Each two stretches become one.
void Uebersicht::Verdopple() {
    laenge *= 2;
    std::deque<Abschnitt> neue;
    for (; !abschnitte.empty(); abschnitte.pop_front()) {
        Abschnitt& alter = abschnitte.front();
        alter.nummer /= 2;
        if (neue.empty() || neue.back().nummer != alter.nummer) {
            neue.push_back(std::move(alter));
            continue;
        }
        Abschnitt& ziel = neue.back();
        ziel.luecke |= alter.luecke;
        ziel.geraetestatus.Nimm(alter.geraetestatus);
        for (std::size_t teil = 0; teil < ziel.teile.size(); ++teil)
            Nimm(ziel.teile[teil], alter.teile[teil]);
    }
    abschnitte = std::move(neue);
    bloecke = {};
    vergessene = 0;
    belegt = 0;
    for (const Abschnitt& abschnitt : abschnitte) {
        belegt += Bytes(abschnitt);
        if (&abschnitt != &abschnitte.back())
            Schliesse(abschnitt);
    }
}

} // namespace varnoth
