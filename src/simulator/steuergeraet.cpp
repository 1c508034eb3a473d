#include "steuergeraet.h"

#include "werkseinstellung.h"

#include <algorithm>
#include <array>

namespace varnoth::simulator {

namespace {

constexpr std::uint8_t LiesFunktion = 0x03, Kommando09 = 0x09, SchreibFunktion = 0x10,
                       KennungsFunktion = 0x11;
constexpr std::uint8_t AusnahmeBit = 0x80;
constexpr std::uint8_t Rundruf = 0;
constexpr std::size_t Schreibkopf = 7; // address, function, start, count, byte count
constexpr int MeisteGelesene = 125, MeisteGeschriebene = 123;
constexpr std::uint8_t Eingeschaltet = 0xFF;
constexpr int HoechsteAdresse = 247;
constexpr std::uint16_t StrahlenzahlGeaendert = 1 << 4, AlleMeldungen = 0xF0F0;
constexpr std::uint16_t SpeichereKonfiguration = 1, SpeichereWerksdaten = 2;
constexpr std::uint16_t AutosendAn = 2;

int Wort(std::span<const std::uint8_t> zeichen, std::size_t stelle) {
    return zeichen[stelle] * 256 + zeichen[stelle + 1];
}

void HaengeWortAn(Bytes& zeichen, std::uint16_t wort) {
    zeichen.push_back(static_cast<std::uint8_t>(wort >> 8));
    zeichen.push_back(static_cast<std::uint8_t>(wort & 0xFF));
}

std::string Liste(std::span<const std::uint16_t> werte) {
    std::string text;
    for (const std::uint16_t wert : werte)
        text += ' ' + std::to_string(wert);
    return text;
}

/// Whether beam states or measured values are among the registers.
bool ZeigtSzene(Ort ort, int anzahl) {
    return ort.bereich == Bereich::Spezifisch && ort.adresse + anzahl > reg::Messwerte &&
           ort.adresse < reg::Strahlen + reg::Strahlenregister;
}

bool Beruehrt(Ort ort, std::size_t anzahl, int globalesRegister) {
    return ort.bereich == Bereich::Global && ort.adresse <= globalesRegister &&
           globalesRegister < ort.adresse + static_cast<int>(anzahl);
}

} // namespace

Steuergeraet::Steuergeraet(const Aufbau& aufbau, Optik& dieOptik, Protokoll& dasProtokoll,
                           Zaehlwerk& dasZaehlwerk)
    : passwort(aufbau.passwort), optik(dieOptik), protokoll(dasProtokoll), zaehlwerk(dasZaehlwerk),
      werk(Werkseinstellung(aufbau)), dauerspeicher(werk, aufbau.speicherdatei), adresse(aufbau.adresse) {
    Neustart();
}

void Steuergeraet::Neustart() {
    const Registerspeicher& inhalt = dauerspeicher.Inhalt();
    speicher = werk;
    Uebernimm(speicher, inhalt, Art::Konfiguration);
    Uebernimm(speicher, inhalt, Art::Werksdaten);
    const int gespeicherte = speicher.Kommunikation(reg::Stationsadresse);
    if (gespeicherte >= 1 && gespeicherte <= HoechsteAdresse)
        adresse = gespeicherte;
    autosend = false;
    optik.Neustart();
    ZeigeStrahlenzahlen();
    for (int teil = 0; teil < Optikteile; ++teil) {
        const std::uint16_t bekannt = inhalt.Spezifisch(teil, reg::Strahlenzahl);
        if (bekannt != 0 && optik.IstVorhanden(teil) && bekannt != optik.Strahlenzahl(teil))
            speicher.Global(reg::Geraetestatus) |= static_cast<std::uint16_t>(StrahlenzahlGeaendert << teil);
    }
}

/// A part that is not there has no beams.
void Steuergeraet::ZeigeStrahlenzahlen() {
    for (int teil = 0; teil < Optikteile; ++teil)
        speicher.Spezifisch(teil, reg::Strahlenzahl) =
            static_cast<std::uint16_t>(optik.IstVorhanden(teil) ? optik.Strahlenzahl(teil) : 0);
}

void Steuergeraet::SetzeStrahlenzahl(int teil, int anzahl) {
    optik.SetzeStrahlenzahl(teil, anzahl);
    ZeigeStrahlenzahlen();
    if (optik.IstVorhanden(teil))
        speicher.Global(reg::Geraetestatus) |= static_cast<std::uint16_t>(StrahlenzahlGeaendert << teil);
}

void Steuergeraet::SetzeVorhanden(int teil, bool vorhanden) {
    optik.SetzeVorhanden(teil, vorhanden);
    ZeigeStrahlenzahlen();
}

std::span<const Steuergeraet::Funktion> Steuergeraet::Funktionen() {
    static constexpr Funktion funktionen[] = {
        {LiesFunktion, &Steuergeraet::Lies},
        {Kommando09, &Steuergeraet::NimmKommando09},
        {SchreibFunktion, &Steuergeraet::Schreibe},
        {KennungsFunktion, &Steuergeraet::MeldeKennung},
    };
    return funktionen;
}

bool Steuergeraet::WirdBeantwortet(Anfrage anfrage) const {
    if (anfrage[1] == Kommando09)
        return false;
    return anfrage[0] == adresse || (anfrage[0] == Rundruf && anfrage[1] == KennungsFunktion);
}

Bytes Steuergeraet::Bearbeite(Anfrage anfrage, Zeit zeit) {
    if (anfrage[0] != adresse && anfrage[0] != Rundruf) {
        ++zaehlwerk.fremde;
        return {};
    }
    jetzt = zeit;
    if (optik.Schweigt(jetzt)) {
        protokoll.Zeile([] { return std::string("silent, as the record"); });
        return {};
    }
    const bool mitAntwort = WirdBeantwortet(anfrage); // a restart may change the address
    ++zaehlwerk.anfragen[anfrage[1]];
    Bytes antwort{static_cast<std::uint8_t>(adresse), anfrage[1]};
    const Ablehnung ablehnung = FuehreAus(anfrage, antwort);
    if (ablehnung != Ablehnung::Keine) {
        ++zaehlwerk.abgelehnte;
        antwort = {antwort[0], static_cast<std::uint8_t>(anfrage[1] | AusnahmeBit),
                   static_cast<std::uint8_t>(ablehnung)};
        protokoll.Zeile([&] {
            return "refused function " + std::to_string(anfrage[1]) + ": exception " +
                   std::to_string(antwort[2]);
        });
    }
    if (!mitAntwort)
        return {};
    HaengeCrcAn(antwort);
    return antwort;
}

Steuergeraet::Ablehnung Steuergeraet::FuehreAus(Anfrage anfrage, Bytes& antwort) {
    const auto funktion = std::ranges::find(Funktionen(), anfrage[1], &Funktion::code);
    if (funktion == Funktionen().end())
        return Ablehnung::Funktion;
    return (this->*funktion->fuehreAus)(anfrage, antwort);
}

Steuergeraet::Ablehnung Steuergeraet::Lies(Anfrage anfrage, Bytes& antwort) {
    const int anzahl = Wort(anfrage, 4);
    if (anzahl > MeisteGelesene)
        return Ablehnung::Wert;
    const auto ort = FindeOrt(Wort(anfrage, 2), anzahl);
    if (!ort)
        return Ablehnung::Adresse;
    if (ZeigtSzene(*ort, anzahl))
        optik.Beginne(jetzt);
    optik.Aktualisiere(speicher, jetzt);
    const auto werte = speicher.Block(*ort, Optikteil(), anzahl);
    antwort.push_back(static_cast<std::uint8_t>(2 * anzahl));
    for (const std::uint16_t wert : werte)
        HaengeWortAn(antwort, wert);
    protokoll.Zeile([&] { return "read " + Name(*ort, Optikteil(), anzahl) + " =" + Liste(werte); });
    return Ablehnung::Keine;
}

Steuergeraet::Ablehnung Steuergeraet::Schreibe(Anfrage anfrage, Bytes& antwort) {
    const int anzahl = Wort(anfrage, 4);
    if (anzahl < 1 || anzahl > MeisteGeschriebene || anfrage[6] != 2 * anzahl)
        return Ablehnung::Wert;
    const auto ort = FindeOrt(Wort(anfrage, 2), anzahl);
    if (!ort)
        return Ablehnung::Adresse;
    std::array<std::uint16_t, MeisteGeschriebene> alle{};
    const auto werte = std::span(alle).first(static_cast<std::size_t>(anzahl));
    for (std::size_t i = 0; i < werte.size(); ++i)
        werte[i] = static_cast<std::uint16_t>(Wort(anfrage, Schreibkopf + 2 * i));
    protokoll.Zeile([&] { return "write " + Name(*ort, Optikteil(), anzahl) + " =" + Liste(werte); });
    const Ablehnung ablehnung = PruefeSchreiben(*ort, werte);
    if (ablehnung != Ablehnung::Keine)
        return ablehnung;
    std::ranges::copy(werte, speicher.Block(*ort, Optikteil(), anzahl).begin());
    antwort.insert(antwort.end(), anfrage.begin() + 2, anfrage.begin() + 6);
    return Wirke(*ort, werte);
}

Steuergeraet::Ablehnung Steuergeraet::PruefeSchreiben(Ort ort, std::span<const std::uint16_t> werte) const {
    for (const std::uint16_t wert : werte) {
        const Eintrag* eintrag = FindeSchreibbar(ort);
        if (eintrag == nullptr || (eintrag->art == Art::Werksdaten && !PasswortStimmt()))
            return Ablehnung::Adresse;
        if (eintrag->gilt != nullptr && !eintrag->gilt(wert))
            return Ablehnung::Wert;
        ++ort.adresse;
    }
    return Ablehnung::Keine;
}

/// What follows from registers just written.
Steuergeraet::Ablehnung Steuergeraet::Wirke(Ort ort, std::span<const std::uint16_t> werte) {
    optik.Erneuere();
    if (FindeSchreibbar(ort)->art == Art::Werksdaten)
        LoeschePasswort();
    if (ort.bereich == Bereich::Kommunikation && ort.adresse == reg::Steuerwert)
        autosend = werte[0] == AutosendAn;
    if (Beruehrt(ort, werte.size(), reg::Kommando))
        return FuehreKommandoAus(speicher.Global(reg::Kommando));
    return Ablehnung::Keine;
}

Steuergeraet::Ablehnung Steuergeraet::FuehreKommandoAus(std::uint16_t kommando) {
    speicher.Global(reg::Kommando) = 0;
    if (kommando != SpeichereKonfiguration && kommando != SpeichereWerksdaten) {
        Neustart();
        return Ablehnung::Keine;
    }
    const Art art = kommando == SpeichereKonfiguration ? Art::Konfiguration : Art::Werksdaten;
    if (!dauerspeicher.Behalte(speicher, art)) {
        protokoll.Zeile([] { return std::string("the store could not be written"); });
        return Ablehnung::Geraet;
    }
    if (art == Art::Konfiguration)
        speicher.Global(reg::Geraetestatus) &= static_cast<std::uint16_t>(~AlleMeldungen);
    return Ablehnung::Keine;
}

bool Steuergeraet::PasswortStimmt() const {
    std::array<std::uint16_t, reg::Passwortregister> erwartet{};
    SchreibeText(erwartet, passwort);
    return std::ranges::equal(erwartet,
                              speicher.Block({Bereich::Global, reg::Passwort}, 0, reg::Passwortregister));
}

void Steuergeraet::LoeschePasswort() {
    std::ranges::fill(speicher.Block({Bereich::Global, reg::Passwort}, 0, reg::Passwortregister),
                      std::uint16_t{0});
}

Steuergeraet::Ablehnung Steuergeraet::MeldeKennung(Anfrage, Bytes& antwort) {
    const std::string seriennummer = LiesText(speicher.Block({Bereich::Global, reg::Seriennummer}, 0, 10));
    const std::string text = "Varnoth Simulator;" + seriennummer + ";(c) Varnoth";
    antwort.push_back(static_cast<std::uint8_t>(2 + text.size()));
    antwort.push_back(Eingeschaltet);
    antwort.push_back(static_cast<std::uint8_t>(Geraetetyp));
    antwort.insert(antwort.end(), text.begin(), text.end());
    protokoll.Zeile([&] { return "identify = " + text; });
    return Ablehnung::Keine;
}

Steuergeraet::Ablehnung Steuergeraet::NimmKommando09(Anfrage, Bytes&) {
    protokoll.Zeile([] { return std::string("function 09"); });
    return Ablehnung::Keine;
}

} // namespace varnoth::simulator
