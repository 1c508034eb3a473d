#include "probelauf.h"

#include "schnittstelle.h"
#include "transaktionen.h"

#include <algorithm>
#include <iostream>
#include <iterator>

namespace varnoth::pruefung {

namespace {

using namespace modModbus;

constexpr Zeit Ruhezeit = std::chrono::milliseconds(20);

struct Fehlerart {
    std::string_view name;
    int kleinster;
    int groesster;
};

constexpr Fehlerart Fehlerarten[] = {
    {"silence", 0, 0},        {"crc", 0, 0},        {"address", 0, 0},   {"exception", 1, 4},
    {"stray", 1, 30},         {"pieces", 50, 2500}, {"surplus", 1, 255}, {"late", 500, 3500},
    {"flip", 0, 8 * 256 - 1}, {"lost", 0, 0},       {"garbled", 0, 255}, {"busy", 100, 5000},
};

} // namespace

Probelauf::Probelauf(std::uint64_t startwert, bool ausserDerReihe) : zufall(startwert) {
    regler.ausserDerReihe = ausserDerReihe;
    regler.fehler = [this] { return NaechsterFehler(); };
    modSchnittstelle::SetzePort(&regler);
    modSchnittstelle::OpenCommPort();
}

Probelauf::~Probelauf() {
    modSchnittstelle::SetzePort(nullptr);
}

int Probelauf::Zufall(int von, int bis) {
    return von + static_cast<int>(zufall() % static_cast<std::uint64_t>(bis - von + 1));
}

std::optional<Probefehler> Probelauf::ZieheFehler() {
    const Fehlerart& art = Fehlerarten[Zufall(0, static_cast<int>(std::size(Fehlerarten)) - 1)];
    ++zahlen.fehler;
    ++zahlen.fehlerarten[art.name];
    return Probefehler{art.name, Zufall(art.kleinster, art.groesster)};
}

std::optional<Probefehler> Probelauf::NaechsterFehler() {
    const bool einer =
        (wetter == Wetter::EinFehler && bisFehler-- == 0) || (wetter == Wetter::Sturm && Manchmal(25));
    return einer ? ZieheFehler() : std::nullopt;
}

void Probelauf::Laufe(long austausche) {
    constexpr int Schritte = 12;
    while (zahlen.austausche < austausche) {
        regler.leitung.Stelle(Manchmal(50) ? Probeleitung::Uebergabe{}
                                           : Probeleitung::Uebergabe{1, std::chrono::milliseconds(16)});
        LaufeAbschnitt(Wetter::EinFehler, Schritte);
        LaufeAbschnitt(Wetter::Sturm, Schritte);
        umgebung.gewartet.clear();
    }
}

void Probelauf::LaufeAbschnitt(Wetter art, int schritte) {
    Beruhige();
    wetter = art;
    bisFehler = Zufall(0, schritte);
    for (int i = 0; i < schritte; ++i)
        Schritt();
}

/// Ends all disturbances and lets the line recover from several at a time.
void Probelauf::Beruhige() {
    wetter = Wetter::Ruhig;
    teil.reset();
    while (!regler.leitung.Leer() || regler.IstBeschaeftigt()) {
        umgebung.uhr += std::chrono::seconds(10);
        regler.Verarbeite();
        regler.Verwirf();
    }
    constexpr int Genug = 5;
    for (int versuch = 0; versuch < Genug; ++versuch)
        RTUModeH11IndentifikationsAnforderung();
    for (int versuch = 0; versuch < Genug; ++versuch)
        WaehleOptikteil(0);
    zuletztGescheitert = false;
}

void Probelauf::Schritt() {
    const int was = Zufall(1, 100);
    if (was <= 4)
        Identifiziere();
    else if (was <= 18)
        Waehle(Zufall(0, Proberegister::Optikteile - 1));
    else if (was <= 75)
        Lies();
    else if (was <= 92)
        Schreib();
    else
        Stoere();
}

template<class Austausch>
bool Probelauf::TauscheEinmal(Austausch austausch, int eigene) {
    const bool mussGelingen = MussGelingen();
    const long fehlerDavor = zahlen.fehler;
    const int identifikationenDavor = regler.identifikationen;
    const Zeit beginn = umgebung.uhr;
    const bool gelungen = austausch() != False;
    ++zahlen.austausche;
    ZaehleVorlauf(beginn, eigene, identifikationenDavor);
    zahlen.gescheiterte += gelungen ? 0 : 1;
    zahlen.nichtErholt += mussGelingen && !gelungen && fehlerDavor == zahlen.fehler ? 1 : 0;
    zuletztGescheitert = !gelungen;
    return gelungen;
}

template<class Austausch>
bool Probelauf::MitVersuchen(Austausch austausch) {
    for (int versuche = Manchmal(50) ? 1 : Zufall(2, 10); versuche > 0; --versuche)
        if (TauscheEinmal(austausch))
            return true;
    return false;
}

/// What happens between exchanges: time passes, the line is lost, the port is opened anew, commands go out.
void Probelauf::Stoere() {
    umgebung.uhr += std::chrono::milliseconds(Zufall(0, 1) * Zufall(0, 1500));
    if (Manchmal(30))
        regler.Schliesse();
    if (Manchmal(30))
        modSchnittstelle::OpenCommPort();
    if (wetter != Wetter::Sturm)
        return;
    if (Manchmal(30))
        SchreibeSteuerwert2();
    if (Manchmal(30))
        SchreibeSteuerwert4();
    if (Manchmal(30))
        SendeFunktion09Kommando();
    modSchnittstelle::OpenCommPort();
}

void Probelauf::Identifiziere() {
    while (!TauscheEinmal(RTUModeH11IndentifikationsAnforderung, 1)) {
    }
    if (GetSlaveAdresse() != Proberegler::Slaveadresse || GetIdentText2() != "4711")
        ++zahlen.falscheWerte;
}

void Probelauf::Waehle(int neu) {
    teil.reset();
    if (!MitVersuchen([neu] { return WaehleOptikteil(neu); }))
        return;
    teil = neu;
    if (regler.speicher.Auswahl() != neu)
        ++zahlen.verloreneWrites;
}

/// Often the block of the last exchange again, as a read behind a write or the other way round.
Probelauf::Block Probelauf::ZieheBlock() {
    static constexpr Block gepollte[] = {{0x2161, 18}, {0x214F, 18}, {0x202C, 1}, {0x00C4, 1}, {0x4004, 1}};
    static constexpr int anzahlen[] = {1, 1, 2, 10, 18, 32};
    static constexpr int anfaenge[] = {0x0000, 0x2000, 0x4000};
    if (Manchmal(30))
        return letzter;
    letzter = Manchmal(50) ? gepollte[Zufall(0, 4)]
                           : Block{anfaenge[Zufall(0, 2)] + Zufall(0, 120), anzahlen[Zufall(0, 5)]};
    return letzter;
}

/// Specific registers are touched only while it is certain which part is selected.
bool Probelauf::BereiteTeilVor(Block block) {
    if (Proberegister::Istspezifisch(block.adresse) && !teil)
        Waehle(Zufall(0, Proberegister::Optikteile - 1));
    return !Proberegister::Istspezifisch(block.adresse) || teil;
}

void Probelauf::Lies() {
    const Block block = ZieheBlock();
    if (!BereiteTeilVor(block))
        return;
    constexpr std::int32_t Unberuehrt = -7;
    Werte werte(static_cast<std::size_t>(block.anzahl), Unberuehrt);
    const bool gelungen = MitVersuchen([&] {
        return RTUModeH03LeseAnforderung(static_cast<std::uint16_t>(block.adresse),
                                         static_cast<std::uint16_t>(block.anzahl), werte);
    });
    if (gelungen)
        PruefeGelesenes(block, werte);
    else if (std::ranges::count(werte, Unberuehrt) != block.anzahl)
        ++zahlen.falscheWerte;
}

void Probelauf::PruefeGelesenes(Block block, const Werte& werte) {
    for (int i = 0; i < block.anzahl; ++i) {
        const int soll = regler.speicher.Wert(block.adresse + i, teil.value_or(0));
        const int ist = werte[static_cast<std::size_t>(i)];
        if (ist == soll)
            continue;
        if (++zahlen.falscheWerte <= 5)
            std::cerr << "wrong value at address " << block.adresse + i << ": " << ist
                      << ", the controller holds " << soll << '\n';
    }
}

void Probelauf::Schreib() {
    const Block block = ZieheBlock();
    if (block.anzahl > 10 || block.adresse == 0x00C4 || !BereiteTeilVor(block))
        return;
    Werte werte;
    for (int i = 0; i < block.anzahl; ++i)
        werte.push_back(Proberegister::NeuerWert(block.adresse + i, teil.value_or(0), Zufall(0, 15)));
    const bool gelungen = MitVersuchen([&] {
        return RTUModeH10SchreibenAnforderung(static_cast<std::uint16_t>(block.adresse),
                                              static_cast<std::uint16_t>(block.anzahl), werte);
    });
    if (gelungen)
        PruefeGeschriebenes(block, werte);
}

void Probelauf::PruefeGeschriebenes(Block block, const Werte& werte) {
    for (int i = 0; i < block.anzahl; ++i)
        if (regler.speicher.Wert(block.adresse + i, teil.value_or(0)) != werte[static_cast<std::size_t>(i)])
            ++zahlen.verloreneWrites;
}

void Probelauf::ZaehleVorlauf(Zeit beginn, int eigene, int identifikationenDavor) {
    zahlen.rueckfragen += regler.identifikationen - identifikationenDavor - eigene;
    const bool nurIdentifikation = eigene == 0 && regler.letzteSendung.at(1) == 0x11;
    const Zeit ende = nurIdentifikation ? umgebung.uhr : regler.letzteSendezeit;
    zahlen.laengsterVorlauf = std::max(zahlen.laengsterVorlauf, ende - beginn);
}

/// Whether nothing stands in the way of the next exchange but what can be seen and waited for.
bool Probelauf::MussGelingen() {
    regler.Verarbeite();
    if (wetter != Wetter::EinFehler || regler.IstBeschaeftigt())
        return false;
    if (regler.leitung.Leer())
        return true;
    const bool sichtbar = zuletztGescheitert || regler.leitung.Wartend() > 0 || regler.SahUeberzaehliges();
    return sichtbar && regler.leitung.IstAbwartbar(umgebung.uhr, Ruhezeit);
}

} // namespace varnoth::pruefung
