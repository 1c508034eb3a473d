#pragma once

#include "leitungsport.h"
#include "paritaetsmarken.h"
#include "portsperre.h"

#include <QSerialPort>

#include <optional>

namespace varnoth {

/// A serial port of a POSIX system, locked while it is open (Portsperre). A line that disappears closes the
/// port at the first sign of it. Where the line has a parity bit, '?' is read in place of a byte that arrived
/// broken.
class QtSeriellerPort : public Leitungsport {
public:
    QtSeriellerPort();

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
    bool IstAuf() const override { return port.isOpen(); }
    bool LeitungIstWeg() override;
    void Sende(std::string_view bytes) override;
    std::size_t BytesGelesen() const override;
    std::size_t BytesImSystem() override;
    bool SchlafeAnDerLeitung(Zeit hoechstens) override;

    bool OeffneAlsEinziger(const std::string& pfad);
    Hindernis HindernisNachFehler() const;
    void BeiFehler(QSerialPort::SerialPortError fehler);
    void BeiEingang();
    void SchalteLeitungenEin();

    QSerialPort port;
    Portsperre sperre;
    Paritaetsmarken marken;
    bool markiert = false; // the driver marks broken bytes
    std::function<void(int)> ereignisbehandlung;
    std::optional<std::string> falscheEinstellung; // the settings string that is no line format
    int fehlernummer = 0;                          // of the system, why the last opening failed
    QSerialPort::SerialPortError oeffnungsfehler = QSerialPort::NoError;
    bool leitungenWerdenGeschaltet = false;
};

} // namespace varnoth
