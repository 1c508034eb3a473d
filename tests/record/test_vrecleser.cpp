#include "vrecleser.h"

#include "probedurchgaenge.h"
#include "speicherdatei.h"
#include "vrecform.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;

namespace {

constexpr int DurchgaengeJePaket = 6;

std::shared_ptr<const Abbild> Konfiguration(int strahlen) {
    auto abbild = std::make_shared<Abbild>();
    EXPECT_TRUE(abbild->SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, strahlen));
    return abbild;
}

Messpaket Paket(int nummer) {
    return LebhaftesPaket(nummer * DurchgaengeJePaket, DurchgaengeJePaket);
}

const Messangaben Angaben{.beginn = Probebeginn, .bezeichnung = "Vorhang", .seriennummer = "4711"};

/// A record of some packets; from packet 3 on with another configuration.
std::string Aufzeichnung(int pakete, bool beendet = true) {
    Vrecform form;
    std::string bytes = form.Beginne(Angaben, Konfiguration(20));
    for (int i = 0; i < pakete; ++i)
        bytes += form.Nimm(Paket(i), Konfiguration(i < 3 ? 20 : 30));
    return beendet ? bytes + form.Beende() : bytes;
}

std::unique_ptr<Vrecleser> Geoeffnet(std::string bytes) {
    auto leser = std::make_unique<Vrecleser>(std::make_unique<Speicherdatei>(std::move(bytes)));
    for (int i = 0; leser->Arbeite(); ++i)
        if (i > 100'000)
            throw std::runtime_error("does not come to an end");
    return leser;
}

std::int32_t Strahlen(const Vrecleser& leser, std::uint64_t nummer) {
    const auto abbild = leser.Konfiguration(nummer);
    return abbild == nullptr ? -1 : abbild->HoleRegister(Speicherbereich::SpezifischeGeraetedaten, 12);
}

} // namespace

TEST(VrecleserTest, Gives_what_was_recorded_with_its_configurations) {
    for (const bool beendet : {true, false}) {
        const auto leser = Geoeffnet(Aufzeichnung(5, beendet));
        EXPECT_EQ(leser->Zustand().befund, Vrecbefund::Gut);
        EXPECT_EQ(leser->Zustand().beendet, beendet);
        EXPECT_EQ(leser->Zustand().durchgaenge, 30U);
        EXPECT_EQ(leser->Zustand().beschaedigte, 0U);
        EXPECT_EQ(leser->Angaben(), Angaben);
        ASSERT_EQ(leser->Ende(), 5U);
        for (int i = 0; i < 5; ++i) {
            const auto nummer = static_cast<std::uint64_t>(i);
            ASSERT_NE(leser->Lies(nummer), nullptr);
            EXPECT_EQ(*leser->Lies(nummer), Paket(i));
            EXPECT_EQ(leser->Spanne(nummer), Paket(i).spanne);
            EXPECT_EQ(leser->PaketUm(Paket(i).spanne.bis), nummer);
            EXPECT_EQ(Strahlen(*leser, nummer), i < 3 ? 20 : 30);
        }
        EXPECT_EQ(leser->Spanne(), (Zeitspanne{Paket(0).spanne.von, Paket(4).spanne.bis}));
        EXPECT_EQ(leser->Lies(5), nullptr);
        EXPECT_EQ(leser->Konfiguration(5), nullptr);
    }
}

TEST(VrecleserTest, The_overview_is_that_of_all_its_passes) {
    Uebersicht soll;
    for (int i = 0; i < 30; ++i)
        soll.Nimm(Paket(i));
    const auto leser = Geoeffnet(Aufzeichnung(30));
    const Uebersicht& ist = leser->DieUebersicht();
    ASSERT_EQ(ist.Anzahl(), soll.Anzahl());
    for (std::size_t i = 0; i < soll.Anzahl(); ++i) {
        EXPECT_EQ(ist.Durchgaenge(i, 2), soll.Durchgaenge(i, 2));
        EXPECT_EQ(ist.Wert(i, 2, 1), soll.Wert(i, 2, 1));
        EXPECT_FALSE(ist.HatLuecke(i));
    }
}

