#include "verlaufsschreiber.h"

#include "durchgangssuche.h"
#include "statusbits.h"
#include "texte.h"
#include "zeitachse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace varnoth {

namespace {

constexpr std::int16_t TextErstesOptikteil = 5200, TextZeit = 6350, TextSekunden = 6351, TextStatus = 6352,
                       TextSchaltausgang = 6344, TextMinimum = 4004, TextMaximum = 4005;
constexpr const char* Bom = "\xEF\xBB\xBF";

std::string Teilname(int teil) {
    return LadeText(static_cast<std::int16_t>(TextErstesOptikteil + teil));
}

} // namespace

std::string Zeitstempel(const Messangaben& angaben, Zeit laufzeit, char dezimal) {
    using namespace std::chrono;
    const auto ort = floor<milliseconds>(Uhrzeit(angaben, laufzeit)) + minutes(angaben.zoneMinuten);
    const auto tag = floor<days>(ort);
    const year_month_day datum{tag};
    const hh_mm_ss zeit{ort - tag};
    const int zone = std::abs(angaben.zoneMinuten);
    std::array<char, 48> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%04d-%02u-%02uT%02d:%02d:%02d%c%03d%c%02d:%02d",
                  static_cast<int>(datum.year()), static_cast<unsigned>(datum.month()),
                  static_cast<unsigned>(datum.day()), static_cast<int>(zeit.hours().count()),
                  static_cast<int>(zeit.minutes().count()), static_cast<int>(zeit.seconds().count()), dezimal,
                  static_cast<int>(zeit.subseconds().count()), angaben.zoneMinuten < 0 ? '-' : '+', zone / 60,
                  zone % 60);
    return puffer.data();
}

Verlaufsschreiber::Verlaufsschreiber(const Verlaufswahl& dieWahl, const Strahlabstaende& dieAbstaende,
                                     Zeitspanne dieSpanne)
    : wahl(dieWahl), abstaende(dieAbstaende), spanne(dieSpanne), deutsch(GetSprachoffset() != Englisch) {
    SchreibKopf();
}

void Verlaufsschreiber::SchreibKopf() {
    const std::string trenner = deutsch ? ";" : ",";
    const std::string einheit = wahl.millimeter ? " mm" : "";
    text = (deutsch ? Bom : "") + LadeText(TextZeit) + trenner + LadeText(TextSekunden);
    for (const Messreihe reihe : wahl.Reihen()) {
        std::string name = trenner;
        name.append(Reihenname(reihe)).append(einheit);
        text += name;
        for (const std::int16_t grenze : {TextMinimum, TextMaximum})
            text.append(name).append(" ").append(LadeText(grenze));
    }
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (wahl.HatTeil(teil))
            text += trenner + Teilname(teil) + " " + LadeText(TextStatus);
    text += trenner + LadeText(TextSchaltausgang) + "\r\n";
}

void Verlaufsschreiber::Weiter(const Messquelle& quelle, int pakete) {
    if (quelle.Erstes() == quelle.Ende())
        fertig = true;
    if (fertig)
        return;
    const Messangaben angaben = quelle.Angaben();
    std::uint64_t nummer = std::max(naechstes.value_or(quelle.PaketUm(spanne.von)), quelle.Erstes());
    for (; pakete > 0 && !fertig; --pakete, ++nummer) {
        fertig = nummer >= quelle.Ende() || quelle.Spanne(nummer).von > spanne.bis;
        const auto paket = fertig ? nullptr : quelle.Lies(nummer);
        if (paket != nullptr)
            for (const Messdurchgang& durchgang : paket->durchgaenge)
                if (spanne.von <= durchgang.uhr && durchgang.uhr <= spanne.bis)
                    SchreibZeile(angaben, durchgang);
        fertig |= gekuerzt;
    }
    naechstes = nummer;
}

void Verlaufsschreiber::SchreibZeile(const Messangaben& angaben, const Messdurchgang& durchgang) {
    gekuerzt |= zeilen == MeisteZeilen;
    if (gekuerzt)
        return;
    const char dezimal = deutsch ? ',' : '.';
    const char trenner = deutsch ? ';' : ',';
    const auto ms = std::chrono::floor<std::chrono::milliseconds>(durchgang.uhr - spanne.von).count();
    std::array<char, 32> sekunden{};
    std::snprintf(sekunden.data(), sekunden.size(), "%lld%c%03d", static_cast<long long>(ms / 1000), dezimal,
                  static_cast<int>(ms % 1000));
    text += Zeitstempel(angaben, durchgang.uhr, '.') + trenner + sekunden.data();
    for (const Messreihe reihe : wahl.Reihen())
        SchreibWerte(durchgang, reihe);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (wahl.HatTeil(teil)) {
            const Teilmessung& messung = durchgang.teile[static_cast<std::size_t>(teil)];
            text += trenner + (messung.gemessen ? std::to_string(messung.status) : std::string());
        }
    const bool aktiv = (durchgang.geraetestatus & geraetestatus::PnpAktiv) != 0;
    text.append(1, trenner).append(aktiv ? "1\r\n" : "0\r\n");
    ++zeilen;
}

/// A part that was not measured has empty cells.
void Verlaufsschreiber::SchreibWerte(const Messdurchgang& durchgang, Messreihe reihe) {
    const Teilmessung& messung = durchgang.teile[static_cast<std::size_t>(reihe.teil)];
    for (int block = 0; block < 3; ++block) {
        const int stelle = block * AnzahlKurvenwerte + reihe.wert;
        text += deutsch ? ';' : ',';
        if (messung.gemessen)
            text += Zelle(reihe, messung.werte[static_cast<std::size_t>(stelle)]);
    }
}

std::string Verlaufsschreiber::Zelle(Messreihe reihe, int wert) const {
    if (!wahl.millimeter)
        return std::to_string(wert);
    const std::string mm = Werttext(wahl, abstaende, reihe, wert);
    return mm.ends_with(" mm") ? mm.substr(0, mm.size() - 3) : std::string();
}

int Verlaufsschreiber::Prozent(const Messquelle& quelle) const {
    if (fertig)
        return 100;
    if (!naechstes || *naechstes >= quelle.Ende() || *naechstes < quelle.Erstes() || spanne.bis <= spanne.von)
        return 0;
    const Zeit bis = quelle.Spanne(*naechstes).von;
    return static_cast<int>(
        std::clamp<std::int64_t>(100 * (bis - spanne.von) / (spanne.bis - spanne.von), 0, 100));
}

} // namespace varnoth
