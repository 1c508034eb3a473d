#pragma once

#include "seriellerport.h"

#include <QSerialPort>

namespace varnoth {

/// A serial port of the system. A line that disappears closes the port at the first sign of it.
class QtSeriellerPort : public SeriellerPort {
public:
    QtSeriellerPort();

    bool Oeffne(int nummer, const std::string& einstellungen) override;
    void Schliesse() override;
    bool IstOffen() override;
    std::string Fehlertext() const override { return fehlertext; }
    Anschluss AnschlussVon(int nummer) const override;
    Portbefund BefundVon(int nummer) const override;

    void Verwirf() override;
    std::size_t BytesWartend() override;
    std::string LiesAlles() override;
    void Schreibe(std::string_view bytes) override;
    void WarteAufEingang(Zeit hoechstens) override;
    void Schlafe(Zeit hoechstens) override;
    bool LeereSender(Zeit hoechstens) override;
    void SetzeEreignisbehandlung(std::function<void(int ereignis)> behandlung) override;

private:
    Hindernis HindernisNachFehler() const;
    void BeiFehler(QSerialPort::SerialPortError fehler);
    void BeiEingang();
    void SchalteLeitungenEin();
    void SchaueNachDemFenster();

    QSerialPort port;
    std::function<void(int)> ereignisbehandlung;
    std::string fehlertext;
    QSerialPort::SerialPortError oeffnungsfehler = QSerialPort::NoError;
    bool einstellungFalsch = false;
    bool leitungenWerdenGeschaltet = false;
    Zeit naechsterFensterblick{0};
    Zeit naechsterLeitungsblick{0};
};

} // namespace varnoth
