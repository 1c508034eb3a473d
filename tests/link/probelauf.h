#pragma once

#include "proberegler.h"
#include "werte.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace varnoth::pruefung {

/// What a run has seen.
struct Probezahlen {
    long austausche = 0;
    long gescheiterte = 0;
    long brueche = 0;         ///< how often what was provisional had to be asked again
    long reihen = 0;          ///< rows of exchanges that came to their end
    long rueckfragen = 0;     ///< identifications that the exchange put in between
    long falscheWerte = 0;    ///< values believed that are not the controller's
    long verloreneWrites = 0; ///< writes believed that the controller does not hold
    long nichtErholt = 0;     ///< exchanges that failed though the only disturbance was over
    Zeit laengsterVorlauf{0}; ///< from the start of an exchange to its request, or to giving it up
    long fehler = 0;
    std::map<std::string_view, long> fehlerarten; ///< faults by kind
};

/// Random exchanges with a controller on a disturbed line, each checked against what the controller holds.
class Probelauf {
public:
    explicit Probelauf(std::uint64_t startwert, bool ausserDerReihe);
    ~Probelauf();
    Probelauf(const Probelauf&) = delete;
    Probelauf& operator=(const Probelauf&) = delete;

    /// Runs about so many exchanges.
    void Laufe(long austausche);
    const Probezahlen& Zahlen() const { return zahlen; }
    /// Only with all kinds of faults at once from now on, at so many of 1000 replies.
    void Mische(int promille) { gemischt = promille; }
    /// Keeps the last so many lines of what happened and prints them with each of the first few mistakes.
    void SchreibMit(std::size_t zeilen);

private:
    /// Repetitions come among themselves: one reply too many and one lost within a run of like exchanges
    /// leave as many replies as requests, which nobody can tell from a line in order.
    enum class Wetter { Ruhig, EinFehler, Sturm, Wiederholungen, Gemischt };

    int Zufall(int von, int bis);
    bool Manchmal(int prozent) { return Zufall(1, 100) <= prozent; }
    std::optional<Probefehler> ZieheFehler(int ersteArt = 0);
    std::optional<Probefehler> NaechsterFehler();

    void LaufeAbschnitt(Wetter art, int schritte);
    void Beruhige();
    void Schritt();
    void Identifiziere();
    void Waehle(int teil);
    void Lies();
    void Schreib();
    void Stoere();

    struct Block {
        int adresse;
        int anzahl;
    };
    /// What an exchange brought, until it is certain.
    struct Glaube {
        unsigned long austausch = 0;
        Block block{0, 0};
        Werte gelesene{}; ///< empty: a write
        Werte soll{};
        std::string geschrieben{}; ///< its frame
        int ausgefuehrteDavor = 0;
    };
    void Uebertrage();
    void PruefeGewisses();
    void BemerkeBruch();
    bool SchreibGeprueft(Block block, const Werte& werte);
    Werte Soll(Block block, int auswahl);
    void PruefeWerte(Block block, const Werte& gelesene, const Werte& soll);
    Block ZieheBlock();
    bool BereiteTeilVor(Block block);

    /// One attempt; `eigene` is how many identification requests it sends of its own.
    template<class Austausch>
    bool TauscheEinmal(Austausch austausch, int eigene = 0);
    template<class Austausch>
    bool MitVersuchen(Austausch austausch);
    bool MussGelingen();
    void Melde(const std::string& irrtum);
    void Notiere(const std::string& zeile);
    void ZaehleVorlauf(Zeit beginn, int eigene, int identifikationenDavor);

    std::mt19937_64 zufall;
    PruefUmgebung umgebung;
    Proberegler regler{umgebung};
    Probezahlen zahlen;
    Wetter wetter = Wetter::Ruhig;
    int bisFehler = 0;
    bool zuletztGescheitert = false;
    Block letzter{0, 1};
    std::vector<Glaube> geglaubte;
    unsigned long brueche = 0;
    int gemischt = 0;
    std::size_t mitschriftLaenge = 0;
    std::deque<std::string> mitschrift;
    int gemeldete = 0;
    std::optional<int> teil; ///< the optical part that is certain to be selected
};

} // namespace varnoth::pruefung
