#include "leitungspruefung.h"
#include "texte.h"
#include "textmitwerten.h"

#include <iterator>

namespace varnoth {

namespace {

constexpr std::int16_t TextAnschluss = 8230;
constexpr std::int16_t TextKommaPunkt = 8231;

struct Zaehlzeile {
    std::int16_t name;
    const char* schluessel;
    int (*wert)(const Pruefbefund& befund);
};

template<Pruefende Ende>
int Anzahl(const Pruefbefund& befund) {
    return befund.Anzahl(Ende);
}

constexpr Zaehlzeile DieZaehlzeilen[] = {
    {8232, "sent", [](const Pruefbefund& befund) { return befund.gesendet; }},
    {8233, "answered", Anzahl<Pruefende::Beantwortet>},
    {8234, "silent", Anzahl<Pruefende::Nichts>},
    {8235, "crc", Anzahl<Pruefende::FalscheSumme>},
    {8236, "short", Anzahl<Pruefende::Halb>},
    {8237, "foreign", Anzahl<Pruefende::Fremdes>},
    {8238, "echo", Anzahl<Pruefende::Echo>},
    {8239, "late", [](const Pruefbefund& befund) { return befund.spaete; }},
    {8240, "unasked", [](const Pruefbefund& befund) { return befund.ungefragte; }},
};

struct Zeitzeile {
    std::int16_t name;
    const char* schluessel;
    int prozent;
};

constexpr Zeitzeile DieZeitzeilen[] = {{8241, "min_ms", 0}, {8242, "median_ms", 50}, {8243, "p95_ms", 95}};

/// Milliseconds with two places and the language's own separator.
std::string Millisekunden(Zeit dauer) {
    constexpr int Zehntel = 10, Hundert = 100;
    const auto hundertstel = (dauer.count() + Zehntel / 2) / Zehntel;
    const std::string nachkomma = std::to_string(Hundert + hundertstel % Hundert).substr(1);
    return std::to_string(hundertstel / Hundert) + LadeText(TextKommaPunkt) + nachkomma;
}

} // namespace

std::vector<Pruefzeile> Pruefzeilen(const Pruefbefund& befund) {
    std::vector<Pruefzeile> zeilen;
    for (const Zaehlzeile& zeile : DieZaehlzeilen)
        zeilen.push_back({LadeText(zeile.name), std::to_string(zeile.wert(befund)), zeile.schluessel});
    for (const Zeitzeile& zeile : DieZeitzeilen)
        if (const auto dauer = Umlaufzeit(befund, zeile.prozent))
            zeilen.push_back({LadeText(zeile.name), Millisekunden(*dauer) + " ms", zeile.schluessel});
    return zeilen;
}

std::string Pruefbericht(const Pruefbefund& befund) {
    std::string text = LadeTextMit(TextAnschluss, {befund.geraet, befund.format}) + "\n";
    for (const Pruefzeile& zeile : Pruefzeilen(befund))
        text += zeile.name + ": " + zeile.wert + "\n";
    for (const Deutung& deutung : Deute(befund))
        text += deutung.text + "\n";
    return text;
}

} // namespace varnoth
