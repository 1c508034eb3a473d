#pragma once

#include "comleitung.h"
#include "leitungsport.h"

namespace varnoth {

/// A serial port of Windows, which the system opens for one process alone. A line that disappears closes the
/// port at the first sign of it. Where the line has a parity bit, '?' is read in place of a byte whose parity
/// is wrong.
class WindowsPort : public Leitungsport {
public:
    void Schliesse() override;

    void Verwirf() override;
    std::size_t BytesWartend() override;
    std::string LiesAlles() override;
    bool LeereSender(Zeit hoechstens) override;

private:
    bool OeffneLeitung(const std::string& pfad, const Porteinstellungen& einstellungen) override;
    std::string Oeffnungsfehler() const override;
    Hindernis Oeffnungshindernis() const override;
    bool IstAuf() const override { return leitung.IstOffen(); }
    bool LeitungIstWeg() override;
    void Sende(std::string_view bytes) override;
    std::size_t BytesGelesen() const override { return eingang.size(); }
    std::size_t BytesImSystem() override { return leitung.BytesWartend(); }
    bool KannFensterWarten() const override { return Comleitung::HatMeldungen(); }
    bool SchlafeAnDerLeitung(Zeit hoechstens) override;

    void SchliesseVerlorene();
    void HoleBytes();

    Comleitung leitung;
    std::string eingang; // what has come and was not asked for yet; drivers hold less than the buffer's size
    unsigned long oeffnungsfehler = 0; // of the system, why the last opening failed
};

} // namespace varnoth
