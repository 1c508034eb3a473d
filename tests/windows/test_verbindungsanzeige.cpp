#include "verbindungsanzeige.h"

#include "bedienelement.h"
#include "ereignisse.h"
#include "fenstertest.h"
#include "leitungsstatistik.h"
#include "polling.h"
#include "pruefgeraet.h"
#include "texte.h"
#include "transaktionen.h"
#include "verbindungssymbol.h"

#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTextDocument>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace varnoth {

using namespace std::chrono_literals;
using pruefung::WarteBis;

namespace {

/// The sign of a state; its ground is that of the corner.
QImage Gemaltes(Verbindungszustand zustand, bool simuliert, int kante = 24) {
    Verbindungssymbol symbol(nullptr);
    symbol.resize(kante, kante);
    symbol.Zeige(zustand, simuliert);
    return symbol.grab().toImage();
}

/// Whether the sign covers a point of its place, which goes from -1 to 1 in both directions.
bool IstGemalt(const QImage& bild, QPointF punkt) {
    const int x = static_cast<int>((punkt.x() + 1) / 2 * bild.width());
    const int y = static_cast<int>((punkt.y() + 1) / 2 * bild.height());
    return bild.pixel(x, y) != bild.pixel(0, 0);
}

} // namespace

/// The connection part in a status bar of its own, over a scripted line.
class VerbindungsanzeigeTest : public testing::Test {
protected:
    VerbindungsanzeigeTest() {
        leiste.resize(800, 30);
        leiste.show();
    }

    template<class Element>
    Element& Teil(const char* name) {
        return pruefung::Kind<Element>(leiste, name);
    }
    QString Text() { return Teil<QLabel>("lblVerbindung").text(); }
    QString Zahlen() { return Teil<QLabel>("lblVerbindungszahlen").text(); }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    QStatusBar leiste;
    int starts = 0;
    int suchen = 0;
    Verbindungsanzeige anzeige{leiste, [this] { ++starts; }, [this] { ++suchen; }};
};

TEST_F(VerbindungsanzeigeTest, Without_a_connection_it_says_offline_and_offers_to_start) {
    EXPECT_TRUE(Text().startsWith("Offline seit ")) << Text().toStdString();
    EXPECT_TRUE(Teil<QPushButton>("cmdVerbindungStart").isVisible());
    Teil<QPushButton>("cmdVerbindungStart").click();
    EXPECT_EQ(starts, 1);
}

TEST_F(VerbindungsanzeigeTest, After_a_failed_connection_it_leads_to_the_search_and_before_one_it_does_not) {
    auto& knopf = Teil<QPushButton>("cmdVerbindungSuchen");
    EXPECT_FALSE(knopf.isVisible());
    geraet.schweige = [](const std::string&) { return true; };
    modSchnittstelle::OpenCommPort();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    modSchnittstelle::CloseCommPort();
    anzeige.Aktualisiere();
    EXPECT_TRUE(knopf.isVisible());
    EXPECT_EQ(knopf.text(), "Suchen...");
    knopf.click();
    EXPECT_EQ(suchen, 1);
    EXPECT_EQ(starts, 0);
}

TEST_F(VerbindungsanzeigeTest, While_connecting_it_says_so_at_once) {
    anzeige.SetzeVerbindet(true);
    EXPECT_EQ(Text(), "Verbinde...");
    EXPECT_FALSE(Teil<QPushButton>("cmdVerbindungStart").isVisible());
    anzeige.SetzeVerbindet(false);
    EXPECT_TRUE(Text().startsWith("Offline seit "));
}

TEST_F(VerbindungsanzeigeTest, While_nothing_changes_it_sets_nothing) {
    Teil<QLabel>("lblVerbindung").setText("left alone");
    anzeige.Aktualisiere();
    EXPECT_EQ(Text(), "left alone");
    anzeige.SetzeVerbindet(true);
    EXPECT_EQ(Text(), "Verbinde...");
}

TEST_F(VerbindungsanzeigeTest, It_looks_by_itself_while_events_are_served) {
    modPolling::StartePolling();
    EXPECT_TRUE(WarteBis([&] { return Text() == "Live"; }));
}

TEST_F(VerbindungsanzeigeTest, It_follows_live_data_through_silence_and_stop) {
    modPolling::StartePolling();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    anzeige.Aktualisiere();
    EXPECT_EQ(Text(), "Live");
    EXPECT_EQ(Zahlen(), "0 Fehler/min");
    QString dabei;
    umgebung.Plane(umgebung.uhr + 4s, [&] {
        anzeige.Aktualisiere();
        dabei = Text();
    });
    geraet.schweige = [](const std::string&) { return true; };
    for (int i = 0; i < 5; ++i)
        modModbus::WaehleOptikteil(0);
    EXPECT_TRUE(dabei.startsWith("Warte auf Antwort seit ")) << dabei.toStdString();
    modPolling::StoppePolling();
    anzeige.Aktualisiere();
    EXPECT_TRUE(Text().startsWith("Live-Daten angehalten seit ")) << Text().toStdString();
    EXPECT_EQ(Zahlen(), "5 Fehler/min");
}

