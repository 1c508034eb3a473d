#include "busworte.h"

#include "blankingworte.h"
#include "busregister.h"
#include "identifikation.h"
#include "klartext.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "registertext.h"
#include "rohwert.h"
#include "textmitwerten.h"
#include "textschutz.h"
#include "zahlen.h"
#include "zeitpunkt.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextLiest = 8410, TextSchreibt = 8411, TextFragt = 8412;
constexpr std::int16_t TextLesen = 8415, TextSchreiben = 8416, TextIdentifikation = 8417, TextKommando = 8418,
                       TextUngefragt = 8419, TextUnbekannteFunktion = 8420;
constexpr std::int16_t TextErstesErgebnis = 8421; // in the order of Austauschergebnis
constexpr std::int16_t TextUnvollstaendig = 8431, TextKlaerung = 8432, TextAblehnungscode = 8433;
constexpr std::int16_t TextVerdeckt = 8434, TextWeitere = 8435, TextOhneWerte = 8436;
constexpr std::int16_t TextUnterbrochene = 8437;
constexpr std::int16_t TextAusgewaehlt = 9550, TextAutosendEin = 8445, TextAutosendAus = 8446;
constexpr std::int16_t TextErstesKommando = 8450; // 1..3
constexpr std::int16_t TextZeit = 8403, TextRichtung = 8404, TextFunktion = 8405, TextRegister = 8406,
                       TextWerte = 8407, TextUmlauf = 8408, TextErgebnis = 8409, TextGesendet = 8453,
                       TextEmpfangen = 8454;

std::string Hextext(std::string_view bytes, std::size_t zeigbar, std::size_t alle) {
    constexpr const char* Ziffern = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(bytes[i]);
        text += i == 0 ? "" : " ";
        if (i < zeigbar)
            text += {Ziffern[byte >> 4U], Ziffern[byte & 0x0FU]};
        else
            text += Verdecktes;
    }
    if (alle > bytes.size())
        text += LadeTextMit(TextWeitere, {std::to_string(alle - bytes.size())});
    return text;
}

bool IstVerdeckt(const Busaustausch& austausch) {
    return austausch.zeigbar.anforderung < austausch.anforderung.size() ||
           austausch.zeigbar.empfangen < austausch.empfangen.size();
}

std::string Identifikationsworte(std::string_view daten) {
    constexpr std::size_t Kennbytes = 2;
    if (daten.size() < Kennbytes)
        return {};
    Identifikation ident;
    VerteileIdenttext(std::string(daten.substr(Kennbytes)), ident);
    std::string worte;
    for (const std::string& text : {ident.text1, ident.text2, ident.text3})
        if (!text.empty())
            worte += (worte.empty() ? "" : ", ") + Einzeilig(IdenttextAlsUtf8(text));
    return worte;
}

std::string Kommandowort(std::int32_t wert) {
    constexpr std::int32_t Letztes = 3;
    return wert >= 1 && wert <= Letztes ? LadeText(static_cast<std::int16_t>(TextErstesKommando + wert - 1))
                                        : Rohtext(wert);
}

std::string Steuerwort(std::int32_t wert) {
    if (wert == 2)
        return LadeText(TextAutosendEin);
    return wert == 4 ? LadeText(TextAutosendAus) : Rohtext(wert);
}

std::string Strahlworte(const Werte& werte) {
    return LadeTextMit(TextUnterbrochene, {BlankingAlsWorte(werte, {})});
}

/// Words for what the image does not keep.
std::string Sonderworte(const Registername& name, const Werte& werte) {
    if (name.bereich == Speicherbereich::SpezifischeGeraetedaten)
        return Strahlworte(werte);
    if (name.bereich == Speicherbereich::Kommunikationsdaten)
        return Steuerwort(werte.at(0));
    if (name.adresse == global::Kommando)
        return Kommandowort(werte.at(0));
    if (name.adresse == global::Optikteilauswahl)
        return LadeTextMit(TextAusgewaehlt, {std::to_string(werte.at(0) + 1)});
    return Rohtexte(werte);
}

/// Fewer registers are read of the beams' states where there are fewer beams.
bool SindStrahlzustaende(const Registerbezug& bezug) {
    return bezug.bereich == Speicherbereich::SpezifischeGeraetedaten &&
           bezug.adresse == spezifisch::Strahlzustaende && bezug.anzahl <= MaxStrahlregister;
}

std::string Werteworte(const Registerbezug& bezug, const Werte& werte, int optikteil) {
    if (SindStrahlzustaende(bezug))
        return Strahlworte(werte);
    const Registername* const name = GenauerName(bezug);
    if (name == nullptr)
        return Rohtexte(werte);
    if (name->text != 0)
        return Sonderworte(*name, werte);
    return Klartext(name->bereich, name->adresse, werte,
                    LesartFuer(modDaten::DasAbbild(), name->bereich, std::max(optikteil, 0)));
}

bool Antwortete(const Busaustausch& austausch) {
    return austausch.ergebnis == Austauschergebnis::Beantwortet;
}

} // namespace

