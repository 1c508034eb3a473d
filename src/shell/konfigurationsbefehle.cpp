#include "konfigurationsbefehle.h"

#include "dateidialog.h"
#include "dateien.h"
#include "dateiziel.h"
#include "einstellungen.h"
#include "konfigurationsdatei.h"
#include "letztedateien.h"
#include "plausibilitaet.h"
#include "registerabbild.h"
#include "sicherungen.h"
#include "texte.h"
#include "textmitwerten.h"
#include "umgebung.h"
#include "zykluszeiten.h"

#include <optional>

namespace varnoth {

namespace {

constexpr std::int16_t TextDateifilter = 2000;
constexpr std::int16_t TextOeffnen = 2004;
constexpr std::int16_t TextSpeichernUnter = 2005;
constexpr std::int16_t TextAenderungenSpeichern = 6002;
constexpr std::int16_t TextMehrereDateien = 8810;

constexpr const char* Abschnitt = "frmMain";
constexpr const char* Schluessel = "mnuSpeichernUnter";

std::string ZuletztGespeichert() {
    return DieEinstellungen().LiesText(Abschnitt, Schluessel, "");
}

void ZeigeDateifehler(const std::string& fehlertext, const std::string& pfad) {
    ZeigeWarnung(Dateifehlertext(fehlertext, pfad));
}

bool Speichere(const std::string& pfad) {
    const std::string fehler = ErsetzeDatei(pfad, modDaten::SpeichereKonfigurationsdatei());
    if (!fehler.empty()) {
        ZeigeDateifehler(fehler, pfad);
        return false;
    }
    DieEinstellungen().SchreibText(Abschnitt, Schluessel, pfad);
    MerkeDatei(pfad);
    modDaten::LoescheGeaendert();
    MerkeAusgangslage();
    return true;
}

Antwort FrageNachAenderungen() {
    return DieUmgebung().ZeigeMeldung({.text = LadeText(TextAenderungenSpeichern),
                                       .titel = LadeText(TextAchtung),
                                       .symbol = Symbol::Warnung,
                                       .knoepfe = Knoepfe::JaNeinAbbrechen});
}

} // namespace

std::string LetzterOrdner() {
    const auto zuletzt = LetzteDateien();
    for (const std::string& pfad :
         {zuletzt.empty() ? std::string() : zuletzt.front(), modDaten::GetDateiname(), ZuletztGespeichert()})
        if (std::string ordner = Ordner(pfad); !ordner.empty())
            return ordner;
    return {};
}

bool LiesKonfigurationsdatei(const std::string& pfad, Abbild& abbild) {
    const auto datei = LiesDatei(pfad, LaengeKonfigurationsdatei);
    if (!datei.gelungen)
        ZeigeDateifehler(datei.fehlertext, pfad);
    return datei.gelungen && ZerlegeMitMeldung(datei.bytes, abbild);
}

std::string Dateifehlertext(const std::string& fehlertext, const std::string& pfad) {
    const bool nenntPfad = fehlertext.find(pfad) != std::string::npos;
    return nenntPfad ? fehlertext : fehlertext + "\n" + pfad;
}

bool KonfigurationSpeichernUnter() {
    const auto pfad = FrageNachZiel({.titel = LadeText(TextSpeichernUnter),
                                     .filter = LadeText(TextDateifilter),
                                     .ordner = LetzterOrdner(),
                                     .name = modDaten::GetDateiname()});
    return pfad.has_value() && Speichere(*pfad);
}

bool KonfigurationOeffnen() {
    const auto pfad = FrageNachDatei({.art = Dateiwahl::Oeffnen,
                                      .titel = LadeText(TextOeffnen),
                                      .filter = LadeText(TextDateifilter),
                                      .ordner = LetzterOrdner()});
    if (pfad)
        LadeDatei(*pfad);
    return pfad.has_value();
}

bool LadeDatei(const std::string& pfad, Dateirolle rolle) {
    const auto datei = LiesDatei(pfad, LaengeKonfigurationsdatei);
    if (!datei.gelungen) {
        ZeigeDateifehler(datei.fehlertext, pfad);
        return false;
    }
    if (!DarfErsetzen(Sicherungsanlass::VorDemOeffnen))
        return false;
    const bool geladen = modDaten::LadeKonfigurationsdatei(datei.bytes) != False;
    modDaten::SetDateiname(rolle == Dateirolle::Vorlage ? std::string() : pfad);
    const bool plausibel = modDaten::PruefeKonfiguration() != False;
    modHilfsFunktionen::BerechneZykluszeiten();
    if (geladen && plausibel) {
        if (rolle == Dateirolle::Aktuelle)
            MerkeDatei(pfad);
        MerkeAusgangslage();
    }
    return geladen && plausibel;
}

void ZeigeMehrereDateien() {
    ZeigeWarnung(LadeText(TextMehrereDateien), LadeText(TextAchtung));
}

bool FrageNachSpeichern() {
    if (modDaten::IstGeaendert() == False)
        return true;
    const Antwort antwort = FrageNachAenderungen();
    if (antwort == Antwort::Abbrechen || (antwort == Antwort::Ja && !KonfigurationSpeichernUnter()))
        return false;
    modDaten::LoescheGeaendert();
    return true;
}

} // namespace varnoth