TEST_F(VerbindungsanzeigeTest, The_tip_names_the_device_and_what_the_controller_calls_itself) {
    geraet.identtext = "<b>Varnoth</b>;\xA9 4711;x";
    modSchnittstelle::OpenCommPort();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    anzeige.Aktualisiere();
    EXPECT_TRUE(anzeige.toolTip().contains("Port: COM1, /dev/pruefung\nFormat: 38400,n,8,2\n"));
    EXPECT_TRUE(anzeige.toolTip().contains("Steuergerät: <b>Varnoth</b>\nSeriennummer: © 4711"));
    EXPECT_FALSE(Qt::mightBeRichText(anzeige.toolTip()));
}

TEST_F(VerbindungsanzeigeTest, The_built_in_controller_is_named) {
    port.anschluss = {.simuliert = true};
    anzeige.Aktualisiere();
    EXPECT_TRUE(Text().startsWith("Simuliert: Offline")) << Text().toStdString();
    EXPECT_FALSE(anzeige.toolTip().contains("COM1"));
}

TEST_F(VerbindungsanzeigeTest, It_speaks_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    anzeige.Aktualisiere();
    EXPECT_TRUE(Text().startsWith("Offline since "));
    EXPECT_EQ(Teil<QPushButton>("cmdVerbindungStart").toolTip(), "Start live data");
    EXPECT_EQ(anzeige.accessibleName(), Text());
}

TEST_F(VerbindungsanzeigeTest, Every_new_state_is_an_event_that_names_the_line) {
    const auto letztes = [] { return modEreignisse::Alle().Hole(modEreignisse::Alle().Ende() - 1); };
    ASSERT_GT(modEreignisse::Alle().Ende(), 0U);
    EXPECT_EQ(letztes().art, Ereignisart::Zustand);
    EXPECT_EQ(letztes().neu, static_cast<int>(Verbindungszustand::Offline));
    EXPECT_EQ(letztes().alt, 0);
    EXPECT_EQ(letztes().text, "COM1, /dev/pruefung, 38400,n,8,2");
    port.anschluss = {.simuliert = true};
    anzeige.SetzeVerbindet(true);
    EXPECT_EQ(letztes().neu, static_cast<int>(Verbindungszustand::Verbindet));
    EXPECT_EQ(letztes().alt, 1) << "the built-in controller";
    Verbindungsgegenstand woraus;
    woraus.aufzeichnung = "/tmp/nacht.vrec";
    anzeige.SetzeWiedergabe(woraus);
    EXPECT_EQ(letztes().neu, static_cast<int>(Verbindungszustand::Wiedergabe));
    EXPECT_EQ(letztes().text, "/tmp/nacht.vrec");
}

TEST_F(VerbindungsanzeigeTest, What_changes_within_a_state_is_no_event) {
    const auto bisher = modEreignisse::Alle().Ende();
    SetzeSprachoffset(Englisch);
    anzeige.Aktualisiere();
    EXPECT_TRUE(Text().startsWith("Offline since "));
    EXPECT_EQ(modEreignisse::Alle().Ende(), bisher);
}

TEST_F(VerbindungsanzeigeTest, Its_buttons_leave_the_keyboard_to_the_window) {
    for (const auto* const knopf : anzeige.findChildren<QPushButton*>()) {
        EXPECT_EQ(knopf->focusPolicy(), Qt::NoFocus) << knopf->objectName().toStdString();
        EXPECT_FALSE(knopf->autoDefault()) << knopf->objectName().toStdString();
    }
}