std::string Richtungstext(const Busaustausch& austausch) {
    if (austausch.art == Austauschart::Ungefragt)
        return LadeText(TextLiest);
    if (austausch.art == Austauschart::OhneAntwort)
        return LadeText(TextSchreibt);
    if (IstLeserahmen(austausch.anforderung))
        return LadeText(TextLiest);
    return LadeText(IstSchreibrahmen(austausch.anforderung) ? TextSchreibt : TextFragt);
}

std::string Funktionstext(const Busaustausch& austausch) {
    if (austausch.art == Austauschart::Ungefragt)
        return LadeText(TextUngefragt);
    struct Zeile {
        std::uint8_t code;
        std::int16_t text;
    };
    constexpr Zeile zeilen[] = {
        {0x03, TextLesen}, {0x09, TextKommando}, {0x10, TextSchreiben}, {0x11, TextIdentifikation}};
    const auto code = Funktionscode(austausch.anforderung);
    for (const Zeile& zeile : zeilen)
        if (code == zeile.code)
            return LadeText(zeile.text);
    return LadeTextMit(TextUnbekannteFunktion, {code ? AlsHex(*code) : std::string("?")});
}

std::string Registerangabe(const Busaustausch& austausch) {
    if (const auto bezug = RegisterbezugVon(austausch.anforderung))
        return Registerworte(*bezug, austausch.optikteil);
    const auto angabe = AdressangabeVon(austausch.anforderung);
    return angabe ? AlsHex(angabe->adresse) + "H" : std::string();
}

std::string Wertetext(const Busaustausch& austausch) {
    if (IstVerdeckt(austausch))
        return LadeText(TextVerdeckt);
    if (austausch.art == Austauschart::Ungefragt)
        return LadeTextMit(TextOhneWerte, {std::to_string(austausch.kamAn)});
    if (const auto daten = Identifikationsdaten(austausch.empfangen); !daten.empty() && Antwortete(austausch))
        return Identifikationsworte(daten);
    const auto bezug = RegisterbezugVon(austausch.anforderung);
    const Werte werte =
        IstSchreibrahmen(austausch.anforderung)
            ? GeschriebeneWerte(austausch.anforderung)
            : (Antwortete(austausch) ? GeleseneWerte(austausch.anforderung, austausch.empfangen) : Werte());
    if (werte.empty())
        return {};
    return Einzeilig(bezug ? Werteworte(*bezug, werte, austausch.optikteil) : Rohtexte(werte));
}

std::string Anforderungsbytes(const Busaustausch& austausch) {
    return Hextext(austausch.anforderung, austausch.zeigbar.anforderung, austausch.anforderung.size());
}

std::string Empfangsbytes(const Busaustausch& austausch) {
    return Hextext(austausch.empfangen, austausch.zeigbar.empfangen, austausch.kamAn);
}

std::string Bytetext(const Busaustausch& austausch) {
    std::string text;
    if (!austausch.anforderung.empty())
        text = "→ " + Anforderungsbytes(austausch);
    if (!austausch.empfangen.empty())
        text += (text.empty() ? "← " : "  ← ") + Empfangsbytes(austausch);
    return text;
}

std::string Umlaufzahl(const Busaustausch& austausch) {
    if (austausch.umlauf == Zeit{0} || austausch.art == Austauschart::Ungefragt)
        return {};
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "%lld%c%01d",
                  static_cast<long long>(austausch.umlauf.count() / 1000), Dezimaltrenner(),
                  static_cast<int>(austausch.umlauf.count() % 1000 / 100));
    return text.data();
}

std::string Umlauftext(const Busaustausch& austausch) {
    const std::string zahl = Umlaufzahl(austausch);
    return zahl.empty() ? zahl : zahl + " ms";
}

std::string Ergebnistext(const Busaustausch& austausch) {
    std::string text =
        LadeText(static_cast<std::int16_t>(TextErstesErgebnis + static_cast<int>(austausch.ergebnis)));
    if (austausch.ergebnis == Austauschergebnis::Zeitueberschreitung && austausch.kamAn > 0)
        text = LadeTextMit(TextUnvollstaendig, {std::to_string(austausch.kamAn)});
    if (const auto code = Ablehnungscode(austausch.anforderung, austausch.empfangen);
        code && austausch.ergebnis == Austauschergebnis::Abgelehnt)
        text = LadeTextMit(TextAblehnungscode, {std::to_string(*code)});
    return austausch.art == Austauschart::Klaerung ? LadeTextMit(TextKlaerung, {text}) : text;
}

std::string Einzelheiten(const Busaustausch& austausch, std::chrono::system_clock::time_point zeit) {
    const std::pair<std::int16_t, std::string> zeilen[] = {
        {TextZeit, Zeitpunkttext(zeit)},           {TextRichtung, Richtungstext(austausch)},
        {TextFunktion, Funktionstext(austausch)},  {TextRegister, Registerangabe(austausch)},
        {TextWerte, Wertetext(austausch)},         {TextGesendet, Anforderungsbytes(austausch)},
        {TextEmpfangen, Empfangsbytes(austausch)}, {TextUmlauf, Umlauftext(austausch)},
        {TextErgebnis, Ergebnistext(austausch)}};
    std::string text;
    for (const auto& [kopf, zeile] : zeilen)
        if (!zeile.empty())
            text += (text.empty() ? "" : "\n") + LadeText(kopf) + ": " + zeile;
    return text;
}

} // namespace varnoth
