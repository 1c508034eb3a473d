#pragma once

#include "ablaufanzeige.h"
#include "konfigurationstransfer.h"

#include <vector>

namespace varnoth {

/// One attempt to read a parameter; what it belongs to is selected.
Boolean LiesParameter(const Transferparameter& parameter, Werte& werte);
/// Puts a parameter's values into the image.
void SpeichereParameter(const Transferparameter& parameter, const Werte& werte);

/// The last parameters of a configuration read. They are in the image before the exchanges that follow have
/// shown that they are right; when those show the contrary, they are read once more.
namespace modNachlese {

/// A read has ended with these parameters not certain yet; the last exchange has this number.
void Merke(const std::vector<Transferparameter>& parameter, unsigned long letzterAustausch);
/// Looks whether they have become certain, or must be read once more. To be called behind each exchange.
void Pruefe();
/// Reads them once more if that has turned out to be necessary. False when the user cancelled.
bool HoleNach(Ablaufanzeige& anzeige);
/// Empties those in the image that are not certain, since nothing will show them right any more.
void Verwirf();

} // namespace modNachlese

} // namespace varnoth
