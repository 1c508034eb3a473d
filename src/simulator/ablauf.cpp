#include "ablauf.h"

#include "eigenedatei.h"

#include <poll.h>
#include <sys/prctl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <stdexcept>

namespace varnoth::simulator {

namespace {

constexpr Zeit LaengsteWeckdauer = std::chrono::microseconds(200);
constexpr int Weckgedaechtnis = 8; // sleeps that the time for waking is averaged over

volatile sig_atomic_t sollEnden = 0;

void MerkeEnde(int) {
    sollEnden = 1;
}

/// Signals reach the program only while it sleeps, so that none falls between a look and the sleep.
sigset_t RichteSignaleEin() {
    sigset_t gesperrt, vorher;
    sigemptyset(&gesperrt);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction aktion {};
        aktion.sa_handler = MerkeEnde;
        sigaction(signal, &aktion, nullptr);
        sigaddset(&gesperrt, signal);
    }
    sigprocmask(SIG_BLOCK, &gesperrt, &vorher);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigdelset(&vorher, signal);
    return vorher;
}

/// Sleeps end when they should, not some tens of microseconds later.
void WeckePuenktlich() {
    prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
}

/// What a receiver in another format makes of the characters.
void Verstuemmle(Bytes& zeichen) {
    constexpr std::uint8_t AndereBits = 0xA5;
    for (auto& eines : zeichen)
        eines ^= AndereBits;
}

timespec AlsTimespec(std::chrono::nanoseconds dauer) {
    const auto sekunden = std::chrono::floor<std::chrono::seconds>(dauer);
    return {static_cast<time_t>(sekunden.count()), static_cast<long>((dauer - sekunden).count())};
}

} // namespace

Ablauf::Ablauf(const Optionen& optionen)
    : schlafmaske(RichteSignaleEin()), simulator(MitProtokoll(optionen)), format(optionen.aufbau.format),
      echo(optionen.echo), pty(optionen.verknuepfung), kanal(optionen.steuerkanal) {
    WeckePuenktlich();
    pty.Stecke();
}

Aufbau Ablauf::MitProtokoll(const Optionen& optionen) {
    Aufbau aufbau = optionen.aufbau;
    if (optionen.protokoll == "-") {
        aufbau.protokoll = [](std::string_view zeile) { std::cout << zeile << std::endl; };
    } else if (!optionen.protokoll.empty()) {
        protokoll = OeffneZumSchreiben(optionen.protokoll);
        if (protokoll.Nummer() < 0)
            throw std::runtime_error("--log " + optionen.protokoll + ": " + std::strerror(errno));
        aufbau.protokoll = [this](std::string_view zeile) {
            SchreibeAlles(protokoll, std::string(zeile) + '\n');
        };
    }
    return aufbau;
}

Zeit Ablauf::Jetzt() const {
    return std::chrono::duration_cast<Zeit>(std::chrono::steady_clock::now() - anfang);
}

void Ablauf::Laufe() {
    std::vector<pollfd> liste;
    while (sollEnden == 0) {
        liste.assign(1, {pty.Deskriptor(), POLLIN, 0});
        kanal.Beobachte(liste);
        Schlafe(liste);
        LiesAnfragen(liste);
        SendeFaelliges();
        kanal.Bediene(liste, [this](std::string_view zeile) { return FuehreAus(zeile); });
    }
}

/// Sleeps a little shorter by what waking took lately, and does not sleep at all that shortly before bytes
/// are due: a wire is not late.
void Ablauf::Schlafe(std::vector<pollfd>& liste) {
    const auto faellig = simulator.NaechsteFaelligkeit();
    const Zeit weckzeit = faellig.value_or(Zeit{0}) - weckdauer;
    const timespec frist = AlsTimespec(std::max(weckzeit - Jetzt(), Zeit{0}));
    const int bereit = ::ppoll(liste.data(), liste.size(), faellig ? &frist : nullptr, &schlafmaske);
    if (bereit < 0)
        for (pollfd& eines : liste)
            eines.revents = 0;
    if (bereit == 0 && frist.tv_nsec > 0)
        weckdauer += (std::min(Jetzt() - weckzeit, LaengsteWeckdauer) - weckdauer) / Weckgedaechtnis;
}

void Ablauf::LiesAnfragen(const std::vector<pollfd>& liste) {
    if ((liste.front().revents & POLLIN) == 0)
        return;
    const Zeit jetzt = Jetzt();
    const auto zeichen = pty.Lies();
    if (WirdVerstanden())
        simulator.Empfange(zeichen, jetzt);
    if (echo)
        pty.Schreibe(zeichen);
}

bool Ablauf::WirdVerstanden() const {
    return !format || pty.IstEingestelltAuf(*format);
}

void Ablauf::SendeFaelliges() {
    const auto faellig = simulator.NaechsteFaelligkeit();
    const Zeit jetzt = Jetzt();
    if (!faellig || *faellig > jetzt)
        return;
    auto zeichen = simulator.Entnimm(jetzt);
    if (!WirdVerstanden())
        Verstuemmle(zeichen);
    pty.Schreibe(zeichen);
}

std::string Ablauf::FuehreAus(std::string_view zeile) {
    if (zeile == "unplug") {
        pty.Ziehe();
        simulator.TrenneLeitung();
        return "ok";
    }
    if (zeile != "plug")
        return simulator.Befehl(zeile, Jetzt());
    try {
        pty.Stecke();
        return "ok " + pty.Geraet();
    } catch (const std::runtime_error& fehler) {
        return std::string("error ") + fehler.what();
    }
}

} // namespace varnoth::simulator
