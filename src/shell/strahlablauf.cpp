#include "strahlablauf.h"

#include "berichtsbefehl.h"
#include "blankingvorschlag.h"
#include "frmWasserfall.h"
#include "konfigurationsablauf.h"
#include "messablauf.h"

#include <optional>
#include <utility>

namespace varnoth {

/// What the window has asked for last.
struct Strahlablauf::Wunsch {
    std::optional<Blankingvorschlag> vorschlag;
    std::optional<Strahlbericht> abschnitt;
};

Strahlablauf::Strahlablauf(Messablauf& dieMessung, Konfigurationsablauf& derAblauf,
                           const std::function<void(Befehl befehl)>& klick)
    : messung(dieMessung), ablauf(derAblauf), wunsch(std::make_unique<Wunsch>()) {
    messung.SetzeBlankingweg([this, klick](int teil, const Werte& muster) {
        wunsch->vorschlag = {teil, muster};
        klick(Befehl::BlankingVorschlagen);
    });
    messung.SetzeBerichtsweg([this, klick](const Strahlbericht& abschnitt) {
        wunsch->abschnitt = abschnitt;
        klick(Befehl::Strahlbericht);
    });
}

Strahlablauf::~Strahlablauf() = default;

void Strahlablauf::Zeige() {
    messung.Zeige<frmWasserfall>();
}

void Strahlablauf::BearbeiteVorschlag() {
    if (const auto vorschlag = std::exchange(wunsch->vorschlag, {}))
        ablauf.Bearbeite(&*vorschlag);
}

bool Strahlablauf::Berichte(bool mitStrahlen) {
    const Strahlzusatz zusatz{.strahlen = wunsch->abschnitt, .mitStrahlen = mitStrahlen};
    return ablauf.Berichte(&zusatz);
}

void Strahlablauf::Lokalisiere() {
    wunsch->abschnitt.reset();
}

} // namespace varnoth
