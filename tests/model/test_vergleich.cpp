#include "vergleich.h"

#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace varnoth {

namespace {

using enum Vergleichsklasse;

/// A controller with so many beams at each part.
Abbild Geraet(std::array<std::int32_t, AnzahlOptikteile> strahlen) {
    Abbild abbild = Standardkonfiguration();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl,
                                         strahlen.at(static_cast<std::size_t>(teil)), teil));
    return abbild;
}

void Setze(Abbild& abbild, const Parameterstelle& stelle, std::int32_t wert) {
    EXPECT_TRUE(abbild.SetzeRegister(stelle.bereich, stelle.adresse, wert, stelle.optikteil));
}

std::vector<Parameterstelle> Stellen(const Vergleichsergebnis& ergebnis, Vergleichsklasse klasse) {
    std::vector<Parameterstelle> stellen;
    for (const Vergleichszeile& zeile : ergebnis.zeilen)
        if (zeile.klasse == klasse)
            stellen.push_back(zeile.stelle);
    return stellen;
}

bool NimmtTeil(const Vergleichsergebnis& ergebnis, const Parameterstelle& stelle) {
    return std::ranges::find(ergebnis.zeilen, stelle, &Vergleichszeile::stelle) != ergebnis.zeilen.end();
}

int AlleAnzahlen(const Vergleichsergebnis& ergebnis) {
    int summe = 0;
    for (const auto klasse : AlleVergleichsklassen)
        summe += ergebnis.Anzahl(klasse);
    return summe;
}

constexpr int ZeilenJeTeil = 9;
constexpr int UebrigeZeilen = 8;

} // namespace

TEST(Vergleich, Five_changed_settings_are_exactly_five_differences) {
    const Abbild a = Geraet({32, 16, 0, 0});
    Abbild b = a;
    const std::vector<Parameterstelle> geaendert = {{Global, global::PnpAusgang},
                                                    {Spezifisch, spezifisch::Reichweite, 0},
                                                    {Spezifisch, spezifisch::Lochgroesse, 1},
                                                    {Kommunikation, kommunikation::Stationsadresse},
                                                    {Kommunikation, kommunikation::Autosend}};
    for (const Parameterstelle& stelle : geaendert)
        Setze(b, stelle, 5);
    const auto ergebnis = Vergleiche(a, b);
    EXPECT_EQ(Stellen(ergebnis, Verschieden), geaendert) << "in the order global, parts, communication";
    EXPECT_EQ(ergebnis.Unterschiede(), 5);
    EXPECT_FALSE(ergebnis.IstGleich());
}

TEST(Vergleich, Every_row_is_counted_in_its_class) {
    Abbild a = Geraet({32, 16, 0, 8});
    const Abbild b = Geraet({32, 0, 4, 8});
    Setze(a, {Spezifisch, spezifisch::Aufloesung, 0}, 40);
    const auto ergebnis = Vergleiche(a, b, {.inB = {{Kommunikation, kommunikation::Pausenzeit}}});
    EXPECT_EQ(ergebnis.Anzahl(Verschieden), 1);
    EXPECT_EQ(ergebnis.Anzahl(NurInA), ZeilenJeTeil);
    EXPECT_EQ(ergebnis.Anzahl(NurInB), ZeilenJeTeil);
    EXPECT_EQ(ergebnis.Anzahl(NichtLesbar), 1);
    EXPECT_EQ(ergebnis.Anzahl(Gleich), 2 * ZeilenJeTeil - 1 + UebrigeZeilen - 1);
    EXPECT_EQ(AlleAnzahlen(ergebnis), static_cast<int>(ergebnis.zeilen.size()));
    EXPECT_EQ(ergebnis.Unterschiede(), 1 + 2 * ZeilenJeTeil);
}

TEST(Vergleich, A_row_holds_the_values_of_both_sides) {
    const Abbild a = Geraet({32, 0, 0, 0});
    Abbild b = a;
    const Werte muster(32, 3);
    ASSERT_TRUE(b.SetzeParameter(Spezifisch, spezifisch::Blankingmuster, muster, 0));
    const auto ergebnis = Vergleiche(a, b);
    const auto zeile = std::ranges::find(ergebnis.zeilen, Verschieden, &Vergleichszeile::klasse);
    ASSERT_NE(zeile, ergebnis.zeilen.end());
    EXPECT_EQ(*zeile, (Vergleichszeile{
                          {Spezifisch, spezifisch::Blankingmuster, 0}, Verschieden, Werte(32, 0), muster}));
}

TEST(Vergleich, Of_several_registers_the_last_one_counts_too) {
    const Abbild a = Geraet({32, 0, 0, 0});
    Abbild b = a;
    Werte datenblock = a.HoleParameter(Kommunikation, kommunikation::Datenblock);
    datenblock.back() = 1;
    ASSERT_TRUE(b.SetzeParameter(Kommunikation, kommunikation::Datenblock, datenblock));
    EXPECT_EQ(Stellen(Vergleiche(a, b), Verschieden),
              (std::vector<Parameterstelle>{{Kommunikation, kommunikation::Datenblock}}));
}

TEST(Vergleich, Measured_values_states_and_what_names_a_controller_take_no_part) {
    const Abbild a = Geraet({32, 0, 0, 0});
    Abbild b = a;
    ASSERT_TRUE(b.SetzeParameter(Spezifisch, spezifisch::Messwerte, Werte(18, 7), 0));
    ASSERT_TRUE(b.SetzeParameter(Global, global::Seriennummer, Werte(10, 7)));
    ASSERT_TRUE(b.SetzeStrahlzustaende(2, 0, {1, 2}));
    Setze(b, {Global, global::Geraetestatus}, 7);
    Setze(b, {Global, global::Softwareversion}, 7);
    Setze(b, {Spezifisch, spezifisch::Optikteilstatus, 0}, 7);
    EXPECT_TRUE(Vergleiche(a, b).IstGleich());
}

