// A controller that was left in autosend: it is found, identified and read all the same.

#include "austausch.h"
#include "identifizierung.h"
#include "lesevorgang.h"
#include "optikteilinformation.h"
#include "polling.h"
#include "pruefport.h"
#include "rahmen.h"
#include "registerabbild.h"
#include "registerbeschreibung.h"
#include "simulator.h"
#include "transaktionen.h"
#include "transfermitschrift.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

using namespace std::chrono_literals;

constexpr int Mitlesbar = 3, Schnell = 1; // autosend in Modbus format, and bare values with their sum

/// The simulated controller at the clock that jumps.
class Simulatorleitung : public pruefung::PruefPort {
public:
    Simulatorleitung(pruefung::PruefUmgebung& pruefumgebung, const simulator::Aufbau& aufbau)
        : PruefPort(pruefumgebung), geraet(aufbau), umgebung(pruefumgebung) {}

    void Verwirf() override { LiesAlles(); }
    std::size_t BytesWartend() override {
        Hole();
        return offen ? eingang.size() : 0;
    }
    std::string LiesAlles() override {
        Hole();
        return std::exchange(eingang, {});
    }
    void Schreibe(std::string_view bytes) override {
        gesendet.emplace_back(bytes);
        geraet.Empfange({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, umgebung.uhr);
    }
    void WarteAufEingang(Zeit hoechstens) override {
        const auto faellig = geraet.NaechsteFaelligkeit();
        const Zeit bis = faellig ? std::clamp(*faellig - umgebung.uhr, Zeit{1}, hoechstens) : hoechstens;
        umgebung.WarteAufEreignis(bis);
    }

    simulator::Simulator geraet;

private:
    void Hole() {
        for (const std::uint8_t byte : geraet.Entnimm(umgebung.uhr))
            eingang += static_cast<char>(byte);
    }

    pruefung::PruefUmgebung& umgebung;
};

struct Teilmitschrift : Optikteilanzeige {
    void ZeigeOptikteil(int /*optikteil*/, const std::string& /*text*/) override {}
    void ZeigeFortschritt(int /*erledigt*/, int /*gesamt*/) override {}
    bool Abgebrochen() override { return false; }
};

struct Nullansicht : LiveAnsicht {
    bool ZeigtLiveDaten() const override { return true; }
    void NeuerDatensatz() override {}
    void StrahlzustaendeLiegenVor() override {}
    void BlankingBekannt() override {}
    void MesswerteLiegenVor() override {}
};

struct Ziel : PollingZiel {
    Ziel() { modPolling::SetzeZiel(this); }
    ~Ziel() override { modPolling::SetzeZiel(nullptr); }
    LiveAnsicht& Ansicht(int /*optikteil*/) override { return ansicht; }
    void AktualisiereGeraetestatus() override {}
    bool BefehlWartet() override { return false; }

    Nullansicht ansicht;
};

} // namespace

