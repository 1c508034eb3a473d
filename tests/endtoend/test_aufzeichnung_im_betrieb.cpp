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
#include <functional>
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

/// The passes of a log, which end with the state of the controller; of what was asked again the last reply
/// counts.
std::vector<Gesandterdurchgang> DurchgaengeAus(const QByteArray& protokoll) {
    std::vector<Gesandterdurchgang> durchgaenge;
    Gesandterdurchgang laufender;
    bool begonnen = false;
    std::istringstream zeilen(protokoll.toStdString());
    for (std::string zeile; std::getline(zeilen, zeile);) {
        const auto anfang = zeile.find("read specific[");
        if (const auto global = zeile.find("read global 196"); global != std::string::npos) {
            if (begonnen || durchgaenge.empty())
                durchgaenge.push_back(laufender);
            durchgaenge.back().geraetestatus = Zahlen(zeile);
            begonnen = false;
        }
        if (anfang == std::string::npos)
            continue;
        std::istringstream worte(zeile.substr(anfang + std::string("read specific[").size()));
        std::size_t teil = 0;
        int adresse = 0;
        char klammer = 0;
        worte >> teil >> klammer >> adresse;
        begonnen = true;
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

using Groesse = std::vector<std::uint16_t>;

/// Something that stayed the same for so many passes.
struct Lauf {
    Groesse wert;
    int durchgaenge = 0;
};

template<class Welche>
std::vector<Lauf> Laeufe(const std::vector<Messdurchgang>& alle, Welche welche) {
    std::vector<Lauf> laeufe;
    for (const Messdurchgang& einer : alle) {
        Groesse wert = welche(einer);
        if (laeufe.empty() || laeufe.back().wert != wert)
            laeufe.push_back({std::move(wert), 0});
        ++laeufe.back().durchgaenge;
    }
    return laeufe;
}

/// What the second lacks or has that the first has not; what the first had for a few passes only may be
/// missing, since nobody looked just then.
std::string Unterschied(const std::vector<Lauf>& erste, const std::vector<Lauf>& zweite) {
    constexpr int zuSehen = 5;
    auto stelle = erste.begin();
    const auto geheBis = [&](auto bis) {
        const bool alleGesehen =
            std::all_of(stelle, bis, [](const Lauf& einer) { return einer.durchgaenge < zuSehen; });
        stelle = bis;
        return alleGesehen;
    };
    for (const Lauf& einer : zweite) {
        const auto da =
            std::find_if(stelle, erste.end(), [&](const Lauf& e) { return e.wert == einer.wert; });
        if (da == erste.end())
            return "something that was not recorded";
        if (!geheBis(da))
            return "something is missing";
        ++stelle;
    }
    return geheBis(erste.end()) ? "" : "the end is missing";
}

/// The beams, the values and the state of a part, each of which is read at one go.
std::vector<std::function<Groesse(const Messdurchgang&)>> GroessenVon(std::size_t teil) {
    return {[teil](const Messdurchgang& d) {
                const Teilmessung& t = d.teile.at(teil);
                Groesse strahlen(t.strahlregister.begin(), t.strahlregister.end());
                strahlen.push_back(static_cast<std::uint16_t>(t.strahlen));
                return strahlen;
            },
            [teil](const Messdurchgang& d) {
                return Groesse(d.teile.at(teil).werte.begin(), d.teile.at(teil).werte.end());
            },
            [teil](const Messdurchgang& d) { return Groesse{d.teile.at(teil).status}; }};
}

} // namespace

class AufzeichnungImBetrieb : public ProgrammTest {
protected:
    /// Live data of a controller that writes a log, recorded from the first pass on.
    void ZeichneAuf(const QStringList& optionen = {}) {
        QStringList alle{"--log", Pfad("log.txt")};
        SchliesseGeraetAn(alle + optionen);
        SchreibeEinstellungen("[Settings]\nComSettings=38400,n,8,2\nComGeraet1=" + geraet->Geraet().toUtf8() +
                              "\n[Aufzeichnung]\nOrdner=" + Pfad(ablage).toUtf8() + "\n");
        Starte();
        Verbinde();
        ASSERT_TRUE(LaufeBis(IstLive));
        ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
        anfang = modPolling::GetDurchgaenge();
    }
    QStringList Dateien(const char* muster) const {
        return QDir(Pfad(ablage)).entryList({QLatin1String(muster)}, QDir::Files, QDir::Name);
    }
    QByteArray Inhalt(const QString& pfad) const {
        QFile datei(pfad);
        EXPECT_TRUE(datei.open(QIODevice::ReadOnly));
        return datei.readAll();
    }
    std::unique_ptr<Vrecleser> Aufzeichnung() const {
        EXPECT_THAT(Dateien("*.vrec"), SizeIs(1));
        const QString pfad = Pfad(ablage) + "/" + Dateien("*.vrec").value(0);
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
    /// How many passes hold something else than the one before.
    static std::size_t Verschiedene(const std::vector<Messdurchgang>& alle) {
        std::size_t anzahl = 0;
        for (std::size_t i = 1; i < alle.size(); ++i)
            anzahl += alle[i].teile != alle[i - 1].teile ? 1U : 0U;
        return anzahl;
    }
    static std::vector<Messereignisart> Ereignisse(const Messquelle& quelle) {
        std::vector<Messereignisart> arten;
        for (std::uint64_t i = quelle.Erstes(); i < quelle.Ende(); ++i)
            for (const Messereignis& ereignis : quelle.Lies(i)->ereignisse)
                arten.push_back(ereignis.art);
        return arten;
    }
    /// Goes on until so many passes were recorded.
    bool LaufeBisDurchgang(unsigned durchgaenge) {
        return LaufeBis([&] { return modPolling::GetDurchgaenge() >= anfang + durchgaenge; }, 120'000);
    }
    void LaufeUndBeende(unsigned durchgaenge) {
        ASSERT_TRUE(LaufeBisDurchgang(durchgaenge));
        ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
    }

    unsigned anfang = 0;
    QString ablage = "records";
};

TEST_F(AufzeichnungImBetrieb, Every_pass_and_beam_that_the_controller_has_sent_is_in_the_record) {
    ZeichneAuf({"--beams", "32,64,128,288"});
    LaufeUndBeende(100);
    const auto leser = Aufzeichnung();
    const auto alle = Alle(*leser);
    EXPECT_GE(alle.size(), 95U);
    EXPECT_EQ(Vergleiche(alle), 0U);
    EXPECT_EQ(alle.front().anzahlTeile, 4);
}

TEST_F(AufzeichnungImBetrieb,
       A_thousand_passes_of_a_line_that_fails_and_a_controller_that_restarts_are_those_it_has_sent) {
    ZeichneAuf({"--beams", "288", "--seed", "4"});
    ASSERT_TRUE(LaufeBisDurchgang(250));
    geraet->Befehl("fault crc:5@0x03");
    geraet->Befehl("fault silence:2@0x03");
    ASSERT_TRUE(LaufeBisDurchgang(500));
    geraet->Befehl("restart");
    ASSERT_TRUE(LaufeBisDurchgang(750));
    geraet->Befehl("unplug");
    ASSERT_TRUE(LaufeBis([] { return modPolling::VerbindungVerloren(); }, 30'000));
    geraet->Befehl("plug");
    ASSERT_TRUE(LaufeBis(IstLive, 30'000));
    LaufeUndBeende(1005);
    EXPECT_TRUE(Meldungen().empty()) << Meldungen().front();
    const auto leser = Aufzeichnung();
    const auto alle = Alle(*leser);
    EXPECT_GE(alle.size(), 1000U);
    EXPECT_LE(Vergleiche(alle), 1U) << "the one that was under way when the plug was pulled";
    EXPECT_GE(Verschiedene(alle), alle.size() / 2) << "else one could stand for another";
    EXPECT_THAT(Ereignisse(*leser),
                testing::ElementsAre(Messereignisart::Verloren, Messereignisart::Zurueck));
}

TEST_F(AufzeichnungImBetrieb, A_record_that_a_controller_replays_is_seen_and_recorded_as_it_was) {
    ZeichneAuf({"--beams", "48,64"});
    geraet->Befehl("scene freeze");
    for (int bild = 1; bild <= 6; ++bild) {
        for (const int teil : {0, 1})
            geraet->Befehl("scene beams " + std::to_string(teil) + " interrupted " + std::to_string(bild) +
                           "-" + std::to_string(2 * bild + teil));
        ASSERT_TRUE(LaufeDurchgaenge(bild == 1 ? 30 : 12));
    }
    ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
    const auto erste = Alle(*Aufzeichnung());
    const QString datei = Pfad(ablage) + "/" + Dateien("*.vrec").value(0);
    Beende();

    ablage = "replayed";
    ZeichneAuf({"--replay", datei});
    const Teilmessung& letztes = erste.back().teile[0];
    ASSERT_TRUE(
        LaufeBis([&] { return geraet->Register("specific 0 353") == letztes.strahlregister[0]; }, 60'000));
    ASSERT_TRUE(LaufeDurchgaenge(8));
    EXPECT_EQ(GezeigteWerte(0), std::vector<int>(letztes.werte.begin(), letztes.werte.begin() + 6));
    ASSERT_TRUE(FuehreAus("tlbAufzeichnung"));
    const auto zweite = Alle(*Aufzeichnung());
    for (const std::size_t teil : {0U, 1U})
        for (const auto& groesse : GroessenVon(teil)) {
            EXPECT_GE(Laeufe(erste, groesse).size(), 2U);
            EXPECT_EQ(Unterschied(Laeufe(erste, groesse), Laeufe(zweite, groesse)), "") << "part " << teil;
        }
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
