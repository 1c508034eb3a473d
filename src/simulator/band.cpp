#include "band.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace varnoth::simulator {

namespace {

constexpr std::string_view Kennung = "Varnoth Aufzeichnung\r\n\x1A";
constexpr int HoechsteVersion = 1;
constexpr std::size_t LaengeKennung = 24, LaengeKopf = 20, KopfOhneSumme = 16, LaengsteSpanne = 20;
constexpr std::array<std::uint8_t, 4> Marke{0xA5, 'V', 'R', 'B'};
constexpr std::uint32_t GroessterInhalt = 33'554'432;
constexpr std::uint8_t ArtKonfiguration = 2, ArtPaket = 3;
constexpr std::size_t Suchweite = std::size_t{1} << 20U;

constexpr std::string_view Konfigurationskennung = "Varnoth Konfiguration";
constexpr std::size_t Konfigurationskopf = 22, Konfigurationslaenge = 10262;
constexpr std::size_t Einzelregister = 256, Teilregister = 512;

std::uint32_t Doppelwort(std::span<const std::uint8_t> bytes, std::size_t stelle) {
    std::uint32_t wort = 0;
    for (std::size_t i = 4; i-- > 0;)
        wort = wort << 8U | bytes[stelle + i];
    return wort;
}

/// Registers that a controller keeps for itself, whatever a configuration says of them.
bool GehoertDemGeraet(Ort ort) {
    if (IstLebend(ort))
        return true;
    if (ort.bereich == Bereich::Kommunikation)
        return ort.adresse == reg::Steuerwert;
    constexpr int eigene[] = {reg::Kommando, reg::Geraetestatus, reg::Optikteilauswahl, reg::Kanalauswahl};
    return ort.bereich == Bereich::Global &&
           (std::ranges::find(eigene, ort.adresse) != std::ranges::end(eigene) ||
            (ort.adresse >= reg::Passwort && ort.adresse < reg::Passwort + reg::Passwortregister));
}

void Setze(Registerspeicher& speicher, Ort ort, int teil, std::uint32_t wert) {
    if (!GehoertDemGeraet(ort))
        speicher.Block(ort, teil, 1)[0] = static_cast<std::uint16_t>(wert);
}

/// Values of 32 bits: the global range, the specific one, the part varying fastest, the communication range.
void SetzeAlle(Registerspeicher& speicher, std::span<const std::uint8_t> inhalt) {
    std::size_t stelle = Konfigurationskopf;
    const auto naechster = [&] {
        stelle += 4;
        return Doppelwort(inhalt, stelle - 4);
    };
    for (std::size_t i = 0; i < Einzelregister; ++i)
        Setze(speicher, {Bereich::Global, static_cast<int>(i)}, 0, naechster());
    for (std::size_t i = 0; i < Teilregister; ++i)
        for (int teil = 0; teil < Optikteile; ++teil)
            Setze(speicher, {Bereich::Spezifisch, static_cast<int>(i)}, teil, naechster());
    for (std::size_t i = 0; i < Einzelregister; ++i)
        Setze(speicher, {Bereich::Kommunikation, static_cast<int>(i)}, 0, naechster());
}

} // namespace

Band::Band(const std::filesystem::path& pfad) : datei(pfad, std::ios::binary) {
    std::error_code fehler;
    if (datei)
        groesse = std::filesystem::file_size(pfad, fehler);
    if (!datei || fehler)
        throw std::runtime_error("the record " + pfad.string() + " cannot be read: " +
                                 (fehler ? fehler.message() : std::generic_category().message(errno)));
    try {
        PruefeKennung();
        GeheDurch();
        SucheGrenzen();
    } catch (const std::runtime_error& grund) {
        throw std::runtime_error(pfad.string() + " " + grund.what());
    }
}

