#pragma once

#include "comleitung.h"
#include "leitungsport.h"

#include <optional>

namespace varnoth {

/// A serial port of Windows, which the system opens for one process alone. A line that disappears closes the
/// port at the first sign of it. Where the line has a parity bit, '?' is read in place of a byte whose parity
/// is wrong.
class WindowsPort : public Leitungsport {
public:
    bool Oeffne(int nummer, const std::string& einstellungen) override;
    void Schliesse() override;
    std::string Fehlertext() const override;
    Portbefund BefundVon(int nummer) const override;

    void Verwirf() override;
    std::size_t BytesWartend() override;
    std::string LiesAlles() override;
    bool LeereSender(Zeit hoechstens) override;
    void SetzeEreignisbehandlung(std::function<void(int ereignis)> behandlung) override;

private:
    bool IstAuf() const override { return leitung.IstOffen(); }
    bool LeitungIstWeg() override;
    void Sende(std::string_view bytes) override;
    std::size_t BytesGelesen() const override { return 0; } // events take up none
    std::size_t BytesImSystem() override { return BytesWartend(); }
    bool SchlafeAnDerLeitung(Zeit hoechstens) override;

    void SchliesseVerlorene();
    bool MeldeUeberlauf();

    Comleitung leitung;
    std::function<void(int)> ereignisbehandlung;
    std::optional<std::string> falscheEinstellung; // the settings string that is no line format
    unsigned long oeffnungsfehler = 0;             // of the system, why the last opening failed
};

} // namespace varnoth
