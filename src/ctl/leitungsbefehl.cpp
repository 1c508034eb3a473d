// The command that checks the line.

#include "ablage.h"
#include "auftraege.h"
#include "lauf.h"
#include "leitungspruefung.h"
#include "leitungszugang.h"
#include "portliste.h"
#include "schnittstelle.h"
#include "texte.h"
#include "textmitwerten.h"
#include "wortlaut.h"
#include "zeichenwandel.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextKeineAnzahl = 8280;
constexpr int MeisteAnfragen = 1'000'000;

class Pruefschreiber : public Pruefzeiger {
public:
    Pruefschreiber(const Lauf& derLauf, int alle) : lauf(derLauf), anzahl(alle) {}
    ~Pruefschreiber() override { lauf.konsole.Fortschritt({}); }

    void Zeige(const Pruefbefund& bisher) override {
        lauf.ZeigeFortschritt(std::to_string(bisher.gesendet) + "/" + std::to_string(anzahl));
    }
    bool Abgebrochen() override { return lauf.konsole.Unterbrochen(); }

private:
    const Lauf& lauf;
    int anzahl;
};

/// The number of requests that the option names; nothing for words that are none.
std::optional<int> Anfragen(const Lauf& lauf) {
    const auto worte = lauf.zeile.Wert("requests");
    if (!worte)
        return Pruefauftrag{}.anzahl;
    const auto anzahl = ZahlAus(*worte, MeisteAnfragen);
    return anzahl && *anzahl > 0 ? anzahl : std::nullopt;
}

/// What the machine tells of the port in use, by whichever of its names.
Portangabe PortInGebrauch() {
    const std::string geraet = modSchnittstelle::GetAnschluss().geraet;
    for (const Portangabe& port : LiesPortliste())
        if (IstDasselbe(port.geraet, geraet))
            return port;
    return {.geraet = geraet};
}

constexpr const char* Artnamen[] = {"ok",   "notOpened",    "nothingSent", "portLost", "noReply",
                                    "echo", "secondMaster", "autosend",    "format",   "reflections",
                                    "late", "missing",      "latencyTimer"};

Json DeutungAlsJson(const Deutung& deutung) {
    return Json::Objekt({{"kind", Artnamen[static_cast<std::size_t>(deutung.art)]}, {"words", deutung.text}});
}

std::vector<Json::Feld> Felder(const Pruefbefund& befund) {
    const auto Mikrosekunden = [&](int prozent) {
        const auto dauer = Umlaufzeit(befund, prozent);
        return dauer ? Json(static_cast<std::int32_t>(dauer->count())) : Json();
    };
    const auto Anzahl = [&](Pruefende ende) { return Json(std::int32_t{befund.Anzahl(ende)}); };
    return {{"device", befund.geraet},
            {"format", befund.format},
            {"sent", std::int32_t{befund.gesendet}},
            {"answered", Anzahl(Pruefende::Beantwortet)},
            {"silent", Anzahl(Pruefende::Nichts)},
            {"crc", Anzahl(Pruefende::FalscheSumme)},
            {"short", Anzahl(Pruefende::Halb)},
            {"foreign", Anzahl(Pruefende::Fremdes)},
            {"echo", Anzahl(Pruefende::Echo)},
            {"late", std::int32_t{befund.spaete}},
            {"unasked", std::int32_t{befund.ungefragte}},
            {"minMicroseconds", Mikrosekunden(0)},
            {"medianMicroseconds", Mikrosekunden(50)},
            {"p95Microseconds", Mikrosekunden(95)},
            {"meaning", Jsonliste(Deute(befund), DeutungAlsJson)}};
}

Ende EndeVon(const Pruefbefund& befund) {
    if (befund.portVerloren)
        return Ende::Port;
    if (befund.abgebrochen)
        return Ende::Unterbrochen;
    return befund.Anzahl(Pruefende::Beantwortet) == befund.gesendet ? Ende::Erledigt : Ende::KeineAntwort;
}

} // namespace

Ende Linecheck(Lauf& lauf) {
    if (const Ende ende = WaehleAnschluss(lauf); ende != Ende::Erledigt)
        return ende;
    const auto anfragen = Anfragen(lauf);
    if (!anfragen)
        return lauf.Scheitere(Ende::Bedienung,
                              LadeTextMit(TextKeineAnzahl, {WortAlsUtf8(*lauf.zeile.Wert("requests"))}));
    Pruefbefund befund;
    {
        Pruefschreiber schreiber(lauf, *anfragen);
        befund = PruefeLeitung({.anzahl = *anfragen, .port = PortInGebrauch()}, schreiber);
    }
    if (!befund.portfehler.empty())
        return lauf.Scheitere(Ende::Port, befund.portfehler);
    lauf.Gib(Pruefbericht(befund), Felder(befund));
    return EndeVon(befund);
}

} // namespace varnoth::ctl
