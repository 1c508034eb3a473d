// What was sent leaves the line whole before the port is closed, whatever closes it: closing puts the line's
// former settings back, in the middle of a character when it must.

#include "programmtest.h"

#include "leitungsmitschrift.h"
#include "schnittstelle.h"
#include "transaktionen.h"

#include <QDialog>
#include <gmock/gmock.h>

#include <algorithm>

namespace varnoth::pruefung {

class Leitungsende : public ProgrammTest {
protected:
    using Aufruf = Leitungsmitschrift::Aufruf;

    /// At 1200 baud a frame of eight bytes is on its way for 73 ms; the pseudo terminal brings the reply at
    /// once.
    void StarteLangsam(const QStringList& optionen = {}) {
        SchliesseGeraetAn(optionen);
        SchreibeEinstellungen("[Settings]\nComSettings=1200,n,8,2\nComGeraet1=" + geraet->Geraet().toUtf8() +
                              "\n");
        Starte();
        mitschrift.emplace(geraet->Geraet().toStdString());
    }
    /// How often the port was closed. Each time everything written before must have had its time on the line,
    /// then the driver was asked, then the settings were restored, then the port was closed.
    int GeordneteEnden() const {
        constexpr auto Zeichen = std::chrono::microseconds(9166); // eleven bits at 1200 baud
        const auto eintraege = mitschrift->Eintraege();
        int enden = 0;
        const Leitungsmitschrift::Eintrag* schreiben = nullptr;
        for (std::size_t i = 0; i < eintraege.size(); ++i) {
            if (eintraege[i].aufruf == Aufruf::Schreiben)
                schreiben = &eintraege[i];
            if (eintraege[i].aufruf != Aufruf::Schliessen || schreiben == nullptr)
                continue;
            ++enden;
            if (i < 3 || eintraege[i - 1].aufruf != Aufruf::Einstellen ||
                eintraege[i - 2].aufruf != Aufruf::Leeren) {
                ADD_FAILURE() << "before end " << enden << ": " << testing::PrintToString(eintraege);
                return enden;
            }
            EXPECT_GE(eintraege[i - 2].ende - schreiben->beginn, schreiben->bytes * Zeichen) << *schreiben;
            schreiben = nullptr;
        }
        return enden;
    }

    std::optional<Leitungsmitschrift> mitschrift;
};

TEST_F(Leitungsende, The_command_frame_without_a_reply_leaves_whole) {
    StarteLangsam();
    Verbinde();
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    const int vorher = GeordneteEnden();
    ASSERT_EQ(modModbus::SendeFunktion09Kommando(), True);
    EXPECT_EQ(GeordneteEnden(), vorher + 1);
    const auto eintraege = mitschrift->Eintraege();
    const auto letztes = std::ranges::find(eintraege.rbegin(), eintraege.rend(), Aufruf::Schreiben,
                                           &Leitungsmitschrift::Eintrag::aufruf);
    ASSERT_NE(letztes, eintraege.rend());
    EXPECT_EQ(letztes->bytes, 4U);
}

TEST_F(Leitungsende, A_request_whose_exchange_has_failed_leaves_whole) {
    StarteLangsam();
    Verbinde();
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    geraet->Befehl("fault stray=20");
    const int vorher = GeordneteEnden();
    modSchnittstelle::OpenCommPort();
    Werte werte(1);
    EXPECT_EQ(modModbus::RTUModeH03LeseAnforderung(0, 1, werte), False);
    modSchnittstelle::CloseCommPort();
    EXPECT_EQ(GeordneteEnden(), vorher + 1);
}

TEST_F(Leitungsende, The_last_request_leaves_whole_when_the_program_ends_while_it_polls) {
    StarteLangsam();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    const int vorher = GeordneteEnden();
    Waehle("mnuBeenden");
    LaufeBis([this] { return Hauptfenster().OffeneFormulare() == 0; });
    Beende();
    EXPECT_GT(GeordneteEnden(), vorher);
}

TEST_F(Leitungsende, The_last_request_leaves_whole_when_the_program_goes_without_stopping_first) {
    StarteLangsam();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    const int vorher = GeordneteEnden();
    Beende();
    EXPECT_EQ(GeordneteEnden(), vorher + 1);
}

TEST_F(Leitungsende, The_request_of_a_dialog_that_is_closed_meanwhile_leaves_whole) {
    StarteLangsam();
    int vorher = 0;
    InFenster("frmKonfigurationLesenAusHardware", [this, &vorher](QWidget& dialog) {
        vorher = GeordneteEnden();
        qobject_cast<QDialog*>(&dialog)->reject();
    });
    Verbinde();
    EXPECT_TRUE(fahrer.AllesGetan());
    EXPECT_GT(GeordneteEnden(), vorher);
}

} // namespace varnoth::pruefung
