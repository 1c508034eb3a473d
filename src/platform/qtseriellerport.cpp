#include "qtseriellerport.h"

#include "geraetebefund.h"
#include "geraetepfade.h"
#include "portbenutzer.h"
#include "porteinstellungen.h"
#include "systemfehler.h"
#include "verbindungsauskunft.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <thread>
#include <utility>

#ifdef Q_OS_UNIX
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <future>
#endif

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

// While a reply comes in, window events are served this often.
constexpr Zeit Fensterblick = std::chrono::milliseconds(4);
// The system hands a request on once this thread sleeps; painting right after sending would hold it up.
constexpr Zeit Uebergabe = std::chrono::microseconds(200);
// Whether the far end has hung up is asked for this often at most; an exchange would ask five times.
constexpr Zeit Leitungsblick = std::chrono::milliseconds(1);

#ifdef Q_OS_UNIX
bool IstWeg(short meldungen) {
    return (meldungen & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}
#endif

/// Whether the line behind an open port is gone. Qt does not tell in every version and for every kind of
/// device.
bool LeitungIstWeg([[maybe_unused]] QSerialPort& port) {
#ifdef Q_OS_UNIX
    pollfd anschluss{port.handle(), 0, 0};
    return ::poll(&anschluss, 1, 0) > 0 && IstWeg(anschluss.revents);
#else
    return false;
#endif
}

/// Sleeps on the line itself until something has arrived or the time has passed: the way through the event
/// loop costs tens of microseconds for each lot of bytes. Gives whether the line is known to be
/// still there.
bool SchlafeAnDerLeitung([[maybe_unused]] QSerialPort& port, [[maybe_unused]] Zeit hoechstens) {
#ifdef Q_OS_LINUX
    pollfd anschluss{port.handle(), POLLIN, 0};
    const auto sekunden = std::chrono::floor<std::chrono::seconds>(hoechstens);
    const timespec frist{static_cast<time_t>(sekunden.count()),
                         static_cast<long>(std::chrono::nanoseconds(hoechstens - sekunden).count())};
    return ::ppoll(&anschluss, 1, &frist, nullptr) <= 0 || !IstWeg(anschluss.revents);
#else
    DieUmgebung().WarteAufEreignis(hoechstens);
    return false;
#endif
}

/// Number of bytes that wait in the system, not yet in the port's own buffer.
std::size_t BytesImSystem([[maybe_unused]] QSerialPort& port) {
    int anzahl = 0;
#ifdef Q_OS_UNIX
    ::ioctl(port.handle(), FIONREAD, &anzahl);
#endif
    return static_cast<std::size_t>(std::max(anzahl, 0));
}

/// Adds the bytes that wait in the system.
void LiesAusSystem([[maybe_unused]] QSerialPort& port, [[maybe_unused]] std::string& bytes) {
#ifdef Q_OS_UNIX
    std::array<char, 512> stueck; // NOLINT(*-member-init): read fills it
    ssize_t gelesen = 0;
    do {
        gelesen = ::read(port.handle(), stueck.data(), stueck.size());
        bytes.append(stueck.data(), static_cast<std::size_t>(std::max<ssize_t>(gelesen, 0)));
    } while (gelesen == static_cast<ssize_t>(stueck.size()));
#endif
}

/// Hands over what the system takes at once, which is all but always the whole request, and gives how many
/// bytes that was. QSerialPort itself would switch a notifier on and off for each write, which wakes the
/// event loop twice.
std::size_t SchreibeSofort([[maybe_unused]] QSerialPort& port, [[maybe_unused]] std::string_view bytes) {
#ifdef Q_OS_UNIX
    return static_cast<std::size_t>(std::max<ssize_t>(::write(port.handle(), bytes.data(), bytes.size()), 0));
#else
    return 0;
#endif
}

/// Lets the driver check parity and mark the bytes that arrive broken, which QSerialPort does not ask for: it
/// would hand them over like any other. Gives whether the driver does.
bool MarkiereGebrochene([[maybe_unused]] QSerialPort& port) {
#ifdef Q_OS_UNIX
    termios stand{};
    if (::tcgetattr(port.handle(), &stand) != 0)
        return false;
    stand.c_iflag |= INPCK | PARMRK;
    stand.c_iflag &= ~static_cast<tcflag_t>(IGNPAR);
    return ::tcsetattr(port.handle(), TCSANOW, &stand) == 0;
#else
    return false;
#endif
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
bool LeereTreiber([[maybe_unused]] QSerialPort& port, [[maybe_unused]] Zeit ende) {
#ifdef Q_OS_UNIX
    constexpr Zeit Blick = std::chrono::milliseconds(1);
    const auto warten = std::async(std::launch::async, [anschluss = port.handle()] { ::tcdrain(anschluss); });
    while (warten.wait_for(Blick) != std::future_status::ready) {
        DieUmgebung().NutzeWartezeit();
        if (port.isOpen() && DieUmgebung().Uhr() >= ende) {
            ::tcflush(port.handle(), TCOFLUSH);
            return false;
        }
    }
#endif
    return true;
}

} // namespace

QtSeriellerPort::QtSeriellerPort() {
    QObject::connect(&port, &QSerialPort::errorOccurred, &port, [this](auto fehler) { BeiFehler(fehler); });
    QObject::connect(&port, &QSerialPort::readyRead, &port, [this] { BeiEingang(); });
}

bool QtSeriellerPort::Oeffne(int nummer, const std::string& einstellungen) {
    Schliesse();
    const auto gelesen = LiesPorteinstellungen(einstellungen);
    falscheEinstellung.reset();
    if (!gelesen) {
        falscheEinstellung = einstellungen;
        return false;
    }
    port.setPortName(QString::fromStdString(Pfad(nummer)));
    Stelle(port, *gelesen);
    const bool offen = OeffneAlsEinziger(Pfad(nummer));
    marken.Vergiss();
    markiert = offen && gelesen->paritaet != Paritaet::Keine && MarkiereGebrochene(port);
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

void QtSeriellerPort::SetzeGeraet(const std::string& pfad) {
    genanntes = pfad;
}

std::string QtSeriellerPort::Pfad(int nummer) const {
    return genanntes.empty() ? Geraetepfad(nummer) : genanntes;
}

std::string QtSeriellerPort::Fehlertext() const {
    if (falscheEinstellung)
        return KeinLeitungsformat(*falscheEinstellung);
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

bool QtSeriellerPort::IstOffen() {
    const Zeit jetzt = DieUmgebung().Uhr();
    if (port.isOpen() && jetzt >= naechsterLeitungsblick) {
        naechsterLeitungsblick = jetzt + Leitungsblick;
        if (LeitungIstWeg(port))
            Schliesse();
    }
    return port.isOpen();
}

Anschluss QtSeriellerPort::AnschlussVon(int nummer) const {
    return {.geraet = Pfad(nummer)};
}

Portbefund QtSeriellerPort::BefundVon(int nummer) const {
    if (falscheEinstellung)
        return {.hindernis = Hindernis::Einstellung};
    const std::string pfad = Pfad(nummer);
    Portbefund befund = BefundDesGeraets(pfad);
    befund.prozesse = ProzesseAn(pfad);
    if (befund.hindernis == Hindernis::Keines)
        befund.hindernis = HindernisNachFehler();
    return befund;
}

/// What the failure of opening tells where nothing is wrong with the device's path and rights.
Hindernis QtSeriellerPort::HindernisNachFehler() const {
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
    return port.isOpen() ? static_cast<std::size_t>(port.bytesAvailable()) + BytesImSystem(port) : 0;
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

void QtSeriellerPort::Schreibe(std::string_view bytes) {
    if (!port.isOpen())
        return;
    if (port.bytesToWrite() == 0)
        bytes.remove_prefix(SchreibeSofort(port, bytes));
    if (!bytes.empty())
        port.write(bytes.data(), static_cast<qint64>(bytes.size()));
    if (port.isOpen() && !bytes.empty())
        port.flush();
    UebergibUndMale();
}

/// The line is busy: a good time for what was put off. Events have just run in the pause before a request. A
/// line that has answered by now leaves the window to its usual turn.
void QtSeriellerPort::UebergibUndMale() {
    if (!DieUmgebung().BrauchtWartezeit()) {
        naechsterFensterblick = DieUmgebung().Uhr() + Fensterblick;
        return;
    }
    if (port.isOpen())
        Schlummere(Uebergabe);
    if (BytesImSystem(port) == 0 || DieUmgebung().Uhr() >= naechsterFensterblick)
        SchaueNachDemFenster();
}

/// The window's turn: the line is busy.
void QtSeriellerPort::SchaueNachDemFenster() {
    DieUmgebung().NutzeWartezeit();
    naechsterFensterblick = DieUmgebung().Uhr() + Fensterblick;
}

/// Sleeps on the open line. A line that has nothing to say of itself then need not be asked right away.
void QtSeriellerPort::Schlummere(Zeit hoechstens) {
    if (SchlafeAnDerLeitung(port, hoechstens))
        naechsterLeitungsblick = DieUmgebung().Uhr() + Leitungsblick;
}

void QtSeriellerPort::WarteAufEingang(Zeit hoechstens) {
    if (port.bytesAvailable() > 0)
        return;
    if (!IstOffen()) {
        DieUmgebung().WarteAufEreignis(hoechstens);
        return;
    }
    if (DieUmgebung().Uhr() >= naechsterFensterblick) {
        if (BytesImSystem(port) > 0)
            return;
        SchaueNachDemFenster();
    }
    if (port.isOpen() && port.bytesAvailable() == 0)
        Schlummere(std::min(hoechstens, Fensterblick));
}

void QtSeriellerPort::Schlafe([[maybe_unused]] Zeit hoechstens) {
#ifdef Q_OS_LINUX
    const Zeit ende = DieUmgebung().Uhr() + hoechstens;
    const Zeit bis = std::min(ende, naechsterFensterblick);
    std::this_thread::sleep_for(bis - DieUmgebung().Uhr());
    if (bis < ende)
        SchaueNachDemFenster();
#endif
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

void QtSeriellerPort::SetzeEreignisbehandlung(std::function<void(int)> behandlung) {
    ereignisbehandlung = std::move(behandlung);
}

void QtSeriellerPort::BeiFehler(QSerialPort::SerialPortError fehler) {
    if (fehler == QSerialPort::NoError || leitungenWerdenGeschaltet)
        return;
    Schliesse();
}

void QtSeriellerPort::BeiEingang() {
    if (BytesWartend() >= Eingabepuffergroesse && ereignisbehandlung)
        ereignisbehandlung(EreignisEmpfangspufferUeberlauf);
}

} // namespace varnoth
