#include "datenblock.h"

#include <algorithm>
#include <cstddef>

namespace varnoth {

namespace {

constexpr int Codebits = 0xFF;
constexpr int Quellenversatz = 8;
constexpr int Quellenbits = 0xF;
constexpr std::int16_t TextErsteQuelle = 5514;
constexpr std::int16_t TextHoechstens = 5531;
constexpr std::int16_t TextEintraege = 5532;

struct Wertcode {
    std::int16_t text;
    Wertart art;
    Sendewert wert;
};

// The value codes from 1 on.
constexpr std::array<Wertcode, 20> Wertcodes{{
    {5506, Wertart::Aktuell, Sendewert::Strahlendaten},
    {5507, Wertart::Aktuell, Sendewert::TU},
    {5508, Wertart::Aktuell, Sendewert::HU},
    {5509, Wertart::Aktuell, Sendewert::ZU},
    {5510, Wertart::Aktuell, Sendewert::TNU},
    {5511, Wertart::Aktuell, Sendewert::HNU},
    {5512, Wertart::Aktuell, Sendewert::ZNU},
    {5519, Wertart::Min, Sendewert::TU},
    {5520, Wertart::Min, Sendewert::HU},
    {5521, Wertart::Min, Sendewert::ZU},
    {5522, Wertart::Min, Sendewert::TNU},
    {5523, Wertart::Min, Sendewert::HNU},
    {5524, Wertart::Min, Sendewert::ZNU},
    {5525, Wertart::Max, Sendewert::TU},
    {5526, Wertart::Max, Sendewert::HU},
    {5527, Wertart::Max, Sendewert::ZU},
    {5528, Wertart::Max, Sendewert::TNU},
    {5529, Wertart::Max, Sendewert::HNU},
    {5530, Wertart::Max, Sendewert::ZNU},
    {5513, Wertart::Aktuell, Sendewert::Status},
}};

struct Wertregel {
    bool hatMinMax;
    bool vomGeraet;
};

constexpr Wertregel Messwert{true, false};

// By Sendewert.
constexpr std::array<Wertregel, AnzahlSendewerte> Wertregeln{
    {{false, false}, Messwert, Messwert, Messwert, Messwert, Messwert, Messwert, {false, true}}};

const Wertregel& RegelVon(Sendewert wert) {
    return Wertregeln.at(static_cast<std::size_t>(wert));
}

const Wertcode* WertcodeVon(std::int16_t eintrag) {
    const int code = eintrag & Codebits;
    const bool bekannt = code >= 1 && code <= static_cast<int>(Wertcodes.size());
    return bekannt ? &Wertcodes.at(static_cast<std::size_t>(code - 1)) : nullptr;
}

std::optional<Quelle> QuelleVon(std::int16_t eintrag) {
    const int quelle = (eintrag >> Quellenversatz) & Quellenbits;
    return quelle < AnzahlQuellen ? std::optional(static_cast<Quelle>(quelle)) : std::nullopt;
}

} // namespace

bool IstErlaubt(const Eintragswahl& wahl) {
    const Wertregel& regel = RegelVon(wahl.wert);
    return (wahl.art == Wertart::Aktuell || regel.hatMinMax) &&
           (wahl.quelle != Quelle::Geraet || regel.vomGeraet);
}

Eintragswahl Passend(Eintragswahl wahl) {
    if (wahl.quelle == Quelle::Geraet && !RegelVon(wahl.wert).vomGeraet)
        wahl.wert = Sendewert::Status;
    if (!RegelVon(wahl.wert).hatMinMax)
        wahl.art = Wertart::Aktuell;
    return wahl;
}

std::int16_t Eintragswort(const Eintragswahl& wahl) {
    const auto code = std::find_if(Wertcodes.begin(), Wertcodes.end(), [&](const Wertcode& wertcode) {
        return wertcode.art == wahl.art && wertcode.wert == wahl.wert;
    });
    if (code == Wertcodes.end())
        return 0;
    const auto nummer = static_cast<int>(code - Wertcodes.begin()) + 1;
    return static_cast<std::int16_t>(static_cast<int>(wahl.quelle) << Quellenversatz | nummer);
}

std::optional<Eintragswahl> WahlAus(std::int16_t eintrag) {
    const Wertcode* const code = WertcodeVon(eintrag);
    const auto quelle = QuelleVon(eintrag);
    if (!code || !quelle)
        return std::nullopt;
    return Eintragswahl{*quelle, code->art, code->wert};
}

std::string Eintragstext(std::int16_t eintrag, std::int16_t sprache) {
    const Wertcode* const code = WertcodeVon(eintrag);
    const auto quelle = QuelleVon(eintrag);
    const std::string wert = code ? LadeText(code->text, sprache) : "??? ";
    if (!quelle)
        return wert + " ???";
    return wert + ":" +
           LadeText(static_cast<std::int16_t>(TextErsteQuelle + static_cast<int>(*quelle)), sprache);
}

Eintragsliste ListeAus(const Werte& datenblock) {
    Eintragsliste liste{};
    for (std::size_t i = 0; i < liste.size() && i < datenblock.size(); ++i) {
        liste[i] = static_cast<std::int16_t>(datenblock[i]);
        if (liste[i] == 0)
            break;
    }
    return liste;
}

Werte DatenblockAus(const Eintragsliste& liste) {
    Werte datenblock;
    for (const std::int16_t eintrag : liste)
        datenblock.push_back(static_cast<std::uint16_t>(eintrag));
    return datenblock;
}

int AnzahlEintraege(const Eintragsliste& liste) {
    return static_cast<int>(std::find(liste.begin(), liste.end(), 0) - liste.begin());
}

bool FuegeEin(Eintragsliste& liste, int stelle, std::int16_t eintrag) {
    const int anzahl = AnzahlEintraege(liste);
    if (anzahl >= MaxEintraege)
        return false;
    const auto platz = liste.begin() + std::clamp(stelle, 0, anzahl);
    std::copy_backward(platz, liste.end() - 1, liste.end());
    *platz = eintrag;
    return true;
}

void Loesche(Eintragsliste& liste, int stelle) {
    if (stelle < 0 || stelle >= Datenblockregister)
        return;
    std::copy(liste.begin() + stelle + 1, liste.end(), liste.begin() + stelle);
    liste.back() = 0;
}

bool HatUngueltigenEintrag(const Eintragsliste& liste) {
    return std::any_of(liste.begin(), liste.end(), [](std::int16_t eintrag) { return eintrag < 0; });
}

std::string GrenzeText() {
    return LadeText(TextHoechstens) + std::to_string(MaxEintraege) + LadeText(TextEintraege);
}

} // namespace varnoth
