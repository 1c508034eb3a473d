// What a report of the main window says of where its configuration comes from, and what it is called.

#include "frmmaintest.h"

#include "dateidialog.h"
#include "dateien.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace varnoth {

using testing::HasSubstr;
using testing::Not;

/// A controller of 32 beams with a name of its own.
class BerichtsbefehlTest : public pruefung::FrmMainTest {
protected:
    BerichtsbefehlTest() {
        geraet.identtext = "Torkurtine;4711;(C) Werk";
        SchliesseAn({32, 0, 0, 0});
        SetzeDateiantwort([this](const Dateifrage& frage) {
            vorgeschlagen = frage.name;
            return std::optional(pfad);
        });
    }
    ~BerichtsbefehlTest() override { SetzeDateiantwort({}); }

    void VerbindeUndStoppe() {
        Fenster().Autostart();
        Waehle("mnuMessdatenVisualisierenStop");
    }
    std::string Bericht() {
        Sobald("frmBericht", [](QDialog& dialog) {
            dialog.findChild<QPushButton*>("cmdHtml")->click();
            dialog.reject();
        });
        Waehle("mnuBericht");
        return LiesDatei(pfad, 1 << 20).bytes;
    }

    QTemporaryDir ordner;
    std::string pfad = ordner.filePath("bericht.html").toStdString();
    std::string vorgeschlagen;
};

TEST_F(BerichtsbefehlTest, The_controller_that_was_read_is_named_with_the_time) {
    VerbindeUndStoppe();
    const std::string bericht = Bericht();
    EXPECT_THAT(bericht, HasSubstr("gelesen am "));
    EXPECT_THAT(bericht, HasSubstr("Torkurtine"));
    EXPECT_THAT(bericht, HasSubstr("(C) Werk"));
}

TEST_F(BerichtsbefehlTest, A_controller_that_only_said_who_it_is_lends_no_name_to_what_was_read_before) {
    VerbindeUndStoppe();
    const Abbild gelesen = modDaten::DasAbbild();
    geraet.identtext = "Nachfolger;4711;(C) Werk 2";
    geraet.schweige = [](const std::string& anforderung) {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (anforderung.at(1) == 0x03 && dialog != nullptr)
            dialog->reject();
        return false;
    };
    Sobald("frmKeinKonturAngeschlossen", [](QDialog& dialog) { dialog.reject(); });
    Fenster().Autostart();
    modDaten::ErsetzeAbbild(gelesen);
    const std::string bericht = Bericht();
    EXPECT_THAT(bericht, HasSubstr("gelesen am "));
    EXPECT_THAT(bericht, Not(HasSubstr("Torkurtine")));
    EXPECT_THAT(bericht, Not(HasSubstr("Nachfolger")));
    EXPECT_THAT(bericht, Not(HasSubstr("(C) Werk")));
}

TEST_F(BerichtsbefehlTest, What_was_changed_since_is_not_said_to_be_the_controllers) {
    VerbindeUndStoppe();
    ASSERT_TRUE(
        modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 64));
    const std::string bericht = Bericht();
    EXPECT_THAT(bericht, Not(HasSubstr("gelesen am ")));
    EXPECT_THAT(bericht, Not(HasSubstr("Torkurtine")));
}

TEST_F(BerichtsbefehlTest, Each_part_that_live_data_asked_tells_its_state) {
    MissEinmal({32, 64, 16, 0});
    const std::string bericht = Bericht();
    std::size_t genannte = 0;
    for (std::size_t wo = 0; (wo = bericht.find("Zustand am ", wo)) != std::string::npos; ++wo)
        ++genannte;
    EXPECT_EQ(genannte, 3U);
}

TEST_F(BerichtsbefehlTest, It_is_called_as_the_file_in_use_or_else_as_the_program) {
    Bericht();
    EXPECT_EQ(vorgeschlagen, "Varnoth.html");
    modDaten::SetDateiname("/anlagen/Halle 3.con");
    Bericht();
    EXPECT_EQ(vorgeschlagen, "Halle 3.html");
}

} // namespace varnoth
