#include "probelauf.h"

#include "austausch.h"
#include "rahmen.h"
#include "schnittstelle.h"
#include "schrittfolge.h"
#include "transaktionen.h"

#include <algorithm>
#include <functional>
#include <iostream>
#include <iterator>
#include <memory>

namespace varnoth::pruefung {

namespace {

using namespace modModbus;

constexpr Zeit Ruhezeit = std::chrono::milliseconds(20);

struct Fehlerart {
    std::string_view name;
    int kleinster;
    int groesster;
    int spaetestens = 0; ///< milliseconds
};

constexpr int Hoechstesbit = 8 * 256 - 1;
constexpr int SpaetesteWiederholung = 500;

constexpr Fehlerart Fehlerarten[] = {
    {"silence", 0, 0},
    {"lost", 0, 0},
    {"garbled", 0, 255},
    {"crc", 0, 0},
    {"address", 0, 0},
    {"exception", 1, 4},
    {"stray", 1, 30},
    {"pieces", 50, 2500},
    {"surplus", 1, 255},
    {"late", 500, 3500},
    {"flip", 0, Hoechstesbit},
    {"busy", 100, 5000},
    {"repeat", 0, SpaetesteWiederholung},
    {"repeat-twice", 0, SpaetesteWiederholung},
    {"repeat-flip", 0, Hoechstesbit, SpaetesteWiederholung},
    {"repeat-earlier", 1, 8, SpaetesteWiederholung},
};
constexpr int ErsteWiederholung = 12;
constexpr int LetzteArt = static_cast<int>(std::size(Fehlerarten)) - 1;

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
    const auto auswahl = static_cast<std::uint64_t>(std::max(bis - von, 0)) + 1;
    return von + static_cast<int>(zufall() % auswahl);
}

std::optional<Probefehler> Probelauf::ZieheFehler(int ersteArt) {
    const bool auchWiederholungen = wetter != Wetter::Sturm;
    const int letzteArt = auchWiederholungen ? LetzteArt : ErsteWiederholung - 1;
    const Fehlerart& art = Fehlerarten[Zufall(ersteArt, letzteArt)];
    ++zahlen.fehler;
    ++zahlen.fehlerarten[art.name];
    return Probefehler{art.name, Zufall(art.kleinster, art.groesster), Zufall(0, art.spaetestens)};
}

std::optional<Probefehler> Probelauf::NaechsterFehler() {
    if (wetter == Wetter::EinFehler && bisFehler-- == 0)
        return ZieheFehler();
    if (wetter == Wetter::Sturm && Manchmal(25))
        return ZieheFehler();
    if (wetter == Wetter::Wiederholungen && Manchmal(bisFehler))
        return ZieheFehler(ErsteWiederholung);
    if (wetter == Wetter::Gemischt && Zufall(1, 1000) <= gemischt)
        return ZieheFehler();
    return std::nullopt;
}

void Probelauf::Laufe(long austausche) {
    constexpr int Schritte = 12;
    while (zahlen.austausche < austausche) {
        regler.leitung.Stelle(Manchmal(50) ? Probeleitung::Uebergabe{}
                                           : Probeleitung::Uebergabe{1, std::chrono::milliseconds(16)});
        if (gemischt > 0)
            LaufeAbschnitt(Wetter::Gemischt, Schritte);
        else
            for (const Wetter art : {Wetter::EinFehler, Wetter::Sturm, Wetter::Wiederholungen})
                LaufeAbschnitt(art, Schritte);
        umgebung.gewartet.clear();
    }
}

void Probelauf::SchreibMit(std::size_t zeilen) {
    mitschriftLaenge = zeilen;
    regler.mitschrift = [this](const std::string& zeile) { Notiere(zeile); };
}

void Probelauf::Notiere(const std::string& zeile) {
    if (mitschriftLaenge == 0)
        return;
    mitschrift.push_back(zeile);
    if (mitschrift.size() > mitschriftLaenge)
        mitschrift.pop_front();
}

/// The first few mistakes, each with what happened before it.
void Probelauf::Melde(const std::string& irrtum) {
    constexpr int Hoechstens = 5;
    if (++gemeldete > Hoechstens)
        return;
    for (const std::string& zeile : std::exchange(mitschrift, {}))
        std::cerr << zeile << '\n';
    std::cerr << irrtum << '\n';
}

void Probelauf::LaufeAbschnitt(Wetter art, int schritte) {
    Beruhige();
    wetter = art;
    // In repetitions it is their share: from one now and then to every second reply for a while.
    bisFehler = art == Wetter::Wiederholungen ? Zufall(1, 5) * Zufall(1, 10) : Zufall(0, schritte);
    for (int i = 0; i < schritte; ++i)
        Schritt();
}

/// Ends all disturbances and lets the line recover from several at a time.
void Probelauf::Beruhige() {
    wetter = Wetter::Ruhig;
    teil.reset();
    geglaubte.clear(); // what never became certain was never relied on
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
    modAustausch::Vergewissere();
    brueche = modAustausch::Brueche();
    zuletztGescheitert = false;
}

void Probelauf::Schritt() {
    const int was = Zufall(1, 100);
    if (wetter != Wetter::Sturm && was > 93)
        Uebertrage();
    else if (was <= 4)
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
    if (mussGelingen && !gelungen && fehlerDavor == zahlen.fehler) {
        ++zahlen.nichtErholt;
        Melde("not recovered");
    }
    zuletztGescheitert = !gelungen;
    Notiere(std::string(gelungen ? "  succeeded" : "  failed") + ", exchange " +
            std::to_string(modAustausch::Letzter()) + ", certain to " +
            std::to_string(modAustausch::GewissBis()) + ", breaks " +
            std::to_string(modAustausch::Brueche()));
    BemerkeBruch();
    PruefeGewisses();
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

/// As every caller must: what is not certain is worth nothing, and it is settled whose turn it is.
void Probelauf::BemerkeBruch() {
    if (modAustausch::Brueche() == brueche)
        return;
    ++zahlen.brueche;
    geglaubte.clear();
    teil.reset();
    constexpr int Versuche = 10;
    for (int versuch = 0; versuch < Versuche && !modAustausch::Vergewissere(); ++versuch) {
    }
    brueche = modAustausch::Brueche();
}

void Probelauf::PruefeGewisses() {
    std::erase_if(geglaubte, [this](const Glaube& einer) {
        if (einer.austausch > modAustausch::GewissBis())
            return false;
        if (einer.geschrieben.empty())
            PruefeWerte(einer.block, einer.gelesene, einer.soll);
        else if (regler.ausgefuehrte[einer.geschrieben] == einer.ausgefuehrteDavor) {
            ++zahlen.verloreneWrites;
            Melde("lost write at address " + std::to_string(einer.block.adresse));
        }
        return true;
    });
}

/// False when the write is not believed, or was taken back at once.
bool Probelauf::SchreibGeprueft(Block block, const Werte& werte) {
    const auto schreibe = [&] {
        if (block.adresse == Proberegister::Auswahlregister)
            return WaehleOptikteil(werte[0]);
        return RTUModeH10SchreibenAnforderung(static_cast<std::uint16_t>(block.adresse),
                                              static_cast<std::uint16_t>(block.anzahl), werte);
    };
    const auto adresse = static_cast<std::uint16_t>(block.adresse);
    const auto anzahl = static_cast<std::uint16_t>(block.anzahl);
    const std::string rahmen = SchreibAnforderung(Proberegler::Slaveadresse, adresse, anzahl, werte);
    const int davor = regler.ausgefuehrte[rahmen];
    const long bruecheDavor = zahlen.brueche;
    if (!MitVersuchen(schreibe) || zahlen.brueche != bruecheDavor)
        return false;
    if (Soll(block, teil.value_or(0)) == werte)
        return true; // it is there, whichever attempt it was
    geglaubte.push_back({.austausch = modAustausch::Letzter(),
                         .block = block,
                         .geschrieben = rahmen,
                         .ausgefuehrteDavor = davor});
    return true;
}

void Probelauf::Waehle(int neu) {
    teil.reset();
    if (SchreibGeprueft({Proberegister::Auswahlregister, 1}, {neu}))
        teil = neu;
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
    const long bruecheDavor = zahlen.brueche;
    const bool gelungen = MitVersuchen([&] {
        return RTUModeH03LeseAnforderung(static_cast<std::uint16_t>(block.adresse),
                                         static_cast<std::uint16_t>(block.anzahl), werte);
    });
    if (!gelungen && std::ranges::count(werte, Unberuehrt) != block.anzahl)
        ++zahlen.falscheWerte;
    if (gelungen && zahlen.brueche == bruecheDavor)
        geglaubte.push_back({.austausch = modAustausch::Letzter(),
                             .block = block,
                             .gelesene = werte,
                             .soll = Soll(block, teil.value_or(0))});
}

Werte Probelauf::Soll(Block block, int auswahl) {
    Werte soll;
    for (int i = 0; i < block.anzahl; ++i)
        soll.push_back(regler.speicher.Wert(block.adresse + i, auswahl));
    return soll;
}

void Probelauf::PruefeWerte(Block block, const Werte& gelesene, const Werte& soll) {
    for (std::size_t i = 0; i < soll.size(); ++i)
        if (gelesene[i] != soll[i]) {
            ++zahlen.falscheWerte;
            Melde("wrong value at address " + std::to_string(block.adresse + static_cast<int>(i)) + ": " +
                  std::to_string(gelesene[i]) + ", the controller holds " + std::to_string(soll[i]));
        }
}

void Probelauf::Schreib() {
    const Block block = ZieheBlock();
    if (block.anzahl > 10 || block.adresse == 0x00C4 || !BereiteTeilVor(block))
        return;
    Werte werte;
    for (int i = 0; i < block.anzahl; ++i)
        werte.push_back(Proberegister::NeuerWert(block.adresse + i, teil.value_or(0), Zufall(0, 15)));
    SchreibGeprueft(block, werte);
}

/// A transfer: runs of like reads of one optical part after the other, and at its end what shows whether its
/// last values were right.
void Probelauf::Uebertrage() {
    struct Lesung {
        Block block;
        int teil;
        Werte werte;
        std::size_t schritt;
        bool gilt = false;
    };
    std::vector<std::shared_ptr<Lesung>> lesungen;
    std::vector<Transferschritt> schritte;
    const auto haengeAn = [&](std::function<Boolean()> tausche) {
        schritte.push_back({.zeige = [](int) {},
                            .tausche =
                                [this, tausche = std::move(tausche)] {
                                    ++zahlen.austausche;
                                    return tausche() != False;
                                },
                            .uebernimm = [] {}});
    };
    const auto lies = [&](Block block, int welcher, std::size_t auswahl) {
        const auto lesung = std::make_shared<Lesung>(
            Lesung{block, welcher, Werte(static_cast<std::size_t>(block.anzahl), -7), schritte.size()});
        haengeAn([lesung] {
            return RTUModeH03LeseAnforderung(static_cast<std::uint16_t>(lesung->block.adresse),
                                             static_cast<std::uint16_t>(lesung->block.anzahl), lesung->werte);
        });
        schritte.back().uebernimm = [lesung] { lesung->gilt = true; };
        schritte.back().auswahl = auswahl;
        lesungen.push_back(lesung);
    };
    const int teile = Zufall(1, Proberegister::Optikteile);
    for (int welcher = 0; welcher < teile; ++welcher) {
        haengeAn([welcher] { return WaehleOptikteil(welcher); });
        const std::size_t auswahl = schritte.size() - 1;
        for (int i = Zufall(2, 9); i > 0; --i)
            lies({0x2000 + Zufall(0, 60), Manchmal(85) ? 1 : Zufall(2, 32)}, welcher, auswahl);
    }
    for (int welcher = 0; welcher < Proberegister::Optikteile; ++welcher) {
        haengeAn([welcher] { return WaehleOptikteil(welcher); });
        lies({0x202C, 1}, welcher, schritte.size() - 1);
    }
    // A line that stays bad is given up, as a user would; it can only be given up before the end.
    long verbleibend = 20000;
    Schrittfolge folge(std::move(schritte), [&verbleibend] { return --verbleibend < 0; });
    teil.reset();
    geglaubte.clear();
    const bool durch = folge.Laufe();
    zahlen.reihen += durch ? 1 : 0;
    for (const auto& lesung : lesungen)
        if (lesung->gilt && (!durch || lesung->schritt < folge.ErsterOffener()))
            PruefeWerte(lesung->block, lesung->werte, Soll(lesung->block, lesung->teil));
    BemerkeBruch();
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
