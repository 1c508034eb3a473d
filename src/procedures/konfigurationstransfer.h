#pragma once

#include "ablaufanzeige.h"
#include "boolean.h"
#include "registerbeschreibung.h"
#include "schrittfolge.h"
#include "werte.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace varnoth {

/// Whoever shows the transfer of a whole configuration.
class Transferanzeige : public Ablaufanzeige {
public:
    /// What is transferred from now on.
    virtual void ZeigeBereich(const std::string& text) = 0;
    /// The register as text, the number of registers, and the attempt (from 1) that begins now.
    virtual void ZeigeRegister(const std::string& registertext, int anzahl, int versuch) = 0;
    /// How many of all exchanges with the controller are through.
    virtual void ZeigeFortschritt(int erledigt, int gesamt) = 0;
    /// The transfer is complete: the text stands instead of the range, register, count and attempt are empty.
    virtual void ZeigeEnde(const std::string& text) = 0;
};

/// A parameter on its way. `optikteil` is 0 outside the specific range.
struct Transferparameter {
    Speicherbereich bereich;
    std::int16_t adresse;
    std::int16_t anzahl;
    std::int16_t optikteil = 0;
};

/// The walk through all parameters that reading and writing a configuration have in common: the global range,
/// the specific range of all four optical parts, connected or not, and the communication range of channel 0.
/// Which parameters take part and what happens to them is the business of the class that reads or writes.
/// What turns out not to have been certain is transferred again.
class Konfigurationstransfer {
public:
    /// Whether a parameter with that description takes part.
    using Auswahl = bool (*)(const Registerbeschreibung& beschreibung);

    Konfigurationstransfer(Transferanzeige& transferanzeige, Auswahl nimmtTeil)
        : anzeige(transferanzeige), auswahl(nimmtTeil) {}
    Konfigurationstransfer(const Konfigurationstransfer&) = delete;
    Konfigurationstransfer& operator=(const Konfigurationstransfer&) = delete;
    virtual ~Konfigurationstransfer() = default;

    /// Transfers everything. False when the user cancelled; what was certain by then stays.
    bool UebertrageAlles();
    /// The parameters at the end whose transfer is not certain yet, and the number of the last exchange.
    const std::vector<Transferparameter>& Offene() const { return offene; }
    unsigned long LetzterAustausch() const { return letzterAustausch; }

protected:
    /// Nothing is exchanged behind this transfer that would show its last values right.
    void VerlangeGewissheit() { gewissheitVerlangt = true; }
    /// Appends an exchange: what is shown while it is tried, and one attempt at it.
    void HaengeAn(const std::string& bereichstext, const std::string& registertext, int anzahl,
                  const std::function<Boolean()>& tausche);

private:
    /// The string id of the global range's name; the names of the other two ranges follow it.
    virtual std::int16_t ErsterBereichstext() const = 0;
    /// Whether this one of the parameters that take part is transferred.
    virtual bool Betrifft(const Transferparameter& /*parameter*/) const { return true; }
    /// Whether this parameter of the global range comes behind all others instead.
    virtual bool KommtZuletzt(const Transferparameter& /*parameter*/) const { return false; }
    /// One attempt at a parameter, whose values are in `werte` before or behind it.
    virtual Boolean Tausche(const Transferparameter& parameter, Werte& werte) = 0;
    /// The parameter's transfer counts.
    virtual void Uebernimm(const Transferparameter& parameter, const Werte& werte) = 0;
    /// Appends the exchanges that the class makes besides the walk.
    virtual void HaengeWeitereAn() {}

    int AnzahlSchritte() const { return static_cast<int>(schritte.size()); }
    void HaengeAuswahlAn(std::int16_t textId, std::int16_t auswahlregister, int nummer);
    void HaengeBereichAn(Speicherbereich bereich, std::size_t auswahlschritt, std::int16_t optikteil = 0,
                         bool zuletzt = false);

    Transferanzeige& anzeige;
    Auswahl auswahl;
    std::vector<Transferschritt> schritte{};
    std::vector<Transferparameter> parameterDerSchritte{}; ///< 0 registers where a step has none
    std::vector<Transferparameter> offene{};
    unsigned long letzterAustausch = 0;
    bool gewissheitVerlangt = false;
};

} // namespace varnoth
