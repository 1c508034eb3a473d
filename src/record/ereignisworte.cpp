#include "ereignisworte.h"

#include "csvzeile.h"
#include "optikteilstatus.h"
#include "statusbits.h"
#include "texte.h"
#include "textmitwerten.h"
#include "zahlen.h"
#include "zeitpunkt.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace varnoth {

namespace {

constexpr std::int16_t ErsteSpalte = 6603; // time, kind, what, duration, number
constexpr std::int16_t TextSekunden = 6608, TextErsteGruppe = 6610;
constexpr std::int16_t TextTeilDa = 6624, TextTeilFehlt = 6625, TextTeilstatus = 6626, TextNichts = 6627,
                       TextGeraetestatus = 6628, TextZuletzt = 6630;
constexpr std::int16_t TextKonfiguration = 6631, TextKonfigurationAbgebrochen = 6632, TextRegister = 6633,
                       TextRegisterMisslungen = 6634, TextNeustart = 6635, TextNeustartUnbestaetigt = 6629,
                       TextWerksdaten = 6636, TextWerksdatenMisslungen = 6637, TextGesichert = 6638,
                       TextSicherungMisslungen = 6639;
constexpr std::int16_t TextBeendet = 6641, TextMitDurchgaengen = 6750;
constexpr std::int16_t TextVerworfen = 6642, TextFehlgeschlagen = 6645, TextErsterZustand = 6647;
constexpr std::int16_t TextSimuliertUnd = 9108, TextAusgangAktiv = 9308, TextAusgangNichtAktiv = 9309,
                       TextKeinOptikteil = 9310, TextStrahlenzahlGeaendert = 9311, TextNichtLesbar = 9312,
                       TextErstesOptikteil = 5200;
constexpr std::int16_t Fehlschlagtexte[] = {8421, 8430, 8422, 8487,
                                            8426}; // as exchanges are counted by their end
constexpr int Zustandszahl = 8;

std::string Text(int id) {
    return LadeText(static_cast<std::int16_t>(id));
}

void HaengeAn(std::string& liste, const std::string& wort, const char* trenner = ", ") {
    if (!wort.empty())
        liste += (liste.empty() ? "" : trenner) + wort;
}

std::string Teilname(int teil) {
    return Text(TextErstesOptikteil + teil);
}

std::string Teilmerkmale(std::int32_t bits) {
    std::string liste;
    for (const Option& merkmal : Optikteilmerkmale)
        if ((bits & merkmal.wert) != 0)
            HaengeAn(liste, LadeText(merkmal.text));
    return liste.empty() ? LadeText(TextNichts) : liste;
}

std::string Geraetemerkmale(std::int32_t bits) {
    using namespace geraetestatus;
    std::string liste;
    if ((bits & KeinOptikteil) != 0)
        HaengeAn(liste, LadeText(TextKeinOptikteil));
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        if ((bits & (1 << (StrahlenzahlGeaendertBit + teil))) != 0)
            HaengeAn(liste, LadeText(TextStrahlenzahlGeaendert) + Teilname(teil));
        if ((bits & (1 << (NichtLesbarBit + teil))) != 0)
            HaengeAn(liste, LadeText(TextNichtLesbar) + Teilname(teil));
    }
    return liste.empty() ? LadeText(TextNichts) : liste;
}

/// What holds now; of a burst that it is only the last of several.
std::string Zuletzt(const Ereignis& e, const std::string& stand) {
    return e.anzahl > 1 ? LadeTextMit(TextZuletzt, {stand}) : stand;
}

std::string Teilwort(const Ereignis& e) {
    return Zuletzt(e, LadeTextMit(e.neu != 0 ? TextTeilDa : TextTeilFehlt, {Teilname(e.teil)}));
}

std::string Teilstatuswort(const Ereignis& e) {
    return LadeTextMit(TextTeilstatus, {Teilname(e.teil), Zuletzt(e, Teilmerkmale(e.neu))});
}

std::string Geraetestatuswort(const Ereignis& e) {
    return LadeTextMit(TextGeraetestatus, {Zuletzt(e, Geraetemerkmale(e.neu))});
}

std::string Ausgangswort(const Ereignis& e) {
    return Zuletzt(e, LadeText(e.neu != 0 ? TextAusgangAktiv : TextAusgangNichtAktiv));
}

