// Which caption stands at which control of the editor: an option that bears its neighbour's words would be
// chosen for what it does not do.

#include "frmKonfigurationEdit.h"

#include "dialogtest.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "zykluszeiten.h"

#include <span>

namespace varnoth {

namespace {

struct Textstelle {
    const char* name;
    std::int16_t text;
};

constexpr Textstelle AnDenKnoepfen[] = {
    {"cmdUebernehmen", 5003},
    {"cmdDownLoad", 5001},
    {"cmdCancel", 5002},
};

constexpr Textstelle AufGlobal[] = {
    {"fraGerät", 5101},
    {"lblGerätetyp", 5102},
    {"lblSeriennummer", 5105},
    {"lblHerstellDatum", 5106},
    {"lblHardwareVersion", 5107},
    {"lblSoftwareVersion", 5108},
    {"fraPNPAusgang", 5109},
    {"optPNPAusgang_Option1_0", 5119},
    {"optPNPAusgang_Option1_1", 5120},
    {"optPNPAusgang_Option1_2", 5121},
    {"optPNPAusgang_Option1_3", 5122},
    {"optPNPAusgang_Option1_4", 5123},
    {"optPNPAusgang_Option1_5", 5124},
    {"optPNPAusgang_Option1_6", 5125},
    {"optPNPAusgang_Option1_7", 5126},
    {"optPNPAusgang_Option1_8", 5127},
    {"lblAusgangspegel", 5117},
    {"optAusgangAktive_0", 5110},
    {"optAusgangAktive_1", 5111},
    {"lblPNPOptik", 5204},
    {"optPNPAusgang_Option2_0", 5200},
    {"optPNPAusgang_Option2_1", 5201},
    {"optPNPAusgang_Option2_2", 5202},
    {"optPNPAusgang_Option2_3", 5203},
};

/// Of each of the four pages; the part's index follows the name.
constexpr Textstelle AufTeilseite[] = {
    {"fraOptik", 5204},
    {"lblAnzahlStrahlenSegmente", 5206},
    {"lblAuflösung", 5207},
    {"lblReichweite", 5208},
    {"cmdBlankingmuster", 5216},
    {"fraAuswertung", 5205},
    {"lblAnzahlDurchlaeufeFilter", 5209},
    {"lblGruppenzähler", 5210},
    {"optGruppenzählerUnd", 5214},
    {"optGruppenzählerOder", 5215},
    {"lblMinMaxHaltezeit", 5211},
    {"lblLochgröße", 5212},
    {"lblMittentoleranz", 5213},
};

constexpr Textstelle AufKommunikation[] = {
    {"fraBus", 5600},
    {"lblBusTyp", 5112},
    {"lblStationsAdresse", 5602},
    {"lblPausenzeit", 5622},
    {"lblPausenzeitEinheit", 5623},
    {"lblBaudrate", 5605},
    {"lblByteformat", 5609},
    {"opt2StopbitsohneParität", 5608},
    {"opt1StopbitParitätungerade", 5607},
    {"opt1StopbitParitätgerade", 5606},
    {"fraAutosend", 5610},
    {"optkeinAutosend", 5612},
    {"optAutosendohneTrigger", 5613},
    {"optAutosendohneTriggerModbus", 5615},
    {"lblOhneTriggerAutosendrate", 5611},
    {"optAutosendmitTriggerModbus", 5616},
    {"optTriggerStartetDatenübertragungSofort", 5617},
    {"optTriggerStartetDatenübertragungNachVollständigenScan", 5618},
    {"chkStrahldatenMerken", 5614},
    {"cmdReihenfolge", 5603},
};

std::string TextVon(const QWidget& element) {
    const char* const eigenschaft = element.inherits("QGroupBox") ? "title" : "text";
    return element.property(eigenschaft).toString().toStdString();
}

class Editorbeschriftungen : public pruefung::DialogTest {
protected:
    Editorbeschriftungen() {
        modDaten::LadeStandardkonfiguration();
        for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
            modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, teil, {64});
        modHilfsFunktionen::BerechneZykluszeiten();
    }
    /// Opens the editor in each language and compares; `teil` follows the names, as those of a part's page
    /// do.
    static void Erwarte(std::span<const Textstelle> beschriftungen, int teil = -1) {
        for (const std::int16_t sprache : {Deutsch, Englisch}) {
            SetzeSprachoffset(sprache);
            frmKonfigurationEdit editor;
            editor.InitKonfiguration({});
            for (const auto& [name, text] : beschriftungen) {
                const std::string voll = name + (teil < 0 ? "" : "_" + std::to_string(teil));
                EXPECT_EQ(TextVon(Kind<QWidget>(editor, voll.c_str())), LadeText(text)) << voll;
            }
        }
    }
};

} // namespace

TEST_F(Editorbeschriftungen, Buttons_below_the_pages_bear_their_own_words) {
    Erwarte(AnDenKnoepfen);
}

TEST_F(Editorbeschriftungen, Everything_on_the_global_page_bears_its_own_words) {
    Erwarte(AufGlobal);
}

TEST_F(Editorbeschriftungen, Everything_on_the_page_of_each_part_bears_its_own_words) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        Erwarte(AufTeilseite, teil);
}

TEST_F(Editorbeschriftungen, Everything_on_the_communication_page_bears_its_own_words) {
    Erwarte(AufKommunikation);
}

} // namespace varnoth
