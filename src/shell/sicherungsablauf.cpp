#include "sicherungsablauf.h"

#include "dateiziel.h"
#include "fensterplatz.h"
#include "frmSicherungen.h"
#include "konfigurationsbefehle.h"
#include "texte.h"
#include "textmitwerten.h"
#include "umgebung.h"

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextDateifilter = 2000;
constexpr std::int16_t TextSpeichernUnter = 9826;
constexpr std::int16_t TextNichtLesbar = 9921;

} // namespace

Sicherungsablauf::Sicherungsablauf(Ziel betroffenes) : ziel(std::move(betroffenes)) {}

Sicherungsablauf::~Sicherungsablauf() = default;

void Sicherungsablauf::Zeige() {
    if (DieSicherungen() == nullptr)
        return;
    if (fenster == nullptr)
        fenster = std::make_unique<frmSicherungen>(
            *DieSicherungen(),
            Sicherungsbefehle{.oeffne =
                                  [this](const Sicherung& sicherung) {
                                      gewaehlte = sicherung.pfad;
                                      ziel.oeffne();
                                  },
                              .speichere = SpeichereKopie,
                              .vergleiche = [this](const Sicherung& s) { Vergleiche(s); }});
    HoleNachVorn(*fenster);
}

void Sicherungsablauf::Erneuere() {
    if (fenster != nullptr && fenster->isVisible())
        fenster->Erneuere();
}

void Sicherungsablauf::Lokalisiere() {
    if (fenster != nullptr)
        fenster->Erneuere();
}

void Sicherungsablauf::Schliesse() {
    if (fenster != nullptr)
        fenster->close();
}

void Sicherungsablauf::Vergleiche(const Sicherung& sicherung) const {
    if (const auto abbild = DieSicherungen()->Lies(sicherung))
        ziel.vergleiche(sicherung, *abbild);
    else
        ZeigeWarnung(LadeTextMit(TextNichtLesbar, {sicherung.pfad}), LadeText(TextAchtung));
}

void Sicherungsablauf::SpeichereKopie(const Sicherung& sicherung) {
    const auto pfad = FrageNachZiel({.art = Dateiwahl::Speichern,
                                     .titel = LadeText(TextSpeichernUnter),
                                     .filter = LadeText(TextDateifilter),
                                     .ordner = LetzterOrdner(),
                                     .name = {}});
    if (!pfad)
        return;
    const std::string fehler = DieSicherungen()->Kopiere(sicherung, *pfad);
    if (!fehler.empty())
        ZeigeWarnung(Dateifehlertext(fehler, *pfad));
}

} // namespace varnoth
