#include "rahmen.h"

#include "crc.h"

namespace varnoth {

namespace {

constexpr std::int16_t Rundruf = 0;

void HaengeByteAn(std::string& rahmen, std::int32_t wert) {
    rahmen += static_cast<char>(LoByte(wert));
}

void HaengeWortAn(std::string& rahmen, std::int32_t wert) {
    HaengeByteAn(rahmen, wert >> 8);
    HaengeByteAn(rahmen, wert);
}

std::string Beginn(std::int16_t slaveAdresse, Funktion funktion) {
    std::string rahmen;
    HaengeByteAn(rahmen, slaveAdresse);
    HaengeByteAn(rahmen, static_cast<std::int32_t>(funktion));
    return rahmen;
}

std::string MitCrc(std::string rahmen) {
    const Crc crc = CrcVon(rahmen);
    HaengeByteAn(rahmen, LoByte(crc));
    HaengeByteAn(rahmen, HiByte(crc));
    return rahmen;
}

} // namespace

std::string LeseAnforderung(std::int16_t slaveAdresse, std::uint16_t start, std::uint16_t anzahl) {
    std::string rahmen = Beginn(slaveAdresse, Funktion::Lesen);
    HaengeWortAn(rahmen, start);
    HaengeWortAn(rahmen, anzahl);
    return MitCrc(std::move(rahmen));
}

std::string SchreibAnforderung(std::int16_t slaveAdresse, std::uint16_t start, std::uint16_t anzahl,
                               const Werte& werte) {
    std::string rahmen = Beginn(slaveAdresse, Funktion::Schreiben);
    HaengeWortAn(rahmen, start);
    HaengeWortAn(rahmen, anzahl);
    HaengeByteAn(rahmen, 2 * anzahl);
    for (std::size_t i = 0; i < anzahl; ++i)
        HaengeWortAn(rahmen, werte.at(i));
    return MitCrc(std::move(rahmen));
}

std::string IdentifikationsAnforderung() {
    return MitCrc(Beginn(Rundruf, Funktion::Identifikation));
}

std::string KommandoRahmen(std::int16_t slaveAdresse) {
    return MitCrc(Beginn(slaveAdresse, Funktion::Kommando));
}

} // namespace varnoth
