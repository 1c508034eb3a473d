#pragma once

#include "dateiablage.h"

namespace varnoth {

/// Recordings as files of the system. May be used by one thread while others do other things: no Qt, no
/// texts. A new file is never a link's target and never replaces anything; on Windows nobody else can write,
/// move or remove it until it is closed.
class Dateiausgabe : public Dateiablage {
public:
    Angelegt LegeAn(const std::string& pfad) override;
    std::optional<std::uint64_t> FreierPlatz(const std::string& ordner) override;
};

} // namespace varnoth
