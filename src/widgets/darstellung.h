#pragma once

#include <QPalette>

#include <optional>
#include <string>

namespace varnoth {

/// How the program looks: as the system has it, or in colours of its own.
enum class Erscheinung { System, Hell, Dunkel, HoherKontrast };
/// Which colours tell free, interrupted and blanked beams apart. Each but the first one keeps them apart for
/// people who do not see red, green or blue; the last one for those who see no colours.
enum class Strahlfarbsatz { GruenUndRot, BlauUndOrange, GruenUndMagenta, Graustufen };

inline constexpr Erscheinung DieErscheinungen[] = {Erscheinung::System, Erscheinung::Hell,
                                                   Erscheinung::Dunkel, Erscheinung::HoherKontrast};
inline constexpr Strahlfarbsatz DieFarbsaetze[] = {Strahlfarbsatz::GruenUndRot, Strahlfarbsatz::BlauUndOrange,
                                                   Strahlfarbsatz::GruenUndMagenta,
                                                   Strahlfarbsatz::Graustufen};

/// The colours of an appearance; nothing for that of the system.
std::optional<QPalette> PaletteFuer(Erscheinung erscheinung);

/// Whether a palette is that of high contrast: white on black, nothing between. That of a control that cannot
/// be chosen counts like any other.
bool IstHoherKontrast(const QPalette& palette);
/// Whether light writing stands on a dark ground.
bool IstDunkel(const QPalette& palette);

/// The set in use; pictures that are drawn from now on have its colours.
Strahlfarbsatz GetStrahlfarbsatz();
void SetzeStrahlfarbsatz(Strahlfarbsatz neuer);

} // namespace varnoth
