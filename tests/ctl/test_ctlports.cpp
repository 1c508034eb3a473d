// Ports, search and line check of the program at simulated controllers.

#include "ctlprozess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <sys/stat.h>

namespace varnoth::pruefung {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class CtlPorts : public CtlProgrammTest {
protected:
    CtlPorts() {
        QDir(ordner.path()).mkdir("watched");
        umwelt.insert("VARNOTH_PORTS", Pfad("watched"));
    }
    /// Plugs the controller's adapter in: its line appears in the watched folder.
    void Stecke(const QStringList& optionen) {
        SchliesseGeraetAn(optionen);
        ASSERT_TRUE(QFile::link(QFile::symLinkTarget(geraet->Geraet()), Pfad("watched/adapter")));
    }
    /// The port of the watched folder as the list tells of it.
    QJsonObject Adapter() {
        for (const auto port :
             Geprueft(QByteArray::fromStdString(FuehreOhnePort({"ports", "--json"}).daten))["ports"]
                 .toArray())
            if (port.toObject()["device"].toString() == Pfad("watched/adapter"))
                return port.toObject();
        return {};
    }
};

} // namespace

TEST_F(CtlPorts, A_terminal_that_appears_in_the_watched_folder_is_a_port_that_is_free) {
    EXPECT_TRUE(Adapter().isEmpty());
    Stecke({"--unpaced"});
    EXPECT_EQ(Adapter()["state"].toString(), "free");
    EXPECT_THAT(FuehreOhnePort({"ports"}).daten,
                HasSubstr(Pfad("watched/adapter").toStdString() + ": pseudo terminal\n  free\n"));
}

TEST_F(CtlPorts, The_controller_is_found_in_its_own_format) {
    Stecke({"--unpaced", "--format", "9600,e,8,1", "--address", "9"});
    const auto ergebnis = FuehreOhnePort({"find", Pfad("watched/adapter"), "--json"});
    EXPECT_EQ(ergebnis.code, 0) << ergebnis.meldungen;
    const QJsonObject fund = Geprueft(QByteArray::fromStdString(ergebnis.daten))["found"].toObject();
    EXPECT_EQ(fund["format"].toString(), "9600,e,8,1");
    EXPECT_EQ(fund["controller"].toObject()["address"].toInt(), 9);
}

TEST_F(CtlPorts, Every_port_is_searched_where_none_is_named) {
    Stecke({"--unpaced"});
    const auto ergebnis = FuehreOhnePort({"find"});
    EXPECT_EQ(ergebnis.code, 0) << ergebnis.meldungen;
    EXPECT_THAT(ergebnis.daten, StartsWith("Controller found at " + Pfad("watched/adapter").toStdString() +
                                           " with 38400,n,8,2:"));
}

TEST_F(CtlPorts, What_is_no_port_is_named_with_its_reason) {
    ASSERT_EQ(mkfifo(Pfad("pipe").toLocal8Bit().constData(), 0600), 0);
    Schreibe("file", "x");
    for (const QString& kein :
         {QStringLiteral("/dev/null"), Pfad("pipe"), Pfad("file"), ordner.path(), Pfad("nothing")}) {
        const auto ergebnis = FuehreOhnePort({"find", kein});
        EXPECT_EQ(ergebnis.code, 3) << qPrintable(kein);
        EXPECT_THAT(ergebnis.meldungen, HasSubstr(kein.toStdString())) << qPrintable(kein);
        EXPECT_EQ(FuehreOhnePort({"linecheck", "--port", kein}).code, 3) << qPrintable(kein);
    }
}

TEST_F(CtlPorts, A_port_in_use_by_another_varnothctl_names_it) {
    Stecke({"--unpaced", "--fault", "silence"});
    QProcess erster;
    Starte(erster, {"linecheck", "--requests", "1000"});
    const auto Belegter = [this] { return Adapter()["state"].toString() == "busy"; };
    for (int i = 0; i < 200 && !Belegter(); ++i) {
    }
    const auto ports = Adapter();
    const QString name = "varnothctl (" + QString::number(erster.processId()) + ")";
    EXPECT_EQ(ports["processes"].toArray(), QJsonArray{name});
    const auto zweiter = Fuehre({"identify"});
    EXPECT_EQ(zweiter.code, 3);
    EXPECT_THAT(zweiter.meldungen, HasSubstr("in use by: " + name.toStdString()));
    erster.terminate();
    EXPECT_EQ(WarteAufEnde(erster).code, 130);
    EXPECT_EQ(Adapter()["state"].toString(), "free");
}

TEST_F(CtlPorts, A_line_in_order_is_said_to_be) {
    SchliesseGeraetAn({"--unpaced"});
    const auto objekt = InJson({"linecheck", "--requests", "20"});
    EXPECT_EQ(objekt["answered"].toInt(), 20);
    EXPECT_EQ(objekt["meaning"][0]["kind"].toString(), "ok");
}

TEST_F(CtlPorts, Each_trouble_of_a_line_is_told_by_its_kind) {
    struct Fall {
        QStringList optionen;
        int code;
        const char* art;
    };
    const Fall faelle[] = {
        {{"--echo"}, 4, "echo"},
        {{"--fault", "silence"}, 4, "noReply"},
        {{"--fault", "crc"}, 4, "format"},
        {{"--fault", "crc:2"}, 4, "reflections"},
        {{"--fault", "stray=3:2"}, 0, "reflections"},
        {{"--fault", "silence:2"}, 4, "missing"},
        {{"--fault", "late=400:2"}, 4, "late"},
    };
    for (const auto& [optionen, code, art] : faelle) {
        SchliesseGeraetAn(QStringList{"--unpaced"} + optionen);
        const auto objekt = InJson({"linecheck", "--requests", "5"}, code);
        EXPECT_EQ(objekt["meaning"][0]["kind"].toString(), art) << optionen.join(' ').toStdString();
    }
}

TEST_F(CtlPorts, A_line_that_rests_between_request_and_reply_is_said_to_be_held_back) {
    SchliesseGeraetAn({"--turnaround", "16000"});
    const auto objekt = InJson({"linecheck", "--requests", "5"});
    EXPECT_EQ(objekt["meaning"][1]["kind"].toString(), "latencyTimer");
}

TEST_F(CtlPorts, A_controller_behind_an_echo_is_found_with_a_warning) {
    SchliesseGeraetAn({"--unpaced", "--echo"});
    const auto objekt = InJson({"find"});
    EXPECT_TRUE(objekt["found"]["echo"].toBool());
}

TEST_F(CtlPorts, A_controller_that_sends_by_itself_is_found_and_the_line_check_hears_it) {
    SchliesseGeraetAn({});
    geraet->Befehl("set communication 74 259");
    geraet->Befehl("set communication 126 783");
    {
        QFile leitung(geraet->Geraet());
        ASSERT_TRUE(leitung.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        leitung.write(QByteArray::fromHex("0110408400010200027811"));
        ASSERT_EQ(leitung.read(1).size(), 1) << "it has confirmed that it is to send by itself";
    }
    EXPECT_EQ(Fuehre({"find"}).code, 0);
    const auto objekt = InJson({"linecheck", "--requests", "60"});
    EXPECT_EQ(objekt["meaning"][0]["kind"].toString(), "autosend");
}

} // namespace varnoth::pruefung
