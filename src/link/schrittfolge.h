#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace varnoth {

/// One exchange of a longer procedure.
struct Transferschritt {
    std::function<void(int versuch)> zeige; ///< an attempt begins, from 1
    std::function<bool()> tausche;          ///< one attempt; true when it succeeded
    std::function<void()> uebernimm;        ///< what was exchanged counts
    /// Place of the step that selects what this one means, or none.
    static constexpr std::size_t Ohne = static_cast<std::size_t>(-1);
    std::size_t auswahl = Ohne;
};

/// Carries exchanges out one after the other, each as often as it takes. What an exchange brought counts only
/// once it is certain (modAustausch). When a reply comes that nobody was waiting for, all that is not certain
/// is asked again, and for a while every step stands between two identifications, which cannot be mistaken.
class Schrittfolge {
public:
    /// So many steps in a row must go undisturbed until identifications are left out again.
    static constexpr int Wachdauer = 10;

    Schrittfolge(std::vector<Transferschritt> folge, std::function<bool()> wirdAbgebrochen)
        : schritte(std::move(folge)), abgebrochen(std::move(wirdAbgebrochen)) {}

    /// Lets the next steps stand between identifications, since the line is known to be disturbed.
    void Bewache() { wache = Wachdauer; }
    /// Nothing follows that would show the last steps right. Where they could have got the reply to another
    /// request, an identification at the end does.
    void VerlangeGewissheit() { gewissheitVerlangt = true; }
    /// False when it was cancelled: what is through by then is taken over, but after a disturbance only what
    /// is certain. True when all steps are through and taken over; those from ErsterOffener on are not
    /// certain yet, which happens only on a line that has had no break.
    bool Laufe();
    /// The first step that was not certain at the end; the number of steps when all were.
    std::size_t ErsterOffener() const { return gewiss; }
    /// The number of the last step's exchange.
    unsigned long LetzterAustausch() const { return nummern.empty() ? 0 : nummern.back(); }

private:
    enum class Ausgang { Gelungen, Gestoert, Abgebrochen };
    Ausgang Tue(std::size_t schritt);
    Ausgang TueBewacht();
    bool LaufeBisZuletzt();
    bool VergewissereAmEnde();
    void UebernimmOffene();
    void MerkeGelungen();
    void GeheZurueck();

    std::vector<Transferschritt> schritte;
    std::function<bool()> abgebrochen;
    std::vector<unsigned long> nummern{};
    std::size_t stelle = 0;
    std::size_t gewiss = 0;
    int versuch = 0;
    int wache = 0;             ///< steps that still stand between identifications
    bool vergewissert = false; ///< one has just been answered
    bool gewissheitVerlangt = false;
    bool gewaehlt = true; ///< what the step needs is selected
};

} // namespace varnoth
