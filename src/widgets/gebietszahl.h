#pragma once

#include <QLocale>

#include <string>

namespace varnoth {

/// A number as the user's system writes it: its decimal separator, no grouping, as many of at most 15 digits
/// as the number needs. UTF-8.
std::string Gebietszahl(double zahl, const QLocale& gebiet = QLocale::system());

} // namespace varnoth
