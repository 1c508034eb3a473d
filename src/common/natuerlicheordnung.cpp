#include "natuerlicheordnung.h"

#include <algorithm>
#include <compare>

namespace varnoth {

namespace {

bool IstZiffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

/// Takes the number that the text begins with, without its leading zeros.
std::string_view NimmZahl(std::string_view& text) {
    const auto ende = std::min(text.find_first_not_of("0123456789"), text.size());
    std::string_view zahl = text.substr(0, ende);
    text.remove_prefix(ende);
    zahl.remove_prefix(std::min(zahl.find_first_not_of('0'), zahl.size()));
    return zahl;
}

std::strong_ordering VergleicheZahlen(std::string_view& eines, std::string_view& anderes) {
    const auto a = NimmZahl(eines);
    const auto b = NimmZahl(anderes);
    return a.size() != b.size() ? a.size() <=> b.size() : a <=> b;
}

std::strong_ordering VergleicheZeichen(std::string_view& eines, std::string_view& anderes) {
    const auto a = static_cast<unsigned char>(eines.front());
    const auto b = static_cast<unsigned char>(anderes.front());
    eines.remove_prefix(1);
    anderes.remove_prefix(1);
    return a <=> b;
}

} // namespace

bool NatuerlichDavor(std::string_view eines, std::string_view anderes) {
    std::string_view a = eines, b = anderes;
    while (!a.empty() && !b.empty()) {
        const bool zahlen = IstZiffer(a.front()) && IstZiffer(b.front());
        const auto ordnung = zahlen ? VergleicheZahlen(a, b) : VergleicheZeichen(a, b);
        if (std::is_neq(ordnung))
            return std::is_lt(ordnung);
    }
    return a.size() != b.size() ? a.size() < b.size() : eines < anderes;
}

} // namespace varnoth
