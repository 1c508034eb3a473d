#include "qtmodbusmaster.h"

#include "bericht.h"

#include <QModbusDataUnit>
#include <QModbusReply>
#include <QSerialPort>
#include <QVariant>

namespace varnoth::bench {

namespace {
constexpr int Antwortzeit = 1000; // milliseconds
}

Qtmodbusmaster::Qtmodbusmaster(const QString& geraet, int baud) {
    client.setConnectionParameter(QModbusDevice::SerialPortNameParameter, geraet);
    client.setConnectionParameter(QModbusDevice::SerialBaudRateParameter, baud);
    client.setConnectionParameter(QModbusDevice::SerialParityParameter, QSerialPort::NoParity);
    client.setConnectionParameter(QModbusDevice::SerialStopBitsParameter, QSerialPort::TwoStop);
    client.setTimeout(Antwortzeit);
    client.setNumberOfRetries(0);
    if (!client.connectDevice())
        Scheitere(QStringLiteral("Qt Serial Bus, connecting: ") + client.errorString());
}

void Qtmodbusmaster::Durchlaufe(const std::vector<Anfrage>& anfragen) {
    folge = &anfragen;
    naechste = 0;
    SendeNaechste();
    schleife.exec();
}

void Qtmodbusmaster::SendeNaechste() {
    if (naechste == folge->size()) {
        schleife.quit();
        return;
    }
    QModbusReply* antwort = Sende(folge->at(naechste++));
    if (antwort == nullptr)
        Scheitere(QStringLiteral("Qt Serial Bus, sending: ") + client.errorString());
    QObject::connect(antwort, &QModbusReply::finished, antwort, [this, antwort] { Uebernimm(*antwort); });
}

/// A write of one register goes out as a write of many, as the program sends it.
QModbusReply* Qtmodbusmaster::Sende(const Anfrage& anfrage) {
    if (!anfrage.schreibt)
        return client.sendReadRequest(
            QModbusDataUnit(QModbusDataUnit::HoldingRegisters, anfrage.adresse, anfrage.anzahl),
            anfrage.geraet);
    return client.sendRawRequest(QModbusRequest(QModbusRequest::WriteMultipleRegisters,
                                                static_cast<quint16>(anfrage.adresse), anfrage.anzahl,
                                                quint8{sizeof anfrage.wert}, anfrage.wert),
                                 anfrage.geraet);
}

void Qtmodbusmaster::Uebernimm(QModbusReply& antwort) {
    if (antwort.error() != QModbusDevice::NoError)
        Scheitere(QStringLiteral("Qt Serial Bus, a request: ") + antwort.errorString());
    antwort.deleteLater();
    SendeNaechste();
}

} // namespace varnoth::bench
