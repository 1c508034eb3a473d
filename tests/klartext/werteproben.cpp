#include "werteproben.h"

#include "auswahlliste.h"
#include "autosend.h"
#include "blankingmuster.h"
#include "datenblock.h"
#include "gruppenzaehler.h"
#include "klartext.h"
#include "pausenzeit.h"
#include "pnpausgang.h"
#include "registeradressen.h"

#include <algorithm>
#include <random>

namespace varnoth::werteproben {

namespace {

using Zufall = std::minstd_rand;

void FuegeListenAn(std::vector<Probe>& proben) {
    for (const Auswahlliste& liste : AlleTeillisten())
        for (int auswahl = 0; auswahl < liste.anzahl; ++auswahl)
            for (const bool oder : {false, true}) {
                const std::int32_t wert = WertFuer(liste, auswahl);
                const bool zaehlt = liste.adresse == spezifisch::Gruppenzaehler;
                if (zaehlt || !oder)
                    proben.emplace_back(Spezifisch, liste.adresse,
                                        Werte{zaehlt ? Gruppenzaehlerwert(wert, oder) : wert});
            }
}

void FuegePnpAn(std::vector<Probe>& proben) {
    for (int funktion = 0; funktion <= 8; ++funktion)
        for (int teil = 0; teil < 4; ++teil)
            for (int pegel = 0; pegel < 2; ++pegel)
                proben.emplace_back(Global, global::PnpAusgang,
                                    Werte{Registerwert(PnpAusgang{funktion, teil, pegel})});
}

void FuegeAutosendAn(std::vector<Probe>& proben) {
    using enum Autosendart;
    for (const Autosendart art : {Keines, OhneTrigger, OhneTriggerModbus, MitTriggerModbus})
        for (const bool merken : {false, true})
            for (const Triggerstart trigger : {Triggerstart::Sofort, Triggerstart::NachVollstaendigemScan})
                for (std::int32_t rate = 7; rate <= 255; rate += 31)
                    proben.emplace_back(Kommunikation, kommunikation::Autosend,
                                        Werte{Registerwert(Autosendeinstellung{art, merken, rate, trigger})});
    for (const Byteformat format :
         {Byteformat::ZweiStopbitsOhneParitaet, Byteformat::EinStopbitUngerade, Byteformat::EinStopbitGerade})
        for (std::int32_t baud = 12; baud <= 16; ++baud)
            proben.emplace_back(Kommunikation, kommunikation::Autosendformat,
                                Werte{Autosendformatwert(baud, format)});
}

/// A data block of `anzahl` entries, each one that can be chosen.
Werte Datenblock(int anzahl, Zufall& zufall) {
    Eintragsliste liste{};
    const auto naechste = [&](int grenze) {
        return static_cast<int>(zufall() % static_cast<unsigned>(grenze));
    };
    while (AnzahlEintraege(liste) < anzahl) {
        const Eintragswahl wahl = Passend({static_cast<Quelle>(naechste(AnzahlQuellen)),
                                           static_cast<Wertart>(naechste(AnzahlWertarten)),
                                           static_cast<Sendewert>(naechste(AnzahlSendewerte))});
        FuegeEin(liste, 0, Eintragswort(wahl));
    }
    return DatenblockAus(liste);
}

void FuegeMusterAn(std::vector<Probe>& proben) {
    Zufall zufall(7);
    for (int anzahl = 0; anzahl <= MaxEintraege; ++anzahl)
        proben.emplace_back(Kommunikation, kommunikation::Datenblock, Datenblock(anzahl, zufall));
    for (const unsigned haeufigkeit : {1U, 2U, 3U, 50U, 1000U}) {
        Geblankte geblankte(MaxStrahlen);
        std::generate(geblankte.begin(), geblankte.end(), [&] { return zufall() % haeufigkeit == 0; });
        proben.emplace_back(Spezifisch, spezifisch::Blankingmuster, MusterAus(geblankte));
    }
    proben.emplace_back(Spezifisch, spezifisch::Blankingmuster, Werte(Blankingregister, 0));
}

} // namespace

std::vector<Ort> AlleOrte() {
    std::vector<Ort> orte;
    for (const Parameter& parameter : AlleParameter())
        orte.push_back({parameter.bereich, parameter.adresse});
    return orte;
}

std::vector<Probe> AllesWasDerEditorAnbietet() {
    std::vector<Probe> proben;
    FuegeListenAn(proben);
    FuegePnpAn(proben);
    FuegeAutosendAn(proben);
    FuegeMusterAn(proben);
    for (std::int32_t adresse = 1; adresse <= 240; ++adresse)
        proben.emplace_back(Kommunikation, kommunikation::Stationsadresse, Werte{adresse});
    for (const std::int32_t pause : {0, 1, 125, 65535})
        proben.emplace_back(Kommunikation, kommunikation::Pausenzeit, Werte{pause});
    return proben;
}

std::vector<Probe> AllesAusDemEditor() {
    std::vector<Probe> proben = AllesWasDerEditorAnbietet();
    for (const Auswahlliste& liste : AlleTeillisten())
        proben.emplace_back(Spezifisch, liste.adresse, Werte{WertFuer(liste, KeineAuswahl)});
    proben.emplace_back(Spezifisch, spezifisch::Gruppenzaehler, Werte{Gruppenzaehlerwert(0, true)});
    proben.emplace_back(Kommunikation, kommunikation::Autosendformat,
                        Werte{Autosendformatwert(WertFuer(Autosendbaudraten(), KeineAuswahl), std::nullopt)});
    proben.emplace_back(Kommunikation, kommunikation::Autosend, Werte{RegisterwertProfibus(0x7F, 12)});
    proben.emplace_back(Kommunikation, kommunikation::Autosend, Werte{3});
    for (const char* getippt : {"-5", "1e9", "-99999999999", "ohne Zahl"})
        proben.emplace_back(Kommunikation, kommunikation::Pausenzeit,
                            Werte{Pausenzeitwert(PausenzeitBeimVerlassen(getippt))});
    return proben;
}

std::vector<Probe> Beliebige(int jeParameter) {
    Zufall zufall(11);
    std::vector<Probe> proben;
    for (const Ort& ort : AlleOrte())
        for (int i = 0; i < jeParameter; ++i) {
            Werte werte(static_cast<std::size_t>(Beschreibung(ort.bereich, ort.adresse).Laenge));
            const unsigned grenze = i % 4 == 0 ? 0x10000 : i % 4 == 1 ? 0x100 : i % 4 == 2 ? 0x7F7F : 3;
            for (std::int32_t& wert : werte)
                wert = static_cast<std::int32_t>(zufall() % grenze);
            proben.emplace_back(ort.bereich, ort.adresse, werte);
        }
    return proben;
}

std::vector<std::pair<Ort, std::string>> VerdrehteWorte(int anzahl) {
    constexpr std::string_view zeichen = "0123456789,.;:-/() xXhHmsK\xC3\xA4\0";
    Zufall zufall(13);
    const auto proben = AllesAusDemEditor();
    std::vector<std::pair<Ort, std::string>> alle;
    for (int i = 0; i < anzahl; ++i) {
        const Probe& probe = proben[zufall() % proben.size()];
        std::string worte =
            Klartext(probe.ort.bereich, probe.ort.adresse, probe.werte, {.sprache = Deutsch, .zyklus = 1500});
        for (auto stellen = zufall() % 3; stellen > 0 && !worte.empty(); --stellen)
            worte[zufall() % worte.size()] = zeichen[zufall() % zeichen.size()];
        alle.emplace_back(probe.ort, worte);
    }
    return alle;
}

} // namespace varnoth::werteproben