void Band::PruefeKennung() {
    const auto kopf = LiesRoh(0, LaengeKennung);
    if (kopf.size() < LaengeKennung ||
        !std::equal(Kennung.begin(), Kennung.end(), kopf.begin(),
                    [](char soll, std::uint8_t ist) { return static_cast<std::uint8_t>(soll) == ist; }))
        throw std::runtime_error("is no record");
    if (kopf.back() > HoechsteVersion)
        throw std::runtime_error("is a record of a newer version (" + std::to_string(kopf.back()) + ")");
}

std::vector<std::uint8_t> Band::LiesRoh(std::uint64_t ort, std::size_t laenge) {
    std::vector<std::uint8_t> bytes(ort < groesse ? std::min<std::uint64_t>(laenge, groesse - ort) : 0);
    datei.clear();
    datei.seekg(static_cast<std::streamoff>(ort));
    datei.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(datei.gcount(), 0)));
    return bytes;
}

std::optional<Band::Kopf> Band::LiesKopf(std::uint64_t ort) {
    const auto bytes = LiesRoh(ort, LaengeKopf);
    if (bytes.size() < LaengeKopf || !std::equal(Marke.begin(), Marke.end(), bytes.begin()) ||
        Doppelwort(bytes, 16) != Bandpruefsumme(std::span(bytes).first(KopfOhneSumme)))
        return std::nullopt;
    const Kopf kopf{.art = bytes[4], .laenge = Doppelwort(bytes, 8)};
    return kopf.laenge <= GroessterInhalt ? std::optional(kopf) : std::nullopt;
}

/// The next place with a mark whose head is right; the size of the file when there is none.
std::uint64_t Band::NaechsterKopf(std::uint64_t ab) {
    for (std::uint64_t ort = ab; ort < groesse;) {
        const auto bytes = LiesRoh(ort, Suchweite);
        auto da = std::search(bytes.begin(), bytes.end(), Marke.begin(), Marke.end());
        while (da != bytes.end()) {
            const std::uint64_t hier = ort + static_cast<std::uint64_t>(da - bytes.begin());
            if (LiesKopf(hier))
                return hier;
            da = std::search(da + 1, bytes.end(), Marke.begin(), Marke.end());
        }
        ort += bytes.size() < Suchweite ? Suchweite : Suchweite - Marke.size() + 1;
    }
    return groesse;
}

void Band::GeheDurch() {
    for (std::uint64_t ort = LaengeKennung; ort < groesse;) {
        const auto kopf = LiesKopf(ort);
        if (!kopf) {
            ort = NaechsterKopf(ort + 1);
            continue;
        }
        Nimm(ort, *kopf);
        ort += LaengeKopf + kopf->laenge;
    }
}

void Band::Nimm(std::uint64_t ort, const Kopf& kopf) {
    const Stelle stelle{.ort = ort, .laenge = kopf.laenge};
    if (ort + LaengeKopf + kopf.laenge > groesse)
        return;
    if (kopf.art == ArtKonfiguration)
        konfigurationen.push_back(stelle);
    if (kopf.art != ArtPaket)
        return;
    const auto spanne =
        LiesBandspanne(LiesRoh(ort + LaengeKopf, std::min<std::size_t>(kopf.laenge, LaengsteSpanne)));
    if (spanne && (pakete.empty() || pakete.back().von <= spanne->first))
        pakete.push_back({stelle, spanne->first, konfigurationen.size()});
}

/// The content behind a head; empty when its checksum is wrong.
std::vector<std::uint8_t> Band::LiesInhalt(const Stelle& stelle) {
    const auto kopf = LiesRoh(stelle.ort, LaengeKopf);
    auto inhalt = LiesRoh(stelle.ort + LaengeKopf, stelle.laenge);
    if (kopf.size() < LaengeKopf || inhalt.size() != stelle.laenge ||
        Doppelwort(kopf, 12) != Bandpruefsumme(inhalt))
        inhalt.clear();
    return inhalt;
}

