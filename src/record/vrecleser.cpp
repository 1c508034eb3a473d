#include "vrecleser.h"

#include "crc32.h"
#include "konfigurationsdatei.h"
#include "messpaket.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varnoth {

using vrec::Blockart;
using vrec::Blockgang;

namespace {

constexpr std::size_t MeisteNachtraege = 10'000;

// A slice of the opening.
constexpr int BloeckeJeScheibe = 128;
constexpr std::uint64_t BytesJeScheibe = std::uint64_t{1} << 18U;

} // namespace

Vrecleser::Vrecleser(std::unique_ptr<const Eingabedatei> neue, std::size_t hoechstensPakete)
    : datei(std::move(neue)), meistePakete(hoechstensPakete), uebersicht(Uebersichtsbytes) {}

bool Vrecleser::Arbeite() {
    switch (schritt) {
    case Schritt::Kennung:
        PruefeKennung();
        break;
    case Schritt::Verzeichnis:
        LiesVerzeichnis();
        break;
    case Schritt::Gang:
        Gehe();
        break;
    case Schritt::Fertig:
        break;
    }
    return schritt != Schritt::Fertig;
}

double Vrecleser::Anteil() const {
    if (schritt != Schritt::Gang)
        return schritt == Schritt::Fertig ? 1.0 : 0.0;
    return static_cast<double>(gang->Stelle()) / static_cast<double>(datei->Groesse());
}

bool Vrecleser::IstBrauchbar() const {
    return zustand.befund == Vrecbefund::Gut &&
           (schritt == Schritt::Fertig || (schritt == Schritt::Gang && mitVerzeichnis && !pakete.empty()));
}

void Vrecleser::PruefeKennung() {
    schritt = Schritt::Fertig;
    zustand.befund = Kennungsbefund();
    if (zustand.befund == Vrecbefund::Gut)
        SucheVerzeichnis();
}

Vrecbefund Vrecleser::Kennungsbefund() {
    if (datei->Groesse() == 0)
        return Vrecbefund::Leer;
    std::array<char, vrec::LaengeKennung> bytes{};
    const bool istLangGenug = datei->Groesse() >= bytes.size();
    if (istLangGenug && !datei->Lies(0, bytes))
        return Vrecbefund::NichtLesbar;
    const std::string_view kennung(bytes.data(), vrec::Kennung.size());
    if (!istLangGenug || kennung != vrec::Kennung || bytes.back() == 0)
        return Vrecbefund::KeineAufzeichnung;
    zustand.version = static_cast<std::uint8_t>(bytes.back());
    return zustand.version > vrec::Version ? Vrecbefund::NeuereVersion : Vrecbefund::Gut;
}

void Vrecleser::SucheVerzeichnis() {
    GeheVonVorn();
    const std::uint64_t groesse = datei->Groesse();
    if (groesse < vrec::LaengeKennung + vrec::LaengeSchluss)
        return;
    const auto inhalt = LiesBlock(groesse - vrec::LaengeSchluss, vrec::LaengeSchluss - vrec::LaengeBlockkopf,
                                  Blockart::Schluss);
    const auto schluss = inhalt ? vrec::SchlussAus(*inhalt) : std::nullopt;
    if (!schluss)
        return;
    verzeichnisstelle = schluss->verzeichnis;
    gang.emplace(*datei, verzeichnisstelle);
    schritt = Schritt::Verzeichnis;
}

void Vrecleser::LiesVerzeichnis() {
    const bool block = gang->Weiter() == Blockgang::Schritt::Block;
    if (!block || gang->Kopf().art != Blockart::Schluss) {
        if (!block || !NimmVerzeichnis())
            GeheOhneVerzeichnis();
        return;
    }
    if (gang->Stelle() != datei->Groesse()) {
        GeheOhneVerzeichnis();
        return;
    }
    mitVerzeichnis = zustand.beendet = true;
    GeheVonVorn();
}

/// False when it cannot be the index of this file.
bool Vrecleser::NimmVerzeichnis() {
    if (gang->Kopf().art != Blockart::Verzeichnis)
        return false;
    const auto eintraege = vrec::VerzeichnisAus(gang->Inhalt());
    return eintraege &&
           std::ranges::all_of(*eintraege, [this](const vrec::Eintrag& einer) { return NimmEintrag(einer); });
}

