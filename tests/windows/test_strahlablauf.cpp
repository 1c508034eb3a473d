// From the beam history to the blanking editor: what is suggested, and what of it becomes a change.

#include "frmmaintest.h"

#include "strahlbits.h"

#include <QCheckBox>
#include <QPushButton>

#include <algorithm>

namespace varnoth {

using namespace std::chrono_literals;

namespace {

constexpr int Strahlen = 64;
constexpr int Verschmutzter = 12;

/// Blanks that beam alone.
Werte Erwartetes() {
    Werte muster(spezifisch::Blankingregister, 0);
    SetzeStrahlBit(muster, Verschmutzter, true);
    return muster;
}

Werte Muster() {
    return modDaten::HoleParameter(Spezifisch, spezifisch::Blankingmuster, 0);
}

} // namespace

class StrahlablaufTest : public pruefung::FrmMainTest {
protected:
    /// Some seconds of a part of which one beam is always interrupted, with the window of the beams open and
    /// its statistics done.
    void MissUndZeige() {
        SchliesseAn({Strahlen, 0, 0, 0});
        Werte frei(Strahlen / 16, 0xFFFF);
        SetzeStrahlBit(frei, Verschmutzter, false);
        for (std::size_t i = 0; i < frei.size(); ++i)
            geraet.Spezifisch(0, spezifisch::Strahlzustaende + static_cast<int>(i)) = frei[i];
        Fenster().Autostart();
        Waehle("tlbStrahlverlauf");
        for (int i = 0; i < 100; ++i) {
            modPolling::PollingZyklus();
            umgebung.uhr += 100ms;
        }
        geraet.geschrieben.clear();
        ASSERT_TRUE(pruefung::WarteBis([this] {
            umgebung.ErledigeAufgeschobenes();
            return Vorschlag() != nullptr && Vorschlag()->isEnabled();
        }));
    }
    static QPushButton* Knopf(const char* name) {
        for (const QWidget* const eines : QApplication::topLevelWidgets())
            if (eines->objectName() == "frmWasserfall")
                return eines->findChild<QPushButton*>(QLatin1String(name));
        return nullptr;
    }
    static QPushButton* Vorschlag() { return Knopf("cmdBlanking"); }
    /// Suggests, looks at the blanking editor, clicks a button there and closes the editor behind it.
    void SchlageVorUndKlicke(const char* knopf) {
        Sobald("frmBlankingmuster", [this, knopf](QDialog& dialog) {
            titel = dialog.windowTitle();
            musterBeimZeigen = Muster();
            Sobald("frmKonfigurationEdit", [](QDialog& editor) { editor.reject(); });
            dialog.findChild<QPushButton*>(knopf)->click();
        });
        QTimer::singleShot(20'000, &Fenster(), [] {
            auto* const offener = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (offener == nullptr)
                return;
            ADD_FAILURE() << offener->objectName().toStdString() << " waits in vain";
            offener->reject();
        });
        Vorschlag()->click();
        Fenster().MenuAusführen();
    }
    /// Whether nothing but what chooses a part and stops autosend was written.
    bool BliebDasGeraetWieEsWar() const {
        return std::ranges::all_of(geraet.geschrieben, [](const auto& vorgang) {
            return vorgang.adresse == global::Optikteilauswahl ||
                   vorgang.adresse == 0x4000 + kommunikation::Steuerwert;
        });
    }

    /// Whether the report that a deed opens offers the statistics of the beams, and whether they are in it.
    template<class Tat>
    std::pair<bool, bool> StatistikImBericht(Tat tat) {
        std::pair<bool, bool> angeboten;
        Sobald("frmBericht", [&angeboten](QDialog& dialog) {
            const auto* const kreuz = dialog.findChild<QCheckBox*>("chkStrahlstatistik");
            angeboten = {kreuz->isVisible(), kreuz->isChecked()};
            dialog.reject();
        });
        tat();
        Fenster().MenuAusführen();
        return angeboten;
    }

    QString titel;
    Werte musterBeimZeigen;
};

TEST_F(StrahlablaufTest, What_the_beam_history_suggests_is_shown_in_the_blanking_editor_and_changes_nothing) {
    MissUndZeige();
    SchlageVorUndKlicke("cmdCancel");
    EXPECT_EQ(titel, "Blankingmuster – Vorschlag aus dem Strahlverlauf");
    EXPECT_EQ(musterBeimZeigen, Werte(spezifisch::Blankingregister, 0));
    EXPECT_EQ(Muster(), Werte(spezifisch::Blankingregister, 0));
    EXPECT_TRUE(BliebDasGeraetWieEsWar());
}

TEST_F(StrahlablaufTest, What_is_suggested_and_taken_over_is_a_change_that_the_controller_does_not_have) {
    MissUndZeige();
    SchlageVorUndKlicke("cmdOK");
    EXPECT_EQ(musterBeimZeigen, Werte(spezifisch::Blankingregister, 0));
    EXPECT_EQ(Muster(), Erwartetes());
    EXPECT_TRUE(BliebDasGeraetWieEsWar());
}

TEST_F(StrahlablaufTest, Statistics_that_were_sent_to_the_report_stay_on_offer_until_the_language_changes) {
    using Angebot = std::pair<bool, bool>;
    MissUndZeige();
    const auto bericht = [this] { Waehle("mnuBericht"); };
    EXPECT_EQ(StatistikImBericht(bericht), Angebot(false, false));
    EXPECT_EQ(StatistikImBericht([] { Knopf("cmdBericht")->click(); }), Angebot(true, true));
    EXPECT_EQ(StatistikImBericht(bericht), Angebot(true, false));
    Waehle("mnuEnglisch");
    EXPECT_EQ(StatistikImBericht(bericht), Angebot(false, false)) << "their words are of the other language";
    Waehle("mnuDeutsch");
}

} // namespace varnoth