/// Autosend of every mode that sends unasked, from back to back to one block in seconds.
class RedendesGeraetTest : public testing::TestWithParam<std::pair<int, int>> {
protected:
    static simulator::Aufbau Aufbau() {
        simulator::Aufbau aufbau;
        aufbau.strahlen = {96, 0, 0, 0};
        aufbau.adresse = 17;
        return aufbau;
    }
    RedendesGeraetTest() {
        Befehl("scene freeze");
        Befehl("set communication 74 " + std::to_string(GetParam().first + 256 * GetParam().second));
        Sage({2});
        umgebung.uhr += 10s;
        modSchnittstelle::OpenCommPort();
    }
    /// Writes the control register as another program would.
    void Sage(const Werte& werte) {
        const std::string rahmen = SchreibAnforderung(17, 0x4084, 1, werte);
        leitung.geraet.Empfange({reinterpret_cast<const std::uint8_t*>(rahmen.data()), rahmen.size()},
                                umgebung.uhr);
    }
    void Befehl(const std::string& zeile) {
        EXPECT_TRUE(leitung.geraet.Befehl(zeile, umgebung.uhr).starts_with("ok")) << zeile;
    }
    bool Redet() { return leitung.geraet.Befehl("state", umgebung.uhr).ends_with("autosend=on"); }
    struct Kennung : Identifikationsanzeige {
        void ZeigeVerbleibend(int versuche) override { verbleibend = versuche; }
        void ZeigeUrsache(const Verbindungsauskunft& /*auskunft*/) override {}
        void ZeigeIdentifikation() override {}
        bool Abgebrochen() override { return false; }
        int verbleibend = 0;
    };
    Werte GanzesAbbild() const {
        Werte alle;
        for (const Speicherbereich bereich : AlleSpeicherbereiche)
            for (const Parameter& parameter : ParameterMit(bereich, IstLesbar))
                for (int teil = 0; teil < Exemplare(bereich); ++teil) {
                    const Werte werte = modDaten::HoleParameter(bereich, parameter.adresse, teil);
                    alle.insert(alle.end(), werte.begin(), werte.end());
                }
        return alle;
    }
    bool Lies() { return LiesKonfiguration(anzeige) && HoleOptikteilInformation(teile); }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    Simulatorleitung leitung{umgebung, Aufbau()};
    pruefung::Mitschrift anzeige;
    Teilmitschrift teile;
    Kennung kennung;
};

TEST_P(RedendesGeraetTest, Its_unknown_address_is_found_within_the_tries) {
    for (int mal = 0; mal < 20; ++mal) {
        modModbus::IdentReset();
        ASSERT_TRUE(Identifiziere(kennung)) << mal;
        EXPECT_EQ(modModbus::GetSlaveAdresse(), 17);
        EXPECT_EQ(modModbus::GetIdentText1(), "Varnoth Simulator");
        umgebung.uhr += 12345us * mal;
    }
    EXPECT_TRUE(Redet());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_P(RedendesGeraetTest, Its_configuration_is_read_right_and_the_read_comes_to_its_end) {
    ASSERT_TRUE(Identifiziere(kennung));
    const Zeit beginn = umgebung.uhr;
    // A user would not wait for longer.
    anzeige.abbruchBei = [&](const pruefung::Schritt&) { return umgebung.uhr - beginn > 30s; };
    ASSERT_TRUE(Lies()) << (umgebung.uhr - beginn).count() / 1000 << " ms";
    const Werte gelesenes = GanzesAbbild();
    Sage({4});
    umgebung.uhr += 5s;
    modAustausch::Vergewissere();
    modDaten::LeereAbbild();
    ASSERT_TRUE(Lies());
    EXPECT_EQ(gelesenes, GanzesAbbild());
}

TEST_P(RedendesGeraetTest, Live_data_goes_on_when_another_program_has_it_talk) {
    ASSERT_TRUE(Identifiziere(kennung));
    ASSERT_TRUE(Lies());
    Sage({4});
    umgebung.uhr += 5s;
    Ziel ziel;
    modPolling::SetzeAnzahlOptikteile(1);
    modPolling::SetzeOptikteilStatus(0, modPolling::Vorhanden);
    modPolling::StartePolling();
    Sage({2});
    const Zeit beginn = umgebung.uhr;
    while (umgebung.uhr - beginn < 30s && modPolling::GetDurchgaenge() < 50)
        modPolling::PollingZyklus();
    EXPECT_EQ(modPolling::GetDurchgaenge(), 50U) << umgebung.meldungen.size();
    modPolling::StoppePolling();
}

INSTANTIATE_TEST_SUITE_P(Arten, RedendesGeraetTest,
                         testing::Values(std::pair(Mitlesbar, 1), std::pair(Mitlesbar, 3),
                                         std::pair(Mitlesbar, 10), std::pair(Mitlesbar, 40),
                                         std::pair(Mitlesbar, 255), std::pair(Schnell, 1),
                                         std::pair(Schnell, 10), std::pair(Schnell, 255)));

} // namespace varnoth
