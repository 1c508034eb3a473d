#pragma once

#include "vergleichsmaster.h"

#include <QEventLoop>
#include <QModbusRtuSerialClient>

namespace varnoth::bench {

/// Polls with Qt Serial Bus in an event loop. The pause is the client's own delay between two frames, which
/// at this speed is just those 2 ms.
class Qtmodbusmaster : public Vergleichsmaster {
public:
    Qtmodbusmaster(const QString& geraet, int baud);

    void Durchlaufe(const std::vector<Anfrage>& anfragen) override;

private:
    QModbusReply* Sende(const Anfrage& anfrage);
    void SendeNaechste();
    void Uebernimm(QModbusReply& antwort);

    QModbusRtuSerialClient client;
    QEventLoop schleife;
    const std::vector<Anfrage>* folge = nullptr;
    std::size_t naechste = 0;
};

} // namespace varnoth::bench