const Bandpaket* Band::Lies(std::size_t nummer) {
    for (auto& eines : gelesene)
        if (eines && eines->nummer == nummer)
            return eines->paket ? &*eines->paket : nullptr;
    std::swap(gelesene[0], gelesene[1]);
    gelesene[0] = Gelesenes{nummer, LiesBandpaket(LiesInhalt(pakete[nummer].stelle))};
    return gelesene[0]->paket ? &*gelesene[0]->paket : nullptr;
}

std::size_t Band::PaketUm(Zeit laufzeit) const {
    const auto danach = std::ranges::upper_bound(pakete, laufzeit, {}, &Paketstelle::von);
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(danach - pakete.begin(), 1) - 1);
}

void Band::Uebernimm(std::size_t konfiguration, Registerspeicher& speicher) {
    if (konfiguration == 0 || konfiguration > konfigurationen.size())
        return;
    const auto inhalt = LiesInhalt(konfigurationen[konfiguration - 1]);
    if (inhalt.size() >= Konfigurationslaenge &&
        std::equal(Konfigurationskennung.begin(), Konfigurationskennung.end(), inhalt.begin()))
        SetzeAlle(speicher, inhalt);
}

void Band::SucheGrenzen() {
    std::size_t nummer = 0;
    while (nummer < pakete.size() && (Lies(nummer) == nullptr || Lies(nummer)->bilder.empty()))
        ++nummer;
    if (nummer == pakete.size())
        throw std::runtime_error("holds no pass");
    anfang = Lies(nummer)->bilder.front().laufzeit;
    std::size_t letztes = pakete.size() - 1;
    while (Lies(letztes) == nullptr || Lies(letztes)->bilder.empty())
        --letztes;
    ende = Lies(letztes)->bilder.back().laufzeit;
}

Bandlauf::Bandlauf(std::shared_ptr<Band> dasBand, bool immerWieder)
    : band(std::move(dasBand)), schleife(immerWieder) {}

const Bandbild* Bandlauf::BildUm(Zeit seitBeginn) {
    GeheZu(seitBeginn);
    return bild ? &*bild : nullptr;
}

bool Bandlauf::Schweigt(Zeit seitBeginn) {
    GeheZu(seitBeginn);
    return schweigt;
}

void Bandlauf::GeheZu(Zeit seitBeginn) {
    const Zeit laenge = band->Ende() - band->Anfang() + Zeit(1);
    const Zeit seit = schleife ? seitBeginn % laenge : std::min(seitBeginn, laenge);
    const Zeit laufzeit = std::min(band->Anfang() + seit, band->Ende());
    if (zuletzt == laufzeit)
        return;
    zuletzt = laufzeit;
    bild.reset();
    const std::size_t nummer = band->PaketUm(laufzeit);
    konfiguration = band->KonfigurationVon(nummer);
    std::optional<bool> stumm;
    for (std::size_t i = nummer + 1; i-- > 0;) {
        const Bandpaket* const paket = band->Lies(i);
        if (paket == nullptr || SiehIn(*paket, laufzeit, stumm))
            break;
    }
    schweigt = stumm.value_or(false);
}

/// Whether a packet tells what was at a time. A controller that no longer answered did so until it answered
/// again; while live data did not run, it stayed as it was.
bool Bandlauf::SiehIn(const Bandpaket& paket, Zeit laufzeit, std::optional<bool>& stumm) {
    std::optional<bool> hier;
    for (const Bandereignis& ereignis : paket.ereignisse)
        if (ereignis.laufzeit <= laufzeit && ereignis.art <= Bandereignisart::Zurueck)
            hier = ereignis.art == Bandereignisart::Verloren;
    const auto danach = std::ranges::upper_bound(paket.bilder, laufzeit, {}, &Bandbild::laufzeit);
    if (danach != paket.bilder.begin())
        bild = *std::prev(danach);
    if (!stumm)
        stumm = hier;
    return bild.has_value();
}

} // namespace varnoth::simulator
