#include "verlaufsworte.h"

#include "statusbits.h"
#include "texte.h"
#include "textmitwerten.h"
#include "zeitachse.h"
#include "zeitworte.h"

#include <cmath>

namespace varnoth {

namespace {

constexpr std::int16_t TextAktiv = 9308, TextNichtAktiv = 9309, TextMarke = 6340, TextZeitunterschied = 6341,
                       TextNichtGemessen = 6342, TextErstesOptikteil = 5200, TextErsterWert = 4006;
constexpr const char* Trennung = " · ";

std::string Teilname(int teil) {
    return LadeText(static_cast<std::int16_t>(TextErstesOptikteil + teil));
}

std::string Wertname(int wert) {
    return LadeText(static_cast<std::int16_t>(TextErsterWert + wert));
}

const Teilmessung& Messung(const Messdurchgang& durchgang, int teil) {
    return durchgang.teile[static_cast<std::size_t>(teil)];
}

/// The chosen values of each part that has some, each told by a function.
template<class Erzaehle>
std::string JeTeil(const Verlaufswahl& wahl, Erzaehle erzaehle) {
    std::string text;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (wahl.HatTeil(teil))
            text += Trennung + Teilname(teil) + " " + erzaehle(teil);
    return text;
}

template<class Erzaehle>
std::string JeWert(const Verlaufswahl& wahl, int teil, Erzaehle erzaehle) {
    std::string text;
    for (int wert = 0; wert < AnzahlKurvenwerte; ++wert)
        if (wahl.Hat({teil, wert}))
            text += (text.empty() ? "" : ", ") + Wertname(wert) + " " + erzaehle(Messreihe{teil, wert});
    return text;
}

int WertAn(const Messdurchgang& durchgang, Messreihe reihe) {
    return Messung(durchgang, reihe.teil).werte[static_cast<std::size_t>(reihe.wert)];
}

/// How much a value has grown: "+3", "-10 mm".
std::string Zuwachs(const Messdurchgang& a, const Messdurchgang& b, Messreihe reihe, const Verlaufswahl& wahl,
                    const Strahlabstaende& abstaende) {
    const auto von = Achsenwert(wahl, abstaende, reihe, WertAn(a, reihe));
    const auto bis = Achsenwert(wahl, abstaende, reihe, WertAn(b, reihe));
    if (!von || !bis)
        return "–";
    const auto zuwachs = static_cast<int>(std::lround(*bis - *von));
    return (zuwachs > 0 ? "+" : "") + std::to_string(zuwachs) + (wahl.millimeter ? " mm" : "");
}

} // namespace

std::string Zeigerworte(const Messangaben& angaben, const Messdurchgang& durchgang, const Verlaufswahl& wahl,
                        const Strahlabstaende& abstaende) {
    std::string text = Zeitworte(angaben, durchgang.uhr);
    text += JeTeil(wahl, [&](int teil) {
        if (!Messung(durchgang, teil).gemessen)
            return LadeText(TextNichtGemessen);
        return JeWert(wahl, teil, [&](Messreihe reihe) {
            return Werttext(wahl, abstaende, reihe, WertAn(durchgang, reihe));
        });
    });
    const bool aktiv = (durchgang.geraetestatus & geraetestatus::PnpAktiv) != 0;
    return text + Trennung + LadeText(aktiv ? TextAktiv : TextNichtAktiv);
}

std::string Markenworte(const Messangaben& angaben, const Messdurchgang* a, const Messdurchgang* b,
                        const Verlaufswahl& wahl, const Strahlabstaende& abstaende) {
    std::string text;
    const std::pair<const char*, const Messdurchgang*> marken[] = {{"A", a}, {"B", b}};
    for (const auto& [name, durchgang] : marken)
        if (durchgang != nullptr)
            text += (text.empty() ? "" : Trennung) +
                    LadeTextMit(TextMarke, {name, Uhrzeitworte(angaben, durchgang->uhr)});
    if (a == nullptr || b == nullptr)
        return text;
    text += Trennung + LadeTextMit(TextZeitunterschied, {Abstandstext(b->uhr - a->uhr)});
    return text + JeTeil(wahl, [&](int teil) {
               if (!Messung(*a, teil).gemessen || !Messung(*b, teil).gemessen)
                   return LadeText(TextNichtGemessen);
               return JeWert(wahl, teil,
                             [&](Messreihe reihe) { return Zuwachs(*a, *b, reihe, wahl, abstaende); });
           });
}

} // namespace varnoth
