#include "vrecform.h"

#include "crc32.h"
#include "konfigurationsdatei.h"
#include "messpaket.h"
#include "probedurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using vrec::Blockart;

namespace {

struct Block {
    Blockart art;
    std::size_t stelle;
    std::string inhalt;
};

/// The blocks of a whole record.
std::vector<Block> Bloecke(const std::string& datei) {
    std::vector<Block> bloecke;
    for (std::size_t stelle = vrec::LaengeKennung; stelle < datei.size();) {
        const auto kopf = vrec::BlockkopfAus(std::string_view(datei).substr(stelle));
        if (!kopf)
            throw std::runtime_error("no block");
        bloecke.push_back({kopf->art, stelle, datei.substr(stelle + vrec::LaengeBlockkopf, kopf->laenge)});
        EXPECT_EQ(Crc32(bloecke.back().inhalt), kopf->pruefsumme);
        stelle += vrec::LaengeBlockkopf + kopf->laenge;
    }
    return bloecke;
}

std::shared_ptr<const Abbild> Konfiguration(int strahlen) {
    auto abbild = std::make_shared<Abbild>();
    EXPECT_TRUE(abbild->SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, strahlen));
    return abbild;
}

const Messangaben Angaben{.beginn = Probebeginn,
                          .zoneMinuten = -90,
                          .bezeichnung = "Vorhang \xC3\xA4",
                          .seriennummer = "4711",
                          .programm = "1.2"};

} // namespace

TEST(VrecformTest, Begins_with_its_mark_and_version_and_tells_of_itself) {
    Vrecform form;
    const std::string datei = form.Beginne(Angaben, Konfiguration(20)) + form.Beende();
    EXPECT_EQ(datei.substr(0, 24), "Varnoth Aufzeichnung\r\n\x1A\x01");
    const auto bloecke = Bloecke(datei);
    ASSERT_EQ(bloecke.size(), 4U);
    EXPECT_EQ(bloecke[0].art, Blockart::Angaben);
    EXPECT_EQ(vrec::AngabenAus(bloecke[0].inhalt), Angaben);
    EXPECT_EQ(bloecke[1].art, Blockart::Konfiguration);
    EXPECT_EQ(bloecke[1].inhalt, AlsKonfigurationsdatei(*Konfiguration(20)));
    EXPECT_EQ(bloecke[2].art, Blockart::Verzeichnis);
    EXPECT_EQ(bloecke[3].art, Blockart::Schluss);
}

TEST(VrecformTest, A_configuration_stands_again_before_the_first_packet_that_it_is_in_use_for) {
    Vrecform form;
    std::string datei = form.Beginne(Angaben, Konfiguration(20));
    datei += form.Nimm(LebhaftesPaket(0, 6), Konfiguration(20));
    datei += form.Nimm(LebhaftesPaket(6, 6), Konfiguration(30));
    datei += form.Nimm(LebhaftesPaket(12, 6), nullptr);
    const auto bloecke = Bloecke(datei);
    ASSERT_EQ(bloecke.size(), 6U);
    EXPECT_EQ(bloecke[2].art, Blockart::Paket);
    EXPECT_EQ(PaketAus(bloecke[2].inhalt), LebhaftesPaket(0, 6));
    EXPECT_EQ(bloecke[3].inhalt, AlsKonfigurationsdatei(*Konfiguration(30)));
    EXPECT_EQ(PaketAus(bloecke[5].inhalt), LebhaftesPaket(12, 6));
}

TEST(VrecformTest, Ends_with_an_index_of_its_blocks_and_where_it_lies) {
    Vrecform form;
    std::string datei = form.Beginne(Angaben, Konfiguration(20));
    Messpaket zweites = LebhaftesPaket(6, 6);
    zweites.ereignisse = {{Messereignisart::Notiz, zweites.spanne.von, Probebeginn, "n"}};
    datei += form.Nimm(LebhaftesPaket(0, 6), nullptr);
    datei += form.Nimm(zweites, nullptr);
    const std::size_t ende = datei.size();
    datei += form.Beende();
    const auto bloecke = Bloecke(datei);
    ASSERT_EQ(bloecke.size(), 6U);
    EXPECT_EQ(datei.size() - bloecke[5].stelle, vrec::LaengeSchluss);
    const auto schluss = vrec::SchlussAus(bloecke[5].inhalt);
    ASSERT_TRUE(schluss);
    EXPECT_EQ(schluss->verzeichnis, ende);
    EXPECT_EQ(schluss->durchgaenge, 12U);
    const auto eintraege = vrec::VerzeichnisAus(bloecke[4].inhalt);
    ASSERT_TRUE(eintraege);
    ASSERT_EQ(eintraege->size(), 3U);
    EXPECT_TRUE(eintraege->at(0).istKonfiguration);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(eintraege->at(i).stelle, bloecke[i + 1].stelle);
        EXPECT_EQ(eintraege->at(i).laenge, bloecke[i + 1].inhalt.size());
    }
    EXPECT_FALSE(eintraege->at(1).hatEreignisse);
    EXPECT_EQ(eintraege->at(1).spanne, LebhaftesPaket(0, 6).spanne);
    EXPECT_TRUE(eintraege->at(2).hatEreignisse);
    EXPECT_EQ(eintraege->at(2).spanne, zweites.spanne);
}

TEST(VrecformTest, An_index_that_is_cut_or_tells_of_too_much_is_none) {
    vrec::Verzeichnisschreiber schreiber;
    schreiber.Nimm({.stelle = 300, .laenge = 200, .spanne = {Zeit(5), Zeit(1000)}});
    const std::string inhalt = schreiber.Entnimm();
    EXPECT_TRUE(vrec::VerzeichnisAus(inhalt));
    for (std::size_t laenge = 0; laenge < inhalt.size(); ++laenge)
        EXPECT_FALSE(vrec::VerzeichnisAus(inhalt.substr(0, laenge)));
    EXPECT_FALSE(vrec::VerzeichnisAus("\x7F\x01\x01"));
}

TEST(VrecformTest, A_head_with_any_bit_changed_is_none) {
    const std::string block = vrec::AlsBlock(Blockart::Paket, "abc");
    ASSERT_TRUE(vrec::BlockkopfAus(block));
    for (std::size_t i = 0; i < vrec::LaengeBlockkopf; ++i)
        for (int bit = 0; bit < 8; ++bit) {
            std::string anderer = block;
            anderer[i] = static_cast<char>(anderer[i] ^ (1 << bit));
            EXPECT_FALSE(vrec::BlockkopfAus(anderer)) << i;
        }
}

} // namespace varnoth
