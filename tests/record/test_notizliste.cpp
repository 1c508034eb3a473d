#include "notizliste.h"

#include "pruefdurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using std::chrono::seconds;

namespace {

Messereignis Notiz(Zeit laufzeit, const std::string& text) {
    return {.art = Messereignisart::Notiz, .laufzeit = laufzeit, .text = text};
}

void NimmMit(PruefMessquelle& quelle, Zeit von, std::vector<Messereignis> ereignisse) {
    Messpaket paket = PaketMit(von, 2, Zeit(100'000));
    paket.ereignisse = std::move(ereignisse);
    quelle.Nimm(std::move(paket));
}

std::vector<std::string> Texte(const Notizliste& liste) {
    std::vector<std::string> texte;
    for (const Messereignis& notiz : liste.Notizen())
        texte.push_back(notiz.text);
    return texte;
}

} // namespace

TEST(Notizliste, Notes_stand_in_order_of_their_time_whatever_packet_holds_them) {
    PruefMessquelle quelle;
    NimmMit(quelle, seconds(0), {Notiz(seconds(0), "a")});
    NimmMit(quelle, seconds(1), {{.art = Messereignisart::Verloren, .laufzeit = seconds(1)}});
    NimmMit(quelle, seconds(9), {Notiz(seconds(9), "d"), Notiz(seconds(4), "b")});
    Notizliste liste;
    EXPECT_TRUE(liste.Suche(quelle, 100));
    EXPECT_EQ(Texte(liste), (std::vector<std::string>{"a", "b", "d"}));
}

TEST(Notizliste, An_empty_source_has_nothing_to_look_for) {
    const PruefMessquelle quelle;
    Notizliste liste;
    EXPECT_FALSE(liste.Suche(quelle, 100));
    EXPECT_TRUE(liste.IstFertig(quelle));
}

TEST(Notizliste, Each_packet_is_read_once_and_no_more_at_a_time_than_allowed) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 10);
    NimmMit(quelle, seconds(10), {Notiz(seconds(10), "neu")});
    Notizliste liste;
    EXPECT_TRUE(liste.Suche(quelle, 4));
    EXPECT_EQ(quelle.gelesen, 4);
    EXPECT_EQ(Texte(liste), (std::vector<std::string>{"neu"}));
    EXPECT_FALSE(liste.IstFertig(quelle));
    while (!liste.IstFertig(quelle))
        liste.Suche(quelle, 4);
    EXPECT_EQ(quelle.gelesen, 11);
}

TEST(Notizliste, The_newest_packet_is_looked_at_again_when_it_has_grown) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 10);
    Notizliste liste;
    liste.Suche(quelle, 99);
    quelle.pakete.back().spanne.bis += seconds(1);
    quelle.pakete.back().ereignisse = {Notiz(seconds(10), "gewachsen")};
    EXPECT_FALSE(liste.IstFertig(quelle));
    EXPECT_TRUE(liste.Suche(quelle, 4));
    NimmMit(quelle, seconds(11), {Notiz(seconds(11), "neuer")});
    EXPECT_TRUE(liste.Suche(quelle, 4));
    EXPECT_TRUE(liste.IstFertig(quelle));
    EXPECT_EQ(quelle.gelesen, 10 + 1 + 2);
    EXPECT_EQ(Texte(liste), (std::vector<std::string>{"gewachsen", "neuer"}));
}

TEST(Notizliste, A_note_of_a_time_that_is_over_is_found_when_somebody_says_so) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 10);
    Notizliste liste;
    liste.Suche(quelle, 99);
    quelle.pakete.at(4).ereignisse = {Notiz(Zeit(4'500'000), "spaeter")};
    EXPECT_FALSE(liste.Suche(quelle, 99));
    EXPECT_TRUE(liste.SiehNach(quelle, Zeit(4'500'000)));
    EXPECT_FALSE(liste.SiehNach(quelle, Zeit(4'500'000)));
    EXPECT_EQ(Texte(liste), (std::vector<std::string>{"spaeter"}));
}

TEST(Notizliste, A_note_goes_with_what_the_source_forgets) {
    PruefMessquelle quelle;
    NimmMit(quelle, seconds(0), {Notiz(seconds(0), "alt")});
    NimmMit(quelle, seconds(1), {Notiz(seconds(1), "neu")});
    Notizliste liste;
    liste.Suche(quelle, 9);
    quelle.Vergiss();
    EXPECT_TRUE(liste.Suche(quelle, 9));
    EXPECT_EQ(Texte(liste), (std::vector<std::string>{"neu"}));
    liste.Beginne();
    EXPECT_TRUE(liste.Notizen().empty());
}

} // namespace varnoth
