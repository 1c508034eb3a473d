#pragma once

#include "paritaetsmarken.h"
#include "portsperre.h"
#include "seriellerport.h"

#include <QSerialPort>

#include <optional>

namespace varnoth {

/// A serial port of the system, locked while it is open (Portsperre). A line that disappears closes the port
/// at the first sign of it. Where the line has a parity bit, '?' is read in place of a byte that arrived
/// broken.
class QtSeriellerPort : public SeriellerPort {
public:
    QtSeriellerPort();

    bool Oeffne(int nummer, const std::string& einstellungen) override;
    void Schliesse() override;
    void SetzeGeraet(const std::string& pfad) override;
    bool IstOffen() override;
    std::string Fehlertext() const override;
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
    std::string Pfad(int nummer) const;
    bool OeffneAlsEinziger(const std::string& pfad);
    Hindernis HindernisNachFehler() const;
    void BeiFehler(QSerialPort::SerialPortError fehler);
    void BeiEingang();
    void SchalteLeitungenEin();
    void SchaueNachDemFenster();
    void Schlummere(Zeit hoechstens);
    void UebergibUndMale();

    QSerialPort port;
    Portsperre sperre;
    std::string genanntes; // the device that all numbers mean; empty: what the settings say
    Paritaetsmarken marken;
    bool markiert = false; // the driver marks broken bytes
    std::function<void(int)> ereignisbehandlung;
    std::optional<std::string> falscheEinstellung; // the settings string that is no line format
    int fehlernummer = 0;                          // of the system, why the last opening failed
    QSerialPort::SerialPortError oeffnungsfehler = QSerialPort::NoError;
    bool leitungenWerdenGeschaltet = false;
    Zeit naechsterFensterblick{0};
    Zeit naechsterLeitungsblick{0};
};

} // namespace varnoth