TEST_F(VerbindungsanzeigeTest, Its_texts_are_plain) {
    for (const auto* label : anzeige.findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
}

TEST_F(VerbindungsanzeigeTest, It_gets_narrow_where_room_is_short) {
    auto& zustand = Teil<QLabel>("lblVerbindung");
    auto& zahlen = Teil<QLabel>("lblVerbindungszahlen");
    zustand.setText("Live-Daten angehalten seit 03.03.2026 23:59 und so weiter");
    zahlen.setText("12 Durchgänge/s, 10 Fehler/min");
    EXPECT_LT(zustand.minimumSizeHint().width(), zustand.sizeHint().width());
    EXPECT_LT(zahlen.minimumSizeHint().width(), zahlen.sizeHint().width() / 3);
    EXPECT_LT(zahlen.minimumSizeHint().width(), zustand.minimumSizeHint().width());
}

TEST_F(VerbindungsanzeigeTest, Its_sign_follows_the_state) {
    const auto Zeichen = [this] { return Teil<QWidget>("symVerbindung").grab().toImage(); };
    const QImage offline = Zeichen();
    modPolling::StartePolling();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    anzeige.Aktualisiere();
    const QImage live = Zeichen();
    EXPECT_NE(live, offline);
    port.anschluss = {.simuliert = true};
    anzeige.Aktualisiere();
    EXPECT_NE(Zeichen(), live);
}

TEST_F(VerbindungsanzeigeTest, Live_waiting_stopped_and_simulated_have_colours_of_their_own) {
    using enum Verbindungszustand;
    std::set<QRgb> farben;
    for (const auto zustand : {Live, Wartet, Offline})
        farben.insert(Verbindungsfarbe(zustand, false).rgb());
    farben.insert(Verbindungsfarbe(Live, true).rgb());
    EXPECT_EQ(farben.size(), 4U);
}

TEST_F(VerbindungsanzeigeTest, Each_state_has_a_shape_of_its_own) {
    using enum Verbindungszustand;
    std::set<std::string> formen;
    const auto Form = [](Verbindungszustand zustand, bool simuliert) {
        std::string form;
        const QImage bild = Gemaltes(zustand, simuliert);
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x)
                form += bild.pixel(x, y) == bild.pixel(0, 0) ? ' ' : 'x';
        return form;
    };
    for (const auto zustand : {Verbindet, Live, Wartet, Angehalten, PortOffen, Offline})
        formen.insert(Form(zustand, false));
    formen.insert(Form(Live, true));
    EXPECT_EQ(formen.size(), 7U);
}

TEST_F(VerbindungsanzeigeTest, Each_sign_is_a_known_shape) {
    using enum Verbindungszustand;
    const std::vector<QPointF> rundum{{0, -0.8}, {0, 0.8}, {-0.8, 0}, {0.8, 0}};
    const std::vector<QPointF> ecken{{-0.8, -0.8}, {-0.8, 0.8}, {0.8, -0.8}, {0.8, 0.8}};
    const std::vector<QPointF> diagonalen{{-0.5, -0.5}, {-0.5, 0.5}, {0.5, -0.5}, {0.5, 0.5}};
    const std::vector<QPointF> balken{{-0.42, -0.5}, {-0.42, 0.5}, {0.42, -0.5}, {0.42, 0.5}};
    struct Zeichen {
        const char* name;
        Verbindungszustand zustand;
        bool simuliert;
        std::vector<std::vector<QPointF>> gemalt, leer;
    };
    const Zeichen alle[] = {
        {"three dots", Verbindet, false, {{{-0.7, 0}, {0, 0}, {0.7, 0}}}, {ecken, diagonalen}},
        {"disc", Live, false, {rundum, diagonalen, {{0, 0}}}, {ecken}},
        {"rhomb", Live, true, {rundum, {{0, 0}}}, {ecken, {{0.6, 0.6}, {-0.6, -0.6}}}},
        {"clock", Wartet, false, {rundum, {{0, 0}, {0, -0.25}, {0.25, 0}}}, {ecken, {{-0.4, 0}, {0, 0.4}}}},
        {"two bars", Pausiert, false, {balken}, {ecken, {{0, 0}, {0, 0.5}, {0, -0.5}}}},
        {"two bars", Angehalten, false, {balken}, {ecken, {{0, 0}, {0, 0.5}, {0, -0.5}}}},
        {"ring", PortOffen, false, {rundum}, {ecken, {{0, 0}, {0, 0.4}, {0.4, 0}}}},
        {"cross", Offline, false, {diagonalen, {{0, 0}}}, {rundum}},
        {"triangle", Wiedergabe, false, {{{-0.4, -0.5}, {-0.4, 0.5}, {0.6, 0}}}, {{{0.6, -0.6}, {0.6, 0.6}}}},
    };
    for (const auto& [name, zustand, simuliert, gemalt, leer] : alle) {
        const QImage bild = Gemaltes(zustand, simuliert, 60);
        for (const auto& punkte : gemalt)
            for (const QPointF punkt : punkte)
                EXPECT_TRUE(IstGemalt(bild, punkt)) << name << " at " << punkt.x() << ", " << punkt.y();
        for (const auto& punkte : leer)
            for (const QPointF punkt : punkte)
                EXPECT_FALSE(IstGemalt(bild, punkt)) << name << " at " << punkt.x() << ", " << punkt.y();
    }
}

TEST_F(VerbindungsanzeigeTest, Every_shape_is_as_wide_as_its_place) {
    using enum Verbindungszustand;
    for (const auto zustand :
         {Verbindet, Live, Wartet, Pausiert, PortOffen, Angehalten, Offline, Wiedergabe}) {
        const QImage bild = Gemaltes(zustand, false);
        int links = bild.width();
        int rechts = 0;
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x)
                if (bild.pixel(x, y) != bild.pixel(0, 0)) {
                    links = std::min(links, x);
                    rechts = std::max(rechts, x);
                }
        EXPECT_GE(rechts - links, bild.width() * 6 / 10) << static_cast<int>(zustand);
    }
}

} // namespace varnoth
