#include "busprobe.h"

#include "pruefgeraet.h"
#include "rahmen.h"

namespace varnoth::busprobe {

namespace {

constexpr std::int16_t Adresse = 1;

std::string Worte(const Werte& werte) {
    std::string bytes;
    for (const std::int32_t wert : werte)
        bytes += pruefung::Bytes({wert >> 8 & 0xFF, wert & 0xFF});
    return bytes;
}

} // namespace

Probe Gelesen(int adresse, const Werte& werte) {
    const auto anzahl = static_cast<std::uint16_t>(werte.size());
    return {.anforderung = LeseAnforderung(Adresse, static_cast<std::uint16_t>(adresse), anzahl),
            .empfangen = pruefung::MitPruefsumme(pruefung::Bytes({Adresse, 3, 2 * anzahl}) + Worte(werte)),
            .umlauf = Zeit(12340)};
}

Probe Unbeantwortet(int adresse, int anzahl) {
    return {.ergebnis = Austauschergebnis::Zeitueberschreitung,
            .anforderung = LeseAnforderung(Adresse, static_cast<std::uint16_t>(adresse),
                                           static_cast<std::uint16_t>(anzahl))};
}

Probe Geschrieben(int adresse, const Werte& werte) {
    Probe probe{.anforderung = SchreibAnforderung(Adresse, static_cast<std::uint16_t>(adresse),
                                                  static_cast<std::uint16_t>(werte.size()), werte),
                .umlauf = Zeit(12340)};
    probe.empfangen = pruefung::MitPruefsumme(probe.anforderung.substr(0, 6));
    return probe;
}

Probe Ungefragtes(const std::string& bytes) {
    return {.art = Austauschart::Ungefragt, .ergebnis = Austauschergebnis::Fremd, .empfangen = bytes};
}

void LassHoeren(const Probe& probe, bool gelungen) {
    modMithoeren::Gesendet(probe.gesendet);
    modMithoeren::Empfangen(probe.empfangen, probe.gesendet + probe.umlauf);
    modMithoeren::Endet(probe.art, probe.anforderung,
                        gelungen ? modMithoeren::Ausgang::Gelungen : modMithoeren::Ausgang::Ausgeblieben,
                        true);
}

Busaustausch Austausch(const Probe& probe) {
    return {.nummer = 1,
            .art = probe.art,
            .ergebnis = probe.ergebnis,
            .optikteil = 0,
            .anforderung = probe.anforderung,
            .empfangen = probe.empfangen,
            .kamAn = probe.empfangen.size(),
            .zeigbar = {probe.anforderung.size(), probe.empfangen.size()},
            .gesendet = probe.gesendet,
            .umlauf = probe.umlauf};
}

} // namespace varnoth::busprobe
