#include "probedurchgaenge.h"
#include "speicherdatei.h"
#include "texte.h"
#include "vrecform.h"
#include "vrecleser.h"
#include "vrecworte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;

namespace {

constexpr int Pakete = 4;

/// A small record, and where each of its packets ends.
struct Probe {
    std::string bytes;
    std::vector<std::size_t> paketenden;
};

Probe MacheProbe() {
    Vrecform form;
    Probe probe;
    probe.bytes = form.Beginne({.beginn = Probebeginn}, std::make_shared<Abbild>());
    for (int i = 0; i < Pakete; ++i) {
        probe.bytes += form.Nimm(LebhaftesPaket(i * 3, 3, 32), nullptr);
        probe.paketenden.push_back(probe.bytes.size());
    }
    probe.bytes += form.Beende();
    return probe;
}

const Vreczustand& Oeffne(Vrecleser& leser) {
    for (int i = 0; leser.Arbeite(); ++i)
        if (i > 1000)
            throw std::runtime_error("does not come to an end");
    return leser.Zustand();
}

/// A file with a hole of zeros in the middle.
struct Lochdatei : Eingabedatei {
    Lochdatei(std::string anfang, std::uint64_t loch, std::string ende)
        : vorn(std::move(anfang)), luecke(loch), hinten(std::move(ende)) {}

    std::uint64_t Groesse() const override { return vorn.size() + luecke + hinten.size(); }
    bool Lies(std::uint64_t stelle, std::span<char> ziel) const override {
        groesstes = std::max(groesstes, ziel.size());
        std::ranges::fill(ziel, '\0');
        Lege(vorn, 0, stelle, ziel);
        Lege(hinten, vorn.size() + luecke, stelle, ziel);
        return stelle + ziel.size() <= Groesse();
    }

    mutable std::size_t groesstes = 0; ///< bytes that were asked for at once

private:
    static void Lege(const std::string& teil, std::uint64_t ab, std::uint64_t stelle, std::span<char> ziel) {
        const std::uint64_t von = std::max(ab, stelle);
        const std::uint64_t bis = std::min(ab + teil.size(), stelle + ziel.size());
        for (std::uint64_t i = von; i < bis; ++i)
            ziel[static_cast<std::size_t>(i - stelle)] = teil[static_cast<std::size_t>(i - ab)];
    }

    std::string vorn;
    std::uint64_t luecke;
    std::string hinten;
};

/// How many passes can really be read; each must be one that was recorded.
std::uint64_t Lesbare(const Vrecleser& leser) {
    std::uint64_t anzahl = 0;
    for (std::uint64_t nummer = leser.Erstes(); nummer < leser.Ende(); ++nummer) {
        static_cast<void>(leser.Konfiguration(nummer));
        const auto paket = leser.Lies(nummer);
        if (paket == nullptr)
            continue;
        const auto i = static_cast<int>((paket->spanne.von + Zeit(1000)) / Durchgangsdauer);
        EXPECT_EQ(*paket, LebhaftesPaket(i, 3, 32));
        anzahl += paket->durchgaenge.size();
    }
    return anzahl;
}

} // namespace

TEST(BeschaedigteVrecTest, Cut_at_any_byte_it_gives_all_packets_that_are_whole) {
    const Probe probe = MacheProbe();
    for (std::size_t laenge = 0; laenge < probe.bytes.size(); ++laenge) {
        Vrecleser leser(std::make_unique<Speicherdatei>(probe.bytes.substr(0, laenge)));
        const Vreczustand& zustand = Oeffne(leser);
        const auto ganze = static_cast<std::uint64_t>(
            std::ranges::count_if(probe.paketenden, [laenge](std::size_t ende) { return ende <= laenge; }));
        ASSERT_EQ(zustand.durchgaenge, 3 * ganze) << laenge;
        ASSERT_EQ(leser.Ende(), ganze) << laenge;
        ASSERT_EQ(Lesbare(leser), 3 * ganze) << laenge;
        ASSERT_FALSE(zustand.beendet);
        ASSERT_FALSE(Befundtext(zustand).empty()) << laenge;
    }
}

