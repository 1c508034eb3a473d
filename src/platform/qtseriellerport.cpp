#include "qtseriellerport.h"

#include "systemfehler.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <future>

namespace varnoth {

namespace {

QSerialPort::Parity AlsParity(Paritaet paritaet) {
    constexpr std::array zuordnung{QSerialPort::NoParity, QSerialPort::EvenParity, QSerialPort::OddParity,
                                   QSerialPort::MarkParity, QSerialPort::SpaceParity};
    return zuordnung.at(static_cast<std::size_t>(paritaet));
}

QSerialPort::StopBits AlsStopBits(Stoppbits stoppbits) {
    constexpr std::array zuordnung{QSerialPort::OneStop, QSerialPort::OneAndHalfStop, QSerialPort::TwoStop};
    return zuordnung.at(static_cast<std::size_t>(stoppbits));
}

void Stelle(QSerialPort& port, const Porteinstellungen& einstellungen) {
    port.setBaudRate(einstellungen.baud);
    port.setParity(AlsParity(einstellungen.paritaet));
    port.setDataBits(static_cast<QSerialPort::DataBits>(einstellungen.datenbits));
    port.setStopBits(AlsStopBits(einstellungen.stoppbits));
    port.setFlowControl(QSerialPort::NoFlowControl);
    port.setReadBufferSize(static_cast<qint64>(Eingabepuffergroesse));
}

bool IstWeg(short meldungen) {
    return (meldungen & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

/// Adds the bytes that wait in the system.
void LiesAusSystem(QSerialPort& port, std::string& bytes) {
    std::array<char, 512> stueck; // read fills it
    ssize_t gelesen = 0;
    do {
        gelesen = ::read(port.handle(), stueck.data(), stueck.size());
        bytes.append(stueck.data(), static_cast<std::size_t>(std::max<ssize_t>(gelesen, 0)));
    } while (gelesen == static_cast<ssize_t>(stueck.size()));
}

/// Hands over what the system takes at once, which is all but always the whole request, and gives how many
/// bytes that was. QSerialPort itself would switch a notifier on and off for each write, which wakes the
/// event loop twice.
std::size_t SchreibeSofort(QSerialPort& port, std::string_view bytes) {
    return static_cast<std::size_t>(std::max<ssize_t>(::write(port.handle(), bytes.data(), bytes.size()), 0));
}

/// Lets the driver check parity and mark the bytes that arrive broken, which QSerialPort does not ask for: it
/// would hand them over like any other. Gives whether the driver does.
bool MarkiereGebrochene(QSerialPort& port) {
    termios stand{};
    if (::tcgetattr(port.handle(), &stand) != 0)
        return false;
    stand.c_iflag |= INPCK | PARMRK;
    stand.c_iflag &= ~static_cast<tcflag_t>(IGNPAR);
    return ::tcsetattr(port.handle(), TCSANOW, &stand) == 0;
}

/// The system's number for why a port could not be opened; 0 for no error.
/// @param nummer what the system gave last, which may be nothing
int Fehlernummer(QSerialPort::SerialPortError fehler, int nummer) {
    switch (fehler) {
    case QSerialPort::NoError:
        return 0;
    case QSerialPort::PermissionError: // also where another program's lock file stands for the port
        return nummer == EACCES ? EACCES : EBUSY;
    case QSerialPort::DeviceNotFoundError:
        return nummer != 0 ? nummer : ENOENT;
    default:
        return nummer != 0 ? nummer : EIO;
    }
}

/// Waits, serving events, until the driver has sent everything. The driver's own wait cannot be given a time;
/// when that is up, dropping what is left ends it.
bool LeereTreiber(QSerialPort& port, Zeit ende) {
    constexpr Zeit Blick = std::chrono::milliseconds(1);
    const auto warten = std::async(std::launch::async, [anschluss = port.handle()] { ::tcdrain(anschluss); });
    while (warten.wait_for(Blick) != std::future_status::ready) {
        DieUmgebung().NutzeWartezeit();
        if (port.isOpen() && DieUmgebung().Uhr() >= ende) {
            ::tcflush(port.handle(), TCOFLUSH);
            return false;
        }
    }
    return true;
}

} // namespace

QtSeriellerPort::QtSeriellerPort() {
    QObject::connect(&port, &QSerialPort::errorOccurred, &port, [this](auto fehler) { BeiFehler(fehler); });
    QObject::connect(&port, &QSerialPort::readyRead, &port, [this] { BeiEingang(); });
}

bool QtSeriellerPort::OeffneLeitung(const std::string& pfad, const Porteinstellungen& einstellungen) {
    port.setPortName(QString::fromStdString(pfad));
    Stelle(port, einstellungen);
    const bool offen = OeffneAlsEinziger(pfad);
    marken.Vergiss();
    markiert = offen && einstellungen.paritaet != Paritaet::Keine && MarkiereGebrochene(port);
    if (offen)
        SchalteLeitungenEin();
    return offen;
}

/// Opens the port unless another program of ours has it. Notes why it cannot be opened.
bool QtSeriellerPort::OeffneAlsEinziger(const std::string& pfad) {
    if (!sperre.Nimm(pfad)) {
        oeffnungsfehler = QSerialPort::PermissionError;
        fehlernummer = EBUSY;
        return false;
    }
    errno = 0;
    const bool offen = port.open(QIODevice::ReadWrite);
    const int systemnummer = errno;
    oeffnungsfehler = offen ? QSerialPort::NoError : port.error();
    fehlernummer = Fehlernummer(oeffnungsfehler, systemnummer);
    if (!offen)
        sperre.Gib();
    return offen;
}

std::string QtSeriellerPort::Oeffnungsfehler() const {
    return fehlernummer == 0 ? std::string() : Systemfehler(fehlernummer);
}

/// RTS and DTR on. A pseudo terminal has no such lines, and refuses; that does not matter.
void QtSeriellerPort::SchalteLeitungenEin() {
    leitungenWerdenGeschaltet = true;
    port.setRequestToSend(true);
    port.setDataTerminalReady(true);
    leitungenWerdenGeschaltet = false;
    port.clearError();
}

void QtSeriellerPort::Schliesse() {
    if (port.isOpen())
        port.close();
    sperre.Gib(); // last: closing has put the line's former settings back
}

/// Qt does not tell in every version and for every kind of device.
bool QtSeriellerPort::LeitungIstWeg() {
    pollfd anschluss{port.handle(), 0, 0};
    return ::poll(&anschluss, 1, 0) > 0 && IstWeg(anschluss.revents);
}

Hindernis QtSeriellerPort::Oeffnungshindernis() const {
    switch (oeffnungsfehler) {
    case QSerialPort::NoError:
        return Hindernis::Keines;
    case QSerialPort::PermissionError: // the system says busy
        return Hindernis::Belegt;
    case QSerialPort::DeviceNotFoundError:
    case QSerialPort::ResourceError: // a name of the system without a port behind it
        return Hindernis::Fehlt;
    default:
        return Hindernis::Systemfehler;
    }
}

void QtSeriellerPort::Verwirf() {
    marken.Vergiss();
    if (BytesWartend() > 0)
        port.clear(QSerialPort::Input);
}

std::size_t QtSeriellerPort::BytesWartend() {
    return port.isOpen() ? BytesGelesen() + BytesImSystem() : 0;
}

std::size_t QtSeriellerPort::BytesGelesen() const {
    return static_cast<std::size_t>(port.bytesAvailable());
}

/// Those that are not yet in Qt's buffer.
std::size_t QtSeriellerPort::BytesImSystem() {
    int anzahl = 0;
    ::ioctl(port.handle(), FIONREAD, &anzahl);
    return static_cast<std::size_t>(std::max(anzahl, 0));
}

std::string QtSeriellerPort::LiesAlles() {
    if (!port.isOpen())
        return {};
    std::string bytes;
    if (port.bytesAvailable() > 0)
        bytes = port.readAll().toStdString();
    LiesAusSystem(port, bytes);
    return markiert ? marken.Entferne(bytes) : bytes;
}

void QtSeriellerPort::Sende(std::string_view bytes) {
    if (port.bytesToWrite() == 0)
        bytes.remove_prefix(SchreibeSofort(port, bytes));
    if (!bytes.empty())
        port.write(bytes.data(), static_cast<qint64>(bytes.size()));
    if (port.isOpen() && !bytes.empty())
        port.flush();
}

/// On the line itself: the way through the event loop costs tens of microseconds for each lot of bytes.
bool QtSeriellerPort::SchlafeAnDerLeitung(Zeit hoechstens) {
    pollfd anschluss{port.handle(), POLLIN, 0};
    const Zeit dauer = std::min(hoechstens, Fensterblick);
    const timespec frist{0, static_cast<long>(std::chrono::nanoseconds(dauer).count())};
    return ::ppoll(&anschluss, 1, &frist, nullptr) <= 0 || !IstWeg(anschluss.revents);
}

bool QtSeriellerPort::LeereSender(Zeit hoechstens) {
    const Zeit ende = DieUmgebung().Uhr() + hoechstens;
    while (port.isOpen() && port.bytesToWrite() > 0) {
        if (DieUmgebung().Uhr() >= ende)
            return false;
        DieUmgebung().WarteAufEreignis(ende - DieUmgebung().Uhr());
    }
    return !port.isOpen() || LeereTreiber(port, ende);
}

void QtSeriellerPort::BeiFehler(QSerialPort::SerialPortError fehler) {
    if (fehler == QSerialPort::NoError || leitungenWerdenGeschaltet)
        return;
    Schliesse();
}

void QtSeriellerPort::BeiEingang() {
    if (BytesWartend() >= Eingabepuffergroesse)
        MeldeUeberlauf();
}

} // namespace varnoth
