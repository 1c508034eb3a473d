#include "ablauf.h"
#include "band.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <utility>

namespace {

using namespace varnoth::simulator;

constexpr int FalscherAufruf = 2;

/// Has the system end this program with the one that started it.
void EndeMitEltern() {
    const pid_t eltern = ::getppid();
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != eltern)
        std::exit(EXIT_SUCCESS);
}

void Diene(Optionen optionen) {
    if (!optionen.wiedergabe.empty())
        optionen.aufbau.band = std::make_shared<Band>(optionen.wiedergabe);
    if (optionen.endetMitEltern)
        EndeMitEltern();
    Ablauf ablauf(optionen);
    std::cout << "serving " << ablauf.Geraet();
    if (!optionen.verknuepfung.empty())
        std::cout << " as " << optionen.verknuepfung;
    std::cout << std::endl;
    ablauf.Laufe();
}

int Melde(const std::exception& fehler, int ergebnis) {
    std::cerr << "varnoth-simulator: " << fehler.what() << std::endl;
    return ergebnis;
}

} // namespace

int main(int anzahl, char* worte[]) {
    try {
        Optionen optionen = LiesOptionen({worte + 1, static_cast<std::size_t>(anzahl - 1)});
        if (optionen.hilfe)
            std::cout << Hilfetext();
        else if (optionen.version)
            std::cout << "varnoth-simulator " VARNOTH_VERSION "\n";
        else
            Diene(std::move(optionen));
        return EXIT_SUCCESS;
    } catch (const std::invalid_argument& fehler) {
        return Melde(fehler, FalscherAufruf);
    } catch (const std::exception& fehler) {
        return Melde(fehler, EXIT_FAILURE);
    }
}
