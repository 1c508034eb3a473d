#pragma once

#include "leitungsport.h"
#include "paritaetsmarken.h"
#include "portsperre.h"

#include <QSerialPort>

namespace varnoth {

/// A serial port of a POSIX system, locked while it is open (Portsperre). A line that disappears closes the
/// port at the first sign of it. Where the line has a parity bit, '?' is read in place of a byte that arrived
/// broken.
class QtSeriellerPort : public Leitungsport {
public:
    QtSeriellerPort();

    void Schliesse() override;

    void Verwirf() override;
    std::size_t BytesWartend() override;
    std::string LiesAlles() override;
    bool LeereSender(Zeit hoechstens) override;

private:
    bool OeffneLeitung(const std::string& pfad, const Porteinstellungen& einstellungen) override;
    std::string Oeffnungsfehler() const override;
    Hindernis Oeffnungshindernis() const override;
    bool IstAuf() const override { return port.isOpen(); }
    bool LeitungIstWeg() override;
    void Sende(std::string_view bytes) override;
    std::size_t BytesGelesen() const override;
    std::size_t BytesImSystem() override;
    bool SchlafeAnDerLeitung(Zeit hoechstens) override;

    bool OeffneAlsEinziger(const std::string& pfad);
    void BeiFehler(QSerialPort::SerialPortError fehler);
    void BeiEingang();
    void SchalteLeitungenEin();

    QSerialPort port;
    Portsperre sperre;
    Paritaetsmarken marken;
    bool markiert = false; // the driver marks broken bytes
    int fehlernummer = 0;  // of the system, why the last opening failed
    QSerialPort::SerialPortError oeffnungsfehler = QSerialPort::NoError;
    bool leitungenWerdenGeschaltet = false;
};

} // namespace varnoth
