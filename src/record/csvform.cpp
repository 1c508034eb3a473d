#include "csvform.h"

#include "kalenderzeit.h"
#include "registeradressen.h"
#include "statusbits.h"
#include "strahlbits.h"
#include "texte.h"
#include "textschutz.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <string_view>
#include <utility>

namespace varnoth {

namespace {

constexpr std::string_view Zeilenende = "\r\n";
constexpr std::string_view Bytefolgemarke = "\xEF\xBB\xBF";
constexpr std::size_t SpaltenDesTeils = 23; // from the part to the beams

constexpr std::int16_t TextZeit = 6200, TextSekunden = 6201, TextTeil = 6202, TextZustand = 6203,
                       TextMinimum = 6204, TextMaximum = 6205, TextGeblankt = 6206, TextAusgang = 6207,
                       TextStrahlen = 6208, TextEreignis = 6209;
constexpr std::int16_t Ereignistexte[] = {6210, 6211, 6212, 6213, 6214, 6215};
constexpr const char* Groessen[] = {"TU", "HU", "ZU", "TNU", "HNU", "ZNU"};

void HaengeAn(std::string& ziel, int zahl) {
    std::array<char, 12> ziffern{};
    const auto ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl).ptr;
    ziel.append(ziffern.data(), ende);
}

/// As text, so that no spreadsheet reads "1E05" as a number.
std::string Registerhex(std::uint16_t wert) {
    std::array<char, 8> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "0x%04X", static_cast<unsigned>(wert));
    return puffer.data();
}

bool IstFrei(const Teilmessung& messung, int strahl) {
    const auto stelle = static_cast<std::size_t>(strahl / 16);
    const int bit = strahl % 16 < 8 ? strahl % 16 + 8 : strahl % 16 - 8;
    return (messung.strahlregister.at(stelle) >> static_cast<unsigned>(bit) & 1U) != 0;
}

} // namespace

Csvworte LadeCsvworte() {
    Csvworte worte;
    for (const std::int16_t id : {TextZeit, TextSekunden, TextTeil, TextZustand})
        worte.spalten.push_back(LadeText(id));
    for (const std::string& zusatz :
         {std::string(), " " + LadeText(TextMinimum), " " + LadeText(TextMaximum)})
        for (const char* const groesse : Groessen)
            worte.spalten.push_back(groesse + zusatz);
    for (const std::int16_t id : {TextGeblankt, TextAusgang, TextStrahlen, TextEreignis})
        worte.spalten.push_back(LadeText(id));
    std::ranges::transform(Ereignistexte, worte.ereignisse.begin(),
                           [](std::int16_t id) { return LadeText(id); });
    return worte;
}

Csvform::Csvform(Csvart welche, Csvworte dieWorte)
    : art(welche), trenner(welche == Csvart::ExcelDeutsch ? ';' : ','), worte(std::move(dieWorte)) {}

std::string Csvform::Beginne(const Messangaben& /*angaben*/,
                             std::shared_ptr<const Abbild> /*konfiguration*/) {
    std::string kopf(art == Csvart::ExcelDeutsch ? Bytefolgemarke : std::string_view());
    for (const std::string& spalte : worte.spalten) {
        if (&spalte != &worte.spalten.front())
            kopf += trenner;
        kopf += Textfeld(spalte);
    }
    kopf += Zeilenende;
    return kopf;
}

std::string Csvform::Nimm(const Messpaket& paket, std::shared_ptr<const Abbild> konfiguration) {
    std::string zeilen;
    auto ereignis = paket.ereignisse.begin();
    for (const Messdurchgang& durchgang : paket.durchgaenge) {
        for (; ereignis != paket.ereignisse.end() && ereignis->laufzeit <= durchgang.uhr; ++ereignis)
            Schreibe(zeilen, *ereignis);
        Schreibe(zeilen, durchgang, konfiguration.get());
    }
    for (; ereignis != paket.ereignisse.end(); ++ereignis)
        Schreibe(zeilen, *ereignis);
    return zeilen;
}

std::string Csvform::Zeitfelder(Systemzeit zeit, Zeit laufzeit) const {
    const auto ms = std::chrono::round<std::chrono::milliseconds>(laufzeit).count();
    std::array<char, 32> sekunden{};
    std::snprintf(sekunden.data(), sekunden.size(), "%lld%c%03lld", static_cast<long long>(ms / 1000),
                  art == Csvart::ExcelDeutsch ? ',' : '.', static_cast<long long>(ms % 1000));
    return Isozeit(zeit, Zonenminuten(zeit)) + trenner + sekunden.data() + trenner;
}