bool Vrecleser::NimmEintrag(const vrec::Eintrag& eintrag) {
    const std::uint64_t vorher = std::max(pakete.empty() ? 0 : pakete.back().stelle,
                                          konfigurationen.empty() ? 0 : konfigurationen.back().stelle);
    if (eintrag.stelle < vrec::LaengeKennung || eintrag.stelle <= vorher ||
        eintrag.stelle + vrec::LaengeBlockkopf + eintrag.laenge > verzeichnisstelle)
        return false;
    if (eintrag.istKonfiguration) {
        konfigurationen.push_back({pakete.size(), eintrag.stelle, eintrag.laenge});
        return true;
    }
    if (!pakete.empty() && eintrag.spanne.von < pakete.back().spanne.bis)
        return false;
    zustand.zuLang = pakete.size() >= meistePakete;
    if (!zustand.zuLang)
        pakete.push_back({eintrag.spanne, eintrag.stelle, eintrag.laenge, eintrag.hatEreignisse});
    return true;
}

void Vrecleser::GeheOhneVerzeichnis() {
    pakete.clear();
    konfigurationen.clear();
    zustand.zuLang = false;
    GeheVonVorn();
}

/// The walk over all blocks begins.
void Vrecleser::GeheVonVorn() {
    gang.emplace(*datei, vrec::LaengeKennung);
    schritt = Schritt::Gang;
}

void Vrecleser::Gehe() {
    const std::uint64_t bis = gang->Stelle() + BytesJeScheibe;
    for (int i = 0; i < BloeckeJeScheibe && gang->Stelle() < bis; ++i)
        if (!Nimm(gang->Weiter())) {
            SchliesseAb();
            return;
        }
}

/// False when the walk is at its end.
bool Vrecleser::Nimm(Blockgang::Schritt gangschritt) {
    switch (gangschritt) {
    case Blockgang::Schritt::Block:
        NimmBlock();
        break;
    case Blockgang::Schritt::Beschaedigt:
        if (gang->Kopf().art == Blockart::Konfiguration)
            NimmKonfiguration();
        Beschaedigt();
        break;
    case Blockgang::Schritt::Luecke:
        Beschaedigt();
        break;
    case Blockgang::Schritt::Suche:
        break;
    case Blockgang::Schritt::Ende:
        return false;
    }
    return !zustand.zuLang || gang->Stelle() <= pakete.back().stelle;
}

void Vrecleser::NimmBlock() {
    switch (gang->Kopf().art) {
    case Blockart::Angaben:
        if (auto ihre = vrec::AngabenAus(gang->Inhalt()); ihre && !hatAngaben) {
            hatAngaben = true;
            angaben = std::move(*ihre);
        }
        break;
    case Blockart::Konfiguration:
        NimmKonfiguration();
        break;
    case Blockart::Paket:
        NimmPaket();
        break;
    case Blockart::Schluss:
        zustand.beendet = gang->Stelle() == datei->Groesse();
        break;
    case Blockart::Verzeichnis:
        break;
    }
}

void Vrecleser::NimmPaket() {
    zustand.zuLang = zustand.zuLang || (!mitVerzeichnis && pakete.size() >= meistePakete);
    if (zustand.zuLang && !mitVerzeichnis)
        return;
    const auto paket = PaketAus(gang->Inhalt());
    if (!paket || !Lege(*paket)) {
        Beschaedigt();
        return;
    }
    NimmNachtraege(*paket);
    if (!hatAngaben && zustand.durchgaenge == 0 && !paket->durchgaenge.empty())
        angaben.beginn = paket->durchgaenge.front().zeit - paket->durchgaenge.front().uhr;
    zustand.durchgaenge += paket->durchgaenge.size();
    uebersicht.Nimm(*paket);
}

/// Puts the packet that was met behind those that are known, or finds it among them. False when it can be
/// neither.
bool Vrecleser::Lege(const Messpaket& paket) {
    const std::uint64_t stelle = gang->Blockstelle();
    if (mitVerzeichnis) {
        while (naechstes < pakete.size() && pakete[naechstes].stelle < stelle)
            ++naechstes;
        return naechstes < pakete.size() && pakete[naechstes].stelle == stelle &&
               pakete[naechstes].spanne == paket.spanne;
    }
    if (!pakete.empty() && paket.spanne.von < pakete.back().spanne.bis)
        return false;
    pakete.push_back({paket.spanne, stelle, gang->Kopf().laenge, !paket.ereignisse.empty()});
    return true;
}

/// Notes of a time before their packet belong to the packet of that time.
void Vrecleser::NimmNachtraege(const Messpaket& paket) {
    for (const Messereignis& ereignis : paket.ereignisse) {
        if (ereignis.laufzeit >= paket.spanne.von || nachtraege.size() >= MeisteNachtraege)
            continue;
        const std::uint64_t nummer = PaketUm(ereignis.laufzeit);
        nachtraege.emplace(nummer, ereignis);
        pakete[nummer].hatEreignisse = true;
        gelesene.Vergiss(nummer);
    }
}

