#pragma once

#include "messdurchgang.h"

/// Gathers what a polling pass reads, and tells those who hear of passes (`modMesshoerer`) once all of it is
/// certain.
namespace varnoth::modDurchgangsmeldung {

/// A pass begins.
void Beginne();
/// What the status in the image tells of optical part 0..3.
void MerkeStatus(int teil, bool vorhanden);
/// The beam states of a part as they were read; those behind its last beam do not count.
void MerkeStrahlen(int teil, Werte werte);
/// The measured values of a part as they stand in the image.
void MerkeMesswerte(int teil);
/// The pass has come to its end, with the last exchange. Tells of those that are certain by now.
void Beende(Systemzeit zeit, int anzahlTeile);

/// Tells of the passes that are certain and forgets all others: they will not become so.
void Verwirf();

} // namespace varnoth::modDurchgangsmeldung
