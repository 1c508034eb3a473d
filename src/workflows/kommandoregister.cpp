#include "kommandoregister.h"

#include "transaktionen.h"

namespace varnoth {

Boolean SendeKommando(Kommando kommando) {
    return modModbus::RTUModeH10SchreibenAnforderung(modModbus::GlobaleBasis + Kommandoregister, 1,
                                                     {static_cast<std::int32_t>(kommando)});
}

} // namespace varnoth
