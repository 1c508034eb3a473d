#pragma once

#include "boolean.h"
#include "liveansicht.h"

#include <cstdint>

namespace varnoth {

/// What a polling pass asks of the main window.
class PollingZiel {
public:
    PollingZiel() = default;
    PollingZiel(const PollingZiel&) = delete;
    PollingZiel& operator=(const PollingZiel&) = delete;
    virtual ~PollingZiel() = default;

    /// The live view of optical part 0..3, created on demand.
    virtual LiveAnsicht& Ansicht(int optikteil) = 0;
    /// The presence of a part or the connection itself has changed.
    virtual void AktualisiereGeraetestatus() = 0;
    /// Whether a command waits: the pass then ends after the attempt in progress.
    virtual bool BefehlWartet() = 0;
};

/// The polling passes that feed the live views.
namespace modPolling {

/// What is known about the presence of an optical part.
enum Optikteilzustand : std::int16_t { Unbekannt = 0, Vorhanden = 1, NichtVorhanden = 2 };

/// Fits the main window in (nullptr takes it out).
void SetzeZiel(PollingZiel* ziel);

/// Opens the port; polling is on if that succeeded.
void StartePolling();
/// Closes the port and switches polling off.
void StoppePolling();
Boolean GetPollingAktiv();

/// Number of optical parts that a pass asks, 0..4: parts 0 to this number less one.
void SetzeAnzahlOptikteile(int anzahl);
int GetAnzahlOptikteile();

Optikteilzustand GetOptikteilStatus(int optikteil);
void SetzeOptikteilStatus(int optikteil, Optikteilzustand zustand);
/// The presence that a value of specific register 44 tells.
Optikteilzustand ZustandAus(std::int32_t statusregister);

/// Number of passes that came to their end since polling was started.
unsigned GetDurchgaenge();

/// Whether the last pass lost the connection and none has succeeded since.
bool VerbindungVerloren();

/// Number of beam-state registers that are read for a beam count: a sixteenth, rounded half to even, and one
/// more for a count that is no multiple of 16; at most 64.
int GeleseneStrahlregister(std::int32_t strahlenzahl);

/// One pass: per optical part its status and, where a view shows live data, its beam states and measured
/// values; at the end the switching output's state. Ends early when polling is switched off or a command
/// waits.
void PollingZyklus();

} // namespace modPolling

} // namespace varnoth
