#pragma once

namespace varnoth {

/// How far what is shown can be believed: true now, true some time ago, or not measured at all.
enum class Datenstand { Gueltig, Veraltet, Ungueltig };

} // namespace varnoth
