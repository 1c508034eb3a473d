#pragma once

#include <cstdint>

namespace varnoth {

/// Which of the controls that depend on the mode and the bus can be used.
struct Autosendbedienung {
    bool trigger;           ///< the two trigger options
    bool rate;              ///< the rate and its label
    bool strahldatenMerken; ///< the check box
    bool nurModbus;         ///< everything that only a Modbus has is visible

    bool operator==(const Autosendbedienung&) const = default;
};

/// `klasse` is the mode's (see `AutosendKlasse`), `typ` the value of the bus type's register.
Autosendbedienung BedienungFuer(std::int16_t klasse, std::int32_t typ);

} // namespace varnoth
