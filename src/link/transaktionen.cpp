#include "transaktionen.h"

#include "austausch.h"
#include "erkenner.h"
#include "geraetestand.h"
#include "rahmen.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "seriennummer.h"
#include "speicherbereich.h"
#include "startzustand.h"

#include <exception>
#include <stdexcept>

namespace varnoth::modModbus {

namespace {

using namespace modSchnittstelle;
using modAustausch::Tausche;
using modAustausch::Verlass;

constexpr std::int32_t SteuerwertAutosendEin = 2;
constexpr std::int32_t SteuerwertAutosendAus = 4;

Identifikation ident;
bool autosendGestartet = false;
const Startwert startwert(ident, autosendGestartet);

/// Runs a transaction; an error inside it becomes a warning box titled with the procedure's name.
template<class Ablauf>
Boolean MitFehlermeldung(const char* prozedur, Ablauf ablauf) {
    try {
        return AlsBoolean(ablauf());
    } catch (const std::exception& fehler) {
        ZeigeWarnung(fehler.what(), std::string(prozedur) + "()");
        return False;
    }
}

std::int32_t Registerwert(const std::string& daten, std::size_t nummer) {
    const auto high = static_cast<std::uint8_t>(daten.at(2 * nummer));
    const auto low = static_cast<std::uint8_t>(daten.at(2 * nummer + 1));
    return high * 256 + low;
}

Boolean Schreibe(std::uint16_t start, std::uint16_t anzahl, const Werte& werte, Verlass verlass) {
    return MitFehlermeldung("RTUModeH10SchreibenAnforderung", [&] {
        SchreibErkenner erkenner(ident.slaveAdresse, start, anzahl);
        return Tausche(SchreibAnforderung(ident.slaveAdresse, start, anzahl, werte), erkenner, verlass);
    });
}

/// The controller must hear of it whatever the line is like; nobody looks at the reply.
Boolean SendeSteuerwert(std::int32_t wert) {
    autosendGestartet = wert == SteuerwertAutosendEin;
    constexpr auto Adresse = Geraeteadresse(Speicherbereich::Kommunikationsdaten, kommunikation::Steuerwert);
    return Schreibe(Adresse, 1, {wert}, Verlass::Keiner);
}

/// One exchange of a command that has the port for itself.
template<class Ablauf>
Boolean MitEigenemPort(Ablauf ablauf) {
    if (ident.gueltig != True)
        return True;
    OpenCommPort();
    const Boolean ergebnis = ablauf();
    CloseCommPort();
    return ergebnis;
}

void SchreibeSteuerwert(std::int32_t wert) {
    MitEigenemPort([wert] {
        // Without a line there is nobody to wait for.
        if (GetPortIstOffen() == False)
            return False;
        return SendeSteuerwert(wert);
    });
}

} // namespace

Boolean RTUModeH03LeseAnforderung(std::uint16_t Startadresse, std::uint16_t Anzahl, Werte& werte) {
    return MitFehlermeldung("RTUModeH03LeseAnforderung", [&] {
        LeseErkenner erkenner(ident.slaveAdresse, Anzahl);
        if (!Tausche(LeseAnforderung(ident.slaveAdresse, Startadresse, Anzahl), erkenner,
                     Verlass::Wiederholbar))
            return false;
        if (werte.size() < Anzahl)
            throw std::out_of_range("Werte: no room for the reply");
        for (std::size_t i = 0; i < Anzahl; ++i)
            werte[i] = Registerwert(erkenner.Daten(), i);
        return true;
    });
}

Boolean RTUModeH10SchreibenAnforderung(std::uint16_t Startadresse, std::uint16_t Anzahl, const Werte& werte) {
    return Schreibe(Startadresse, Anzahl, werte, Verlass::Voll);
}

Boolean RTUModeH11IndentifikationsAnforderung() {
    return MitFehlermeldung("RTUModeH11IndentifikationsAnforderung", [] {
        IdentReset();
        IdentErkenner erkenner(ident);
        if (!Tausche(IdentifikationsAnforderung(), erkenner))
            return false;
        VerteileIdenttext(erkenner.Text(), ident);
        ident.gueltig = True;
        modGeraetestand::Antwortet(GeraeteSeriennummer());
        return true;
    });
}

Boolean SendeFunktion09() {
    modAustausch::SendeOhneAntwort(KommandoRahmen(ident.slaveAdresse));
    return True;
}

Boolean WaehleOptikteil(int optikteil) {
    constexpr auto Adresse = Geraeteadresse(Speicherbereich::GlobaleGeraetedaten, global::Optikteilauswahl);
    return Schreibe(Adresse, 1, {optikteil}, Verlass::Wiederholbar);
}

void IdentReset() {
    ident = {};
}

Boolean GetIdentGueltig() {
    return ident.gueltig;
}

std::int16_t GetSlaveAdresse() {
    return ident.slaveAdresse;
}

std::int16_t GetIdentByte1() {
    return ident.byte1;
}

std::int16_t GetIdentByte2() {
    return ident.byte2;
}

const std::string& GetIdentText1() {
    return ident.text1;
}

const std::string& GetIdentText2() {
    return ident.text2;
}

const std::string& GetIdentText3() {
    return ident.text3;
}

Boolean SendeFunktion09Kommando() {
    return MitEigenemPort(SendeFunktion09);
}

void SchreibeSteuerwert4() {
    SchreibeSteuerwert(SteuerwertAutosendAus);
}

void SchreibeSteuerwert2() {
    SchreibeSteuerwert(SteuerwertAutosendEin);
}

void BeruhigeGeraet() {
    if (modAustausch::IstUnruhig() && ident.gueltig == True)
        SendeSteuerwert(SteuerwertAutosendAus);
}

bool AutosendGestartet() {
    return autosendGestartet;
}

void BeendeAutosendAmOffenenPort() {
    if (GetPortIstOffen() == False)
        return;
    OpenCommPort();
    SendeSteuerwert(SteuerwertAutosendAus);
    CloseCommPort();
}

} // namespace varnoth::modModbus
