#include "libmodbusmaster.h"

#include "bericht.h"
#include "zaehlport.h"

#include <array>
#include <cerrno>
#include <ctime>

namespace varnoth::bench {

namespace {

constexpr int Datenbits = 8;
constexpr int Stoppbits = 2;
constexpr std::uint32_t Antwortzeit = 1; // seconds

[[noreturn]] void ScheitereMit(const char* was) {
    Scheitere(
        QStringLiteral("libmodbus, %1: %2").arg(QLatin1String(was), QLatin1String(modbus_strerror(errno))));
}

/// Sleeps until the pause after a reply is over; the time of the call itself does not add to it.
void Pausiere() {
    constexpr long NanosekundenJeSekunde = 1'000'000'000;
    timespec ende{};
    ::clock_gettime(CLOCK_MONOTONIC, &ende);
    ende.tv_nsec += static_cast<long>(Sendepause * NanosekundenJeSekunde);
    ende.tv_sec += ende.tv_nsec / NanosekundenJeSekunde;
    ende.tv_nsec %= NanosekundenJeSekunde;
    while (::clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &ende, nullptr) == EINTR) {
    }
}

} // namespace

void Libmodbusmaster::Freigabe::operator()(modbus_t* alte) const {
    modbus_close(alte);
    modbus_free(alte);
}

Libmodbusmaster::Libmodbusmaster(const QString& geraet, int baud)
    : verbindung(modbus_new_rtu(geraet.toLocal8Bit().constData(), baud, 'N', Datenbits, Stoppbits)) {
    if (!verbindung || modbus_connect(verbindung.get()) != 0)
        ScheitereMit("connecting");
    modbus_set_response_timeout(verbindung.get(), Antwortzeit, 0);
}

void Libmodbusmaster::Durchlaufe(const std::vector<Anfrage>& anfragen) {
    for (const Anfrage& anfrage : anfragen) {
        Tausche(anfrage);
        Pausiere();
    }
}

void Libmodbusmaster::Tausche(const Anfrage& anfrage) {
    std::array<std::uint16_t, MODBUS_MAX_READ_REGISTERS> werte;
    modbus_set_slave(verbindung.get(), anfrage.geraet);
    const int anzahl =
        anfrage.schreibt
            ? modbus_write_registers(verbindung.get(), anfrage.adresse, anfrage.anzahl, &anfrage.wert)
            : modbus_read_registers(verbindung.get(), anfrage.adresse, anfrage.anzahl, werte.data());
    if (anzahl != anfrage.anzahl)
        ScheitereMit("a request");
}

} // namespace varnoth::bench
