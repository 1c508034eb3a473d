#include "blockgang.h"

#include "crc32.h"

#include <algorithm>

namespace varnoth::vrec {

namespace {

constexpr std::size_t Puffergroesse = std::size_t{1} << 20U;
constexpr std::size_t UnlesbaresStueck = std::size_t{1} << 16U;
constexpr int MeisteMarken = 1000; // that turn out to be none, in one step

} // namespace

Blockgang::Blockgang(const Eingabedatei& welche, std::uint64_t beginn)
    : datei(welche), groesse(welche.Groesse()), stelle(std::min(beginn, groesse)) {}

Blockgang::Schritt Blockgang::Weiter() {
    if (sucht)
        return Suche();
    if (groesse - stelle < LaengeBlockkopf) {
        abgeschnitten = stelle != groesse;
        return Schritt::Ende;
    }
    const std::string_view bytes = Hole(stelle, LaengeBlockkopf);
    if (bytes.empty())
        return Ueberspringe();
    if (const auto neuer = BlockkopfAus(bytes))
        return Nimm(*neuer);
    sucht = true;
    return Suche();
}

/// Some bytes of the file; none where they cannot be read.
std::string_view Blockgang::Hole(std::uint64_t ab, std::size_t laenge) {
    if (ab < pufferstelle || ab + laenge > pufferstelle + puffer.size()) {
        puffer.resize(
            static_cast<std::size_t>(std::min<std::uint64_t>(std::max(laenge, Puffergroesse), groesse - ab)));
        pufferstelle = ab;
        bool gelungen = datei.Lies(ab, puffer);
        if (!gelungen && puffer.size() > laenge) {
            puffer.resize(laenge);
            gelungen = datei.Lies(ab, puffer);
        }
        if (!gelungen) {
            puffer.clear();
            return {};
        }
    }
    return std::string_view(puffer).substr(static_cast<std::size_t>(ab - pufferstelle), laenge);
}

/// The bytes that follow, as many as are at hand, a head's at least; none where they cannot be read.
std::string_view Blockgang::HoleViele() {
    const std::string_view bytes = Hole(stelle, LaengeBlockkopf);
    return bytes.empty() ? bytes
                         : std::string_view(puffer).substr(static_cast<std::size_t>(stelle - pufferstelle));
}

Blockgang::Schritt Blockgang::Nimm(const Blockkopf& neuer) {
    if (groesse - stelle - LaengeBlockkopf < neuer.laenge) {
        stelle = groesse;
        abgeschnitten = true;
        return Schritt::Ende;
    }
    kopf = neuer;
    blockstelle = stelle;
    inhalt = Hole(stelle + LaengeBlockkopf, kopf.laenge);
    stelle += LaengeBlockkopf + kopf.laenge;
    if (inhalt.size() == kopf.laenge && Crc32(inhalt) == kopf.pruefsumme)
        return Schritt::Block;
    lesefehler |= inhalt.size() != kopf.laenge;
    return Schritt::Beschaedigt;
}

/// Looks for the next mark that a head follows.
Blockgang::Schritt Blockgang::Suche() {
    for (int i = 0; i < MeisteMarken; ++i) {
        if (groesse - stelle < LaengeBlockkopf) {
            abgeschnitten = true;
            return Schritt::Ende;
        }
        const std::string_view bytes = HoleViele();
        if (bytes.empty())
            return Ueberspringe();
        const std::size_t fund = bytes.find(Blockmarke);
        if (fund == std::string_view::npos) {
            stelle += bytes.size() - (Blockmarke.size() - 1);
            return Schritt::Suche;
        }
        stelle += fund;
        if (groesse - stelle >= LaengeBlockkopf && BlockkopfAus(Hole(stelle, LaengeBlockkopf))) {
            sucht = false;
            return Schritt::Luecke;
        }
        ++stelle;
    }
    return Schritt::Suche;
}

/// Bytes that cannot be read are passed over a piece at a time.
Blockgang::Schritt Blockgang::Ueberspringe() {
    lesefehler = sucht = true;
    stelle = std::min(stelle + UnlesbaresStueck, groesse);
    return Schritt::Suche;
}

} // namespace varnoth::vrec
