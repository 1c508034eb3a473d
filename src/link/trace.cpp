#include "trace.h"

#include "startzustand.h"
#include "systemfehler.h"
#include "tracedatei.h"
#include "umgebung.h"
#include "zahlen.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <memory>

namespace varnoth::modTrace {

namespace {

constexpr long HoechsteGroesse = 1000000;

// The file has one byte a character (Windows-1252).
constexpr const char* Zeitueberschreitung = "Zeit\xFC"
                                            "berschreitung\r\n";
constexpr const char* WirdGeschlossen = "\r\nDie Datei wird geschlossen. Sie wird zu gro\xDF.";

struct Schliesser {
    void operator()(std::FILE* offene) const { std::fclose(offene); }
};

std::unique_ptr<std::FILE, Schliesser> datei;
std::string schreibfehler; // why the file takes no more; empty while it does
const Startwert startwert(datei, schreibfehler);

std::string LetzterFehler() {
    return Systemfehler(errno != 0 ? errno : EIO);
}

void Schreibe(std::string_view text) {
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), datei.get()) != text.size() && schreibfehler.empty())
        schreibfehler = LetzterFehler();
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
    datei.reset(LegePrivateDateiAn(pfad)); // passwords go over the line too
    if (datei == nullptr)
        return LetzterFehler();
    Schreibe("Start\r\n");
    std::string fehler = schreibfehler;
    if (!fehler.empty())
        Schliesse();
    return fehler;
}

void Schliesse() {
    datei.reset();
    schreibfehler.clear();
}

bool Aktiv() {
    return datei != nullptr;
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
    } else if (std::ftell(datei.get()) > HoechsteGroesse) {
        Schreibe(WirdGeschlossen);
        Beende("Sie wird zu groß.", Symbol::Ohne);
    }
}

void SchreibeZeitueberschreitung() {
    if (Aktiv())
        Schreibe(Zeitueberschreitung);
}

} // namespace varnoth::modTrace