TEST(BeschaedigteVrecTest, With_any_byte_changed_it_loses_one_packet_at_most_and_says_so) {
    const Probe probe = MacheProbe();
    for (std::size_t stelle = vrec::LaengeKennung; stelle < probe.bytes.size(); ++stelle) {
        for (const int bits : {0x01, 0xFF}) {
            std::string bytes = probe.bytes;
            bytes[stelle] = static_cast<char>(bytes[stelle] ^ bits);
            Vrecleser leser(std::make_unique<Speicherdatei>(bytes));
            const Vreczustand& zustand = Oeffne(leser);
            const std::uint64_t lesbare = Lesbare(leser);
            ASSERT_GE(lesbare, 3U * (Pakete - 1)) << stelle;
            ASSERT_EQ(lesbare, zustand.durchgaenge) << stelle;
            ASSERT_FALSE(Befundtext(zustand).empty()) << stelle;
        }
    }
}

TEST(BeschaedigteVrecTest, A_damaged_packet_is_a_gap) {
    const Probe probe = MacheProbe();
    std::string bytes = probe.bytes;
    bytes[probe.paketenden[1] - 1] ^= 1;
    Vrecleser leser(std::make_unique<Speicherdatei>(bytes));
    EXPECT_EQ(Oeffne(leser).beschaedigte, 1U);
    EXPECT_EQ(leser.Ende(), 4U) << "the index still knows of it";
    EXPECT_EQ(leser.Lies(1), nullptr);
    EXPECT_NE(leser.Lies(2), nullptr);
    EXPECT_TRUE(leser.DieUebersicht().HatLuecke(0));
}

TEST(BeschaedigteVrecTest, Behind_bytes_that_are_nothing_the_next_packet_is_found) {
    const Probe probe = MacheProbe();
    std::string muell(3'000'000, '\0');
    for (std::size_t i = 0; i < muell.size(); i += 5)
        muell.replace(i, 4, vrec::Blockmarke);
    const std::string bytes =
        probe.bytes.substr(0, probe.paketenden[1]) + muell + probe.bytes.substr(probe.paketenden[1]);
    Vrecleser leser(std::make_unique<Speicherdatei>(bytes));
    EXPECT_EQ(Oeffne(leser).durchgaenge, 12U);
    EXPECT_EQ(leser.Zustand().beschaedigte, 1U);
    EXPECT_EQ(Lesbare(leser), 12U);
}

TEST(BeschaedigteVrecTest, A_file_of_10_GB_is_opened_in_small_slices_that_get_on) {
    const Probe probe = MacheProbe();
    auto datei = std::make_unique<Lochdatei>(probe.bytes, std::uint64_t{10} << 30, "");
    const Lochdatei& gelesene = *datei;
    Vrecleser leser(std::move(datei));
    double vorher = 0;
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(leser.Arbeite());
        ASSERT_TRUE(i < 2 || leser.Anteil() > vorher) << i;
        vorher = leser.Anteil();
    }
    EXPECT_GT(vorher, 0.005);
    EXPECT_LE(gelesene.groesstes, std::size_t{1} << 20U);
}

TEST(BeschaedigteVrecTest, What_lies_behind_a_large_hole_is_found) {
    const Probe probe = MacheProbe();
    const std::size_t stelle = probe.paketenden[1];
    Vrecleser leser(std::make_unique<Lochdatei>(probe.bytes.substr(0, stelle), std::uint64_t{100} << 20,
                                                probe.bytes.substr(stelle)));
    EXPECT_EQ(Oeffne(leser).durchgaenge, 12U);
    EXPECT_EQ(Lesbare(leser), 12U);
}

TEST(BeschaedigteVrecTest, Each_thing_that_came_of_opening_has_a_sentence_in_both_languages) {
    using testing::HasSubstr;
    for (const std::int16_t sprache : {std::int16_t{0}, std::int16_t{10000}}) {
        SetzeSprachoffset(sprache);
        EXPECT_EQ(Befundtext({.durchgaenge = 1, .beendet = true}), "");
        for (const Vrecbefund befund :
             {Vrecbefund::Leer, Vrecbefund::KeineAufzeichnung, Vrecbefund::NeuereVersion,
              Vrecbefund::NichtLesbar, Vrecbefund::OhneDurchgaenge})
            EXPECT_GT(Befundtext({.befund = befund}).size(), 10U);
        EXPECT_THAT(Befundtext({.befund = Vrecbefund::NeuereVersion, .version = 7}), HasSubstr("7"));
        EXPECT_THAT(Befundtext({.beschaedigte = 3, .beendet = true}), HasSubstr("3 "));
        EXPECT_EQ(std::ranges::count(Befundtext({.beschaedigte = 1, .beendet = false}), '\n'), 1);
        EXPECT_NE(Befundtext({.zuLang = true}), Befundtext({.zuLang = false}));
    }
}

} // namespace varnoth
