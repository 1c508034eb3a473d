#include "vrecform.h"

#include "konfigurationsdatei.h"
#include "messpaket.h"

#include <algorithm>
#include <utility>

namespace varnoth {

using vrec::Blockart;

std::string Vrecform::Beginne(const Messangaben& angaben, std::shared_ptr<const Abbild> neue) {
    std::string bytes(vrec::Kennung);
    bytes += static_cast<char>(vrec::Version);
    groesse = bytes.size();
    bytes += Block(Blockart::Angaben, vrec::AlsInhalt(angaben));
    return bytes += Wechsle(std::move(neue));
}

std::string Vrecform::Nimm(const Messpaket& paket, std::shared_ptr<const Abbild> neue) {
    std::string bytes = Wechsle(std::move(neue));
    const std::string inhalt = AlsBytes(paket);
    durchgaenge += std::min(paket.durchgaenge.size(), GroessterPaketinhalt);
    TrageEin({.hatEreignisse = !paket.ereignisse.empty(),
              .stelle = groesse,
              .laenge = static_cast<std::uint32_t>(inhalt.size()),
              .spanne = paket.spanne});
    return bytes += Block(Blockart::Paket, inhalt);
}

std::string Vrecform::Beende() {
    const vrec::Schluss schluss{.verzeichnis = groesse, .durchgaenge = durchgaenge};
    if (!verzeichnis.IstLeer() || volleVerzeichnisse.empty())
        volleVerzeichnisse.push_back(verzeichnis.Entnimm());
    std::string bytes;
    for (const std::string& inhalt : std::exchange(volleVerzeichnisse, {}))
        bytes += Block(Blockart::Verzeichnis, inhalt);
    return bytes += Block(Blockart::Schluss, vrec::AlsInhalt(schluss));
}

std::string Vrecform::Block(Blockart art, const std::string& inhalt) {
    std::string block = vrec::AlsBlock(art, inhalt);
    groesse += block.size();
    return block;
}

/// The block of a configuration that is another than before.
std::string Vrecform::Wechsle(std::shared_ptr<const Abbild> neue) {
    if (neue == nullptr || (konfiguration != nullptr && (neue == konfiguration || *neue == *konfiguration)))
        return {};
    konfiguration = std::move(neue);
    const std::string inhalt = AlsKonfigurationsdatei(*konfiguration);
    TrageEin(
        {.istKonfiguration = true, .stelle = groesse, .laenge = static_cast<std::uint32_t>(inhalt.size())});
    return Block(Blockart::Konfiguration, inhalt);
}

void Vrecform::TrageEin(vrec::Eintrag eintrag) {
    verzeichnis.Nimm(eintrag);
    if (verzeichnis.IstVoll())
        volleVerzeichnisse.push_back(verzeichnis.Entnimm());
}

} // namespace varnoth
