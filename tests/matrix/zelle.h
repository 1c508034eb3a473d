#pragma once

#include "abbildpruefung.h"
#include "betrieb.h"
#include "regie.h"
#include "stellen.h"
#include "stoerfaelle.h"

#include <span>
#include <string>

namespace varnoth::pruefung {

/// One cell of the matrix: the program at one of the places where it talks, while one fault is in force, and
/// after it.
class Zelle {
public:
    Zelle(const Stelle& ort, const Stoerfall& stoerfall);

    struct Ergebnis {
        std::string fehler; ///< empty when all was as it should be
        qint64 lueckeMs;    ///< the longest that a click would have waited
        std::string wo;     ///< the window in front then
    };
    /// Runs the cell from the program's start to its recovery.
    Ergebnis Pruefe();

    /// Whether a message came since the user last tried.
    bool HatGemeldet(std::int16_t textId) const;
    /// The number behind "NAME=" in what the controller counts or tells.
    int Geraetezahl(const std::string& befehl, const std::string& name);
    /// Connects, and waits until live data runs.
    Handlung GeheLive();
    /// Stops live data and waits until that is done.
    Handlung Stoppe();

    Betrieb betrieb;
    Regie regie;
    unsigned durchgaengeMarke = 0; ///< passes when the place began

private:
    Handlung Spiele();
    Handlung Bereite();
    Handlung Stoere();
    Handlung StoereReihum();
    Handlung WarteAufGutesEnde(bool mitHilfe);
    Handlung NimmFremdeAdresse();
    Handlung ErholeDich();
    void BeginneMitStoerung(const Befehle& befehle);
    void GibGeraet(const Befehle& befehle);
    void MerkeMeldungen();
    /// The message boxes since the place began.
    std::span<const std::string> Meldungen() const;
    void PruefeMeldungen() const;

    const Stelle& stelle;
    const Stoerfall& fall;
    Abbildpruefung abbild;
    std::size_t abMeldung = 0;
    std::size_t abVersuch = 0;
};

} // namespace varnoth::pruefung
