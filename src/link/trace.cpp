#include "trace.h"

#include "umgebung.h"
#include "zahlen.h"

#include <cerrno>
#include <cstdint>
#include <fstream>
#include <system_error>

namespace varnoth::modTrace {

namespace {

constexpr std::streamoff HoechsteGroesse = 1000000;

// The file has one byte a character (Windows-1252).
constexpr const char* Zeitueberschreitung = "Zeit\xFC"
                                            "berschreitung\r\n";
constexpr const char* WirdGeschlossen = "\r\nDie Datei wird geschlossen. Sie wird zu gro\xDF.";

std::ofstream datei;

void Schreibe(std::string_view text) {
    datei.write(text.data(), static_cast<std::streamsize>(text.size()));
    datei.flush();
}

void SchreibeZeile(std::string_view art, std::string_view bytes) {
    if (!Aktiv())
        return;
    std::string zeile(art);
    for (const char byte : bytes)
        zeile += AlsHex(static_cast<std::uint8_t>(byte)) + "H ";
    Schreibe(zeile + "\r\n");
}

} // namespace

std::string Starte(const std::filesystem::path& pfad) {
    Schliesse();
    std::error_code fehler;
    std::filesystem::remove(pfad, fehler);
    errno = 0;
    datei.open(pfad, std::ios::binary | std::ios::trunc);
    if (!datei.is_open())
        return std::error_code(errno, std::generic_category()).message();
    Schreibe("Start\r\n");
    return {};
}

void Schliesse() {
    if (datei.is_open())
        datei.close();
    datei.clear();
}

bool Aktiv() {
    return datei.is_open();
}

void SchreibeLesung(std::string_view bytes) {
    SchreibeZeile("Read: ", bytes);
}

void SchreibeSendung(std::string_view bytes) {
    SchreibeZeile("Write: ", bytes);
}

void SchreibeLeerung() {
    if (!Aktiv())
        return;
    Schreibe("ClearCommPort, ");
    if (datei.tellp() <= HoechsteGroesse)
        return;
    Schreibe(WirdGeschlossen);
    Schliesse();
    DieUmgebung().ZeigeMeldung(
        {.text = "Die Datei Test.txt wird geschlossen. Sie wird zu groß.", .symbol = Symbol::Ohne});
}

void SchreibeZeitueberschreitung() {
    if (Aktiv())
        Schreibe(Zeitueberschreitung);
}

} // namespace varnoth::modTrace
