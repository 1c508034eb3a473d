#include "wertealter.h"

#include "texte.h"

#include <algorithm>
#include <chrono>

namespace varnoth {

namespace {

constexpr std::int16_t TextVorSekunden = 9001;
constexpr std::int16_t TextVorMinuten = 9002;
constexpr Zeit MindestGrenze = std::chrono::seconds(1);
constexpr int UeblicheDurchgaenge = 3;

std::string Eingesetzt(std::string text, std::chrono::seconds::rep zahl) {
    const auto stelle = text.find("%1");
    return stelle == std::string::npos ? text : text.replace(stelle, 2, std::to_string(zahl));
}

} // namespace

void Wertealter::Erneuert(Zeit jetzt) {
    if (zuletzt)
        abstaende[anzahl++ % Gedaechtnis] = jetzt - *zuletzt;
    zuletzt = jetzt;
}

void Wertealter::Vergiss() {
    zuletzt.reset();
    anzahl = 0;
}

Zeit Wertealter::Alter(Zeit jetzt) const {
    return zuletzt ? jetzt - *zuletzt : Zeit{0};
}

Zeit Wertealter::Grenze() const {
    const std::size_t bekannte = std::min(anzahl, Gedaechtnis);
    if (bekannte == 0)
        return MindestGrenze;
    std::array<Zeit, Gedaechtnis> sortiert = abstaende;
    const auto mitte = sortiert.begin() + static_cast<std::ptrdiff_t>((bekannte - 1) / 2);
    std::nth_element(sortiert.begin(), mitte, sortiert.begin() + static_cast<std::ptrdiff_t>(bekannte));
    return std::max(MindestGrenze, UeblicheDurchgaenge * *mitte);
}

bool Wertealter::IstAlt(Zeit jetzt) const {
    return zuletzt && Alter(jetzt) >= Grenze();
}

std::string Alterstext(Zeit alter) {
    const auto sekunden = std::chrono::duration_cast<std::chrono::seconds>(alter);
    const auto minuten = std::chrono::duration_cast<std::chrono::minutes>(alter);
    return minuten.count() < 2 ? Eingesetzt(LadeText(TextVorSekunden), sekunden.count())
                               : Eingesetzt(LadeText(TextVorMinuten), minuten.count());
}

} // namespace varnoth
