#include "messspeicher.h"

#include "messpaket.h"

#include <algorithm>
#include <utility>

namespace varnoth {

Messspeicher::Messspeicher(Messangaben neue, Zeit beginnUhr, std::size_t hoechstensBytes)
    : angaben(std::move(neue)), beginn(beginnUhr), hoechstens(hoechstensBytes),
      konfiguration(std::make_shared<Abbild>()) {}

void Messspeicher::Nimm(const Messdurchgang& durchgang) {
    if (offenes.IstVoll())
        Schliesse();
    gelesenesOffenes.reset();
    Messdurchgang dieser = durchgang;
    dieser.uhr = Laufzeit(durchgang.uhr);
    offenes.Nimm(dieser);
    uebersicht.Nimm(offenes.Stand().durchgaenge.back());
}

void Messspeicher::Nimm(const Liveereignis& ereignis) {
    Nimm({.art = ArtVon(ereignis.art), .laufzeit = Laufzeit(ereignis.uhr), .zeit = ereignis.zeit});
}

void Messspeicher::Nimm(const Messereignis& ereignis) {
    if (offenes.IstVoll())
        Schliesse();
    gelesenesOffenes.reset();
    offenes.Nimm(ereignis);
    uebersicht.Nimm(ereignis);
}

void Messspeicher::Notiere(Zeit laufzeit, Systemzeit zeit, const std::string& text) {
    const Zeit stelle = Erstes() == Ende() ? laufzeit : std::max(laufzeit, Spanne().von);
    const Messereignis notiz{.art = Messereignisart::Notiz, .laufzeit = stelle, .zeit = zeit, .text = text};
    const bool zumOffenen = pakete.empty() || (offenes.IstLeer() ? stelle > pakete.back().spanne.bis
                                                                 : stelle >= offenes.Stand().spanne.von);
    if (zumOffenen)
        Nimm(notiz);
    else
        TrageNach(notiz);
}

/// Puts a note into a packet that is closed.
void Messspeicher::TrageNach(const Messereignis& notiz) {
    const std::uint64_t nummer = PaketUm(notiz.laufzeit);
    Eintrag& eintrag = pakete.at(static_cast<std::size_t>(nummer - erstes));
    auto paket = PaketAus(eintrag.bytes).value_or(Messpaket{});
    Messereignis neue = notiz;
    neue.zeit = std::chrono::floor<std::chrono::microseconds>(notiz.zeit);
    paket.spanne.bis = std::max(paket.spanne.bis, neue.laufzeit);
    paket.ereignisse.insert(
        std::ranges::upper_bound(paket.ereignisse, neue.laufzeit, {}, &Messereignis::laufzeit), neue);
    belegt -= Bytes(eintrag);
    Lege(eintrag, paket);
    gelesene.Vergiss(nummer);
}

void Messspeicher::SetzeKonfiguration(const Abbild& neue) {
    Schliesse();
    konfiguration = std::make_shared<Abbild>(neue);
}

void Messspeicher::SetzeGeraet(const std::string& bezeichnung, const std::string& seriennummer) {
    angaben.bezeichnung = bezeichnung;
    angaben.seriennummer = seriennummer;
}

/// The newest packet grows no more; the oldest go when there is too little room.
void Messspeicher::Schliesse() {
    if (offenes.IstLeer())
        return;
    gelesenesOffenes.reset();
    pakete.push_back({.spanne = {}, .hatEreignisse = false, .bytes = {}, .konfiguration = konfiguration});
    Lege(pakete.back(), offenes.Entnimm());
    while (belegt > hoechstens && pakete.size() > 1) {
        belegt -= Bytes(pakete.front());
        pakete.pop_front();
        ++erstes;
        uebersicht.VergissBis(pakete.front().spanne.von);
    }
}

void Messspeicher::Lege(Eintrag& eintrag, const Messpaket& paket) {
    eintrag.spanne = paket.spanne;
    eintrag.hatEreignisse = !paket.ereignisse.empty();
    eintrag.bytes = AlsBytes(paket);
    eintrag.bytes.shrink_to_fit();
    belegt += Bytes(eintrag);
}

std::size_t Messspeicher::Bytes(const Eintrag& eintrag) {
    return sizeof eintrag + eintrag.bytes.capacity();
}

std::uint64_t Messspeicher::Ende() const {
    return erstes + pakete.size() + (offenes.IstLeer() ? 0 : 1);
}

Zeitspanne Messspeicher::Spanne() const {
    if (Erstes() == Ende())
        return {};
    return {Spanne(Erstes()).von, Spanne(Ende() - 1).bis};
}

const Messspeicher::Eintrag& Messspeicher::Paket(std::uint64_t nummer) const {
    return pakete.at(static_cast<std::size_t>(nummer - erstes));
}

Zeitspanne Messspeicher::Spanne(std::uint64_t nummer) const {
    return IstOffen(nummer) ? offenes.Stand().spanne : Paket(nummer).spanne;
}

std::uint64_t Messspeicher::PaketUm(Zeit laufzeit) const {
    if (!offenes.IstLeer() && offenes.Stand().spanne.von <= laufzeit)
        return erstes + pakete.size();
    const auto danach = std::ranges::upper_bound(pakete, laufzeit, {},
                                                 [](const Eintrag& eintrag) { return eintrag.spanne.von; });
    return erstes + static_cast<std::uint64_t>(std::max<std::ptrdiff_t>(danach - pakete.begin(), 1) - 1);
}

std::shared_ptr<const Messpaket> Messspeicher::Lies(std::uint64_t nummer) const {
    if (nummer < erstes || nummer >= Ende())
        return nullptr;
    if (IstOffen(nummer)) {
        if (gelesenesOffenes == nullptr)
            gelesenesOffenes = std::make_shared<Messpaket>(offenes.Stand());
        return gelesenesOffenes;
    }
    if (auto gemerktes = gelesene.Hole(nummer))
        return gemerktes;
    auto paket = PaketAus(Paket(nummer).bytes);
    if (!paket)
        return nullptr;
    auto gelesenes = std::make_shared<const Messpaket>(std::move(*paket));
    gelesene.Merke(nummer, gelesenes);
    return gelesenes;
}

bool Messspeicher::HatEreignisse(std::uint64_t nummer) const {
    return IstOffen(nummer) ? !offenes.Stand().ereignisse.empty() : Paket(nummer).hatEreignisse;
}

std::shared_ptr<const Abbild> Messspeicher::Konfiguration(std::uint64_t nummer) const {
    if (nummer < erstes || nummer >= Ende())
        return nullptr;
    return IstOffen(nummer) ? konfiguration : Paket(nummer).konfiguration;
}

} // namespace varnoth