void Vrecleser::NimmKonfiguration() {
    if (!mitVerzeichnis)
        konfigurationen.push_back({pakete.size(), gang->Blockstelle(), gang->Kopf().laenge});
}

void Vrecleser::Beschaedigt() {
    ++zustand.beschaedigte;
    uebersicht.NimmLuecke();
}

void Vrecleser::SchliesseAb() {
    schritt = Schritt::Fertig;
    if (zustand.durchgaenge == 0)
        zustand.befund = gang->Lesefehler() ? Vrecbefund::NichtLesbar : Vrecbefund::OhneDurchgaenge;
    gang.reset();
}

Zeitspanne Vrecleser::Spanne() const {
    if (pakete.empty())
        return {};
    return {pakete.front().spanne.von, pakete.back().spanne.bis};
}

Zeitspanne Vrecleser::Spanne(std::uint64_t nummer) const {
    return pakete.at(nummer).spanne;
}

std::uint64_t Vrecleser::PaketUm(Zeit laufzeit) const {
    const auto danach = std::ranges::upper_bound(pakete, laufzeit, {},
                                                 [](const Paketstelle& eine) { return eine.spanne.von; });
    return static_cast<std::uint64_t>(std::max<std::ptrdiff_t>(danach - pakete.begin(), 1) - 1);
}

std::shared_ptr<const Messpaket> Vrecleser::Lies(std::uint64_t nummer) const {
    if (nummer >= pakete.size())
        return nullptr;
    if (auto gemerktes = gelesene.Hole(nummer))
        return gemerktes;
    const Paketstelle& stelle = pakete[nummer];
    const auto inhalt = LiesBlock(stelle.stelle, stelle.laenge, Blockart::Paket);
    auto paket = inhalt ? PaketAus(*inhalt) : std::nullopt;
    if (!paket || paket->spanne != stelle.spanne)
        return nullptr;
    auto gelesenes = std::make_shared<const Messpaket>(MitNachtraegen(nummer, std::move(*paket)));
    gelesene.Merke(nummer, gelesenes);
    return gelesenes;
}

/// The packet with the notes of its own time, and no others.
Messpaket Vrecleser::MitNachtraegen(std::uint64_t nummer, Messpaket paket) const {
    std::erase_if(paket.ereignisse, [&](const Messereignis& eines) {
        return eines.laufzeit < paket.spanne.von && PaketUm(eines.laufzeit) != nummer;
    });
    const auto [erster, letzter] = nachtraege.equal_range(nummer);
    for (auto eintrag = erster; eintrag != letzter; ++eintrag)
        if (std::ranges::find(paket.ereignisse, eintrag->second) == paket.ereignisse.end())
            paket.ereignisse.push_back(eintrag->second);
    std::ranges::stable_sort(paket.ereignisse, {}, &Messereignis::laufzeit);
    return paket;
}

bool Vrecleser::HatEreignisse(std::uint64_t nummer) const {
    return pakete.at(nummer).hatEreignisse;
}

std::shared_ptr<const Abbild> Vrecleser::Konfiguration(std::uint64_t nummer) const {
    const auto danach = std::ranges::upper_bound(konfigurationen, nummer, {}, &Konfigurationsstelle::paket);
    if (nummer >= pakete.size() || danach == konfigurationen.begin())
        return nullptr;
    const Konfigurationsstelle& stelle = *std::prev(danach);
    if (std::exchange(gelesenerStand, stelle.stelle) == stelle.stelle)
        return gelesenesAbbild;
    gelesenesAbbild = nullptr;
    const auto inhalt = LiesBlock(stelle.stelle, stelle.laenge, Blockart::Konfiguration);
    auto abbild = std::make_shared<Abbild>();
    if (inhalt && ZerlegeKonfigurationsdatei(*inhalt, *abbild) == Dateibefund::Gut)
        gelesenesAbbild = std::move(abbild);
    return gelesenesAbbild;
}

/// The content of a block; nothing when it is damaged or another.
std::optional<std::string> Vrecleser::LiesBlock(std::uint64_t stelle, std::uint32_t laenge,
                                                Blockart art) const {
    std::string bytes(vrec::LaengeBlockkopf + laenge, '\0');
    if (!datei->Lies(stelle, bytes))
        return std::nullopt;
    const auto kopf = vrec::BlockkopfAus(bytes);
    bytes.erase(0, vrec::LaengeBlockkopf);
    if (!kopf || kopf->art != art || kopf->laenge != laenge || kopf->pruefsumme != Crc32(bytes))
        return std::nullopt;
    return bytes;
}

} // namespace varnoth
