#pragma once

#include "messquelle.h"

#include <memory>
#include <string>

namespace varnoth {

/// A form in which passes become the bytes of a file. It serves one file: begin, packets, end. Only its maker
/// knows the current language, for it works in a thread of its own.
class Aufzeichnungsform {
public:
    Aufzeichnungsform() = default;
    Aufzeichnungsform(const Aufzeichnungsform&) = delete;
    Aufzeichnungsform& operator=(const Aufzeichnungsform&) = delete;
    virtual ~Aufzeichnungsform() = default;

    /// What the file begins with. `konfiguration` is in use then.
    virtual std::string Beginne(const Messangaben& angaben, std::shared_ptr<const Abbild> konfiguration) = 0;
    /// What follows. `konfiguration` is in use during all of the packet.
    virtual std::string Nimm(const Messpaket& paket, std::shared_ptr<const Abbild> konfiguration) = 0;
    /// What the file ends with.
    virtual std::string Beende() = 0;
};

} // namespace varnoth