TEST(VrecleserTest, With_an_index_packets_can_be_read_before_the_walk_and_without_one_behind_it) {
    for (const bool beendet : {true, false}) {
        Vrecleser leser(std::make_unique<Speicherdatei>(Aufzeichnung(2000, beendet)));
        EXPECT_FALSE(leser.IstBrauchbar());
        double vorher = 0;
        bool mittendrin = false;
        while (leser.Arbeite()) {
            EXPECT_GE(leser.Anteil(), vorher);
            vorher = leser.Anteil();
            if (!leser.IstBrauchbar())
                continue;
            mittendrin = true;
            EXPECT_EQ(leser.Ende(), 2000U);
            EXPECT_NE(leser.Lies(1999), nullptr);
        }
        EXPECT_EQ(mittendrin, beendet);
        EXPECT_TRUE(leser.IstBrauchbar());
        EXPECT_EQ(leser.Anteil(), 1.0);
    }
}

TEST(VrecleserTest, A_note_of_an_earlier_time_is_found_at_its_time) {
    for (const bool beendet : {true, false}) {
        Vrecform form;
        std::string bytes = form.Beginne(Angaben, Konfiguration(20));
        const Messereignis notiz{Messereignisart::Notiz, Paket(1).spanne.von + Zeit(5), Probebeginn, "n"};
        for (int i = 0; i < 4; ++i) {
            Messpaket paket = Paket(i);
            if (i == 3)
                paket.ereignisse = {notiz};
            bytes += form.Nimm(paket, nullptr);
        }
        if (beendet)
            bytes += form.Beende();
        const auto leser = Geoeffnet(bytes);
        EXPECT_EQ(leser->Lies(1)->ereignisse, std::vector{notiz});
        EXPECT_TRUE(leser->Lies(3)->ereignisse.empty());
        EXPECT_TRUE(leser->HatEreignisse(1));
        EXPECT_FALSE(leser->HatEreignisse(0));
    }
}

TEST(VrecleserTest, What_was_kept_in_a_clock_that_was_set_back_is_read_in_the_order_in_which_it_happened) {
    Vrecform form;
    std::string bytes = form.Beginne(Angaben, nullptr);
    Messpaket spaeteres = Paket(1);
    for (Messdurchgang& durchgang : spaeteres.durchgaenge)
        durchgang.zeit -= std::chrono::hours(2);
    bytes += form.Nimm(Paket(0), nullptr) + form.Nimm(spaeteres, nullptr) + form.Beende();
    const auto leser = Geoeffnet(bytes);
    EXPECT_EQ(leser->Zustand().beschaedigte, 0U);
    EXPECT_EQ(*leser->Lies(1), spaeteres);
    EXPECT_EQ(leser->Konfiguration(0), nullptr) << "none is in the record";
}

TEST(VrecleserTest, A_packet_whose_running_time_goes_back_is_damaged) {
    Vrecform form;
    const std::string bytes =
        form.Beginne(Angaben, nullptr) + form.Nimm(Paket(3), nullptr) + form.Nimm(Paket(1), nullptr);
    const auto leser = Geoeffnet(bytes);
    EXPECT_EQ(leser->Ende(), 1U);
    EXPECT_EQ(leser->Zustand().beschaedigte, 1U);
}

TEST(VrecleserTest, Without_what_tells_of_it_the_beginning_is_found_from_the_first_pass) {
    std::string bytes = Aufzeichnung(2);
    bytes[vrec::LaengeKennung + vrec::LaengeBlockkopf] ^= 1;
    const auto leser = Geoeffnet(bytes);
    EXPECT_EQ(leser->Zustand().beschaedigte, 1U);
    EXPECT_EQ(leser->Angaben(), Messangaben{.beginn = Probebeginn});
}