TEST(Vergleich, Beam_counts_bus_type_and_line_format_are_compared_though_no_write_sends_them) {
    const Abbild a = Geraet({32, 0, 0, 0});
    Abbild b = Geraet({16, 0, 0, 0});
    Setze(b, {Kommunikation, kommunikation::Bustyp}, 1);
    Setze(b, {Kommunikation, kommunikation::Format}, 1);
    EXPECT_EQ(Stellen(Vergleiche(a, b), Verschieden),
              (std::vector<Parameterstelle>{{Spezifisch, spezifisch::Strahlenzahl, 0},
                                            {Kommunikation, kommunikation::Bustyp},
                                            {Kommunikation, kommunikation::Format}}));
}

TEST(Vergleich, Parts_that_neither_side_has_are_named_and_take_no_part) {
    Abbild a = Geraet({32, 0, 8, 0});
    const Abbild b = Geraet({32, 0, 0, 0});
    Setze(a, {Spezifisch, spezifisch::Aufloesung, 1}, 40);
    const auto ergebnis = Vergleiche(a, b);
    EXPECT_EQ(ergebnis.nirgends, (std::vector{1, 3}));
    EXPECT_FALSE(NimmtTeil(ergebnis, {Spezifisch, spezifisch::Aufloesung, 1}));
    EXPECT_EQ(static_cast<int>(ergebnis.zeilen.size()), 2 * ZeilenJeTeil + UebrigeZeilen);
}

TEST(Vergleich, What_was_not_read_is_neither_equal_nor_different) {
    const Abbild a = Geraet({32, 0, 0, 0});
    const auto ergebnis = Vergleiche(
        a, a, {.inA = {{Spezifisch, spezifisch::Aufloesung, 0}}, .inB = {{Global, global::PnpAusgang}}});
    EXPECT_EQ(Stellen(ergebnis, NichtLesbar),
              (std::vector<Parameterstelle>{{Global, global::PnpAusgang},
                                            {Spezifisch, spezifisch::Aufloesung, 0}}));
    EXPECT_EQ(ergebnis.Unterschiede(), 0);
    EXPECT_FALSE(ergebnis.IstGleich()) << "two parameters were not compared";
}

TEST(Vergleich, A_part_whose_beam_count_was_not_read_does_not_count_as_absent) {
    const Abbild a = Geraet({32, 16, 0, 0});
    Ungelesenes ungelesen{.inB = AlleStellen(IstLesbar)};
    std::erase_if(ungelesen.inB, [](const Parameterstelle& s) { return s.optikteil == 0; });
    const auto ergebnis = Vergleiche(a, Geraet({32, 0, 0, 0}), ungelesen);
    EXPECT_EQ(ergebnis.Anzahl(NurInA), 0);
    EXPECT_EQ(ergebnis.Anzahl(NichtLesbar), 3 * ZeilenJeTeil);
    EXPECT_TRUE(ergebnis.nirgends.empty());
}

TEST(Vergleich, A_row_has_no_value_where_its_part_is_not_there_or_it_was_not_read) {
    const Ungelesenes ungelesen{.inB = {{Global, global::PnpAusgang}}};
    const auto ergebnis = Vergleiche(Geraet({0, 8, 8, 0}), Geraet({8, 0, 8, 0}), ungelesen);
    const auto hat = [&](const Parameterstelle& stelle) {
        const auto zeile = std::ranges::find(ergebnis.zeilen, stelle, &Vergleichszeile::stelle);
        return std::pair(zeile->HatA(ungelesen.inA), zeile->HatB(ungelesen.inB));
    };
    EXPECT_EQ(hat({Global, global::PnpAusgang}), std::pair(true, false));
    EXPECT_EQ(hat({Spezifisch, spezifisch::Reichweite, 0}), std::pair(false, true));
    EXPECT_EQ(hat({Spezifisch, spezifisch::Reichweite, 1}), std::pair(true, false));
    EXPECT_EQ(hat({Spezifisch, spezifisch::Reichweite, 2}), std::pair(true, true));
}

TEST(Vergleich, Of_what_was_written_every_part_is_compared_and_nothing_that_no_write_sends) {
    const Abbild a = Geraet({32, 0, 0, 0});
    Abbild b = Geraet({16, 0, 0, 0});
    Setze(b, {Spezifisch, spezifisch::Reichweite, 3}, 5);
    Setze(b, {Kommunikation, kommunikation::Format}, 1);
    const auto ergebnis = Vergleiche(a, b, {}, Vergleichsumfang::Geschriebenes);
    EXPECT_EQ(Stellen(ergebnis, Verschieden),
              (std::vector<Parameterstelle>{{Spezifisch, spezifisch::Reichweite, 3}}));
    EXPECT_EQ(ergebnis.zeilen.size(), AlleStellen(IstSchreibbar).size());
    EXPECT_TRUE(ergebnis.nirgends.empty());
}

TEST(Vergleich, Of_what_was_written_the_16_bits_that_travel_are_compared) {
    Abbild a = Geraet({32, 0, 0, 0});
    Abbild b = a;
    Setze(a, {Global, global::PnpAusgang}, -1);
    Setze(b, {Global, global::PnpAusgang}, 0xFFFF);
    EXPECT_TRUE(Vergleiche(a, b, {}, Vergleichsumfang::Geschriebenes).IstGleich());
    EXPECT_EQ(Vergleiche(a, b).Unterschiede(), 1);
}

TEST(Vergleich, Nothing_compared_is_not_equal) {
    EXPECT_FALSE(Vergleichsergebnis().IstGleich());
}

} // namespace varnoth
