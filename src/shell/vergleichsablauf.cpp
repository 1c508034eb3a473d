#include "vergleichsablauf.h"

#include "dateidialog.h"
#include "dateien.h"
#include "dateiziel.h"
#include "frmVergleich.h"
#include "geraetebetrieb.h"
#include "konfigurationsbefehle.h"
#include "konfigurationsdatei.h"
#include "lesevorgang.h"
#include "seitenjetzt.h"
#include "seriennummer.h"
#include "sicherungen.h"
#include "texte.h"
#include "umgebung.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextDateifilter = 2000;
constexpr std::int16_t TextDateiWaehlen = 9597;
constexpr std::int16_t TextTextfilter = 9598;
constexpr std::int16_t TextSpeichern = 9599;
constexpr std::int16_t TextUnvollstaendig = 9580;
constexpr std::int16_t TextKeineSicherung = 9600;

/// Where the newest backup lies; nothing where there is none.
std::optional<std::string> Sicherungsordner() {
    const auto alle = DieSicherungen()->Alle();
    if (alle.empty())
        return std::nullopt;
    return alle.front().pfad.substr(0, alle.front().pfad.find_last_of('/') + 1);
}

Vergleichsseite Geraeteseite(const Geraeteabzug& abzug) {
    std::string einzelheit = Lesezeile(std::chrono::system_clock::now(), GeraeteSeriennummer());
    if (!abzug.ungelesen.empty())
        einzelheit += ", " + LadeText(TextUnvollstaendig);
    return {Vergleichsquelle::Geraet, einzelheit, abzug.abbild, abzug.ungelesen};
}

} // namespace

Vergleichsablauf::Vergleichsablauf(std::function<void()> dasVerlangen)
    : verlangeGeraet(std::move(dasVerlangen)) {}

Vergleichsablauf::~Vergleichsablauf() = default;

frmVergleich& Vergleichsablauf::Fenster() {
    if (fenster == nullptr)
        fenster = std::make_unique<frmVergleich>(static_cast<Vergleichsanbieter&>(*this));
    return *fenster;
}

void Vergleichsablauf::Zeige() {
    Fenster().ZeigeVor();
}

void Vergleichsablauf::Zeige(const Vergleichsseite& a, const Vergleichsseite& b) {
    Fenster().Setze(Seitenwahl::A, a);
    Fenster().Setze(Seitenwahl::B, b);
    Fenster().ZeigeVor();
}

void Vergleichsablauf::LiesGeraet(Geraetebetrieb& betrieb) {
    Geraeteabzug abzug;
    betrieb.LiesAbzug(Fenster(), abzug);
    const bool etwasGelesen = abzug.ungelesen != AlleStellen(IstLesbar);
    if (etwasGelesen)
        Fenster().Setze(geraeteseite, Geraeteseite(abzug));
}

void Vergleichsablauf::Erneuere() {
    if (fenster != nullptr)
        fenster->Erneuere();
}

void Vergleichsablauf::Lokalisiere() {
    if (fenster != nullptr)
        fenster->Lokalisiere();
}

void Vergleichsablauf::Schliesse() {
    if (fenster != nullptr)
        fenster->close();
}

std::vector<Vergleichsquelle> Vergleichsablauf::Fragbare() {
    std::vector<Vergleichsquelle> quellen{Vergleichsquelle::Geraet, Vergleichsquelle::Datei};
    if (DieSicherungen() != nullptr)
        quellen.push_back(Vergleichsquelle::Sicherung);
    return quellen;
}

void Vergleichsablauf::Verlange(Vergleichsquelle quelle, Seitenwahl seite) {
    if (quelle == Vergleichsquelle::Datei)
        OeffneDatei(quelle, LetzterOrdner(), seite);
    if (quelle == Vergleichsquelle::Sicherung)
        OeffneSicherung(seite);
    if (quelle != Vergleichsquelle::Geraet)
        return;
    geraeteseite = seite;
    verlangeGeraet();
}

void Vergleichsablauf::OeffneSicherung(Seitenwahl seite) {
    if (const auto ordner = Sicherungsordner())
        OeffneDatei(Vergleichsquelle::Sicherung, *ordner, seite);
    else
        ZeigeWarnung(LadeText(TextKeineSicherung), LadeText(TextAchtung));
}

void Vergleichsablauf::OeffneDatei(Vergleichsquelle quelle, const std::string& ordner, Seitenwahl seite) {
    const auto pfad = FrageNachDatei({.art = Dateiwahl::Oeffnen,
                                      .titel = LadeText(TextDateiWaehlen),
                                      .filter = LadeText(TextDateifilter),
                                      .ordner = ordner});
    if (!pfad)
        return;
    Vergleichsseite gelesene{quelle, *pfad, {}, {}};
    if (LiesKonfigurationsdatei(*pfad, gelesene.abbild))
        Fenster().Setze(seite, gelesene);
}

void Vergleichsablauf::SpeichereText(const std::string& text) {
    const auto pfad = FrageNachZiel(
        {.titel = LadeText(TextSpeichern), .filter = LadeText(TextTextfilter), .ordner = LetzterOrdner()});
    if (!pfad)
        return;
    const std::string fehler = ErsetzeDatei(*pfad, text);
    if (!fehler.empty())
        ZeigeWarnung(Dateifehlertext(fehler, *pfad));
}

} // namespace varnoth