TEST(VrecleserTest, What_is_no_record_is_told) {
    const std::string bytes = Aufzeichnung(2);
    std::string neuere = bytes;
    neuere[vrec::LaengeKennung - 1] = 2;
    EXPECT_EQ(Geoeffnet("")->Zustand().befund, Vrecbefund::Leer);
    EXPECT_EQ(Geoeffnet("Varnoth")->Zustand().befund, Vrecbefund::KeineAufzeichnung);
    EXPECT_EQ(Geoeffnet("x" + bytes)->Zustand().befund, Vrecbefund::KeineAufzeichnung);
    EXPECT_EQ(Geoeffnet(neuere)->Zustand().befund, Vrecbefund::NeuereVersion);
    EXPECT_EQ(Geoeffnet(neuere)->Zustand().version, 2);
    EXPECT_EQ(Geoeffnet(Aufzeichnung(0))->Zustand().befund, Vrecbefund::OhneDurchgaenge);
    EXPECT_EQ(Geoeffnet(bytes.substr(0, vrec::LaengeKennung))->Zustand().befund, Vrecbefund::OhneDurchgaenge);
}

TEST(VrecleserTest, Bytes_that_the_disk_does_not_give_are_a_gap_and_none_at_all_is_told) {
    for (const bool alles : {false, true}) {
        auto datei = std::make_unique<Speicherdatei>(Aufzeichnung(2000));
        datei->unlesbarAb = alles ? 0 : 1'000'000;
        datei->unlesbarBis = alles ? datei->bytes.size() : 1'000'001;
        Vrecleser leser(std::move(datei));
        while (leser.Arbeite())
            continue;
        EXPECT_EQ(leser.Zustand().befund, alles ? Vrecbefund::NichtLesbar : Vrecbefund::Gut);
        if (!alles) {
            EXPECT_EQ(leser.Lies(1999)->durchgaenge.size(), 6U);
            EXPECT_GT(leser.Zustand().durchgaenge, 11'000U);
            EXPECT_LT(leser.Zustand().durchgaenge, 12'000U);
        }
    }
}

TEST(VrecleserTest, Of_one_that_is_too_long_the_beginning_is_given) {
    for (const bool beendet : {true, false}) {
        Vrecleser leser(std::make_unique<Speicherdatei>(Aufzeichnung(50, beendet)), 20);
        while (leser.Arbeite())
            continue;
        EXPECT_TRUE(leser.Zustand().zuLang);
        EXPECT_EQ(leser.Zustand().befund, Vrecbefund::Gut);
        EXPECT_EQ(leser.Zustand().durchgaenge, 120U);
        EXPECT_EQ(leser.Zustand().beschaedigte, 0U);
        EXPECT_EQ(leser.Ende(), 20U);
        EXPECT_EQ(*leser.Lies(19), Paket(19));
    }
    Vrecleser ganz(std::make_unique<Speicherdatei>(Aufzeichnung(20)), 20);
    while (ganz.Arbeite())
        continue;
    EXPECT_FALSE(ganz.Zustand().zuLang);
}

TEST(VrecleserTest, Behind_a_damaged_configuration_none_is_known_until_the_next) {
    for (const bool beendet : {true, false}) {
        std::string bytes = Aufzeichnung(5, beendet);
        bytes[bytes.find("Varnoth Konfiguration") + 100] ^= 1;
        const auto leser = Geoeffnet(bytes);
        EXPECT_EQ(leser->Zustand().beschaedigte, 1U);
        EXPECT_EQ(Strahlen(*leser, 2), -1);
        EXPECT_EQ(Strahlen(*leser, 3), 30);
        EXPECT_EQ(Strahlen(*leser, 2), -1);
    }
}

TEST(VrecleserTest, An_index_of_another_record_is_not_believed) {
    const std::string bytes = Aufzeichnung(5);
    const std::string andere = Aufzeichnung(400);
    const std::size_t stelle = bytes.rfind("\xA5VRB", bytes.rfind("\xA5VRB") - 1);
    const std::size_t ihre = andere.rfind("\xA5VRB", andere.rfind("\xA5VRB") - 1);
    const std::string verzeichnis = andere.substr(ihre, andere.size() - vrec::LaengeSchluss - ihre);
    const auto leser =
        Geoeffnet(bytes.substr(0, stelle) + verzeichnis + bytes.substr(bytes.size() - vrec::LaengeSchluss));
    EXPECT_EQ(leser->Ende(), 5U);
    EXPECT_EQ(leser->Zustand().durchgaenge, 30U);
    EXPECT_EQ(*leser->Lies(4), Paket(4));
}

} // namespace varnoth
