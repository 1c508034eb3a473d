#include "busregister.h"

#include "klartext.h"
#include "registeradressen.h"
#include "registertext.h"
#include "textmitwerten.h"
#include "vergleichsworte.h"

#include <algorithm>
#include <tuple>

namespace varnoth {

namespace {

constexpr std::int16_t TextOptikteil = 9550;
constexpr std::int16_t TextStueck = 8448;
constexpr std::int16_t TextEinesDavon = 8449;

/// Registers that the image does not keep.
constexpr Registername Uebrige[] = {
    {Global, global::Passwort, Passwortregister, 7512},
    {Global, global::Kommando, 1, 8440},
    {Global, global::Optikteilauswahl, 1, 8441},
    {Global, global::Kanalauswahl, 1, 8442},
    {Spezifisch, spezifisch::Strahlzustaende, MaxStrahlregister, 8443},
    {Kommunikation, kommunikation::Steuerwert, 1, 8444},
};

std::vector<Registername> StelleZusammen() {
    std::vector<Registername> namen(std::begin(Uebrige), std::end(Uebrige));
    for (const Parameter& parameter : AlleParameter())
        namen.push_back({parameter.bereich, parameter.adresse, parameter.beschreibung.Laenge});
    std::ranges::sort(namen, {},
                      [](const Registername& name) { return std::tuple(name.bereich, name.adresse); });
    return namen;
}

std::string Bereichsname(Speicherbereich bereich, int optikteil) {
    if (bereich == Spezifisch && optikteil < 0)
        return LadeTextMit(TextOptikteil, {"?"});
    return Gruppenname({bereich, 0, std::max(optikteil, 0)});
}

/// The name of the registers of a bezug that lie within it.
std::string Namensstueck(const Registername& name, const Registerbezug& bezug) {
    const int von = std::max(bezug.adresse - name.adresse, 0) + 1;
    const int bis = std::min(bezug.adresse + bezug.anzahl - name.adresse, name.anzahl);
    const bool soVieleWieStrahlen = name.bereich == Spezifisch && name.adresse == spezifisch::Strahlzustaende;
    if (von == 1 && (bis == name.anzahl || soVieleWieStrahlen))
        return Name(name);
    if (von == bis)
        return LadeTextMit(TextEinesDavon, {Name(name), std::to_string(von)});
    return LadeTextMit(TextStueck, {Name(name), std::to_string(von), std::to_string(bis)});
}

} // namespace

const std::vector<Registername>& AlleRegisternamen() {
    static const std::vector<Registername> alle = StelleZusammen();
    return alle;
}

std::string Name(const Registername& name) {
    return name.text != 0 ? LadeText(name.text) : Parametername(name.bereich, name.adresse);
}

std::string NameMitBereich(const Registername& name, int optikteil) {
    return Bereichsname(name.bereich, optikteil) + ": " + Name(name);
}

std::string Registerworte(const Registerbezug& bezug, int optikteil) {
    std::vector<const Registername*> beruehrte;
    for (const Registername& name : AlleRegisternamen())
        if (Beruehren({name.bereich, name.adresse, name.anzahl}, bezug))
            beruehrte.push_back(&name);
    const std::string bereich = Bereichsname(bezug.bereich, optikteil) + ": ";
    if (beruehrte.empty())
        return bereich + Registertext(bezug.bereich, static_cast<std::int16_t>(bezug.adresse));
    const std::string erster = bereich + Namensstueck(*beruehrte.front(), bezug);
    return beruehrte.size() == 1 ? erster : erster + " … " + Namensstueck(*beruehrte.back(), bezug);
}

const Registername* GenauerName(const Registerbezug& bezug) {
    const auto& alle = AlleRegisternamen();
    const auto stelle = std::ranges::find_if(alle, [&](const Registername& name) {
        return name.bereich == bezug.bereich && name.adresse == bezug.adresse && name.anzahl == bezug.anzahl;
    });
    return stelle == alle.end() ? nullptr : &*stelle;
}

} // namespace varnoth
