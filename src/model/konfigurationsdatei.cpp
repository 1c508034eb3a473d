#include "konfigurationsdatei.h"

#include "registerabbild.h"
#include "texte.h"
#include "umgebung.h"

#include <bit>
#include <cstdint>

namespace varnoth {

namespace {

constexpr std::int16_t TextUnbekanntesFormat = 3100;
constexpr std::int16_t TextUnbekannteVersion = 3101;

constexpr std::string_view Kennung = "Varnoth Konfiguration";
constexpr char Version = 0;
constexpr std::size_t BytesJeWert = 4;

constexpr std::size_t LaengeAllerBereiche() {
    std::size_t laenge = 0;
    for (const auto bereich : AlleSpeicherbereiche)
        laenge += AnzahlWerte(bereich) * BytesJeWert;
    return laenge;
}

static_assert(LaengeKonfigurationsdatei == Kennung.size() + sizeof Version + LaengeAllerBereiche());

/// Takes the next bytes from the front; fewer than asked for where the file ends.
std::string_view Nimm(std::string_view& bytes, std::size_t anzahl) {
    const auto genommen = bytes.substr(0, anzahl);
    bytes.remove_prefix(genommen.size());
    return genommen;
}

std::int32_t AlsWert(std::string_view bytes) {
    std::uint32_t wert = 0;
    for (std::size_t i = 0; i < BytesJeWert; ++i)
        wert |= static_cast<std::uint32_t>(static_cast<std::uint8_t>(bytes[i])) << (8 * i);
    return std::bit_cast<std::int32_t>(wert);
}

void HaengeAn(std::string& bytes, std::int32_t wert) {
    const auto bits = std::bit_cast<std::uint32_t>(wert);
    for (std::size_t i = 0; i < BytesJeWert; ++i)
        bytes += static_cast<char>(static_cast<std::uint8_t>(bits >> (8 * i)));
}

/// False when the file ends inside the range.
bool LiesBereich(std::string_view& bytes, std::span<std::int32_t> werte) {
    const auto block = Nimm(bytes, werte.size() * BytesJeWert);
    if (block.size() < werte.size() * BytesJeWert)
        return false;
    for (std::size_t i = 0; i < werte.size(); ++i)
        werte[i] = AlsWert(block.substr(i * BytesJeWert, BytesJeWert));
    return true;
}

} // namespace

Dateibefund ZerlegeKonfigurationsdatei(std::string_view bytes, Abbild& abbild) {
    if (Nimm(bytes, Kennung.size()) != Kennung || bytes.empty())
        return Dateibefund::UnbekanntesFormat;
    if (Nimm(bytes, sizeof Version).front() != Version)
        return Dateibefund::UnbekannteVersion;
    Abbild gelesen;
    for (const auto bereich : AlleSpeicherbereiche)
        if (!LiesBereich(bytes, gelesen.Bereich(bereich)))
            return Dateibefund::UnbekanntesFormat;
    abbild = gelesen;
    return Dateibefund::Gut;
}

bool ZerlegeMitMeldung(std::string_view bytes, Abbild& abbild) {
    const auto befund = ZerlegeKonfigurationsdatei(bytes, abbild);
    if (befund != Dateibefund::Gut)
        ZeigeWarnung(LadeText(befund == Dateibefund::UnbekannteVersion ? TextUnbekannteVersion
                                                                       : TextUnbekanntesFormat));
    return befund == Dateibefund::Gut;
}

std::string AlsKonfigurationsdatei(const Abbild& abbild) {
    std::string bytes(Kennung);
    bytes.reserve(LaengeKonfigurationsdatei);
    bytes += Version;
    for (const auto bereich : AlleSpeicherbereiche)
        for (const auto wert : abbild.Bereich(bereich))
            HaengeAn(bytes, wert);
    return bytes;
}

namespace modDaten {

std::string SpeichereKonfigurationsdatei() {
    return AlsKonfigurationsdatei(DasAbbild());
}

Boolean LadeKonfigurationsdatei(std::string_view bytes) {
    Abbild gelesen;
    if (!ZerlegeMitMeldung(bytes, gelesen))
        return False;
    ErsetzeAbbild(gelesen);
    SetzeGeaendert();
    return True;
}

} // namespace modDaten

} // namespace varnoth
