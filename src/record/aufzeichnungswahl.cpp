#include "aufzeichnungswahl.h"

#include "kalenderzeit.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr Zeit LaengstesSchweigen = std::chrono::minutes(1);
constexpr int StueckeJeFrist = 12;

int InBereich(int zahl, Wahlbereich bereich) {
    return std::clamp(zahl, bereich.kleinster, bereich.groesster);
}

bool SagtDasselbe(const Messdurchgang& einer, const Messdurchgang& anderer) {
    return einer.anzahlTeile == anderer.anzahlTeile && einer.geraetestatus == anderer.geraetestatus &&
           einer.teile == anderer.teile;
}

} // namespace

Aufzeichnungswahl Begrenzt(Aufzeichnungswahl wahl) {
    wahl.sekunden = InBereich(wahl.sekunden, Sekundenbereich);
    wahl.megabyte = InBereich(wahl.megabyte, Megabytebereich);
    wahl.endeMinuten = InBereich(wahl.endeMinuten, Endebereich);
    wahl.behalteStunden = InBereich(wahl.behalteStunden, Behaltebereich);
    wahl.vrec = wahl.vrec || !wahl.csv;
    return wahl;
}

bool Durchgangsauswahl::Nimm(const Messdurchgang& durchgang) {
    if (!IstFaellig(durchgang))
        return false;
    letzter = durchgang;
    return true;
}

bool Durchgangsauswahl::IstFaellig(const Messdurchgang& durchgang) const {
    if (!letzter)
        return true;
    const Zeit her = durchgang.uhr - letzter->uhr;
    switch (rhythmus) {
    case Rhythmus::BeiAenderung:
        return her >= LaengstesSchweigen || !SagtDasselbe(durchgang, *letzter);
    case Rhythmus::AlleSekunden:
        return her >= abstand;
    case Rhythmus::JederDurchgang:
        break;
    }
    return true;
}

std::optional<Zeit> Stuecklaenge(int behalteStunden) {
    if (behalteStunden == 0)
        return std::nullopt;
    return Zeit(std::chrono::hours(behalteStunden)) / StueckeJeFrist;
}

std::int64_t Ortstag(Systemzeit zeit) {
    const Systemzeit ortszeit = zeit + std::chrono::minutes(Zonenminuten(zeit));
    return std::chrono::floor<std::chrono::days>(ortszeit).time_since_epoch().count();
}

} // namespace varnoth
