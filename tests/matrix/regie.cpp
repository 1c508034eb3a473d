#include "regie.h"

#include <stdexcept>
#include <utility>

namespace varnoth::pruefung {

namespace {
constexpr int TaktMs = 5;
}

Regie::Regie() {
    QObject::connect(&takt, &QTimer::timeout, &takt, [this] { Blicke(); });
    takt.start(TaktMs);
}

void Regie::Spiele(Handlung stueck) {
    handlung.emplace(std::move(stueck));
    handlung->Beginne();
}

std::string Regie::Fehler() const {
    if (!Zuende())
        return "the play did not come to its end";
    try {
        handlung->WirfFehler();
        return {};
    } catch (const std::exception& fehler) {
        return fehler.what();
    }
}

Regie::Wartepunkt Regie::Nach(int ms) {
    return Bis("the time to pass", [this, ms] { return seit.hasExpired(ms); });
}

void Regie::Blicke() {
    if (!wartender)
        return;
    if (waechter)
        versaeumt = waechter();
    if (versaeumt.empty() && !erfuellt()) {
        if (!seit.hasExpired(frist))
            return;
        versaeumt = "no sign of " + worauf;
    }
    std::exchange(wartender, {}).resume();
    if (abbruch && Zuende() && !Fehler().empty())
        abbruch();
}

void Regie::WirfVersaeumnis() const {
    if (!versaeumt.empty())
        throw std::runtime_error(versaeumt);
}

} // namespace varnoth::pruefung
