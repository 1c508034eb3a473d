#include "menuezustand.h"

#include <QAction>
#include <QObject>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

Aktionszustand Zustand(const Programmzustand& programm, const char* name) {
    for (const auto& zustand : Menuezustand(programm))
        if (zustand.name == QLatin1String(name))
            return zustand;
    ADD_FAILURE() << "no rule for " << name;
    return {};
}

} // namespace

TEST(Menuezustand, Start_is_enabled_exactly_while_live_data_is_stopped) {
    EXPECT_TRUE(Zustand({}, "mnuMessdatenVisualisierenStart").waehlbar);
    EXPECT_FALSE(Zustand({.liveDaten = true}, "mnuMessdatenVisualisierenStart").waehlbar);
}

TEST(Menuezustand, Stop_is_enabled_exactly_while_live_data_runs) {
    EXPECT_FALSE(Zustand({}, "mnuMessdatenVisualisierenStop").waehlbar);
    EXPECT_TRUE(Zustand({.liveDaten = true}, "mnuMessdatenVisualisierenStop").waehlbar);
}

TEST(Menuezustand, A_view_is_offered_exactly_for_parts_with_beams) {
    const Programmzustand programm{.hatStrahlen = {true, false, true, false}};
    EXPECT_TRUE(Zustand(programm, "mnuAnzeigeLichtleiste_0").sichtbar);
    EXPECT_FALSE(Zustand(programm, "mnuAnzeigeLichtleiste_1").sichtbar);
    EXPECT_TRUE(Zustand(programm, "mnuAnzeigeLichtleiste_2").sichtbar);
    EXPECT_FALSE(Zustand(programm, "mnuAnzeigeLichtleiste_3").sichtbar);
}

TEST(Menuezustand, The_service_items_show_only_in_the_service_mode) {
    for (const char* name : {"mnuEinzelwerteLesenSchreiben", "mnuInitHardware"}) {
        EXPECT_FALSE(Zustand({}, name).sichtbar) << name;
        EXPECT_TRUE(Zustand({.service = true}, name).sichtbar) << name;
    }
}

TEST(Menuezustand, Autosend_can_be_started_when_the_configuration_allows_it) {
    EXPECT_FALSE(Zustand({}, "mnuAutosendStarten").waehlbar);
    EXPECT_TRUE(Zustand({.autosendWaehlbar = true}, "mnuAutosendStarten").waehlbar);
}

TEST(Menuezustand, States_are_applied_to_actions_by_name) {
    QObject fenster;
    QAction aktion(&fenster);
    aktion.setObjectName(QStringLiteral("mnuX"));
    WendeAn({{.name = QStringLiteral("mnuX"), .waehlbar = false, .sichtbar = false}}, fenster);
    EXPECT_FALSE(aktion.isEnabled());
    EXPECT_FALSE(aktion.isVisible());
}

} // namespace varnoth
