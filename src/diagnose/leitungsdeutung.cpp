#include "leitungspruefung.h"
#include "porteinstellungen.h"
#include "texte.h"
#include "textmitwerten.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextInOrdnung = 8250;
constexpr std::int16_t TextNichtsGesendet = 8251;
constexpr std::int16_t TextPortVerloren = 8252;
constexpr std::int16_t TextKeineAntwort = 8253;
constexpr std::int16_t TextEcho = 8254;
constexpr std::int16_t TextZweiterMaster = 8255;
constexpr std::int16_t TextAutosend = 8256;
constexpr std::int16_t TextParitaet = 8257;
constexpr std::int16_t TextFormat = 8258;
constexpr std::int16_t TextReflexion = 8259;
constexpr std::int16_t TextSpaet = 8260;
constexpr std::int16_t TextAussetzer = 8261;
constexpr std::int16_t TextVerzoegerung = 8262;
constexpr std::int16_t TextVerzoegerungVermutet = 8263;

constexpr Zeit Auffaellig =
    std::chrono::milliseconds(8); // more than a controller thinks, less than a timer's 16

/// How long request and reply themselves take on the line.
Zeit Drahtzeit(const Pruefbefund& befund) {
    constexpr std::size_t Anfrage = 4;
    const auto einstellungen = LiesPorteinstellungen(befund.format).value_or(Porteinstellungen{});
    const auto zeichen = static_cast<double>(Anfrage + befund.antwortlaenge);
    return Zeit{static_cast<Zeit::rep>(Zeichendauer(einstellungen) * zeichen)};
}

class Deuter {
public:
    explicit Deuter(const Pruefbefund& neuer) : befund(neuer) {}

    std::vector<Deutung> Deute() {
        if (!befund.portfehler.empty())
            return {{Deutungsart::NichtGeoeffnet, befund.portfehler}};
        if (befund.portVerloren)
            Sage(Deutungsart::PortVerloren, TextPortVerloren, {befund.geraet});
        if (befund.gesendet > 0)
            DeuteAntworten();
        else if (deutungen.empty())
            Sage(Deutungsart::NichtsGesendet, TextNichtsGesendet);
        return std::move(deutungen);
    }

private:
    int Anzahl(Pruefende ende) const { return befund.Anzahl(ende); }

    void Sage(Deutungsart art, std::int16_t text, std::initializer_list<std::string> werte = {}) {
        deutungen.push_back({art, LadeTextMit(text, werte)});
    }

    void DeuteAntworten() {
        const bool alle = Anzahl(Pruefende::Beantwortet) == befund.gesendet;
        const bool reden = DeuteAndereStimmen();
        if (Anzahl(Pruefende::Echo) > 0)
            Sage(Deutungsart::Echo, TextEcho);
        else if (Anzahl(Pruefende::Beantwortet) == 0)
            DeuteAusbleiben(reden);
        else if (!reden)
            DeuteSchaden();
        if (alle && deutungen.empty())
            Sage(Deutungsart::InOrdnung, TextInOrdnung, {std::to_string(befund.gesendet)});
        DeuteVerzoegerung();
    }

    /// Bytes that come while nothing is under way are somebody's own doing, not a disturbance of the line.
    bool DeuteAndereStimmen() {
        constexpr int Wenige = 2;
        if (befund.fremdeAnfragen > 0)
            Sage(Deutungsart::ZweiterMaster, TextZweiterMaster);
        else if (befund.datenbloecke > 0 || befund.ungefragte > Wenige)
            Sage(Deutungsart::Autosend, TextAutosend);
        else
            return false;
        return true;
    }

    void DeuteAusbleiben(bool reden) {
        if (befund.spaete > 0)
            Sage(Deutungsart::Spaet, TextSpaet);
        else if (Anzahl(Pruefende::Nichts) == befund.gesendet) {
            if (!reden)
                Sage(Deutungsart::KeineAntwort, TextKeineAntwort);
        } else if (befund.gebrochene > 0)
            Sage(Deutungsart::Format, TextParitaet, {befund.format});
        else if (!reden)
            Sage(Deutungsart::Format, TextFormat, {befund.format});
    }

    void DeuteSchaden() {
        const int beschaedigte = Anzahl(Pruefende::FalscheSumme) + Anzahl(Pruefende::Halb) +
                                 Anzahl(Pruefende::Fremdes) + befund.beigaben + befund.ungefragte;
        if (beschaedigte > 0)
            Sage(Deutungsart::Reflexion, TextReflexion, {std::to_string(beschaedigte)});
        if (befund.spaete > 0)
            Sage(Deutungsart::Spaet, TextSpaet);
        else if (Anzahl(Pruefende::Nichts) > 0)
            Sage(Deutungsart::Aussetzer, TextAussetzer, {std::to_string(Anzahl(Pruefende::Nichts))});
    }

    void DeuteVerzoegerung() {
        const auto mitte = Umlaufzeit(befund, 50);
        if (!mitte)
            return;
        const Zeit warten = *mitte - Drahtzeit(befund);
        const auto& timer = befund.port.verzoegerungMs;
        if (!timer && warten >= Auffaellig)
            Sage(Deutungsart::Verzoegerung, TextVerzoegerungVermutet, {Millisekunden(warten)});
        if (timer && *timer > 1 &&
            warten >= std::min(Zeit(std::chrono::milliseconds(*timer)) / 2, Auffaellig))
            Sage(Deutungsart::Verzoegerung, TextVerzoegerung,
                 {std::to_string(*timer), befund.port.verzoegerungsdatei});
    }

    static std::string Millisekunden(Zeit dauer) {
        return std::to_string(std::chrono::round<std::chrono::milliseconds>(dauer).count());
    }

    const Pruefbefund& befund;
    std::vector<Deutung> deutungen;
};

} // namespace

std::vector<Deutung> Deute(const Pruefbefund& befund) {
    return Deuter(befund).Deute();
}

} // namespace varnoth
