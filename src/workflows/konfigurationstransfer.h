#pragma once

#include "ablaufanzeige.h"
#include "boolean.h"
#include "registerbeschreibung.h"

#include <cstdint>
#include <functional>
#include <string>

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
class Konfigurationstransfer {
public:
    /// Whether a parameter with that description takes part.
    using Auswahl = bool (*)(const Registerbeschreibung& beschreibung);

    /// `weitere` is the number of exchanges that the class makes besides the walk; the progress counts them.
    Konfigurationstransfer(Transferanzeige& transferanzeige, Auswahl nimmtTeil, int weitere = 0)
        : anzeige(transferanzeige), auswahl(nimmtTeil), weitereSchritte(weitere) {}
    Konfigurationstransfer(const Konfigurationstransfer&) = delete;
    Konfigurationstransfer& operator=(const Konfigurationstransfer&) = delete;
    virtual ~Konfigurationstransfer() = default;

    /// Transfers everything. False when the user cancelled; what was transferred till then stays.
    bool UebertrageAlles();

protected:
    /// Attempts at one exchange until it succeeds, shown with the register's text and count; then the
    /// progress is one further. False = cancelled.
    bool Versuche(const std::string& registertext, int anzahl, const std::function<Boolean()>& transaktion);

    /// A parameter that the class leaves out: the progress is one further all the same.
    void Ueberspringe();

private:
    /// The string id of the global range's name; the names of the other two ranges follow it.
    virtual std::int16_t ErsterBereichstext() const = 0;
    /// Transfers one parameter. False = cancelled.
    virtual bool Uebertrage(const Transferparameter& parameter) = 0;

    int AnzahlSchritte() const;
    bool Waehle(std::int16_t textId, std::int16_t auswahlregister, int nummer);
    bool UebertrageBereich(Speicherbereich bereich, std::int16_t optikteil = 0);
    bool UebertrageOptikteile();

    Transferanzeige& anzeige;
    Auswahl auswahl;
    int weitereSchritte;
    int erledigt = 0;
    int gesamt = 0;
};

} // namespace varnoth
