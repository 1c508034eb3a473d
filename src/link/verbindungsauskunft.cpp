#include "verbindungsauskunft.h"

#include "leitungsstatistik.h"
#include "schnittstelle.h"
#include "texte.h"
#include "textmitwerten.h"

#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextAnschluss = 9130;
constexpr std::int16_t TextAnschlussSimuliert = 9131;
constexpr std::int16_t TextFalscheEinstellung = 9132;
constexpr std::int16_t TextFehlt = 9133;
constexpr std::int16_t TextGruppeBeitreten = 9134;
constexpr std::int16_t TextNeuAnmelden = 9135;
constexpr std::int16_t TextKeinRecht = 9136;
constexpr std::int16_t TextBelegtVon = 9137;
constexpr std::int16_t TextBelegt = 9138;
constexpr std::int16_t TextSystemfehler = 9139;
constexpr std::int16_t TextStille = 9140;
constexpr std::int16_t TextUnverstanden = 9141;
constexpr std::int16_t TextEcho = 9142;
constexpr std::int16_t TextZaehlung = 9143;
constexpr std::int16_t TextUnregelmaessig = 9144;
constexpr std::int16_t TextPortNichtOffen = 9145;

std::string Liste(const std::vector<std::string>& namen) {
    std::string text;
    for (const std::string& name : namen)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

std::string Anschlusszeile(const Anschluss& anschluss) {
    const std::string& format = modSchnittstelle::GetComSettings();
    if (anschluss.simuliert)
        return LadeTextMit(TextAnschlussSimuliert, {format});
    const std::string port = "COM" + std::to_string(modSchnittstelle::GetComPort());
    return LadeTextMit(TextAnschluss, {Portname(port, anschluss.geraet), format});
}

std::string OhneRecht(const std::string& geraet, const Portbefund& befund, const std::string& fehlertext) {
    if (befund.eigentuemer.empty()) // not even its folder may be looked into
        return LadeTextMit(TextSystemfehler, {geraet, fehlertext});
    if (befund.gruppe.empty())
        return LadeTextMit(TextKeinRecht, {geraet, befund.nutzer, befund.eigentuemer});
    if (befund.gruppeErstNachAnmeldung)
        return LadeTextMit(TextNeuAnmelden, {befund.nutzer, befund.gruppe});
    return LadeTextMit(TextGruppeBeitreten, {befund.nutzer, befund.gruppe, geraet});
}

std::string Belegt(const std::string& geraet, const Portbefund& befund) {
    if (befund.prozesse.empty())
        return LadeTextMit(TextBelegt, {geraet});
    return LadeTextMit(TextBelegtVon, {geraet, Liste(befund.prozesse)});
}

/// What the line itself tells, where nothing stands in the way of the port.
std::string UrsacheAufDerLeitung() {
    const auto ende = modLeitungsstatistik::GetStand().letztesEnde;
    if (!ende)
        return {};
    switch (*ende) {
    case Austauschende::Gelungen:
        return LadeText(TextUnregelmaessig);
    case Austauschende::KeinPort:
        return LadeText(TextPortNichtOffen);
    case Austauschende::Stille:
        return LadeText(TextStille);
    case Austauschende::Unverstanden:
        return LadeText(TextUnverstanden);
    case Austauschende::Echo:
        break;
    }
    return LadeText(TextEcho);
}

std::string Zaehlung() {
    const auto& anzahl = modLeitungsstatistik::GetStand().anzahl;
    const auto Zahl = [&](Austauschende ende) {
        return std::to_string(anzahl.at(static_cast<std::size_t>(ende)));
    };
    return LadeTextMit(TextZaehlung, {Zahl(Austauschende::Gelungen), Zahl(Austauschende::KeinPort),
                                      Zahl(Austauschende::Stille), Zahl(Austauschende::Unverstanden),
                                      Zahl(Austauschende::Echo)});
}

} // namespace

Verbindungsauskunft LiesVerbindungsauskunft() {
    const Anschluss anschluss = modSchnittstelle::GetAnschluss();
    const Portbefund befund = modSchnittstelle::GetPortbefund();
    const std::string zeile = Anschlusszeile(anschluss);
    const std::string amPort = Portursache(anschluss.geraet, befund, modSchnittstelle::GetPortfehler());
    return {.anschluss = zeile,
            .ursache = amPort.empty() ? UrsacheAufDerLeitung() : amPort,
            .einzelheiten = zeile + "\n" + Zaehlung()};
}

std::optional<Verbindungsauskunft> AuskunftNachFehlschlag() {
    const auto ende = modLeitungsstatistik::GetStand().letztesEnde;
    if (!ende || *ende == Austauschende::Gelungen)
        return std::nullopt;
    return LiesVerbindungsauskunft();
}

std::string Portursache(const std::string& geraet, const Portbefund& befund, const std::string& fehlertext) {
    switch (befund.hindernis) {
    case Hindernis::Einstellung:
        return KeinLeitungsformat(modSchnittstelle::GetComSettings());
    case Hindernis::Fehlt:
        return LadeTextMit(TextFehlt, {geraet});
    case Hindernis::KeinRecht:
        return OhneRecht(geraet, befund, fehlertext);
    case Hindernis::Belegt:
        return Belegt(geraet, befund);
    case Hindernis::Systemfehler:
        return LadeTextMit(TextSystemfehler, {geraet, fehlertext});
    case Hindernis::Keines:
        break;
    }
    // Another program at the same line takes the replies.
    return befund.prozesse.empty() ? std::string() : Belegt(geraet, befund);
}

std::string KeinLeitungsformat(const std::string& einstellung) {
    return LadeTextMit(TextFalscheEinstellung, {einstellung});
}

Meldung MeldungOhneVerbindung(const std::string& text, const std::string& titel) {
    const Verbindungsauskunft auskunft = LiesVerbindungsauskunft();
    return {.text = text,
            .titel = titel,
            .informativtext = auskunft.anschluss + "\n\n" + auskunft.ursache,
            .details = auskunft.einzelheiten};
}

} // namespace varnoth
