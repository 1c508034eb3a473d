#include "ereignisspeicher.h"

#include "textschutz.h"

#include <utility>

namespace varnoth {

namespace {

constexpr unsigned char Folgebyte = 0x80;
constexpr unsigned char Folgemaske = 0xC0;

/// Cut behind a whole character.
std::string Gekuerzt(std::string text) {
    if (text.size() <= Ereignisspeicher::LaengsterText)
        return text;
    std::size_t laenge = Ereignisspeicher::LaengsterText;
    while (laenge > 0 && (static_cast<unsigned char>(text[laenge]) & Folgemaske) == Folgebyte)
        --laenge;
    text.resize(laenge);
    return text + "…";
}

} // namespace

std::uint64_t Ereignisspeicher::Merke(Ereignis ereignis) {
    ereignis.text = Gekuerzt(Einzeilig(ereignis.text));
    textmenge += ereignis.text.size();
    ereignisse.push_back(std::move(ereignis));
    ++aenderungen;
    while (ereignisse.size() > hoechstzahl || (textmenge > HoechsteTextmenge && ereignisse.size() > 1))
        Vergiss();
    return Ende() - 1;
}

void Ereignisspeicher::Vergiss() {
    textmenge -= ereignisse.front().text.size();
    ereignisse.pop_front();
    ++erstes;
}

void Ereignisspeicher::Aendere(std::uint64_t nummer, const Ereignis& neues) {
    if (nummer < erstes || nummer >= Ende())
        return;
    Ereignis& altes = ereignisse[nummer - erstes];
    std::string text = std::move(altes.text);
    altes = neues;
    altes.text = std::move(text);
    ++aenderungen;
}

} // namespace varnoth
