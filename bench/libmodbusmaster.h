#pragma once

#include "vergleichsmaster.h"

#include <QString>

#include <modbus/modbus.h>

#include <memory>

namespace varnoth::bench {

/// Polls with libmodbus: one blocking call a request, then a sleep until 2 ms after the reply.
class Libmodbusmaster : public Vergleichsmaster {
public:
    Libmodbusmaster(const QString& geraet, int baud);

    void Durchlaufe(const std::vector<Anfrage>& anfragen) override;

private:
    struct Freigabe {
        void operator()(modbus_t* verbindung) const;
    };

    void Tausche(const Anfrage& anfrage);

    std::unique_ptr<modbus_t, Freigabe> verbindung;
};

} // namespace varnoth::bench
