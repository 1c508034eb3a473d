// What a record holds is what the controller has sent.

#include "programmtest.h"

#include "dateieingabe.h"
#include "polling.h"
#include "strahlbits.h"
#include "vrecleser.h"

#include <QFile>
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <memory>
#include <sstream>
#include <vector>

namespace varnoth::pruefung {

using testing::SizeIs;

namespace {

/// What the controller's log tells of a part in a pass.
struct Gesandtes {
    std::vector<std::uint16_t> status;
    std::vector<std::uint16_t> strahlen;
    std::vector<std::uint16_t> werte;
};

struct Gesandterdurchgang {
    std::array<Gesandtes, 4> teile;
    std::vector<std::uint16_t> geraetestatus;
};

std::vector<std::uint16_t> Zahlen(const std::string& zeile) {
    std::istringstream worte(zeile.substr(zeile.find('=') + 1));
    std::vector<std::uint16_t> zahlen;
    for (int zahl = 0; worte >> zahl;)
        zahlen.push_back(static_cast<std::uint16_t>(zahl));
    return zahlen;
}

/// The passes of a log; of what was asked again the last reply counts.
std::vector<Gesandterdurchgang> DurchgaengeAus(const QByteArray& protokoll) {
    std::vector<Gesandterdurchgang> durchgaenge;
    Gesandterdurchgang laufender;
    std::istringstream zeilen(protokoll.toStdString());
    for (std::string zeile; std::getline(zeilen, zeile);) {
        const auto anfang = zeile.find("read specific[");
        if (const auto global = zeile.find("read global 196"); global != std::string::npos) {
            laufender.geraetestatus = Zahlen(zeile);
            durchgaenge.push_back(laufender); // one that was asked again stands twice and is found once
        }
        if (anfang == std::string::npos)
            continue;
        std::istringstream worte(zeile.substr(anfang + std::string("read specific[").size()));
        std::size_t teil = 0;
        int adresse = 0;
        char klammer = 0;
        worte >> teil >> klammer >> adresse;
        Gesandtes& gesandtes = laufender.teile.at(teil);
        if (adresse == 44)
            gesandtes = {.status = Zahlen(zeile), .strahlen = {}, .werte = {}};
        else if (adresse == 353)
            gesandtes.strahlen = Zahlen(zeile);
        else if (adresse == 335)
            gesandtes.werte = Zahlen(zeile);
    }
    return durchgaenge;
}

bool Gleicht(const Teilmessung& messung, const Gesandtes& gesandtes) {
    if (gesandtes.status != std::vector<std::uint16_t>{messung.status})
        return false;
    if (!messung.vorhanden)
        return !messung.gemessen;
    if (!messung.gemessen || !std::ranges::equal(messung.werte, gesandtes.werte))
        return false;
    const Werte gelesene(gesandtes.strahlen.begin(), gesandtes.strahlen.end());
    const Werte aufgezeichnete(messung.strahlregister.begin(), messung.strahlregister.end());
    for (int strahl = 0; strahl < messung.strahlen; ++strahl)
        if (StrahlBit(gelesene, strahl) != StrahlBit(aufgezeichnete, strahl))
            return false;
    return messung.strahlen > 0;
}

bool Gleicht(const Messdurchgang& durchgang, const Gesandterdurchgang& gesandter) {
    if (gesandter.geraetestatus != std::vector<std::uint16_t>{durchgang.geraetestatus})
        return false;
    for (std::size_t teil = 0; teil < static_cast<std::size_t>(durchgang.anzahlTeile); ++teil)
        if (!Gleicht(durchgang.teile.at(teil), gesandter.teile.at(teil)))
            return false;
    return true;
}

} // namespace

class AufzeichnungImBetrieb : public ProgrammTest {
protected:
    /// Live data of a controller that writes a log, recorded from the first pass on.
    void ZeichneAuf(const QStringList& optionen = {}) {
        QStringList alle{"--log", Pfad("log.txt")};
        SchliesseGeraetAn(alle + optionen);
        SchreibeEinstellungen("[Settings]\nComSettings=38400,n,8,2\nComGeraet1=" + geraet->Geraet().toUtf8() +
                              "\n[Aufzeichnung]\nOrdner=" + ordner.path().toUtf8() + "/records\n");
        Starte();
        Verbinde();
        ASSERT_TRUE(LaufeBis(IstLive));
        ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
        anfang = modPolling::GetDurchgaenge();
    }
    QStringList Dateien(const char* muster) const {
        return QDir(ordner.path() + "/records").entryList({QLatin1String(muster)}, QDir::Files, QDir::Name);
    }
    QByteArray Inhalt(const QString& pfad) const {
        QFile datei(pfad);
        EXPECT_TRUE(datei.open(QIODevice::ReadOnly));
        return datei.readAll();
    }
    std::unique_ptr<Vrecleser> Aufzeichnung() const {
        EXPECT_THAT(Dateien("*.vrec"), SizeIs(1));
        const QString pfad = ordner.path() + "/records/" + Dateien("*.vrec").value(0);
        auto leser = std::make_unique<Vrecleser>(OeffneEingabe(pfad.toStdString()).datei);
        while (leser->Arbeite()) {
        }
        EXPECT_EQ(leser->Zustand().befund, Vrecbefund::Gut);
        return leser;
    }
    /// Compares a record with the controller's log: every pass is one that was sent, in their order.
    /// @return how many passes that were sent between the first and the last are not in the record
    std::size_t Vergleiche(const std::vector<Messdurchgang>& aufgezeichnete) const {
        const auto gesandte = DurchgaengeAus(Inhalt(Pfad("log.txt")));
        auto stelle = gesandte.begin();
        std::size_t uebergangene = 0;
        for (std::size_t i = 0; i < aufgezeichnete.size(); ++i) {
            const auto da = std::find_if(stelle, gesandte.end(), [&](const Gesandterdurchgang& einer) {
                return Gleicht(aufgezeichnete[i], einer);
            });
            if (da == gesandte.end()) {
                ADD_FAILURE() << "pass " << i << " of " << aufgezeichnete.size() << " was never sent";
                return uebergangene;
            }
            if (i > 0)
                uebergangene += static_cast<std::size_t>(da - stelle);
            stelle = da + 1;
        }
        return uebergangene;
    }
    static std::vector<Messdurchgang> Alle(const Messquelle& quelle) {
        std::vector<Messdurchgang> alle;
        for (std::uint64_t i = quelle.Erstes(); i < quelle.Ende(); ++i)
            std::ranges::copy(quelle.Lies(i)->durchgaenge, std::back_inserter(alle));
        return alle;
    }
    static std::vector<Messereignisart> Ereignisse(const Messquelle& quelle) {
        std::vector<Messereignisart> arten;
        for (std::uint64_t i = quelle.Erstes(); i < quelle.Ende(); ++i)
            for (const Messereignis& ereignis : quelle.Lies(i)->ereignisse)
                arten.push_back(ereignis.art);
        return arten;
    }
    /// Records so many passes more, and no fewer than were polled.
    void LaufeUndBeende(unsigned durchgaenge) {
        ASSERT_TRUE(LaufeBis([&] { return modPolling::GetDurchgaenge() >= anfang + durchgaenge; }, 60'000));
        ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
    }

    unsigned anfang = 0;
};

TEST_F(AufzeichnungImBetrieb, Every_pass_and_beam_that_the_controller_has_sent_is_in_the_record) {
    ZeichneAuf({"--beams", "32,64,128,288"});
    LaufeUndBeende(200);
    const auto leser = Aufzeichnung();
    const auto alle = Alle(*leser);
    EXPECT_GE(alle.size(), 195U);
    EXPECT_EQ(Vergleiche(alle), 0U);
    EXPECT_EQ(alle.front().anzahlTeile, 4);
}

TEST_F(AufzeichnungImBetrieb,
       A_line_that_fails_a_plug_that_is_pulled_and_a_restart_leave_gaps_and_no_wrong_pass) {
    ZeichneAuf({"--fault", "crc:5@0x03", "--fault", "silence:2@0x03"});
    ASSERT_TRUE(LaufeDurchgaenge(25));
    geraet->Befehl("restart");
    ASSERT_TRUE(LaufeDurchgaenge(25));
    geraet->Befehl("unplug");
    ASSERT_TRUE(LaufeBis([] { return modPolling::VerbindungVerloren(); }, 30'000));
    geraet->Befehl("plug");
    ASSERT_TRUE(LaufeBis(IstLive, 30'000));
    ASSERT_TRUE(LaufeDurchgaenge(25));
    ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
    EXPECT_TRUE(Meldungen().empty()) << Meldungen().front();
    const auto leser = Aufzeichnung();
    const auto alle = Alle(*leser);
    EXPECT_GE(alle.size(), 70U);
    EXPECT_LE(Vergleiche(alle), 15U);
    EXPECT_THAT(Ereignisse(*leser),
                testing::ElementsAre(Messereignisart::Verloren, Messereignisart::Zurueck));
}

TEST_F(AufzeichnungImBetrieb, It_goes_on_through_a_language_switch_and_an_end_of_live_data) {
    ZeichneAuf();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStart"));
    ASSERT_TRUE(LaufeBis(IstLive));
    ASSERT_TRUE(LaufeDurchgaenge(20));
    ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
    const auto leser = Aufzeichnung();
    EXPECT_THAT(Ereignisse(*leser),
                testing::ElementsAre(Messereignisart::LiveBeendet, Messereignisart::LiveBegonnen));
    EXPECT_GE(Alle(*leser).size(), 15U);
}

TEST_F(AufzeichnungImBetrieb, The_end_of_the_program_ends_it_whole) {
    ZeichneAuf();
    ASSERT_TRUE(LaufeDurchgaenge(20));
    Beende();
    EXPECT_TRUE(Aufzeichnung()->Zustand().beendet);
    EXPECT_THAT(Dateien("*.csv"), SizeIs(1));
}

} // namespace varnoth::pruefung