std::string Zustandswort(const Ereignis& e) {
    std::string wort = Zuletzt(e, Text(TextErsterZustand + std::clamp(e.neu, 0, Zustandszahl - 1)));
    if (e.alt != 0)
        wort = LadeTextMit(TextSimuliertUnd, {wort});
    return e.text.empty() ? wort : wort + " (" + e.text + ")";
}

std::string OhneMarke(std::string text) {
    std::erase(text, '&');
    return text;
}

std::string Befehlswort(const Ereignis& e) {
    std::string wort = OhneMarke(e.neu != 0 ? Text(e.neu) : e.text);
    return wort.empty() ? "(" + std::to_string(e.alt) + ")" : wort;
}

std::string Konfigurationswort(const Ereignis& e) {
    return LadeTextMit(e.gelungen ? TextKonfiguration : TextKonfigurationAbgebrochen,
                       {std::to_string(e.anzahl)});
}

std::string Registerwort(const Ereignis& e) {
    return LadeTextMit(e.gelungen ? TextRegister : TextRegisterMisslungen,
                       {AlsHex(static_cast<unsigned>(e.alt)) + "H", std::to_string(e.anzahl)});
}

std::string Neustartwort(const Ereignis& e) {
    return LadeText(e.gelungen ? TextNeustart : TextNeustartUnbestaetigt);
}

std::string Werksdatenwort(const Ereignis& e) {
    return LadeText(e.gelungen ? TextWerksdaten : TextWerksdatenMisslungen);
}

std::string Sicherungswort(const Ereignis& e) {
    return e.gelungen ? LadeText(TextGesichert) : LadeTextMit(TextSicherungMisslungen, {e.text});
}

std::string Beendetwort(const Ereignis& e) {
    return LadeTextMit(TextBeendet, {LadeTextMit(TextMitDurchgaengen, {e.text, std::to_string(e.anzahl)})});
}

std::string Verworfenwort(const Ereignis& e) {
    return LadeTextMit(TextVerworfen, {std::to_string(e.anzahl)});
}

std::string Fehlschlagwort(const Ereignis& e) {
    const auto art = static_cast<std::size_t>(std::clamp(e.neu, 0, 4));
    return LadeTextMit(TextFehlgeschlagen, {LadeText(Fehlschlagtexte[art])});
}

/// What makes the words of a kind: a function, else a text with the event's own text as its value, else
/// that alone.
struct Wortregel {
    Ereignisart art;
    Ereignisgruppe gruppe;
    std::int16_t text = 0;
    std::string (*wort)(const Ereignis& ereignis) = nullptr;
};

using enum Ereignisart;
using Gruppe = Ereignisgruppe;

constexpr Wortregel Wortregeln[] = {
    {LiveBegonnen, Gruppe::Verbindung, 6620},
    {LiveBeendet, Gruppe::Verbindung, 6621},
    {Verloren, Gruppe::Verbindung, 6622},
    {Zurueck, Gruppe::Verbindung, 6623},
    {Zustand, Gruppe::Verbindung, 0, Zustandswort},
    {TeilGewechselt, Gruppe::Optikteil, 0, Teilwort},
    {TeilStatus, Gruppe::Optikteil, 0, Teilstatuswort},
    {GeraeteStatus, Gruppe::Optikteil, 0, Geraetestatuswort},
    {AusgangGeschaltet, Gruppe::Ausgang, 0, Ausgangswort},
    {Meldung, Gruppe::Meldung},
    {Befehl, Gruppe::Befehl, 0, Befehlswort},
    {KonfigurationGeschrieben, Gruppe::Schreiben, 0, Konfigurationswort},
    {RegisterGeschrieben, Gruppe::Schreiben, 0, Registerwort},
    {Neustart, Gruppe::Schreiben, 0, Neustartwort},
    {Werksdaten, Gruppe::Schreiben, 0, Werksdatenwort},
    {Gesichert, Gruppe::Schreiben, 0, Sicherungswort},
    {AufzeichnungBegonnen, Gruppe::Aufzeichnung, 6640},
    {AufzeichnungBeendet, Gruppe::Aufzeichnung, 0, Beendetwort},
    {AufzeichnungOhnePlatz, Gruppe::Aufzeichnung, 6643},
    {Verworfen, Gruppe::Aufzeichnung, 0, Verworfenwort},
    {Fehlgeschlagen, Gruppe::Fehlschlag, 0, Fehlschlagwort},
    {Notiz, Gruppe::Notiz},
};

