#include "passwortschutz.h"

#include "busrahmen.h"
#include "gestalt.h"
#include "registeradressen.h"
#include "servicetext.h"
#include "textschutz.h"
#include "zeichensatz.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::size_t KuerzesteSpur = 4; // characters of the password that are no accident
constexpr std::size_t KopfDesSchreibens = 7;

bool TrifftPasswort(std::string_view anforderung) {
    const auto bezug = RegisterbezugVon(anforderung);
    return bezug &&
           Beruehren(*bezug, {Speicherbereich::GlobaleGeraetedaten, global::Passwort, Passwortregister});
}

/// Where some characters of the password in a row begin; the end of the bytes where they do not.
std::size_t ErsteSpur(std::string_view bytes) {
    const std::string_view passwort = modService::GetServiceText();
    std::size_t erste = bytes.size();
    for (std::size_t i = 0; i + KuerzesteSpur <= passwort.size(); ++i) {
        const std::string_view stueck = passwort.substr(i, KuerzesteSpur);
        if (stueck.find_first_not_of(' ') != std::string_view::npos)
            erste = std::min(erste, bytes.find(stueck));
    }
    return erste;
}

/// Whether what came is the one reply to the request and nothing else.
bool IstReineAntwort(const Mitschnitt& mitschnitt) {
    const auto antworten = SucheAntworten(mitschnitt.empfangen);
    return mitschnitt.ergebnis == Austauschergebnis::Beantwortet && antworten.size() == 1 &&
           antworten[0].size() == mitschnitt.empfangen.size();
}

} // namespace

Passwortschutz::Zeigbares Passwortschutz::Pruefe(const Mitschnitt& mitschnitt) {
    const bool trifft = TrifftPasswort(mitschnitt.anforderung);
    const bool schreibt = IstSchreibrahmen(mitschnitt.anforderung);
    const bool rein = IstReineAntwort(mitschnitt);
    Zeigbares zeigbares{ErsteSpur(mitschnitt.anforderung), ErsteSpur(mitschnitt.empfangen)};
    if (trifft && schreibt)
        zeigbares.anforderung = std::min(KopfDesSchreibens, mitschnitt.anforderung.size());
    const bool verraetNichts = rein && (schreibt || !trifft);
    if ((trifft || nachhall) && !verraetNichts)
        zeigbares.empfangen = 0;
    nachhall = (trifft || nachhall) && !rein;
    return zeigbares;
}

std::string OhnePasswort(std::string text) {
    std::string passwort = modService::GetServiceText();
    passwort.erase(passwort.find_last_not_of(' ') + 1);
    if (passwort.size() < KuerzesteSpur)
        return text;
    std::string utf8;
    for (const char zeichen : passwort)
        utf8 += AlsUtf8(static_cast<std::uint8_t>(zeichen));
    for (auto stelle = text.find(utf8); stelle != std::string::npos; stelle = text.find(utf8, stelle))
        text.replace(stelle, utf8.size(), Verdecktes);
    return text;
}

bool IstVertraulich(std::string_view schluessel) {
    const std::string klein = Gefaltet(schluessel);
    return std::ranges::any_of(
        std::initializer_list<std::string_view>{"passw", "kennw", "pwd", "geheim", "secret", "token"},
        [&](std::string_view wort) { return klein.find(wort) != std::string::npos; });
}

} // namespace varnoth
