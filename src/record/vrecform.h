#pragma once

#include "aufzeichnungsform.h"
#include "vrecblock.h"

namespace varnoth {

/// A record (`*.vrec`) as bytes to append to a file, see docs/RECORD_FORMAT.md. What was given away last is
/// a whole number of blocks, so that a file that ends there is good.
class Vrecform : public Aufzeichnungsform {
public:
    std::string Beginne(const Messangaben& angaben, std::shared_ptr<const Abbild> konfiguration) override;
    /// A packet must not begin before the end of the one before.
    std::string Nimm(const Messpaket& paket, std::shared_ptr<const Abbild> konfiguration) override;
    std::string Beende() override;

private:
    std::string Block(vrec::Blockart art, const std::string& inhalt);
    std::string Wechsle(std::shared_ptr<const Abbild> neue);
    void TrageEin(vrec::Eintrag eintrag);

    std::uint64_t groesse = 0; ///< of the file so far
    std::uint64_t durchgaenge = 0;
    std::shared_ptr<const Abbild> konfiguration;
    vrec::Verzeichnisschreiber verzeichnis;
    std::vector<std::string> volleVerzeichnisse;
};

} // namespace varnoth
