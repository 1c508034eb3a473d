#include "kommandoregister.h"

#include "registeradressen.h"
#include "speicherbereich.h"
#include "transaktionen.h"

namespace varnoth {

Boolean SendeKommando(Kommando kommando) {
    constexpr auto Adresse = Geraeteadresse(Speicherbereich::GlobaleGeraetedaten, global::Kommando);
    return modModbus::RTUModeH10SchreibenAnforderung(Adresse, 1, {static_cast<std::int32_t>(kommando)});
}

} // namespace varnoth
