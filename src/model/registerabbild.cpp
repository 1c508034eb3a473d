#include "registerabbild.h"

#include "registeradressen.h"

#include <algorithm>
#include <array>

namespace varnoth::modDaten {

namespace {

/// The values of one range and the next address that its iterators examine.
struct Speicher {
    std::vector<std::int32_t> werte;
    std::int16_t zeiger = 0;
};

struct Modul {
    std::array<Speicher, std::size(AlleSpeicherbereiche)> speicher;
    std::string konfigurationsdateiname;
    Boolean konfigurationGeaendert = False;
};

Modul NeuesModul() {
    Modul modul;
    for (const auto bereich : AlleSpeicherbereiche)
        modul.speicher[static_cast<std::size_t>(bereich)].werte.resize(
            Stelle(bereich, AnzahlAdressen(bereich)));
    return modul;
}

Modul dasModul = NeuesModul();

Speicher& DerSpeicher(Speicherbereich bereich) {
    return dasModul.speicher[static_cast<std::size_t>(bereich)];
}

/// Some registers of the image, one after the other.
struct Block {
    Speicherbereich bereich;
    std::int16_t adresse;
    std::int16_t anzahl;
    int optikteil = 0;

    std::int32_t& operator[](std::int16_t i) const {
        return DerSpeicher(bereich).werte[Stelle(bereich, static_cast<std::int16_t>(adresse + i), optikteil)];
    }
};

bool IstOptikteil(int optikteil, Speicherbereich bereich = Speicherbereich::SpezifischeGeraetedaten) {
    return optikteil >= 0 && optikteil < Exemplare(bereich);
}

bool IstGanzerParameter(const Block& block) {
    return IstOptikteil(block.optikteil, block.bereich) && block.anzahl >= 1 &&
           Beschreibung(block.bereich, block.adresse).Laenge == block.anzahl;
}

void Hole(const Block& block, Werte& werte) {
    const auto anzahl = static_cast<std::size_t>(block.anzahl);
    werte.resize(std::max(werte.size(), anzahl));
    for (std::int16_t i = 0; i < block.anzahl; ++i)
        werte[static_cast<std::size_t>(i)] = block[i];
}

Boolean Setze(const Block& block, const Werte& werte) {
    if (werte.size() < static_cast<std::size_t>(block.anzahl))
        return False;
    for (std::int16_t i = 0; i < block.anzahl; ++i)
        block[i] = werte[static_cast<std::size_t>(i)];
    return True;
}

Boolean HoleParameter(const Block& block, Werte& werte) {
    if (!IstGanzerParameter(block))
        return False;
    Hole(block, werte);
    return True;
}

Boolean SetzeParameter(const Block& block, const Werte& werte) {
    if (!IstGanzerParameter(block) || Setze(block, werte) == False)
        return False;
    SetzeGeaendert();
    return True;
}

Block Strahlregister(std::int16_t anzahl, int optikteil) {
    return {Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlzustaende, anzahl, optikteil};
}

bool IstStrahlblock(const Block& block) {
    return IstOptikteil(block.optikteil) && block.anzahl >= 1 && block.anzahl <= MaxStrahlregister;
}

/// Moves the cursor past the next parameter that qualifies, or to the end of the range.
template<class Bedingung>
Boolean NaechsterEintrag(Speicherbereich bereich, Bedingung qualifiziert, std::int16_t& adresse,
                         std::int16_t& anzahl) {
    std::int16_t& zeiger = DerSpeicher(bereich).zeiger;
    while (zeiger < AnzahlAdressen(bereich)) {
        const std::int16_t geprueft = zeiger++;
        const auto beschreibung = Beschreibung(bereich, geprueft);
        if (qualifiziert(beschreibung)) {
            adresse = geprueft;
            anzahl = beschreibung.Laenge;
            return True;
        }
    }
    return False;
}

} // namespace

void InitRegisterbeschreibung() {
    dasModul.konfigurationsdateiname.clear();
    dasModul.konfigurationGeaendert = False;
}

void Zuruecksetzen() {
    dasModul = NeuesModul();
}

Boolean HoleGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte) {
    return HoleParameter({Speicherbereich::GlobaleGeraetedaten, adresse, anzahl}, werte);
}

Boolean SetzeGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte) {
    return SetzeParameter({Speicherbereich::GlobaleGeraetedaten, adresse, anzahl}, werte);
}

Boolean HoleSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil,
                             Werte& werte) {
    return HoleParameter({Speicherbereich::SpezifischeGeraetedaten, adresse, anzahl, optikteil}, werte);
}

Boolean SetzeSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil,
                              const Werte& werte) {
    return SetzeParameter({Speicherbereich::SpezifischeGeraetedaten, adresse, anzahl, optikteil}, werte);
}

Boolean HoleKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte) {
    return HoleParameter({Speicherbereich::Kommunikationsdaten, adresse, anzahl}, werte);
}

Boolean SetzeKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte) {
    return SetzeParameter({Speicherbereich::Kommunikationsdaten, adresse, anzahl}, werte);
}

Boolean HoleStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, Werte& werte) {
    const Block block = Strahlregister(anzahl, optikteil);
    if (!IstStrahlblock(block))
        return False;
    Hole(block, werte);
    return True;
}

Boolean SetzeStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, const Werte& werte) {
    const Block block = Strahlregister(anzahl, optikteil);
    return IstStrahlblock(block) ? Setze(block, werte) : False;
}

std::int32_t Strahlenzahl(int optikteil) {
    if (!IstOptikteil(optikteil))
        return 0;
    return Block{Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 1, optikteil}[0];
}

Boolean ErsterLesbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    DerSpeicher(bereich).zeiger = 0;
    return NaechsterLesbarerEintrag(bereich, adresse, anzahl);
}

Boolean NaechsterLesbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    return NaechsterEintrag(bereich, IstLesbar, adresse, anzahl);
}

Boolean ErsterSchreibbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    DerSpeicher(bereich).zeiger = 0;
    return NaechsterSchreibbarerEintrag(bereich, adresse, anzahl);
}

Boolean NaechsterSchreibbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl) {
    return NaechsterEintrag(bereich, IstSchreibbar, adresse, anzahl);
}

void SetzeGeaendert() {
    dasModul.konfigurationGeaendert = True;
}

void LoescheGeaendert() {
    dasModul.konfigurationGeaendert = False;
}

Boolean IstGeaendert() {
    return dasModul.konfigurationGeaendert;
}

void SetDateiname(const std::string& name) {
    dasModul.konfigurationsdateiname = name;
}

std::string GetDateiname() {
    return dasModul.konfigurationsdateiname;
}

std::span<const std::int32_t> Bereich(Speicherbereich bereich) {
    return DerSpeicher(bereich).werte;
}

Boolean ErsetzeBereich(Speicherbereich bereich, std::span<const std::int32_t> werte) {
    auto& ziel = DerSpeicher(bereich).werte;
    if (werte.size() != ziel.size())
        return False;
    std::ranges::copy(werte, ziel.begin());
    return True;
}

void LeereAbbild() {
    for (auto& speicher : dasModul.speicher)
        std::ranges::fill(speicher.werte, 0);
}

} // namespace varnoth::modDaten
