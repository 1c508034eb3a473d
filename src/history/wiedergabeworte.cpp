#include "wiedergabeworte.h"

#include "texte.h"
#include "textmitwerten.h"
#include "zeitworte.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace varnoth {

namespace {

using namespace std::chrono;

constexpr std::int16_t TextPosition = 6524, TextVerloren = 6526, TextBeendet = 6527, TextUnlesbar = 6528,
                       TextLeer = 6529, TextAusgangEin = 6532, TextAusgangAus = 6533, TextTeilDa = 6534,
                       TextTeilFort = 6535, TextZustand = 6536, TextGeraetezustand = 6537,
                       TextErstesLiveereignis = 6538, TextNotiz = 6542, TextSpanne = 6757;

/// With so many digits at least.
std::string Gefuellt(long long zahl, std::size_t stellen) {
    const std::string text = std::to_string(zahl);
    return std::string(stellen - std::min(stellen, text.size()), '0') + text;
}

char Komma() {
    return GetSprachoffset() == Englisch ? '.' : ',';
}

std::string Zustandswechsel(const Sprungfund& fund) {
    return fund.teil < 0 ? LadeText(TextGeraetezustand)
                         : LadeTextMit(TextZustand, {std::to_string(fund.teil + 1)});
}

} // namespace

std::string Laufzeittext(Zeit dauer) {
    const hh_mm_ss zeit(floor<milliseconds>(std::max(dauer, Zeit{0})));
    const auto stunden = static_cast<long long>(zeit.hours().count());
    const std::string kopf = stunden > 0 ? std::to_string(stunden) + ":" : std::string();
    return kopf + Gefuellt(zeit.minutes().count(), stunden > 0 ? 2 : 1) + ":" +
           Gefuellt(zeit.seconds().count(), 2) + Komma() + Gefuellt(zeit.subseconds().count() / 100, 1);
}

std::string Positionstext(const Messangaben& angaben, const Zeitspanne& spanne, Zeit laufzeit) {
    return LadeTextMit(TextPosition, {Zeitworte(angaben, laufzeit), Laufzeittext(laufzeit - spanne.von),
                                      Laufzeittext(spanne.bis - spanne.von)});
}

std::string Spannentext(const Messangaben& angaben, const Zeitspanne& spanne) {
    constexpr std::size_t tausendstel = 4; // letters
    const auto ohneTausendstel = [](const std::string& text) {
        return text.substr(0, text.size() - tausendstel);
    };
    const bool amSelbenTag = Datumsworte(angaben, spanne.von) == Datumsworte(angaben, spanne.bis);
    const std::string bis = amSelbenTag ? Uhrzeitworte(angaben, spanne.bis) : Zeitworte(angaben, spanne.bis);
    return LadeTextMit(TextSpanne, {ohneTausendstel(Zeitworte(angaben, spanne.von)), ohneTausendstel(bis)});
}

std::string Fundtext(const Sprungfund& fund) {
    switch (fund.art) {
    case Sprungart::Ausgang:
        return LadeText(fund.ein ? TextAusgangEin : TextAusgangAus);
    case Sprungart::Teil:
        return LadeTextMit(fund.ein ? TextTeilDa : TextTeilFort, {std::to_string(fund.teil + 1)});
    case Sprungart::Zustand:
        return Zustandswechsel(fund);
    case Sprungart::Notiz:
        return LadeTextMit(TextNotiz, {fund.text});
    case Sprungart::Verbindung:
        break;
    }
    return LadeText(static_cast<std::int16_t>(
        TextErstesLiveereignis + static_cast<int>(fund.ereignis.value_or(Messereignisart::LiveBegonnen))));
}

std::string Lagetext(Wiedergabelage lage) {
    switch (lage) {
    case Wiedergabelage::Messwert:
        return {};
    case Wiedergabelage::Verloren:
        return LadeText(TextVerloren);
    case Wiedergabelage::Beendet:
        return LadeText(TextBeendet);
    case Wiedergabelage::Unlesbar:
        return LadeText(TextUnlesbar);
    case Wiedergabelage::Leer:
        break;
    }
    return LadeText(TextLeer);
}

std::string Tempotext(double tempo) {
    const long long zehntel = std::llround(tempo * 10);
    const std::string zahl = zehntel % 10 == 0
                                 ? std::to_string(zehntel / 10)
                                 : std::to_string(zehntel / 10) + Komma() + std::to_string(zehntel % 10);
    return zahl + " ×";
}

} // namespace varnoth