/// A pass that no part was present in still tells of the output.
void Csvform::Schreibe(std::string& ziel, const Messdurchgang& durchgang, const Abbild* konfiguration) const {
    bool einer = false;
    for (int teil = 0; teil < durchgang.anzahlTeile; ++teil)
        if (durchgang.teile.at(static_cast<std::size_t>(teil)).vorhanden) {
            SchreibeTeil(ziel, durchgang, teil, konfiguration);
            einer = true;
        }
    if (einer)
        return;
    ziel += Zeitfelder(durchgang.zeit, durchgang.uhr);
    ziel.append(SpaltenDesTeils - 2, trenner);
    HaengeAn(ziel, (durchgang.geraetestatus & geraetestatus::PnpAktiv) != 0 ? 1 : 0);
    ziel.append(2, trenner);
    ziel += Zeilenende;
}

void Csvform::SchreibeTeil(std::string& ziel, const Messdurchgang& durchgang, int teil,
                           const Abbild* konfiguration) const {
    const Teilmessung& messung = durchgang.teile.at(static_cast<std::size_t>(teil));
    ziel += Zeitfelder(durchgang.zeit, durchgang.uhr);
    HaengeAn(ziel, teil + 1);
    (ziel += trenner) += Registerhex(messung.status);
    for (const std::uint16_t wert : messung.werte) {
        ziel += trenner;
        if (messung.gemessen)
            HaengeAn(ziel, wert);
    }
    ziel += trenner;
    if (konfiguration != nullptr)
        HaengeAn(ziel, GeblankteStrahlen(*konfiguration, teil, messung.strahlen));
    ziel += trenner;
    HaengeAn(ziel, (durchgang.geraetestatus & geraetestatus::PnpAktiv) != 0 ? 1 : 0);
    ziel += trenner;
    if (messung.gemessen)
        ziel += Strahlhex(messung);
    ziel += trenner;
    ziel += Zeilenende;
}

void Csvform::Schreibe(std::string& ziel, const Messereignis& ereignis) const {
    std::string text = worte.ereignisse.at(static_cast<std::size_t>(ereignis.art));
    if (const auto wo = text.find("%1"); wo != std::string::npos)
        text.replace(wo, 2, ereignis.text);
    ziel += Zeitfelder(ereignis.zeit, ereignis.laufzeit);
    ziel.append(SpaltenDesTeils, trenner);
    ziel += Textfeld(text);
    ziel += Zeilenende;
}

std::string Isozeit(Systemzeit zeit, int zoneMinuten) {
    using namespace std::chrono;
    const auto ortszeit = floor<milliseconds>(zeit + minutes(zoneMinuten));
    const auto tag = floor<days>(ortszeit);
    const year_month_day datum(tag);
    const hh_mm_ss uhr(ortszeit - tag);
    const int versatz = zoneMinuten < 0 ? -zoneMinuten : zoneMinuten;
    std::array<char, 64> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03d%c%02d:%02d",
                  static_cast<int>(datum.year()), static_cast<unsigned>(datum.month()),
                  static_cast<unsigned>(datum.day()), static_cast<int>(uhr.hours().count()),
                  static_cast<int>(uhr.minutes().count()), static_cast<int>(uhr.seconds().count()),
                  static_cast<int>(uhr.subseconds().count()), zoneMinuten < 0 ? '-' : '+', versatz / 60,
                  versatz % 60);
    return puffer.data();
}

std::string Textfeld(const std::string& text) {
    constexpr std::string_view formelzeichen = "=+-@";
    const std::string zeile = Einzeilig(text);
    std::string feld = "\"";
    const auto anfang = zeile.find_first_not_of(' ');
    if (anfang != std::string::npos && formelzeichen.find(zeile[anfang]) != std::string_view::npos)
        feld += '\'';
    for (const char zeichen : zeile)
        feld.append(zeichen == '"' ? 2 : 1, zeichen);
    return feld + "\"";
}

std::string Strahlhex(const Teilmessung& messung) {
    constexpr std::string_view ziffern = "0123456789ABCDEF";
    std::string hex = "0x";
    for (int erster = 0; erster < messung.strahlen; erster += 4) {
        unsigned ziffer = 0;
        for (int strahl = erster; strahl < erster + 4; ++strahl)
            ziffer = ziffer << 1U | (strahl < messung.strahlen && IstFrei(messung, strahl) ? 1U : 0U);
        hex += ziffern[ziffer];
    }
    return hex;
}

int GeblankteStrahlen(const Abbild& konfiguration, int teil, int strahlen) {
    const Werte muster = konfiguration.HoleParameter(Speicherbereich::SpezifischeGeraetedaten,
                                                     spezifisch::Blankingmuster, teil);
    int anzahl = 0;
    for (int strahl = 0; strahl < strahlen; ++strahl)
        anzahl += StrahlBit(muster, strahl) ? 1 : 0;
    return anzahl;
}

} // namespace varnoth
