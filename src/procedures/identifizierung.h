#pragma once

#include "ablaufanzeige.h"

namespace varnoth {

struct Verbindungsauskunft;

/// Whoever shows an identification.
class Identifikationsanzeige : public Ablaufanzeige {
public:
    /// The attempts that remain after the one that begins now.
    virtual void ZeigeVerbleibend(int versuche) = 0;
    /// An attempt has failed; why, as far as can be told.
    virtual void ZeigeUrsache(const Verbindungsauskunft& auskunft) = 0;
    /// The controller has answered; the identification record tells what.
    virtual void ZeigeIdentifikation() = 0;
};

/// Asks the controller who it is, at most nine times. False when the user cancelled or when the ninth request
/// was needed; the user is then told that there is no connection, even if just that request was answered.
bool Identifiziere(Identifikationsanzeige& anzeige);

} // namespace varnoth
