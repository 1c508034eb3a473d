#include "konfigurationsdatei.h"

#include "registerabbild.h"
#include "texte.h"
#include "umgebung.h"

#include <bit>
#include <cstdint>

namespace varnoth::modDaten {

namespace {

constexpr std::string_view Kennung = "Varnoth Konfiguration";
constexpr char Version = 0;
constexpr std::size_t BytesJeWert = 4;

constexpr std::int16_t TextUnbekanntesFormat = 3100;
constexpr std::int16_t TextUnbekannteVersion = 3101;

constexpr std::size_t AnzahlWerte(Speicherbereich bereich) {
    return Stelle(bereich, AnzahlAdressen(bereich));
}

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
bool LiesBereich(std::string_view& bytes, Speicherbereich bereich, Werte& werte) {
    const std::size_t anzahl = AnzahlWerte(bereich);
    const auto block = Nimm(bytes, anzahl * BytesJeWert);
    if (block.size() < anzahl * BytesJeWert)
        return false;
    werte.resize(anzahl);
    for (std::size_t i = 0; i < anzahl; ++i)
        werte[i] = AlsWert(block.substr(i * BytesJeWert, BytesJeWert));
    return true;
}

} // namespace

Dateibefund ZerlegeKonfigurationsdatei(std::string_view bytes, Dateiinhalt& inhalt) {
    if (Nimm(bytes, Kennung.size()) != Kennung || bytes.empty())
        return Dateibefund::UnbekanntesFormat;
    if (Nimm(bytes, sizeof Version).front() != Version)
        return Dateibefund::UnbekannteVersion;
    for (const auto bereich : AlleSpeicherbereiche)
        if (!LiesBereich(bytes, bereich, inhalt[static_cast<std::size_t>(bereich)]))
            return Dateibefund::UnbekanntesFormat;
    return Dateibefund::Gut;
}

std::string SpeichereKonfigurationsdatei() {
    std::string bytes(Kennung);
    bytes.reserve(LaengeKonfigurationsdatei);
    bytes += Version;
    for (const auto bereich : AlleSpeicherbereiche)
        for (const auto wert : Bereich(bereich))
            HaengeAn(bytes, wert);
    return bytes;
}

Boolean LadeKonfigurationsdatei(std::string_view bytes) {
    Dateiinhalt inhalt;
    const auto befund = ZerlegeKonfigurationsdatei(bytes, inhalt);
    if (befund != Dateibefund::Gut) {
        ZeigeWarnung(LadeText(befund == Dateibefund::UnbekannteVersion ? TextUnbekannteVersion
                                                                       : TextUnbekanntesFormat));
        return False;
    }
    for (const auto bereich : AlleSpeicherbereiche)
        ErsetzeBereich(bereich, inhalt[static_cast<std::size_t>(bereich)]);
    SetzeGeaendert();
    return True;
}

} // namespace varnoth::modDaten
