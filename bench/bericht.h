#pragma once

#include <QString>

namespace varnoth::bench {

enum class Ziel { Mindestens, Hoechstens };

/// Prints one line: the figure, what was measured, its target, whether that is met, and a remark.
void Berichte(const QString& groesse, double gemessen, const QString& einheit, Ziel art, double ziel,
              const QString& anmerkung = {});

/// The same for a figure that has no target.
void Berichte(const QString& groesse, double gemessen, const QString& einheit, const QString& anmerkung = {});

/// Ends the program as failed with the reason.
[[noreturn]] void Scheitere(const QString& grund);

} // namespace varnoth::bench
