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
std::string schreibfehler; // why the file takes no more; empty while it does

std::string Systemfehler() {
    return std::error_code(errno != 0 ? errno : EIO, std::generic_category()).message();
}

void Schreibe(std::string_view text) {
    errno = 0;
    datei.write(text.data(), static_cast<std::streamsize>(text.size()));
    datei.flush();
    if (!datei && schreibfehler.empty())
        schreibfehler = Systemfehler();
}

void Beende(const std::string& grund, Symbol symbol) {
    const std::string text = "Die Datei Test.txt wird geschlossen. " + grund;
    Schliesse();
    DieUmgebung().ZeigeMeldung({.text = text, .symbol = symbol});
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
    std::error_code ohneBelang;
    std::filesystem::remove(pfad, ohneBelang);
    errno = 0;
    datei.open(pfad, std::ios::binary | std::ios::trunc);
    if (!datei.is_open())
        return Systemfehler();
    Schreibe("Start\r\n");
    const std::string fehler = schreibfehler;
    if (!fehler.empty())
        Schliesse();
    return fehler;
}

void Schliesse() {
    if (datei.is_open())
        datei.close();
    datei.clear();
    schreibfehler.clear();
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
    if (!schreibfehler.empty()) {
        Beende(schreibfehler, Symbol::Warnung);
    } else if (datei.tellp() > HoechsteGroesse) {
        Schreibe(WirdGeschlossen);
        Beende("Sie wird zu groß.", Symbol::Ohne);
    }
}

void SchreibeZeitueberschreitung() {
    if (Aktiv())
        Schreibe(Zeitueberschreitung);
}

} // namespace varnoth::modTrace
