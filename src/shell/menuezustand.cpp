#include "menuezustand.h"

#include "aktionen.h"

#include <QAction>

namespace varnoth {

namespace {

using Regel = bool (*)(const Programmzustand&);

bool Immer(const Programmzustand& /*zustand*/) {
    return true;
}

bool Service(const Programmzustand& zustand) {
    return zustand.service;
}

bool Laeuft(const Programmzustand& zustand) {
    return zustand.liveDaten;
}

bool LaeuftNicht(const Programmzustand& zustand) {
    return !zustand.liveDaten;
}

bool Autosend(const Programmzustand& zustand) {
    return zustand.autosendWaehlbar;
}

template<std::size_t teil>
bool HatStrahlen(const Programmzustand& zustand) {
    return zustand.hatStrahlen.at(teil);
}

struct Menuezeile {
    const char* name;
    Regel waehlbar;
    Regel sichtbar;
};

constexpr Menuezeile tabelle[] = {
    {"mnuAnzeigeLichtleiste_0", Immer, HatStrahlen<0>},
    {"mnuAnzeigeLichtleiste_1", Immer, HatStrahlen<1>},
    {"mnuAnzeigeLichtleiste_2", Immer, HatStrahlen<2>},
    {"mnuAnzeigeLichtleiste_3", Immer, HatStrahlen<3>},
    {"mnuMessdatenVisualisierenStart", LaeuftNicht, Immer},
    {"mnuMessdatenVisualisierenStop", Laeuft, Immer},
    {"mnuEinzelwerteLesenSchreiben", Immer, Service},
    {"mnuInitHardware", Immer, Service},
    {"mnuAutosendStarten", Autosend, Immer},
};

} // namespace

std::vector<Aktionszustand> Menuezustand(const Programmzustand& zustand) {
    std::vector<Aktionszustand> zustaende;
    for (const auto& [name, waehlbar, sichtbar] : tabelle)
        zustaende.push_back({QString::fromLatin1(name), waehlbar(zustand), sichtbar(zustand)});
    return zustaende;
}

void WendeAn(const std::vector<Aktionszustand>& zustaende, const QObject& fenster) {
    for (const auto& [name, waehlbar, sichtbar] : zustaende) {
        QAction& aktion = Aktion(fenster, name);
        aktion.setEnabled(waehlbar);
        aktion.setVisible(sichtbar);
    }
}

} // namespace varnoth