constexpr bool InDerReihenfolgeDerArten() {
    for (std::size_t i = 0; i < std::size(Wortregeln); ++i)
        if (static_cast<std::size_t>(Wortregeln[i].art) != i)
            return false;
    return true;
}
static_assert(InDerReihenfolgeDerArten());

const Wortregel& RegelVon(Ereignisart art) {
    return Wortregeln[std::min(static_cast<std::size_t>(art), std::size(Wortregeln) - 1)];
}

std::string MitEinerStelle(double zahl) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f", zahl);
    std::string ergebnis = text.data();
    std::ranges::replace(ergebnis, '.', Dezimaltrenner());
    return ergebnis;
}

double Sekunden(Zeit dauer) {
    return std::chrono::duration<double>(dauer).count();
}

/// Whether the number says how often something happened, and not how much.
bool WirdGezaehlt(Ereignisart art) {
    return art == Zustand || art == TeilGewechselt || art == TeilStatus || art == GeraeteStatus ||
           art == AusgangGeschaltet || art == Fehlgeschlagen;
}

std::string Zweistellig(long long zahl) {
    return (zahl < 10 ? "0" : "") + std::to_string(zahl);
}

std::string Dauerzahl(const Ereignis& e) {
    return e.dauer == Zeit{} ? std::string() : MitEinerStelle(Sekunden(e.dauer));
}

} // namespace

Ereignisgruppe GruppeVon(Ereignisart art) {
    return RegelVon(art).gruppe;
}

std::string Gruppentext(Ereignisgruppe gruppe) {
    return Text(TextErsteGruppe + static_cast<int>(gruppe));
}

std::string Ereignistext(const Ereignis& ereignis) {
    const Wortregel& regel = RegelVon(ereignis.art);
    if (regel.wort != nullptr)
        return regel.wort(ereignis);
    return regel.text == 0 ? ereignis.text : LadeTextMit(regel.text, {ereignis.text});
}

std::string Dauertext(Zeit dauer) {
    constexpr long long Minute = 60, Stunde = 3600;
    if (dauer == Zeit{})
        return {};
    const auto ganze = std::chrono::duration_cast<std::chrono::seconds>(dauer).count();
    if (ganze < Minute)
        return MitEinerStelle(Sekunden(dauer)) + " s";
    if (ganze < Stunde)
        return std::to_string(ganze / Minute) + " min " + Zweistellig(ganze % Minute) + " s";
    return std::to_string(ganze / Stunde) + " h " + Zweistellig(ganze % Stunde / Minute) + " min";
}

std::string Haeufigkeitstext(const Ereignis& ereignis) {
    constexpr double KleinsteJeSekunde = 1, SekundenJeMinute = 60;
    if (!WirdGezaehlt(ereignis.art) || ereignis.anzahl < 2)
        return {};
    std::string zahl = std::to_string(ereignis.anzahl);
    if (ereignis.dauer == Zeit{})
        return zahl;
    const double rate = (ereignis.anzahl - 1) / Sekunden(ereignis.dauer);
    return zahl + " (" +
           (rate < KleinsteJeSekunde ? MitEinerStelle(rate * SekundenJeMinute) + "/min"
                                     : MitEinerStelle(rate) + "/s") +
           ")";
}

std::string Ereignissatz(const Ereignis& ereignis) {
    std::string zahlen = Haeufigkeitstext(ereignis);
    HaengeAn(zahlen, Dauertext(ereignis.dauer));
    return Ereignistext(ereignis) + (zahlen.empty() ? "" : " [" + zahlen + "]");
}

std::string Ereigniskopf() {
    return CsvMarke + Csvzeile({Text(ErsteSpalte), Text(ErsteSpalte + 1), Text(ErsteSpalte + 2),
                                Text(TextSekunden), Text(ErsteSpalte + 4)});
}

std::string EreignisAlsCsv(const Ereignis& ereignis) {
    return Csvzeile({Zeitpunkttext(ereignis.zeit), Gruppentext(GruppeVon(ereignis.art)),
                     Ereignistext(ereignis), Dauerzahl(ereignis), std::to_string(ereignis.anzahl)});
}

std::string EreignisAlsText(const Ereignis& ereignis) {
    return Zeitpunkttext(ereignis.zeit) + "  " + Gruppentext(GruppeVon(ereignis.art)) + ": " +
           Ereignissatz(ereignis) + "\n";
}

} // namespace varnoth
