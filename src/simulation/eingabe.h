#pragma once

#include <QLocale>
#include <QString>

#include <optional>

namespace varnoth {

/// The most characters that a typed number may have.
inline constexpr int LaengsteEingabe = 8;

/// A number as the user's system writes it: its decimal separator, no grouping (a German "1.5" is no number
/// rather than fifteen). None for any other text and for one longer than 8 characters.
std::optional<double> LiesEingabe(const QString& text, const QLocale& gebiet = QLocale::system());

} // namespace varnoth
