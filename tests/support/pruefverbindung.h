#pragma once

#include "suchlauf.h"
#include "verbindungsanbieter.h"

#include <string>
#include <vector>

namespace varnoth::pruefung {

/// A machine with ports that a test says, and with settings that take over at once what is chosen.
struct PruefVerbindung : Verbindungsanbieter {
    PruefVerbindung() {
        stand.wahl.geraete = {"/dev/ttyS0", "/dev/ttyS1", "/dev/ttyS2", "/dev/ttyS3"};
        stand.wahl.format = "38400,n,8,2";
        FolgeNamen();
    }

    std::vector<Portangabe> Ports() override { return ports; }
    Anschlussstand Stand() override { return stand; }
    Portbefund Befund(const std::string& geraet) override {
        gefragte = geraet;
        return befund;
    }
    void Uebernimm(const Anschlusswahl& wahl, bool verbinde) override {
        stand.wahl = wahl;
        FolgeNamen();
        verbunden += verbinde ? 1 : 0;
        ++uebernommen;
    }
    void Suche(const std::vector<std::string>& geraete) override { gesuchte.push_back(geraete); }
    void PruefeLeitung() override { ++pruefungen; }
    void BrichAb() override { ++abbrueche; }
    std::string StelleVerzoegerung(const Portangabe& port) override {
        gestellt = port.geraet;
        return stellfehler;
    }

    /// Names lead where they say, to devices that are not there.
    void FolgeNamen() {
        stand.ziele = stand.wahl.geraete;
        stand.befunde.fill({.hindernis = Hindernis::Fehlt});
    }

    std::vector<Portangabe> ports;
    Anschlussstand stand;
    std::string gefragte;
    Portbefund befund{.hindernis = Hindernis::Fehlt};
    int uebernommen = 0;
    int verbunden = 0;
    std::vector<std::vector<std::string>> gesuchte;
    int pruefungen = 0;
    int abbrueche = 0;
    std::string gestellt;
    std::string stellfehler;
};

/// An adapter as most are.
inline Portangabe EinAdapter(const std::string& geraet = "/dev/ttyUSB0") {
    return {.geraet = geraet,
            .bezeichnung = "FT232R USB UART",
            .hersteller = "FTDI",
            .seriennummer = "A50285BI",
            .stabileNamen = {"/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A50285BI-if00-port0"},
            .verzoegerungsdatei = "/sys/bus/usb-serial/devices/ttyUSB0/latency_timer",
            .verzoegerungMs = 16};
}

/// A found controller.
inline Suchfund EinFund(const std::string& geraet = "/dev/ttyUSB0",
                        const std::string& format = "9600,e,8,1") {
    return {.versuch = {geraet, format},
            .ident = {.gueltig = True,
                      .slaveAdresse = 17,
                      .byte1 = 0,
                      .byte2 = 1,
                      .text1 = "Varnoth M",
                      .text2 = "VM-2024-00017",
                      .text3 = "c"},
            .versuche = 9,
            .text = "found"};
}

} // namespace varnoth::pruefung
