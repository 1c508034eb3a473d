#pragma once

#include <span>

class QTableView;

namespace varnoth {

/// Gives the rows of a table that has its model one height with room around their text, and its columns these
/// widths in pixels of a screen of 96 dpi. A column's head does not stand out when one of its cells is
/// chosen.
void GibTabelleForm(QTableView& tabelle, std::span<const int> breiten);

} // namespace varnoth
