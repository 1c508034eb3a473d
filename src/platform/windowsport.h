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
    std::size_t BytesGelesen() const override { return eingang.size(); }
    std::size_t BytesImSystem() override { return leitung.BytesWartend(); }
    bool KannFensterWarten() const override { return Comleitung::HatMeldungen(); }
    bool SchlafeAnDerLeitung(Zeit hoechstens) override;

    void SchliesseVerlorene();
    void HoleBytes();
    void MeldeUeberlauf();

    Comleitung leitung;
    std::string eingang; // what has come and was not asked for yet; drivers hold less than the buffer's size
    std::function<void(int)> ereignisbehandlung;
    std::optional<std::string> falscheEinstellung; // the settings string that is no line format
    unsigned long oeffnungsfehler = 0;             // of the system, why the last opening failed
};

} // namespace varnoth
