// The command that shows live values.

#include "auftraege.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "liveansicht.h"
#include "messbild.h"
#include "nachlese.h"
#include "optikteilinformation.h"
#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "registerzugriff.h"
#include "sekunden.h"
#include "texte.h"
#include "textmitwerten.h"
#include "uhrzeit.h"
#include "wortlaut.h"
#include "zeichenwandel.h"

#include <algorithm>
#include <array>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextKeineDauer = 8616;
constexpr std::int16_t TextKeineAnzahl = 8661;

constexpr Zeit UeblicherAbstand = std::chrono::seconds(1);
constexpr double GroessterAbstand = 86400;
constexpr std::int32_t GroessteAnzahl = 1'000'000'000;
constexpr int ZeilenJeKopf = 20;

/// Every part is shown all the time; what was read is taken from the image at the end of a pass.
class Teilansicht : public LiveAnsicht {
public:
    bool ZeigtLiveDaten() const override { return true; }
    void NeuerDatensatz() override {}
    void StrahlzustaendeLiegenVor() override {}
    void BlankingBekannt() override {}
    void MesswerteLiegenVor() override {}
};

/// Polling on behalf of the command, which stands in for the main window.
class Beobachtung : public PollingZiel {
public:
    explicit Beobachtung(Geduld& dieGeduld) : geduld(dieGeduld) { modPolling::SetzeZiel(this); }
    ~Beobachtung() override {
        modPolling::StoppePolling();
        modPolling::SetzeZiel(nullptr);
    }

    LiveAnsicht& Ansicht(int optikteil) override { return ansichten.at(static_cast<std::size_t>(optikteil)); }
    void AktualisiereGeraetestatus() override {}
    bool BefehlWartet() override { return geduld.IstAmEnde(); }

    /// One whole pass. False when there was none until patience ended.
    bool Durchlaufe() {
        geduld.Beginne();
        const unsigned vorher = modPolling::GetDurchgaenge();
        while (modPolling::GetDurchgaenge() == vorher && !geduld.IstAmEnde())
            modPolling::PollingZyklus();
        return modPolling::GetDurchgaenge() != vorher;
    }

private:
    Geduld& geduld;
    std::array<Teilansicht, AnzahlOptikteile> ansichten{};
};

/// What a pass must know of the parts before: which are there, their beams, and which of these are blanked.
Ende LiesOptikteile(const Lauf& lauf, const Leitungszugang& zugang) {
    constexpr std::int16_t Adressen[] = {spezifisch::Strahlenzahl, spezifisch::Optikteilstatus,
                                         spezifisch::Blankingmuster};
    std::vector<Transferparameter> alle;
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
        for (const std::int16_t adresse : Adressen)
            alle.push_back({Spezifisch, adresse, Beschreibung(Spezifisch, adresse).Laenge, teil});
    Geduld geduld(lauf);
    Geduldsanzeige anzeige(geduld);
    const bool gelesen =
        LiesRegister(anzeige, alle, [&geduld](const Transferparameter& parameter, const Werte& werte) {
            geduld.Beginne();
            SpeichereParameter(parameter, werte);
        });
    if (!gelesen)
        return zugang.EndeNachAbbruch();
    UebernimmOptikteile();
    return Ende::Erledigt;
}

struct Wunsch {
    Zeit abstand = UeblicherAbstand;
    std::int32_t anzahl = GroessteAnzahl;
};

Ende LiesWunsch(const Lauf& lauf, Wunsch& wunsch) {
    if (const auto worte = lauf.zeile.Wert("interval")) {
        const auto abstand = SekundenAus(*worte, 0, GroessterAbstand);
        if (!abstand)
            return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextKeineDauer, {WortAlsUtf8(*worte)}));
        wunsch.abstand = *abstand;
    }
    if (const auto worte = lauf.zeile.Wert("count")) {
        const auto anzahl = ZahlAus(*worte, GroessteAnzahl);
        if (!anzahl || *anzahl == 0)
            return lauf.Scheitere(Ende::Bedienung, LadeTextMit(TextKeineAnzahl, {WortAlsUtf8(*worte)}));
        wunsch.anzahl = *anzahl;
    }
    return Ende::Erledigt;
}

void GibBild(const Lauf& lauf, int nummer) {
    const Messbild bild = MessbildAus(modDaten::DasAbbild());
    if (!lauf.InJson() && nummer % ZeilenJeKopf == 0)
        lauf.konsole.Zeile(Tabellenkopf());
    auto felder = AlsFelder(bild);
    felder.insert(felder.begin(), {"time", Zeitmarke(std::chrono::system_clock::now())});
    lauf.Gib(Tabellenzeilen(bild, Uhrzeit()), felder);
}

/// Rests until the next picture is due, or the user has had enough.
void Ruhe(const Lauf& lauf, Zeit bis) {
    constexpr Zeit Blick = std::chrono::milliseconds(50);
    for (Zeit jetzt = DieUmgebung().Uhr(); jetzt < bis && !lauf.konsole.Unterbrochen();
         jetzt = DieUmgebung().Uhr())
        DieUmgebung().WarteAufEreignis(std::min(bis - jetzt, Blick));
}

Ende Beobachte(const Lauf& lauf, const Leitungszugang& zugang, const Wunsch& wunsch) {
    Geduld geduld(lauf);
    Beobachtung beobachtung(geduld);
    modPolling::StartePolling();
    for (std::int32_t nummer = 0; nummer < wunsch.anzahl; ++nummer) {
        const Zeit naechstes = DieUmgebung().Uhr() + wunsch.abstand;
        if (!beobachtung.Durchlaufe())
            return zugang.EndeNachAbbruch();
        GibBild(lauf, nummer);
        if (!lauf.konsole.WirdGelesen())
            return Ende::Erledigt;
        if (nummer + 1 < wunsch.anzahl)
            Ruhe(lauf, naechstes);
    }
    return Ende::Erledigt;
}

} // namespace

Ende Watch(Lauf& lauf) {
    Wunsch wunsch;
    if (const Ende ende = LiesWunsch(lauf, wunsch); ende != Ende::Erledigt)
        return ende;
    Leitungszugang zugang(lauf);
    if (const Ende ende = zugang.Verbinde(); ende != Ende::Erledigt)
        return ende;
    if (const Ende ende = LiesOptikteile(lauf, zugang); ende != Ende::Erledigt)
        return ende;
    return Beobachte(lauf, zugang, wunsch);
}

} // namespace varnoth::ctl
