#include "erkenner.h"

#include "rahmen.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr int HoechstensAbgelehnt = 10;
constexpr std::size_t CrcBytes = 2;

/// Length of the whole valid identification reply that the bytes begin with, 0 when they do not.
std::size_t LaengeDerIdentAntwort(std::string_view bytes) {
    constexpr std::size_t Kopf = 3, Pruefsumme = 2;
    if (bytes.size() < Kopf || static_cast<Funktion>(bytes[1]) != Funktion::Identifikation)
        return 0;
    const std::size_t laenge = Kopf + static_cast<std::uint8_t>(bytes[2]) + Pruefsumme;
    if (bytes.size() < laenge)
        return 0;
    // The CRC of a frame together with its own CRC is 0.
    return CrcVon(bytes.substr(0, laenge)) == 0 ? laenge : 0;
}

} // namespace

bool Erkenner::Verarbeite(std::string_view bytes) {
    for (const char byte : bytes) {
        if (Fertig()) {
            ueberzaehlig = true;
            break;
        }
        ++genommen;
        VerarbeiteByte(static_cast<std::uint8_t>(byte));
        if (abgelehnt > HoechstensAbgelehnt)
            return false;
    }
    return true;
}

void Erkenner::VerarbeiteByte(std::uint8_t byte) {
    switch (zustand) {
    case CrcLow:
        empfangenLow = byte;
        zustand = CrcHigh;
        break;
    case CrcHigh:
        empfangenHigh = byte;
        zustand = Ende;
        break;
    default:
        crc = CrcUpdate(crc, byte);
        zustand = NachByte(zustand, byte);
    }
}

std::size_t Erkenner::MindestensNoch() const {
    if (zustand >= CrcLow)
        return static_cast<std::size_t>(Ende - zustand);
    const std::size_t bisEnde = BisCrc(zustand) + CrcBytes;
    const auto bisAufgabe = static_cast<std::size_t>(HoechstensAbgelehnt + 1 - abgelehnt);
    return zustand <= ErstesEigenes ? std::min(bisEnde, bisAufgabe) : bisEnde; // later on few are rejected
}

bool Erkenner::CrcStimmt() const {
    return empfangenHigh == HiByte(crc) && empfangenLow == LoByte(crc);
}

LeseErkenner::LeseErkenner(std::int16_t slaveAdresse, std::uint16_t anzahl)
    : adresse(LoByte(slaveAdresse)), datenlaenge(std::size_t{2} * anzahl) {}

int LeseErkenner::NachByte(int stand, std::uint8_t byte) {
    constexpr int Bytezahl = ErstesEigenes;
    constexpr int Datenbyte = Bytezahl + 1;
    switch (stand) {
    case Adresse:
        // The rejected byte stays in the CRC: a reply behind stray bytes fails its checksum.
        if (byte == adresse)
            return Funktionscode;
        LehneAb();
        return Adresse;
    case Funktionscode:
        return byte == static_cast<std::uint8_t>(Funktion::Lesen) ? Bytezahl : Adresse;
    case Bytezahl:
        if (byte != datenlaenge)
            return Adresse;
        daten.clear();
        return datenlaenge < 1 ? CrcLow : Datenbyte;
    default:
        daten += static_cast<char>(byte);
        return daten.size() == datenlaenge ? CrcLow : Datenbyte;
    }
}

std::size_t LeseErkenner::BisCrc(int stand) const {
    constexpr int Bytezahl = ErstesEigenes;
    if (stand <= Bytezahl)
        return static_cast<std::size_t>(Bytezahl + 1 - stand) + datenlaenge;
    return datenlaenge - daten.size();
}

SchreibErkenner::SchreibErkenner(std::int16_t slaveAdresse, std::uint16_t start, std::uint16_t anzahl)
    : adresse(LoByte(slaveAdresse)) {
    for (const auto wort : {start, anzahl}) {
        echo += static_cast<char>(HiByte(wort));
        echo += static_cast<char>(LoByte(wort));
    }
}

int SchreibErkenner::NachByte(int stand, std::uint8_t byte) {
    if (stand == Adresse) {
        if (byte == adresse)
            return Funktionscode;
        LehneAb();
        return Adresse;
    }
    if (stand == Funktionscode)
        return byte == static_cast<std::uint8_t>(Funktion::Schreiben) ? ErstesEigenes : Adresse;
    const auto stelle = static_cast<std::size_t>(stand - ErstesEigenes);
    if (byte != static_cast<std::uint8_t>(echo.at(stelle)))
        return Adresse;
    return stelle + 1 == echo.size() ? CrcLow : stand + 1;
}

std::size_t SchreibErkenner::BisCrc(int stand) const {
    return static_cast<std::size_t>(ErstesEigenes - stand) + echo.size();
}

int IdentErkenner::NachByte(int stand, std::uint8_t byte) {
    constexpr int Bytezahl = ErstesEigenes;
    constexpr int Identbyte1 = Bytezahl + 1;
    constexpr int Identbyte2 = Identbyte1 + 1;
    constexpr int Textzeichen = Identbyte2 + 1;
    switch (stand) {
    case Adresse:
        ziel.slaveAdresse = byte;
        return Funktionscode;
    case Funktionscode:
        return NachFunktionscode(byte);
    case Bytezahl:
        erwartet = byte;
        return byte == 0 ? CrcLow : Identbyte1;
    case Identbyte1:
        ziel.byte1 = byte;
        return NachDatenbyte(Identbyte2);
    case Identbyte2:
        ziel.byte2 = byte;
        return NachDatenbyte(Textzeichen);
    default:
        text += static_cast<char>(byte);
        return NachDatenbyte(Textzeichen);
    }
}

int IdentErkenner::NachFunktionscode(std::uint8_t byte) {
    if (byte == static_cast<std::uint8_t>(Funktion::Identifikation))
        return ErstesEigenes;
    LehneAb();
    ziel.slaveAdresse = byte;
    BeginneCrcMit(byte);
    return Funktionscode;
}

int IdentErkenner::NachDatenbyte(int naechster) {
    return ++empfangen < erwartet ? naechster : CrcLow;
}

std::size_t IdentErkenner::BisCrc(int stand) const {
    constexpr int Bytezahl = ErstesEigenes;
    if (stand <= Bytezahl)
        return static_cast<std::size_t>(Bytezahl + 1 - stand);
    return static_cast<std::size_t>(erwartet - empfangen);
}

bool NimmIdentAntwort(std::string& strom) {
    for (std::size_t beginn = 0; beginn < strom.size(); ++beginn) {
        const std::size_t laenge = LaengeDerIdentAntwort(std::string_view(strom).substr(beginn));
        if (laenge == 0)
            continue;
        strom.erase(0, beginn + laenge);
        return true;
    }
    return false;
}

} // namespace varnoth
